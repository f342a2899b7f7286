// A user who opens every screen that writes in any order and leaves it half done, with a model beside him
// that knows what he typed and where, and nothing of the code that stores it.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "invoices/lumftea.h"
#include "ledger/luminca.h"
#include "ledger/lumpgr.h"
#include "maintenance/mrvaazz.h"
#include "qt/tutte.h"
#include "suppliers/lumfor.h"
#include "suppliers/lumftem.h"
#include "suppliers/mrvsel.h"
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
    static constexpr std::size_t kTanti = 30;  ///< documents at most

    /// A supplier: his record, and which of those that lived in it one after the other.
    struct Ditta {
        int record = 0, vita = 0;
    };
    /// What is in a screen's hands: the document it was opened on, by its number, and what was typed since.
    struct InMano {
        InMano() = default;
        explicit InMano(std::string n, bool e_nuovo = false, bool era_tolta = false)
            : numero(std::move(n)), nuovo(e_nuovo), tolta(era_tolta) {}
        std::string numero;
        bool nuovo = false, tolta = false, addebitata = false;
        std::optional<int> imponibile, pagamento;
        std::optional<std::string> pdf;
        std::optional<Ditta> ditta;  ///< whose it shall be: of a new one, or given by "Fornitore"
        int apertura = 0;            ///< which opening of the screen this is
    };
    /// What the register has under way, and what was typed.
    struct SchedaInMano {
        bool nuova = false;
        Ditta ditta;
        std::optional<std::string> nome, telefono;
    };
    /// What the picker was opened for: a new document, or another supplier for the one of that opening.
    struct Scelta {
        bool nuova = true;
        int apertura = 0;
    };
    /// What a command has told of something that is not what the user saw.
    enum class Detto { niente, documento, anagrafica };

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
    /// Runs a command: the user is asked just so many questions, and told what is `atteso`.
    void comanda(std::initializer_list<Risposta> risposte, Detto atteso, const std::function<void()>& f);
    void comanda(std::initializer_list<Risposta> risposte, bool sparito, const std::function<void()>& f) {
        comanda(risposte, sparito ? Detto::documento : Detto::niente, f);
    }
    std::map<std::string, RecFattura> sul_disco();
    void confronta_fornitori();
    void un_passo_fra_i_fornitori(int che);

    void nuova();
    void comincia_nuova(Ditta di);
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

    void digita_ditta();
    void inserisci_ditta();
    void conferma_ditta();
    void registra_ditta(const std::string& prima);
    void annulla_ditta();
    void elimina_ditta();
    void riordina_ditte();
    void scorri_ditte();
    void apri_scelta();
    void scelta_dalla_fattura();
    void continua();
    void apri_elenco_ditte();
    void scegli_ditta();
    bool e_lei(Ditta d) const;  ///< no other firm has taken its place
    bool viva(Ditta d) const;
    RecFornitore& scheda(Ditta d) { return ditte_[static_cast<std::size_t>(d.record - 1)].scheda; }
    /// A name that nobody ever had, his from here on.
    std::string battezza(Ditta d);
    /// Whom a screen shows: names are never given twice.
    Ditta mostrata(const Consultazione& dati) const;
    Ditta una_viva();

    /// What becomes of a question about a charge.
    bool addebito_possibile() const { return !prog.schermi.caricato("lumincx"); }

    std::map<std::string, RecFattura> modello_;
    struct Anagrafica {
        RecFornitore scheda{};
        int vita = 0;
    };
    std::vector<Anagrafica> ditte_;
    std::map<std::string, Ditta> nomi_;
    std::optional<SchedaInMano> scheda_;
    Scelta scelta_;
    std::string chi_elenca_;  ///< the screen that has the list of suppliers open
    InMano fattura_, pagamento_;
    int aperture_ = 0;
    double saldo_ = 0, atteso_ = 0;
    int movimenti_ = 0, nati_ = 0;
    bool memorizzato_ = false;  ///< the last posting was stored
};

}  // namespace ambra
