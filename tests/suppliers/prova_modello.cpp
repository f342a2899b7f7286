// The register against a plain model: thousands of random inserts, changes, deletions, sorts, moves and
// searches. After each the three files are compared byte by byte with what the model holds, and the
// invariants of the supplier files are checked on the files alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "suppliers/lumfor.h"
#include "tests/suppliers/modello_registro.h"
#include "tests/supporto/banco.h"
#include "tests/supporto/seme.h"

namespace ambra {
namespace {

class Prova {
  public:
    explicit Prova(unsigned seme) : caso_(seme) {
        banco_.file("tfr").resize(140, '\0');
        banco_.avvia();
        banco_.prog.schermi.apri("lumfor");
    }

    void passo() {
        const auto che = caso_() % 100;
        if (che < 30 || modello_.indice.empty()) {
            inserisci();
        } else if (che < 50) {
            cambia();
        } else if (che < 68) {
            elimina();
        } else if (che < 85) {
            sposta(1 + static_cast<int>(caso_() % modello_.indice.size()));
        } else if (che < 97) {
            cerca();
        } else {
            riordina();
        }
        confronta();
    }
    std::size_t quanti() const { return modello_.schede.size(); }

  private:
    Lumfor& lumfor() { return banco_.schermo<Lumfor>("lumfor"); }

    std::string nome_casuale() {
        static const char* const kNomi[] = {"rossi", "Rossini", "DE ROSSI SRL", "caff\xE8", "Zeta",
                                            "alfa",  "",        "  Bianchi ",   "rossi",    "\x01strano"};
        std::string s = kNomi[caso_() % std::size(kNomi)];
        if (caso_() % 3 == 0) s += static_cast<char>('a' + caso_() % 4);
        if (caso_() % 40 == 0) s.append(50, 'x');
        return s;
    }
    Scheda scheda_casuale() {
        Scheda s{nome_casuale(), std::to_string(caso_() % 1000), "m", false};
        s.mail.append(caso_() % 60, 'q');
        return s;
    }
    void scrivi_campi(const Scheda& s) {
        auto& t = lumfor().dati.scheda.Text2;
        t[0].digita(s.nome);
        t[14].digita(s.telefono);
        t[17].digita(s.mail);
    }
    // What reaches the record is cut to its field.
    static Scheda tagliata(Scheda s) {
        s.nome.resize(std::min<std::size_t>(s.nome.size(), 40));
        s.mail.resize(std::min<std::size_t>(s.mail.size(), 50));
        return s;
    }

    void inserisci() {
        const Scheda s = scheda_casuale();
        lumfor().b_ins.premi();
        scrivi_campi(s);
        if (caso_() % 5 == 0) {
            lumfor().b_annulla.premi();
            return;
        }
        lumfor().b_conferma.premi();
        modello_.inserisci(tagliata(s));
    }
    void cambia() {
        Scheda s = scheda_casuale();
        if (caso_() % 3 == 0) s.nome = std::string(rifila(modello_.mostrata().nome));
        const bool viva = !modello_.mostrata().cancellata;
        if (caso_() % 2 == 0) lumfor().b_mod.premi();
        scrivi_campi(s);
        ASSERT_EQ(lumfor().stato, viva && toccata(s) ? Lumfor::kModifica : lumfor().stato);
        if (lumfor().stato != Lumfor::kModifica) return;
        ASSERT_TRUE(viva);
        if (caso_() % 5 == 0) {
            lumfor().b_annulla.premi();
            return;
        }
        lumfor().b_conferma.premi();
        modello_.cambia(tagliata(s));
    }
    bool toccata(const Scheda& s) { return s.telefono != modello_.mostrata().telefono; }

