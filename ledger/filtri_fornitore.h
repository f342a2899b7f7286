// The filters of the lists that go supplier by supplier: names, period, and what to do with them.
#pragma once

#include "ledger/elenco_stampa.h"

namespace ambra {

struct FiltriFornitore {
    NomiElenco nomi;
    PeriodoElenco periodo;
    Etichetta avviso;

    void monta(Schermo& s) {
        nomi.monta(s, "Dal fornitore", "Al fornitore");
        periodo.monta(s);
        s.aggiungi(
            "avviso", avviso,
            "Selezionare eventualmente i fornitori ed il periodo interessato e clic su 'aggiorna lista' per "
            "visualizzare il prospetto.");
    }
};

}  // namespace ambra
