// A user who opens every screen that writes in any order and leaves it half done, with a model beside him
// that knows what he typed and where, and nothing of the code that stores it.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <random>
#include <string>

#include "invoices/lumftea.h"
#include "ledger/luminca.h"
#include "ledger/lumpgr.h"
#include "maintenance/mrvaazz.h"
#include "qt/tutte.h"
#include "tests/supporto/banco.h"
#include "worklist/vexoraf.h"

namespace ambra {

/// While a screen waits for its posting the user goes on with whatever comes.
struct PiattaformaIrrequieta : PiattaformaProva {
    std::function<void()> intanto;
    void wait_event() override { intanto(); }
};

class PasseggiataSchermi : public testing::Test {
  protected:
    ArchivioProva archivio;
    PiattaformaIrrequieta piattaforma;
    Programma prog{archivio.memoria, piattaforma, "1"};
    std::mt19937 caso;

    PasseggiataSchermi();
    void un_passo();
    /// The archive holds what the model says, byte for byte.
    void confronta();
    std::string ultimo;        ///< the action in hand, for the words of a failure
    std::map<int, int> fatti;  ///< how often each kind came to something

  private:
    /// What is in a screen's hands: the document it was opened on, by its number, and what was typed since.
    struct InMano {
        InMano() = default;
        explicit InMano(std::string n, bool e_nuovo = false, bool era_tolta = false)
            : numero(std::move(n)), nuovo(e_nuovo), tolta(era_tolta) {}
        std::string numero;
        bool nuovo = false, tolta = false, addebitata = false;
        std::optional<int> imponibile, pagamento;
        std::optional<std::string> pdf;
    };

    int dado(int facce) { return std::uniform_int_distribution<int>(0, facce - 1)(caso); }
    template <class F>
    void fai(F f) {
        Registro::Turno turno(prog.schermi);
        f();
    }
    template <class S>
    S* aperto(const char* nome) {
        Schermo* s = prog.schermi.caricato(nome);
        return s && s->visible() && !s->in_attesa() ? static_cast<S*>(s) : nullptr;
    }
    Vexoraf& lista() { return *static_cast<Vexoraf*>(prog.schermi.caricato("vexoraf")); }
    bool in_attesa(const char* nome) const {
        const Schermo* s = prog.schermi.caricato(nome);
        return s && s->in_attesa();
    }
    RecFattura* trova(const std::string& numero);
    /// Runs a command and says whether the user was told that his document is gone, as `atteso` has it.
    void comanda(std::initializer_list<Risposta> risposte, bool sparito, const std::function<void()>& f);
    std::map<std::string, RecFattura> sul_disco();

    void nuova();
    void riga(int colonna);
    void digita_fattura();
    void conferma_fattura();
    void registra_nuova(const InMano& m);
    void elimina_fattura();
    void digita_pagamento();
    void conferma_pagamento();
    void apri_versamento();
    void segna_versamento();
    void conferma_versamento();
    void azzera_archivio();
    void riordina();
    void attesa();
    /// What becomes of a question about a charge.
    bool addebito_possibile() const { return !prog.schermi.caricato("lumincx"); }

    std::map<std::string, RecFattura> modello_;
    InMano fattura_, pagamento_;
    double saldo_ = 0, atteso_ = 0;
    int movimenti_ = 0, nati_ = 0;
    bool memorizzato_ = false;  ///< the last posting was stored
};

}  // namespace ambra
