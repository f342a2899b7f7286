#include "ledger/elenco_stampa.h"

#include "core/testo.h"

namespace ambra {

void ComandiElenco::monta(Schermo& s, std::function<void()> aggiorna, std::function<void()> stampa) {
    s.aggiungi("command3d1", command3d1);
    s.aggiungi("command3d2", command3d2);
    s.aggiungi("stampante", stampante);
    s.aggiungi("indice", indice);
    command3d1.premuto = [&s] { s.prog.piattaforma.printer_setup(); };
    command3d2.premuto = std::move(aggiorna);
    stampante.premuto = std::move(stampa);
    indice.premuto = [&s] { s.prog.schermi.chiudi(s.nome()); };
}

void PeriodoElenco::monta(Schermo& s, const std::string& dalla, const std::string& alla) {
    s.aggiungi("text1(0)", text1[0], dalla);
    s.aggiungi("text1(1)", text1[1], alla);
    text1[0].testo("01/01/" + s.prog.anno_corrente());
    text1[1].testo("31/12/" + s.prog.anno_corrente());
    text1[0].invio = [this, &s] { s.fuoco(text1[1]); };
}

std::string PeriodoElenco::chiave(std::string_view mostrata) {
    return unisci(medio(mostrata, 7, 4), medio(mostrata, 4, 2), medio(mostrata, 1, 2));
}

void NomiElenco::monta(Schermo& s, const std::string& dal, const std::string& al) {
    s.aggiungi("t_inizio", t_inizio, dal);
    s.aggiungi("t_fine", t_fine, al);
    t_inizio.invio = [this, &s] { s.fuoco(t_fine); };
}

void stampa_elenco(Programma& prog, const Griglia& elenco, int righe, const StampaElenco& come,
                   const std::function<bool(int riga)>& salta) {
    if (!prog.chiedi(come.domanda, come.titolo_domanda)) return;
    std::vector<ColonnaStampa> colonne;
    for (const ColonnaElenco& c : come.colonne) colonne.push_back(c.stampa);
    const int colx = come.colx > 0 ? come.colx : static_cast<int>(colonne.size());
    Stampa lavoro(prog, come.titolo, colx, colonne);
    for (int r = 1; r < righe; ++r) {
        if (salta && salta(r)) continue;
        int k = 0;
        for (const ColonnaElenco& c : come.colonne) lavoro.cella(++k) = elenco.vista(r, c.dalla);
        lavoro.riga();
    }
    lavoro.fine();
}

}  // namespace ambra
