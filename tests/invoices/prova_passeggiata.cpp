// A long random life of a building's documents: registered, changed, paid, taken back, deleted, with and
// without postings, beside a model that knows cents and nothing of the code.
#include <cmath>
#include <cstdlib>
#include <map>
#include <random>

#include "core/testo.h"
#include "ledger/luminca.h"
#include "ledger/scadenza_ritenuta.h"
#include "tests/invoices/studio.h"
#include "tests/supporto/seme.h"
#include "worklist/vexoraf.h"

using namespace ambra;

namespace {

// What must stand in a record, amounts in cents.
struct Documento {
    int fornitore = 1, termine = 0, tipo = 0;
    std::string numero, scadenza_ritenuta;
    long impon[3] = {}, ivai[3] = {}, rac[3] = {}, esent = 0;
    long sca[4] = {};
    double dovute[4] = {};  // the same as stored: what rounding leaves may show far behind the cents
    double ver[4] = {};
    std::string dver[4];
    bool pagata = false, addebitata = false, singolo = false, cancellata = false;

    long totale() const {
        long s = esent;
        for (int i = 0; i < 3; ++i) s += impon[i] + ivai[i];
        return s;
    }
    long netto() const { return totale() - rac[0] - rac[1] - rac[2]; }
    double dovuto() const { return dovute[0] + dovute[1] + dovute[2] + dovute[3]; }
    double versato() const { return ver[0] + ver[1] + ver[2] + ver[3]; }
};

std::string euro(long cent) {
    return testo_numero(double(cent) / 100);
}

class Passeggiata : public Studio {
  protected:
    std::mt19937 caso;
    std::vector<Documento> modello{1};  // record 0 does not exist
    std::map<int, long> saldi{{1, 10000}, {100, 0}, {3961, 0}, {4159, -10000}};
    int quanti_movimenti = 0;

    int dado(int facce) { return std::uniform_int_distribution<int>(0, facce - 1)(caso); }
    int uno_vivo() {
        for (int tentativi = 0; tentativi < 20; ++tentativi) {
            const int n = 1 + dado(static_cast<int>(modello.size()));
            if (n < static_cast<int>(modello.size()) && !modello[static_cast<std::size_t>(n)].cancellata)
                return n;
        }
        return 0;
    }
    Documento& doc(int n) { return modello[static_cast<std::size_t>(n)]; }
    Vexoraf& lista() { return *static_cast<Vexoraf*>(b.prog.schermi.caricato("vexoraf")); }
    Luminca& pagamento() { return *static_cast<Luminca*>(b.prog.schermi.caricato("luminca")); }

    // An amount whose VAT is not on the border of the rounding, where a binary fraction may fall either way.
    long importo(int aliquota) {
        for (;;) {
            const long c = dado(2'000'000);
            if (c * aliquota % 100 != 49 && c % 100 != 0) return c;
        }
    }

