#include "maintenance/mrvaind.h"

#include "archivio/azzeramento.h"
#include "core/lettura.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

Mrvaind::Mrvaind(Programma& p) : Schermo(p, "mrvaind", "Variazione indici") {
    aggiungi("avvertenza", avvertenza,
             "Fate molta attenzione nell'utilizzo di questa procedura: potreste danneggiare in maniera "
             "irreparabile gli archivi di lavoro!");
    aggiungi("cornice", cornice, "Selezione archivi da aggiornare");
    e_text1[0].caption("Fornitori");
    e_text1[1].caption("Fatture ricevute");
    for (std::size_t i = 0; i < 2; ++i) {
        aggiungi("e_text1(" + std::to_string(i) + ")", e_text1[i]);
        aggiungi("text1(" + std::to_string(i) + ")", text1[i]);
    }
    aggiungi("command3d4(1)", command3d4[1], "Memorizza");
    aggiungi("command3d4(0)", command3d4[0], "Esci");

    prog.err.azzera();
    for (std::size_t i = 0; i < 2; ++i) {
        leggi_o_resta(prog.arc.tfr, static_cast<long>(i) + 1, totali_[i]);
        text1[i].testo(testo_numero(totali_[i].parola[0]));
        text1[i].lasciato = [this, i] { return valido(i); };
    }
    text1[0].invio = [this] { fuoco(text1[1]); };
    command3d4[0].premuto = [this] { prog.schermi.chiudi(nome()); };
    command3d4[1].premuto = [this] { memorizza(); };
    fuoco(text1[0]);
}

bool Mrvaind::valido(std::size_t quale) {
    const double v = leggi_numero(text1[quale].testo());
    if (v >= 0 && v < 30000) return true;
    prog.ferma("Il numero di record o di documento non è valido"_it);
    return false;
}

void Mrvaind::memorizza() {
    prog.err.azzera();
    for (std::size_t i = 0; i < 2; ++i)
        totali_[i].parola[0] = leggi_intero(text1[i].testo(), prog.err, totali_[i].parola[0]);
    const Clessidra attesa(prog);
    if (!scrivi_limiti(prog.arc, totali_)) return prog.riferisci_occupato();
    prog.schermi.chiudi(nome());
}

}  // namespace ambra
