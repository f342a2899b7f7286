#include <string_view>

#include "parti/modulo.h"
#include "parti/parti.h"

namespace ambra {

void* da_modulo(const char* nome, std::string& perche) {
    if (nome == std::string_view("ambra_archivi")) return reinterpret_cast<void*>(&ambra_archivi);
#ifdef AMBRA_CON_QT
    if (nome == std::string_view("ambra_pdf")) return reinterpret_cast<void*>(&ambra_pdf);
    if (nome == std::string_view("ambra_fogli")) return reinterpret_cast<void*>(&ambra_fogli);
#endif
    perche = "manca una parte del programma: " + std::string(nome);
    return nullptr;
}

std::string manca_modulo(const char* nome) {
    std::string perche;
    da_modulo(nome, perche);
    return perche;
}

}  // namespace ambra
