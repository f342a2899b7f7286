#include "tests/storia/campi_record.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "core/campi.h"
#include "core/testo.h"

namespace ambra::storia {

namespace {

std::string mostra(const CampoRecord& c, const char* p) {
    switch (c.tipo) {
        case CampoRecord::Tipo::testo: {
            std::string_view t(p, c.lungo);
            return a_utf8(rifila_destra(t));
        }
        case CampoRecord::Tipo::intero: {
            Intero v;
            std::memcpy(&v, p, sizeof v);
            return std::to_string(int(v));
        }
        case CampoRecord::Tipo::doppio: {
            Doppio v;
            std::memcpy(&v, p, sizeof v);
            char b[40];
            std::snprintf(b, sizeof b, "%.17g", double(v));
            return b;
        }
        case CampoRecord::Tipo::lungo: {
            Lungo v;
            std::memcpy(&v, p, sizeof v);
            return std::to_string(std::int32_t(v));
        }
        case CampoRecord::Tipo::grezzo:
            return in_hex({p, c.lungo});
    }
    return "";
}

}  // namespace

void svuota(const FormatoRecord& form, char* r) {
    for (const auto& c : form.campi)
        if (c.tipo == CampoRecord::Tipo::testo)
            std::memset(r + c.posto, ' ', c.lungo * static_cast<std::size_t>(c.quanti));
}

const CampoRecord& campo(const FormatoRecord& form, const Assegnazione& x) {
    for (const auto& c : form.campi)
        if (c.nome == x.campo) return c;
    male("no field " + x.campo + " in " + std::string(form.nome));
}

std::size_t posto(const CampoRecord& c, int indice) {
    const int i = indice < 0 ? 0 : indice - c.primo;
    if (i < 0 || i >= c.quanti) male("no element " + std::to_string(indice) + " of " + std::string(c.nome));
    return c.posto + static_cast<std::size_t>(i) * c.lungo;
}

void assegna(const FormatoRecord& form, char* r, const Assegnazione& x) {
    const CampoRecord& c = campo(form, x);
    char* p = r + posto(c, x.indice);
    switch (c.tipo) {
        case CampoRecord::Tipo::testo: {
            const std::string t = riempi(da_utf8(x.valore), c.lungo);
            std::memcpy(p, t.data(), c.lungo);
            break;
        }
        case CampoRecord::Tipo::intero: {
            Intero v;
            v = std::stoi(x.valore);
            std::memcpy(p, &v, sizeof v);
            break;
        }
        case CampoRecord::Tipo::doppio: {
            Doppio v;
            v = std::stod(x.valore);
            std::memcpy(p, &v, sizeof v);
            break;
        }
        case CampoRecord::Tipo::lungo: {
            Lungo v;
            v = std::stoi(x.valore);
            std::memcpy(p, &v, sizeof v);
            break;
        }
        case CampoRecord::Tipo::grezzo: {
            const std::string b = da_hex(x.valore);
            std::memcpy(p, b.data(), std::min(b.size(), c.lungo));
            break;
        }
    }
}

void pretendi(const FormatoRecord& form, const char* r, const Assegnazione& x, const std::string& dove) {
    const CampoRecord& c = campo(form, x);
    const std::string ora = mostra(c, r + posto(c, x.indice));
    const bool bene = c.tipo == CampoRecord::Tipo::doppio ? std::stod(ora) == std::stod(x.valore)
                                                          : ora == std::string(rifila_destra(x.valore));
    if (!bene) male(dove + ": " + x.campo + " is \"" + ora + "\", expected \"" + x.valore + "\"");
}

}  // namespace ambra::storia
