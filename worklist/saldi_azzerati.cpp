#include "worklist/saldi_azzerati.h"

#include <algorithm>

namespace ambra {

namespace {

bool senza_pagamenti(const RecFattura& f) {
    return std::all_of(std::begin(f.ver), std::end(f.ver), [](double v) { return v == 0; }) &&
           std::all_of(std::begin(f.dver), std::end(f.dver),
                       [](const auto& d) { return d.rifilato().empty(); });
}

}  // namespace

void azzera_saldo(RecFattura& f) {
    for (auto& d : f.dver) d = "";
    for (auto& v : f.ver) v = 0;
    f.pagata = 0;
}

void segna_viva(RecFattura& f) {
    f.cancellata = 0;
}

void SaldiAzzerati::ricorda(long n, const RecFattura& prima) {
    if (senza_pagamenti(prima)) return;
    visti_.aggiungi(n, prima);
    saldi_.push_back({prima});
}

// The last one of a document that was wiped twice.
int SaldiAzzerati::chiave_di(long n) const {
    for (std::size_t i = saldi_.size(); i > 0; --i)
        if (!saldi_[i - 1].rimesso && n > 0 && visti_.posto(static_cast<int>(i)) == n)
            return static_cast<int>(i);
    return 0;
}

DocumentoInMano::Esito SaldiAzzerati::rimetti(long n) {
    using enum DocumentoInMano::Esito;
    const int chiave = chiave_di(n);
    if (chiave == 0) return sparito;
    Saldo& saldo = saldi_[static_cast<std::size_t>(chiave - 1)];
    bool pagata_altrove = false;
    const auto esito = cambia_documento(arc_, visti_, chiave, [&](RecFattura& f) {
        pagata_altrove = !senza_pagamenti(f);
        if (pagata_altrove) return;
        for (int k = 0; k < 4; ++k) {
            f.dver[k] = saldo.prima.dver[k];
            f.ver[k] = saldo.prima.ver[k];
        }
        f.pagata = saldo.prima.pagata;
    });
    if (esito != scritto) return esito;
    saldo.rimesso = true;
    return pagata_altrove ? sparito : scritto;
}

}  // namespace ambra