    void elimina() {
        const bool viva = !modello_.mostrata().cancellata;
        const bool si = caso_() % 4 != 0;
        const std::size_t prima = banco_.piattaforma.messaggi.size();
        banco_.piattaforma.risposte = {si ? Risposta::si : Risposta::no};
        lumfor().b_eli.premi();
        banco_.piattaforma.risposte.clear();
        ASSERT_EQ(banco_.piattaforma.messaggi.size() - prima, viva ? 1u : 0u);
        if (viva && si) modello_.elimina();
    }
    void muovi_cursore(int n) {
        const int prima = lumfor().dati.HScroll1.valore();
        lumfor().dati.HScroll1.scorri(n);
        if (n == prima || modello_.indice.size() < 2) return;
        if (modello_.sporco) modello_.ordina();
        modello_.qui = n;
    }
    void sposta(int n) { muovi_cursore(n); }
    void cerca() {
        const std::string chiave = nome_casuale().substr(0, caso_() % 6);
        const int trovato = modello_.cerca(grande(std::string(rifila(chiave))));
        const std::size_t prima = banco_.piattaforma.messaggi.size();
        const int cursore = lumfor().dati.HScroll1.valore();
        lumfor().dati.nome.digita(chiave);
        lumfor().dati.nome.premi_invio();
        ASSERT_EQ(banco_.piattaforma.messaggi.size() - prima, trovato == 0 ? 1u : 0u);
        if (trovato == 0) return;
        // The cursor's move sorts an index that is out of order before it shows the position.
        if (trovato != cursore && modello_.sporco && modello_.indice.size() >= 2) modello_.ordina();
        modello_.qui = trovato;
        ASSERT_EQ(lumfor().dati.HScroll1.valore(), trovato);
        ASSERT_EQ(lumfor().dati.nome.testo(), "");
    }
    void riordina() {
        const std::size_t prima = banco_.piattaforma.messaggi.size();
        lumfor().b_srt.premi();
        const bool lavora = modello_.indice.size() >= 2;
        ASSERT_EQ(banco_.piattaforma.messaggi.size() - prima, lavora ? 1u : 0u);
        if (lavora) modello_.riordina();
    }

    void confronta() {
        std::string schede, indice;
        for (const auto& s : modello_.schede) schede += s.byte();
        for (const auto& n : modello_.indice)
            indice += n.nome + static_cast<char>(n.numero & 0xFF) + static_cast<char>(n.numero >> 8);
        ASSERT_EQ(banco_.file("for"), schede);
        ASSERT_EQ(banco_.file("srf"), indice);
        std::string contatori(140, '\0');
        contatori[0] = static_cast<char>(modello_.schede.size() & 0xFF);
        contatori[1] = static_cast<char>(modello_.schede.size() >> 8);
        contatori[2] = modello_.sporco ? '\1' : '\0';
        ASSERT_EQ(banco_.file("tfr"), contatori);

        auto& d = lumfor().dati;
        ASSERT_EQ(lumfor().stato, Lumfor::kSfoglia);
        ASSERT_EQ(d.movepos, modello_.qui);
        if (modello_.qui > 0) {
            ASSERT_EQ(d.moverec, modello_.indice[static_cast<std::size_t>(modello_.qui - 1)].numero);
            ASSERT_EQ(d.scheda.Label2.visible(), modello_.mostrata().cancellata);
        }
        invarianti();
    }

    // What the files alone must satisfy.
    void invarianti() {
        const std::string &f = banco_.file("for"), &srf = banco_.file("srf"), &tfr = banco_.file("tfr");
        RecTotali t{};
        std::copy_n(tfr.data(), sizeof t, reinterpret_cast<char*>(&t));
        const auto n = static_cast<std::size_t>(int(t.parola[0]));
        ASSERT_EQ(f.size(), n * 600);
        ASSERT_EQ(srf.size(), n * 42);
        std::vector<bool> visto(n + 1, false);
        std::string precedente;
        for (std::size_t i = 0; i < n; ++i) {
            const std::string nome = srf.substr(i * 42, 40);
            const auto numero = static_cast<std::size_t>(static_cast<unsigned char>(srf[i * 42 + 40])) +
                                256 * static_cast<unsigned char>(srf[i * 42 + 41]);
            ASSERT_TRUE(numero >= 1 && numero <= n && !visto[numero]);
            visto[numero] = true;
            if (t.parola[1] == 0) {
                ASSERT_LE(precedente, nome);
            }
            if (f[(numero - 1) * 600 + 598] == 0) {
                ASSERT_EQ(nome, maiuscolo(nome));
            }
            precedente = nome;
        }
    }

    std::mt19937 caso_;
    Banco banco_;
    Modello modello_;
};

TEST(Modello, MigliaiaDiOperazioniACaso) {
    const unsigned seme = seme_di_prova();
    std::size_t piu_grande = 0;
    for (unsigned giro = 0; giro < 8; ++giro) {
        Prova prova(seme + giro);
        for (int i = 0; i < 700; ++i) {
            SCOPED_TRACE("seed " + std::to_string(seme) + ", round " + std::to_string(giro) + ", step " +
                         std::to_string(i));
            prova.passo();
            if (testing::Test::HasFatalFailure()) return;
        }
        piu_grande = std::max(piu_grande, prova.quanti());
    }
    EXPECT_GT(piu_grande, 20u);
}

}  // namespace
}  // namespace ambra
