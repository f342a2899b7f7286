// The running program: one building's archive set, the settings, the working values, the screens.
//
// Made once in `main` and handed by reference to every screen; there are no globals, so two programs can
// live in one process.
#pragma once

#include <functional>
#include <future>
#include <memory>
#include <string>

#include "archivio/documento.h"
#include "archivio/fornitore.h"
#include "core/disco.h"
#include "core/errori.h"
#include "core/impostazioni.h"
#include "records/stabile.h"
#include "screen/platform.h"
#include "screen/registro.h"

namespace ambra {

class LettoreFatture;
class Registrate;
struct ListaAnticipata;

class Programma {
  public:
    /// `comando` is the whole command line's text: the number of the building.
    Programma(Disco& disco, Platform& piattaforma, std::string comando);
    ~Programma();

    Disco& disco;
    Platform& piattaforma;
    const std::string comando;
    Errore err;
    Archivio arc;
    Impostazioni imp;
    RecStabile stabile{};    ///< master record of the building
    RecStabile2 stabile2{};  ///< its second master record

    /// NNN, a blank and the 40 characters of the building's name; the main screen shows it.
    std::string stabili = "000 Stabile non definito";

    // ---- working values, set just before a screen opens ----
    int recfattura = 0;    ///< record of the document under work, 0 for a new one
    int recfornitore = 0;  ///< record of the supplier
    int modofattura = 0;   ///< 1: the invoice screen opens on an existing document
    int statofattura = 0;  ///< 1: the picker was called from the invoice screen
    int nuovafattura = 0;  ///< who has the supplier list open
    int tornada = 0;       ///< -99 a new opening; on the posting screen 0 waiting, 1 stored, -1 cancelled
    int modoaddebito = 0;  ///< 1 charges a single condomino, 0 the whole building
    int& tipomodulo = recfornitore;   ///< kind of form; one variable with `recfornitore`
    int& contodefault = modofattura;  ///< account to preselect; one variable with `modofattura`

    // ---- counters of the print job in hand ----
    int rigacorr = 0;
    int npagina = 0;

    Registro schermi;

    LettoreFatture* lettore = nullptr;  ///< reads electronic invoices; null where nobody can

    // ---- between screens that do not know each other ----
    /// Runs once the document that `lumftea` is about to open is stored; the opening takes it, so that it
    /// never outlives that document.
    std::function<void(const RecFattura&)> dopo_memorizzata;
    /// Brings the worklist to a document's row; set by the worklist.
    std::function<void(long record)> mostra_documento;
    /// The worklist as it is being read ahead; its first filling takes it. Not valid: nobody does.
    std::future<std::shared_ptr<ListaAnticipata>> lista_in_arrivo;
    /// The index of the documents by supplier and number, made by whoever first looks something up in it.
    std::shared_ptr<Registrate> registrate;

    /// True if the command line reads as a building; otherwise the process ends silently.
    bool ha_stabile() const;
    /// Opens the archive set and sets `stabili`.
    void apriarchivi();
    void caricatabelle() { ambra::caricatabelle(disco, err, imp); }

    /// The first three characters of `stabili`.
    std::string nnn() const { return stabili.substr(0, 3); }
    /// Their numeric reading, the record of the building.
    int numero_stabile() const;
    /// `stabili` after its fourth character, trimmed.
    std::string nome_stabile() const;

    /// Today as "dd/mm/yyyy".
    std::string oggi() { return testo_data(piattaforma.today()); }
    std::string anno_corrente();

    std::string fmtimporto(double x) const { return ambra::fmtimporto(imp.cambio, x); }
    double arrotonda(double x) const { return ambra::arrotonda(imp.cambio, x); }

    // ---- the message boxes of the system ----
    /// Yes and no with a question mark; true for yes. `prescelta` is the answer that stands ready.
    bool chiedi(const std::string& testo, const std::string& titolo, Risposta prescelta = Risposta::si);
    /// The same for what cannot be taken back: No stands ready.
    bool chiedi_prudente(const std::string& testo, const std::string& titolo) {
        return chiedi(testo, titolo, Risposta::no);
    }
    /// OK with a stop sign.
    void ferma(const std::string& testo, const std::string& titolo = "Attenzione");
    /// OK with an information mark.
    void informa(const std::string& testo, const std::string& titolo);

    /// A stop sign that says what came of a write; true if it was done. A fault is told elsewhere.
    bool riferisci(DocumentoInMano::Esito esito);
    bool riferisci(FornitoreInMano::Esito esito);
    void riferisci_occupato();

    void clessidra() { piattaforma.pointer(Puntatore::clessidra); }
    void freccia() { piattaforma.pointer(Puntatore::normale); }
};

/// The hourglass for the length of a block.
class Clessidra {
  public:
    explicit Clessidra(Programma& p) : p_(p) { p_.clessidra(); }
    ~Clessidra() { p_.freccia(); }
    Clessidra(const Clessidra&) = delete;
    Clessidra& operator=(const Clessidra&) = delete;

  private:
    Programma& p_;
};

}  // namespace ambra
