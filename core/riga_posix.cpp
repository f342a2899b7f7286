#include "core/riga.h"

#include <clocale>
#include <cstdlib>

namespace ambra {

std::vector<std::string> parole_della_riga(int argc, const char* const* argv) {
    return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>{};
}

std::string dell_ambiente(const char* nome) {
    const char* parola = std::getenv(nome);
    return parola ? parola : "";
}

void di_a_chi_chiama(std::FILE* dove, const std::string& testo) {
    std::fputs(testo.c_str(), dove);
}

FlussiUtf8::FlussiUtf8() {
    std::setlocale(LC_CTYPE, "C.UTF-8");
}
FlussiUtf8::~FlussiUtf8() = default;

}  // namespace ambra