    void digita_importi(Documento& d) {
        static constexpr int kAliquote[3] = {22, 10, 4};
        Lumftea& s = schermo();
        for (std::size_t i = 0; i < 3; ++i) {
            if (dado(2) == 0) continue;
            d.impon[i] = importo(kAliquote[i]);
            const long prodotto = d.impon[i] * kAliquote[i];
            d.ivai[i] = prodotto / 100 + (prodotto % 100 > 49 ? 1 : 0);
            // 20 per cent withheld under the first code alone; the others keep what was there
            if (i == 0) d.rac[i] = d.impon[i] * 20 / 100 + (d.impon[i] * 20 % 100 > 49 ? 1 : 0);
            digita(s.impon[i], euro(d.impon[i]));
            EXPECT_EQ(s.ivai[i].testo(), euro(d.ivai[i]));
            fraziona(d);
        }
        if (dado(2) == 0) {
            d.esent = dado(100'000) + 1;
            digita(s.esent[0], "");
            digita(s.esent[0], euro(d.esent));
            fraziona(d);
        }
    }

    // An even share, half a cent and above up; the first takes the rest. Instalments out of the term stay.
    void fraziona(Documento& d) {
        const int rate = d.termine == contanti ? 1 : d.termine == tre_rate ? 3 : 4;
        const long n = d.netto();
        const long rata = static_cast<long>(std::floor((double(n) + 0.51 * rate) / rate + 1e-9));
        for (int k = 1; k < rate; ++k) d.sca[k] = rata;
        d.sca[0] = n - (rate - 1) * rata;
    }

    void scegli_termine(Documento& d) {
        constexpr int kTermine[3] = {contanti, tre_rate, quattro_rate};
        const int t = kTermine[dado(3)];
        if (t == d.termine) return;
        d.termine = t;
        const int rate = t == contanti ? 1 : t == tre_rate ? 3 : 4;
        for (int k = rate; k < 4; ++k) d.sca[k] = 0;
        fai([&] { schermo().Combo1.scegli(t); });
        fraziona(d);
    }

    // Queues the answer to the question of a charge, and what happens on the posting screen.
    bool prepara_addebito(const Documento& d, double importo_cent) {
        const int che = dado(3);  // no, yes and stored, yes and cancelled
        b.piattaforma.risposte = {che == 0 ? Risposta::no : Risposta::si};
        if (che == 0) return false;
        const bool memorizza = che == 1 && importo_cent != 0;
        b.piattaforma.attese.push_back([this, memorizza] { premi(uscita().b_fine[memorizza ? 1 : 0]); });
        if (!memorizza) return false;
        const long cent = std::lround(importo_cent) * (d.tipo == 1 ? -1 : 1);
        saldi[d.singolo ? 3961 : d.fornitore == 1 ? 1 : 100] += cent;
        saldi[4159] -= cent;
        ++quanti_movimenti;
        return true;
    }
    double somma_rate(const Documento& d) { return double(d.sca[0] + d.sca[1] + d.sca[2] + d.sca[3]); }

    void registra() {
        Documento d;
        d.fornitore = 1 + dado(2);
        d.termine = d.fornitore == 1 ? contanti : tre_rate;
        Lumftea& s = nuova(d.fornitore);
        d.numero = std::to_string(dado(10000));
        digita(s.Text2[0], d.numero);
        if (dado(4) == 0) {
            d.tipo = 1;
            fai([&] { s.tipodc[1].clicca(); });
        }
        if (dado(4) == 0) {
            d.singolo = true;
            fai([&] { s.riporta[1].clicca(); });
        }
        scegli_termine(d);
        digita_importi(d);
        if (dado(3) == 0) {
            fai([&] { s.pagato.clicca(); });
            d.pagata = true;
            if (d.rac[0] + d.rac[1] + d.rac[2] != 0) d.scadenza_ritenuta = "16042024";
            for (int k = 0; k < 4; ++k) {
                // today where an amount above 0 stood when it was ticked, else the due date
                d.dver[k] = in_ggmmaaaa(s.dsca[static_cast<std::size_t>(k)].testo());
                EXPECT_TRUE(d.sca[k] <= 0 || d.dver[k] == "15032024");
            }
        }
        d.addebitata = prepara_addebito(d, somma_rate(d));
        conferma();
        modello.push_back(d);
        prendi_rate(static_cast<int>(modello.size()) - 1);
        if (!d.pagata) return;
        Documento& nato = modello.back();
        for (int k = 0; k < 4; ++k) nato.ver[k] = nato.dovute[k];
    }

    void prendi_rate(int n) {
        const RecFattura f = fattura(n);
        for (int k = 0; k < 4; ++k) {
            ASSERT_NEAR(f.sca[k], double(doc(n).sca[k]) / 100, 1e-6) << "instalment " << k;
            doc(n).dovute[k] = f.sca[k];
        }
    }

    void cambia(int n) {
        Documento& d = doc(n);
        Lumftea& s = esistente(n);
        d.numero = std::to_string(dado(10000));
        digita(s.Text2[0], d.numero);
        if (dado(2) == 0) scegli_termine(d);
        if (dado(2) == 0) digita_importi(d);
        if (dado(5) == 0) {
            d.addebitata = !d.addebitata;
            fai([&] { s.addebita.clicca(); });
        }
        if (!d.addebitata) d.addebitata = prepara_addebito(d, somma_rate(d));
        conferma();
        prendi_rate(n);
    }

    void paga(int n) {
        Documento& d = doc(n);
        Programma& p = b.prog;
        p.recfattura = n;
        p.tornada = -99;
        p.schermi.apri("luminca");
        Luminca& s = pagamento();
        double nuovi = 0;
        std::string nuove[4];
        for (std::size_t k = 0; k < 4; ++k) {
            const int che = dado(3);  // nothing, all that is due, a part
            if (che == 0 || d.sca[k] == 0) continue;
            const double quanto = che == 1 ? d.dovute[k] - d.ver[k] : double(dado(1000)) / 100;
            const std::string quando =
                "0" + std::to_string(1 + dado(9)) + "/0" + std::to_string(1 + dado(9)) + "/2024";
            digita(s.dver[k], quando);
            digita(s.ver[k], testo_numero(quanto));
            nuove[k] = in_ggmmaaaa(quando);
            d.scadenza_ritenuta = in_ggmmaaaa(scadenza_ritenuta(quando));
            const double letto = leggi_numero(testo_numero(quanto));
            d.ver[k] += letto;
            nuovi += letto;
        }
        for (std::size_t k = 0; k < 4; ++k) d.dver[k] = nuove[k];
        const bool posta = !d.addebitata && prepara_addebito(d, nuovi * 100);
        premi(s.conferma);
        if (d.dovuto() == d.versato()) {
            d.pagata = true;
            if (posta) d.addebitata = true;
        }
    }

    void azzera(int n) {
        Documento& d = doc(n);
        fai([&] { lista().aggiornalista(); });
        const bool saldata = lista().elenco.testo(n, 9) == "azzera";
        EXPECT_EQ(saldata, d.dovuto() - d.versato() == 0);
        if (!saldata) return;
        const bool si = dado(2) == 0;
        b.piattaforma.risposte = {si ? Risposta::si : Risposta::no};
        fai([&] { lista().elenco.scegli(n, 9); });
        if (!si) return;
        premi(pagamento().indice);
        for (int k = 0; k < 4; ++k) {
            d.ver[k] = 0;
            d.dver[k] = "";
        }
        d.pagata = false;
    }

    void elimina(int n) {
        const bool dallo_schermo = dado(2) == 0, si = dado(2) == 0;
        b.piattaforma.risposte = {si ? Risposta::si : Risposta::no};
        if (dallo_schermo) {
            esistente(n);
            digita(schermo().Text2[0], "altro");
            premi(schermo().command3d1[2]);
            if (!si) premi(schermo().command3d1[1]);
        } else {
            fai([&] { lista().aggiornalista(); });
            fai([&] { lista().elenco.scegli(n, 8); });
        }
        doc(n).cancellata = si;
    }

    void confronta(int n) {
        const Documento& d = doc(n);
        const RecFattura f = fattura(n);
        ASSERT_EQ(f.numfor, d.fornitore);
        ASSERT_EQ(f.numdoc.rifilato(), d.numero);
        ASSERT_EQ(f.modpag, d.termine);
        ASSERT_EQ(f.tipodc, d.tipo);
        for (int i = 0; i < 3; ++i) {
            ASSERT_EQ(testo_numero(f.impon[i]), euro(d.impon[i]));
            ASSERT_EQ(testo_numero(f.ivai[i]), euro(d.ivai[i]));
            ASSERT_EQ(testo_numero(f.rac[i]), euro(d.rac[i]));
        }
        ASSERT_EQ(testo_numero(f.esent[0]), euro(d.esent));
        for (int k = 0; k < 4; ++k) {
            ASSERT_EQ(double(f.sca[k]), d.dovute[k]) << "instalment " << k;
            ASSERT_EQ(double(f.ver[k]), d.ver[k]);
            ASSERT_EQ(f.dver[k].rifilato(), d.dver[k]);
        }
        ASSERT_EQ(f.dscarit.rifilato(), d.scadenza_ritenuta);
        ASSERT_EQ(f.pagata, d.pagata ? 1 : 0);
        ASSERT_EQ(f.addebita.testo(), d.addebitata ? "1" : "0");
        ASSERT_EQ(f.riporta.testo(), d.singolo ? "1" : "0");
        ASSERT_EQ(f.cancellata, d.cancellata ? 1 : 0);
    }

    void confronta_contabilita() {
        ASSERT_EQ(contatori().parola[0], static_cast<int>(modello.size()) - 1);
        ASSERT_EQ(b.file("ftr").size(), 522 * (modello.size() - 1));
        ASSERT_EQ(movimenti(), quanti_movimenti);
        long somma = 0;
        for (const auto& [conto, cent] : saldi) {
            ASSERT_EQ(std::lround(saldo(conto) * 100), cent) << "account " << conto;
            somma += cent;
        }
        ASSERT_EQ(somma, 0) << "a posting never changes the sum of all balances";
    }
};

TEST_F(Passeggiata, RegistraCambiaPagaAzzeraElimina) {
    caso.seed(seme_di_prova());
    for (int passo = 0; passo < 600 && !HasFailure(); ++passo) {
        const int che = dado(10), n = uno_vivo();
        SCOPED_TRACE(unisci("step ", std::to_string(passo), " kind ", std::to_string(che), " document ",
                            std::to_string(n)));
        if (che < 3 || n == 0) {
            registra();
        } else if (che < 5) {
            cambia(n);
        } else if (che < 8) {
            paga(n);
        } else if (che == 8) {
            azzera(n);
        } else {
            elimina(n);
        }
        ASSERT_TRUE(b.piattaforma.attese.empty());
        ASSERT_FALSE(aperto());
        confronta(n == 0 || che < 3 ? static_cast<int>(modello.size()) - 1 : n);
        confronta_contabilita();
    }
    for (int n = 1; n < static_cast<int>(modello.size()); ++n) {
        SCOPED_TRACE(n);
        confronta(n);
    }
}

}  // namespace
