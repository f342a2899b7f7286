#include "reports/mrvanz.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>
#include <vector>

#include "core/date.h"
#include "core/testo.h"
#include "ledger/scadenze_ritenute.h"

namespace ambra {

namespace {

bool nulla(const Anzianita& a) {
    return std::ranges::all_of(a, [](Centesimi c) { return c == 0; });
}

}  // namespace

Mrvanz::Mrvanz(Programma& p) : Schermo(p, "mrvanz", "Scoperto per anzianità"_it) {
    using enum Allineamento;
    aggiungi("text1", text1);
    text1[0].caption("Alla data");
    aggiungi("elenco", elenco);
    comandi.monta(
        *this, [this] { riempi(); }, [this] { stampa(); });
    elenco.colonne({{"Fornitore", kResto, sinistra},
                    {"A scadere", 1300, destra},
                    {"1-30", 1300, destra},
                    {"31-60", 1300, destra},
                    {"61-90", 1300, destra},
                    {"Oltre 90", 1300, destra},
                    {"Senza data", 1300, destra},
                    {"Totale", 1400, destra}});
    text1[0].testo(prog.oggi());
    text1[0].cambiato = [this] { riempi(); };
    attivata = [this](Attivazione) { riempi(); };
}

void Mrvanz::riempi() {
    const auto al = data_valida(text1[0].testo());
    if (!al) return;
    const Riempimento inizio(prog, elenco);
    std::unordered_map<int, Anzianita> somme;
    Passata<RecFattura> passata(prog.arc.ftr);
    for (int n = 1, quante = quante_fatture(prog.arc); n <= quante; ++n)
        if (const RecFattura* f = passata.vista(n)) {
            const Anzianita a = anzianita(*f, *al);
            if (nulla(a)) continue;
            Anzianita& s = somme[f->numfor];
            std::ranges::transform(s, a, s.begin(), std::plus());
        }
    aggiungi_righe(somme);
}

// In order of name; a supplier whose instalments come to nothing in every column has no row.
void Mrvanz::aggiungi_righe(const std::unordered_map<int, Anzianita>& somme) {
    struct Riga {
        std::string nome;
        int fornitore;
    };
    std::vector<Riga> righe;
    Schedario<RecFornitore> schede(prog.arc.fornitori);
    for (const auto& [numero, s] : somme) {
        if (nulla(s)) continue;
        const RecFornitore* f = schede.vista(numero);
        righe.push_back({f ? nome_fornitore(*f) : "", numero});
    }
    std::ranges::sort(righe, {}, [](const Riga& r) { return std::pair(maiuscolo(r.nome), r.fornitore); });
    Anzianita totale{};
    for (const Riga& r : righe) {
        const Anzianita& s = somme.at(r.fornitore);
        aggiungi_riga(r.nome, s);
        std::ranges::transform(totale, s, totale.begin(), std::plus());
    }
    aggiungi_riga("Totale", totale);
}

void Mrvanz::aggiungi_riga(const std::string& nome, const Anzianita& a) {
    const int r = elenco.aggiungi({nome});
    const auto scrivi = [&](int colonna, Centesimi c) {
        elenco.scrivi(r, colonna, prog.fmtimporto(static_cast<double>(c) / 100));
    };
    int colonna = 0;
    for (const Centesimi c : a) scrivi(++colonna, c);
    scrivi(++colonna, std::accumulate(a.begin(), a.end(), Centesimi{0}));
}

void Mrvanz::stampa() {
    stampa_elenco(prog, elenco, elenco.righe(),
                  {.titolo_domanda = "Stampa scoperto per anzianità"_it,
                   .titolo = unisci("Scoperto per anzianità al "_it, text1[0].testo()),
                   .colonne = {{{"Fornitore", 28, 0}, 0},
                               {{"A scadere", 11, 1}, 1},
                               {{"1-30", 11, 1}, 2},
                               {{"31-60", 11, 1}, 3},
                               {{"61-90", 11, 1}, 4},
                               {{"Oltre 90", 11, 1}, 5},
                               {{"Senza data", 11, 1}, 6},
                               {{"Totale", 12, 1}, 7}}});
}

}  // namespace ambra
