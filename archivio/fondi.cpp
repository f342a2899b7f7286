#include "archivio/fondi.h"

#include <algorithm>
#include <cassert>

namespace ambra {

namespace {

bool uguali(Byte a, Byte b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
}

bool tutti(const FormatoRecord& formato, std::span<const std::string_view> insieme, Byte a, Byte b) {
    return std::all_of(formato.campi.begin(), formato.campi.end(), [&](const CampoRecord& c) {
        if (std::find(insieme.begin(), insieme.end(), c.nome) == insieme.end()) return true;
        const std::size_t lungo = c.lungo * static_cast<std::size_t>(c.quanti);
        return uguali(a.subspan(c.posto, lungo), b.subspan(c.posto, lungo));
    });
}

}  // namespace

bool fondi(const FormatoRecord& formato, std::span<const std::string_view> insieme, Byte visto, Byte base,
           Byte mio, Byte disco, ByteScrivibili esito) {
    assert(visto.size() == formato.lunghezza && base.size() == formato.lunghezza);
    assert(mio.size() == formato.lunghezza && disco.size() == formato.lunghezza);
    assert(esito.size() == formato.lunghezza);
    const bool fermo = tutti(formato, insieme, disco, visto);
    const bool intatto = tutti(formato, insieme, mio, base);
    std::copy(disco.begin(), disco.end(), esito.begin());
    for (const CampoRecord& c : formato.campi) {
        if (c.tipo == CampoRecord::Tipo::grezzo) continue;
        const bool di_gruppo = std::find(insieme.begin(), insieme.end(), c.nome) != insieme.end();
        for (std::size_t i = 0; i < static_cast<std::size_t>(c.quanti); ++i) {
            const auto parte = [&](Byte r) { return r.subspan(c.posto + i * c.lungo, c.lungo); };
            const bool non_mosso = di_gruppo ? fermo : uguali(parte(disco), parte(visto));
            const bool non_toccato = di_gruppo ? intatto : uguali(parte(mio), parte(base));
            if (!non_mosso && non_toccato) continue;
            const Byte da = parte(mio);
            std::copy(da.begin(), da.end(),
                      esito.begin() + static_cast<std::ptrdiff_t>(c.posto + i * c.lungo));
        }
    }
    return fermo || intatto;
}

}  // namespace ambra
