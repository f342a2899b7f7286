#include "screen/stampa.h"

namespace ambra {

ContestoStampa contesto_stampa(Programma& prog) {
    return {prog.piattaforma.printer(), prog.imp.tabstampa, prog.imp.cambio, prog.imp.intestazione,
            prog.nome_stabile(),        prog.oggi(),        prog.rigacorr,   prog.npagina};
}

Stampa::Stampa(Programma& prog, const std::string& titolo, int colx,
               const std::vector<ColonnaStampa>& colonne, int colall)
    : prog_(prog), attesa_(prog), contesto_(contesto_stampa(prog)), lavoro_(contesto_.stampante) {
    prog.err.azzera();
    auto& tab = prog.imp.tabstampa;
    tab[0].coltitolo = titolo;
    tab[0].colx = colx;
    tab[0].colall = colall;
    tab[0].colnum = 9;
    for (std::size_t i = 0; i < colonne.size() && i + 1 < tab.size(); ++i) {
        tab[i + 1].coltitolo = colonne[i].titolo;
        tab[i + 1].collarg = colonne[i].larghezza;
        tab[i + 1].coltipo = colonne[i].tipo;
    }
    prog.rigacorr = 0;
    prog.npagina = -1;
    contesto_.stampante.scale_mode(Scala::twip);
    contesto_.stampante.document_title = titolo;
}

void Stampa::riga() {
    xstampago(contesto_, prog_.rigacorr);
    prog_.piattaforma.refresh();
}

void Stampa::fine() {
    Printer& p = contesto_.stampante;
    // Each statement by itself: a printer that fails in one is still told to end the job.
    const auto passa = [](auto passo) {
        try {
            passo();
        } catch (const PrinterFault&) {
        }
    };
    if (prog_.rigacorr > 0) {
        prog_.rigacorr = xstampainit(contesto_);
        passa([&] { p.new_page(); });
    }
    passa([&] { p.end_doc(); });
}

}  // namespace ambra
