#include "reports/lumstcy.h"

#include <algorithm>

#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 28;
constexpr int kNumero = 6;  // hidden: progressive number of the supplier

const std::string kFiletto(80, '-');

}  // namespace

Lumstcy::Lumstcy(Programma& p) : Schermo(p, "lumstcy", "Riepilogo acquisti analitico") {
    campi.monta(*this);
    aggiungi("Text3", Text3, "Anno in esame");
    aggiungi("elenco", elenco);
    comandi.monta(
        *this, [this] { aggiornalista(); }, [this] { stampa(); });

    Text3.testo(prog.anno_corrente());
    campi.invio_al_prossimo(*this, {&Text3, &comandi.command3d2});

    using enum Allineamento;
    elenco.colonne({{"Cedente e/o prestatore", 8555, sinistra},
                    {"Data", 1000, sinistra},
                    {"Documento", 1000, sinistra},
                    {"Imp.totale", 1200, destra},
                    {"Sogg. ad iva", 1200, destra},
                    {"Tributo", kResto, destra},
                    {"", 0, sinistra}});
    aggiornalista();
}

void Lumstcy::aggiornalista() {
    const Riempimento inizio(prog, elenco);
    tabfor_.azzera();
    progressivo_ = 0;

    const FiltroRiepilogo filtro = campi.filtro();
    const auto documento = [&](const RecFattura& f) -> std::optional<Documento> {
        if (!filtro.prende(f)) return {};
        return Documento{f.datadoc, f.numdoc, importi_riepilogo(f)};
    };
    const DocumentiPerFornitore<Documento> documenti(prog.arc, quante_fatture(prog.arc), documento);
    const int quanti = quanti_fornitori(prog.arc);
    per_fornitore(prog.arc, quanti, [&](int numero, const RecFornitore& fornitore) {
        const std::span<const Documento> suoi = documenti.di(numero);
        if (!suoi.empty() && !filtro.esclude(fornitore)) documenti_di(suoi, fornitore, numero);
    });
    riepilogo(quanti);

    nrighe = elenco.righe();
    completa(elenco, kRigheMinime);
}

// The documents of one supplier with the supplier's card beside them, and their totals.
void Lumstcy::documenti_di(std::span<const Documento> documenti, const RecFornitore& f, int numero) {
    ++progressivo_;
    const std::vector<std::string> card = righe_identita(f);
    const std::string mio_numero = testo_con_segno(progressivo_);
    Somme somme{};
    for (std::size_t i = 0; i < std::max(documenti.size(), card.size()); ++i) {
        const std::string_view chi = i < card.size() ? std::string_view(card[i]) : "";
        const std::string_view n = i == 0 ? std::string_view(mio_numero) : "";
        if (i >= documenti.size()) {
            elenco.aggiungi({chi, "", "", "", "", "", n});
            continue;
        }
        const Documento& d = documenti[i];
        elenco.aggiungi({chi, mostra_aaaammgg(d.datadoc.testo()), d.numdoc.testo(),
                         prog.fmtimporto(d.importi.totale()), prog.fmtimporto(d.importi.impon),
                         prog.fmtimporto(d.importi.ivai), n});
        somme[0] += d.importi.totale();
        somme[1] += d.importi.impon;
        somme[2] += d.importi.ivai;
    }
    riga_totali("Totali", somme);
    elenco.aggiungi();
    for (std::size_t g = 0; g < somme.size(); ++g) tabfor_.metti(numero, g, somme[g]);
}

void Lumstcy::riga_totali(std::string_view titolo, const Somme& somme) {
    elenco.aggiungi({kFiletto, "", "", kFiletto, kFiletto, kFiletto});
    elenco.aggiungi(
        {titolo, "", "", prog.fmtimporto(somme[0]), prog.fmtimporto(somme[1]), prog.fmtimporto(somme[2])});
}

// One row for each supplier that has amounts, whatever the filters: those left out have none.
void Lumstcy::riepilogo(int quanti) {
    elenco.aggiungi({kFiletto, kFiletto, kFiletto, kFiletto, kFiletto, kFiletto});
    elenco.aggiungi({"Riepilogo"});
    progressivo_ = 0;
    Somme generali{};
    per_fornitore(prog.arc, quanti, [&](int numero, const RecFornitore& f) {
        const Somme s = {tabfor_(numero, 0), tabfor_(numero, 1), tabfor_(numero, 2)};
        if (s == Somme{}) return;
        elenco.aggiungi({unisci(f.inte1.rifilato(), " ", f.inte2.rifilato()), "", "", prog.fmtimporto(s[0]),
                         prog.fmtimporto(s[1]), prog.fmtimporto(s[2]), testo_con_segno(++progressivo_)});
        for (std::size_t g = 0; g < s.size(); ++g) generali[g] += s[g];
    });
    riga_totali("Totali complessivi", generali);
}

void Lumstcy::stampa() {
    if (!prog.chiedi("Iniziare la stampa?", "Stampa prospetto")) return;
    Stampa lavoro(prog, unisci("Riepilogo acquisti e prestazioni anno ", rifila(Text3.testo())), 7,
                  {{"Num", 5, 4},
                   {"Cedente e/o prestatore", 33, 0},
                   {"Data", 11, 0},
                   {"Documento", 11, 0},
                   {"Importo totale", 15, 1},
                   {"Soggetto ad iva", 15, 1},
                   {"Tributo assolto", 15, 1}});
    for (int r = 1; r < nrighe; ++r) {
        prog.npagina = -1;
        lavoro.cella(1) = elenco.testo(r, kNumero);
        for (int c = 0; c <= 2; ++c) lavoro.cella(c + 2) = elenco.testo(r, c);
        for (int c = 3; c <= 5; ++c) lavoro.cella(c + 2) = prog.fmtimporto(valimporto_di(elenco.vista(r, c)));
        lavoro.riga();
    }
    lavoro.fine();
}

}  // namespace ambra
