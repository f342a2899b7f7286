// A building with a whole ledger in memory, random bytes in every field that is the suite's own.
#pragma once

#include <random>
#include <string>

#include "archivio/archivio.h"
#include "ledger/lumincx.h"
#include "tests/ledger/tavolo_record.h"
#include "tests/supporto/banco.h"

namespace ambra {

struct TavoloLedger : Banco {
    static constexpr int kCondomini = 12, kMovimenti = 3;
    std::mt19937 caso;

    explicit TavoloLedger(unsigned seme = 1) : caso(seme) {
        riempi_a_caso(file("pia"), kConti * sizeof(RecConto));
        riempi_a_caso(file("cnd"), kCondomini * sizeof(RecCondomino));
        riempi_a_caso(file("cn2"), kCondomini * sizeof(RecCondomino2));
        riempi_a_caso(file("mov"), kMovimenti * sizeof(RecMovimento));
        riempi_a_caso(file("tot"), sizeof(RecTotaliLedger));
        conti();
        condomini();
        RecTotaliLedger t = record_di<RecTotaliLedger>(file("tot"), 1);
        t.tcondomini = kCondomini;
        t.tmovimenti = kMovimenti;
        metti_record(file("tot"), 1, t);
        voci();
        fornitori({fornitore_vuoto("ROSSI")});
        avvia();
    }

    /// Posts through the callers' road; `utente` is what the user does on the screen before he stores.
    int posta(MovimentoUscita u, std::function<void(Lumincx&)> utente = {}, int comando = 1) {
        piattaforma.attese.push_back([this, utente, comando] {
            auto& s = schermo<Lumincx>("lumincx");
            if (utente) utente(s);
            s.b_fine[static_cast<std::size_t>(comando)].premi();
        });
        // As in the program, what a command closes lives until the command has returned.
        Registro::Turno turno(prog.schermi);
        return addebita(*prog.schermi.caricato("vexoraf"), u) == EsitoAddebito::memorizzato ? 1 : -1;
    }
    static MovimentoUscita uscita(double importo, bool singolo = false, int conto = 1) {
        MovimentoUscita u;
        u.data = "10/02/2024";
        u.descrizione[0] = "ROSSI";
        u.importo = importo;
        u.contodefault = conto;
        u.singolo = singolo;
        return u;
    }

    double saldo(int conto) {
        return record_di<RecConto>(file("pia"), static_cast<std::size_t>(conto)).csaldo;
    }
    /// Sum of all balances, cents.
    long long cent() {
        long long c = 0;
        for (int n = 1; n <= kConti; ++n) c += std::llround(saldo(n) * 100);
        return c;
    }
    int movimenti() { return record_di<RecTotaliLedger>(file("tot"), 1).tmovimenti; }

  private:
    void riempi_a_caso(std::string& f, std::size_t n) {
        f.resize(n);
        for (char& c : f) c = static_cast<char>(caso());
    }
    void conti() {
        for (std::size_t n = 1; n <= kConti; ++n) {
            RecConto c = record_di<RecConto>(file("pia"), n);
            const bool usato = n == 1 || n == 3961 || n == 4159 || caso() % 3 == 0;
            c.cnome = usato ? "Conto " + std::to_string(n) : std::string{};
            c.csaldo = static_cast<double>(static_cast<long>(caso() % 2000000) - 1000000) / 100;
            metti_record(file("pia"), n, c);
        }
    }
    void condomini() {
        for (std::size_t n = 1; n <= kCondomini; ++n) {
            RecCondomino c = record_di<RecCondomino>(file("cnd"), n);
            RecCondomino2 c2 = record_di<RecCondomino2>(file("cn2"), n);
            c.dnome = "Condomino " + std::to_string(n);
            for (auto& m : c.dmill) m = static_cast<double>(caso() % 1000) / 10;
            for (auto& m : c2.dmill) m = static_cast<double>(caso() % 1000) / 10;
            c.dquota = 0;
            c.daddebiti = static_cast<double>(caso() % 10000) / 100;
            c.dstato = n % 4 == 0 ? 1 : 0;
            c2.dgiorni = static_cast<int>(caso() % 366);
            c2.dperiodo = static_cast<int>(caso() % 4);
            metti_record(file("cnd"), n, c);
            metti_record(file("cn2"), n, c2);
            RecNome nome{};
            nome.nome = "CONDOMINO " + std::to_string(n);
            nome.numero = static_cast<int>(kCondomini + 1 - n);
            metti_record(file("cns"), n, nome);
        }
    }
    void voci() {
        std::vector<std::string> righe(654);
        for (std::size_t v = 0; v < 40; ++v) {
            righe[v * 15] = "Voce " + std::to_string(v + 1);
            righe[v * 15 + 2] = v % 7 == 6 ? "" : "1000.5";
        }
        testo("lum001.tab", righe);
    }
};

}  // namespace ambra
