#include "ledger/lumstca.h"

#include "core/date.h"
#include "core/lettura.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 28;  // the heading row counted
// Hidden columns: the record and the sort keys.
constexpr int kScadenza = 8, kNumero = 9, kData = 10, kNome = 11, kImporto = 12;
constexpr std::string_view kChiaveFiller = "zzzzzzz";

}  // namespace

Lumstca::Lumstca(Programma& p) : Schermo(p, "lumstca", "Elenco ritenute acconto") {
    using enum Allineamento;
    periodo.monta(*this, "Dalla scadenza", "Alla scadenza");
    aggiungi("rac", rac);
    aggiungi("srx", srx);
    aggiungi("elenco", elenco);
    comandi.monta(
        *this, [this] { riempi(); }, [this] { stampa(); });
    for (std::size_t i = 0; i < srx.size(); ++i) srx[i].premuto = [this, i] { ordina(static_cast<int>(i)); };
    for (const std::size_t i : {0u, 1u, 2u, 3u}) srx[i].caption("Riordina");
    srx[5].caption("Riorina");
    elenco.colonne({{"Fattura", 1255, sinistra},
                    {"Data", 1100, sinistra},
                    {"Fornitore", 7200, sinistra},
                    {"Importo", 1200, destra},
                    {"Rit.acconto", 1200, destra},
                    {"Scadenza", 1100, sinistra},
                    {"Versata", kResto, sinistra},
                    {},
                    {},
                    {},
                    {},
                    {},
                    {}});
    quante_ = quante_fatture(p.arc);
    rac.cambiato = [this] { riempi(); };
    riempi();
}

void Lumstca::riempi() {
    const Riempimento inizio(prog, elenco);
    totale_ = ritenute_ = 0;
    const std::string dal = periodo.dal(), al = periodo.al();
    Passata<RecFattura> documenti(prog.arc.ftr);
    Schedario<RecFornitore> schede(prog.arc.fornitori);
    RecFattura f{};
    for (int n = 1; n <= quante_; ++n) {
        leggi_o_resta(documenti, n, f);
        leggi_o_resta(schede, f.numfor, fornitore_);
        const double ritenuta = somma(f.rac);
        const std::string scadenza = da_ggmmaaaa_a_aaaammgg(f.dscarit.testo());
        if (ritenuta == 0 || scadenza < dal || scadenza > al) continue;
        if (rac.spuntata() && leggi_numero(f.dverrit.testo()) != 0) continue;
        aggiungi_documento(n, f, ritenuta * segno(f));
    }
    aggiungi_chiusura();
}

void Lumstca::aggiungi_documento(int n, const RecFattura& f, double rit) {
    const double totale = importi(f).totale() * segno(f);
    const std::string numero = f.numdoc.testo(), nome = fornitore_.inte1.testo();
    const std::string importo = f.cancellata == 1 ? "Fattura eliminata" : prog.fmtimporto(totale);
    const int r = elenco.aggiungi(
        {numero, mostra_aaaammgg(f.datadoc.testo()), nome, importo, prog.fmtimporto(rit),
         mostra_ggmmaaaa(f.dscarit.testo()), data_o_nulla(f.dverrit), std::to_string(n),
         da_ggmmaaaa_a_aaaammgg(f.dscarit.testo()), numero, f.datadoc.testo(), nome, testo_numero(totale)});
    elenco.chiave(r, n);
    totale_ += totale;
    ritenute_ += rit;
}

// The total row, whose keys come after any real one, and the blank rows, whose keys come after those.
void Lumstca::aggiungi_chiusura() {
    constexpr std::string_view kChiave = "zzzzzz99999999";
    const int r = elenco.aggiungi({"", "", "Totale", prog.fmtimporto(totale_), prog.fmtimporto(ritenute_), "",
                                   "", kChiave, kChiave, kChiave, kChiave, "zzzzzzTotale",
                                   testo_numero(totale_ + ritenute_)});
    elenco.chiave(r, kRigaTotale);
    while (elenco.righe() < kRigheMinime)
        elenco.aggiungi({"", "", "", "", "", "", "", kChiaveFiller, kChiaveFiller, kChiaveFiller,
                         kChiaveFiller, kChiaveFiller, testo_numero(totale_ + ritenute_ + 1)});
}

// The commands over "Fattura" and "Scadenza" sort by each other's column.
void Lumstca::ordina(int etichetta) {
    if (etichetta == 0) elenco.ordina_dati(kScadenza, Ordine::generico);
    if (etichetta == 1) elenco.ordina_dati(kData, Ordine::generico);
    if (etichetta == 2) elenco.ordina_dati(kNome, Ordine::generico);
    if (etichetta == 3) elenco.ordina(kImporto, Ordine::numerico);
    if (etichetta == 5) elenco.ordina_dati(kNumero, Ordine::generico);
    fuoco(periodo.text1[0]);
}

void Lumstca::stampa() {
    stampa_elenco(prog, elenco, elenco.righe(),
                  {.titolo_domanda = "Stampa elenco ritenute acconto",
                   .titolo = "Elenco ritenute acconto",
                   .colonne = {{{"Fattura", 8, 0}, 0},
                               {{"Data", 8, 0}, 1},
                               {{"Fornitore", 30, 0}, 2},
                               {{"Importo", 9, 1}, 3},
                               {{"Rit.acconto", 9, 1}, 4},
                               {{"Scadenza", 8, 0}, 5},
                               {{"Versata", 8, 0}, 6}},
                   .colx = 8},
                  [this](int r) { return elenco.vista(r, 7) == kChiaveFiller; });
}

}  // namespace ambra
