#include "invoices/stabili_drive.h"

#include <cstring>

#include "core/impostazioni.h"
#include "core/testo.h"
#include "records/stabile.h"

namespace ambra {

StabiliDrive::StabiliDrive(Disco& disco, int questo) {
    std::string byte;
    if (disco.leggi_tutto(kCartella + "lumora.tt2", byte) != 0) return;
    for (std::size_t i = 0; (i + 1) * sizeof(RecStabile2) <= byte.size(); ++i) {
        RecStabile2 r;
        std::memcpy(&r, byte.data() + i * sizeof r, sizeof r);
        const std::string codice = maiuscolo(r.codfisc.rifilato());
        const int n = static_cast<int>(i) + 1;
        if (codice.empty()) continue;
        const auto [e, nuovo] = per_codice_.try_emplace(codice, n);
        if (n == questo) e->second = n;
    }
}

int StabiliDrive::di(const SoggettoLetto& cliente) const {
    for (const std::string& codice : {cliente.codice_fiscale, cliente.codice_iva}) {
        const auto e = per_codice_.find(maiuscolo(da_utf8(codice)));
        if (!codice.empty() && e != per_codice_.end()) return e->second;
    }
    return 0;
}

}  // namespace ambra
