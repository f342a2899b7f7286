#include "ledger/quote.h"

#include "core/lettura.h"

namespace ambra {

namespace {

constexpr double kGiorniAnno = 365;

double millesimi(const RecCondomino& c, const RecCondomino2& c2, std::size_t voce) {
    return voce <= 20 ? c.dmill[voce - 1] : c2.dmill[voce - 21];
}

SaldiVoci saldi_voci(Archivio& arc, const TabellaVoci& tabella, RecConto& conto) {
    SaldiVoci v;
    Passata<RecConto> piano(arc.pia);
    for (int j = 1; j <= kVociSpesa; ++j) {
        const auto i = static_cast<std::size_t>(j);
        v.totale[i] = tabella.totale(j);
        for (int c = 1; c <= kContiPerVoce; ++c) {
            leggi_o_resta(piano, idconto(j, c), conto);
            v.saldo[i] += conto.csaldo;
        }
    }
    return v;
}

}  // namespace

double quota_condomino(const Cambio& cambio, const SaldiVoci& voci, const RecCondomino& c,
                       const RecCondomino2& c2) {
    double totale = 0;
    for (std::size_t j = 1; j <= kVociSpesa; ++j)
        if (voci.totale[j] != 0)
            totale += arrotonda(cambio, voci.saldo[j] / voci.totale[j] * millesimi(c, c2, j));
    if (c2.dperiodo == 1 || c2.dperiodo == 2)
        totale = arrotonda(cambio, totale * int(c2.dgiorni) / kGiorniAnno);
    return totale;
}

void calcquote(Archivio& arc, const Cambio& cambio, const TabellaVoci& tabella, BufferLedger& b,
               const std::function<void()>& avanti) {
    leggi_o_resta(arc.tot, 1, b.totali);
    const int quanti = b.totali.tcondomini;
    if (quanti < 1) return;
    const SaldiVoci voci = saldi_voci(arc, tabella, b.conto);
    const long presenti = arc.cnd.interi();
    Passata<RecCondomino> condomini(arc.cnd);
    Passata<RecCondomino2> seconde(arc.cn2);
    for (int c = 1; c <= quanti; ++c) {
        if (avanti) avanti();
        // A record past the end is made whole; so is one that cannot be read, out of the record in hand.
        const bool letto = c <= presenti && condomini.leggi(c, b.condomino);
        if (c > presenti) leggi_o_resta(arc.cnd, c, b.condomino);
        leggi_o_resta(seconde, c, b.condomino2);
        b.condomino.dquota = quota_condomino(cambio, voci, b.condomino, b.condomino2);
        if (letto)
            scrivi_campo(arc.cnd, c, b.condomino, b.condomino.dquota);
        else
            scrivi(arc.cnd, c, b.condomino);
    }
}

}  // namespace ambra
