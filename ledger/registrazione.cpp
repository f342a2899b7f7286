#include "ledger/registrazione.h"

#include "core/lettura.h"

namespace ambra {

bool registra_movimento(Archivio& arc, const Cambio& cambio, const TabellaVoci& tabella, int voce,
                        int condomino, const RecMovimento& m, BufferLedger& b,
                        const std::function<void()>& avanti) {
    const Sezione sezione(arc.serratura, Serratura::conti);
    if (!sezione.presa()) return false;
    const double importo = m.mimporto;
    const auto muovi_saldo = [&](int record, double di) {
        leggi_o_resta(arc.pia, record, b.conto);
        b.conto.csaldo = arrotonda(cambio, b.conto.csaldo + di);
        scrivi(arc.pia, record, b.conto);
    };
    leggi_o_resta(arc.tot, 1, b.totali);
    scrivi(arc.mov, long(b.totali.tmovimenti) + 1, m);
    incrementa(b.totali.tmovimenti, arc.err);
    scrivi(arc.tot, 1, b.totali);
    muovi_saldo(m.mconto, importo);
    muovi_saldo(kBaseContropartite + m.mcontrop, -importo);
    if (voce >= kVoceAddebiti) {
        leggi_o_resta(arc.cnd, condomino, b.condomino);
        b.condomino.daddebiti = arrotonda(cambio, b.condomino.daddebiti + importo);
        scrivi(arc.cnd, condomino, b.condomino);
    }
    calcquote(arc, cambio, tabella, b, avanti);
    return true;
}

}  // namespace ambra
