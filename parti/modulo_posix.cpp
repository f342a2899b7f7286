#include <dlfcn.h>

#include <filesystem>

#include "parti/modulo.h"

namespace ambra {

namespace {

namespace fs = std::filesystem;

// Beside the program, wherever that was built, installed or moved to.
fs::path file_del_modulo(const char* nome) {
    std::error_code ec;
    const fs::path programma = fs::read_symlink("/proc/self/exe", ec);
    return (programma.parent_path() / AMBRA_MODULI / nome).lexically_normal() += ".so";
}

}  // namespace

void* da_modulo(const char* nome, std::string& perche) {
    void* modulo = dlopen(file_del_modulo(nome).c_str(), RTLD_LAZY | RTLD_LOCAL);
    void* trovato = modulo ? dlsym(modulo, nome) : nullptr;
    if (trovato) return trovato;
    const char* male = dlerror();
    perche = "una parte del programma non si carica: " + std::string(male ? male : nome);
    return nullptr;
}

std::string manca_modulo(const char* nome) {
    std::error_code ec;
    const fs::path file = file_del_modulo(nome);
    return fs::exists(file, ec) ? "" : "manca una parte del programma: " + file.string();
}

}  // namespace ambra
