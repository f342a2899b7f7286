// `ambra batch`: the very same program without a display. A script of user actions in, one JSON object a
// line out.
#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <string>

#include "ambra/azioni.h"
#include "core/disco_attento.h"
#include "print/registratore.h"
#include "screen/platform.h"
#include "screen/programma.h"

namespace ambra {

/// Ends a script from inside whatever waits or asks: what is open is closed on the way out.
struct FineBatch {
    int stato = 0;  ///< exit status
};

/// The platform of the batch: answers come from the script, what would be shown becomes an event.
class PiattaformaBatch : public Platform {
  public:
    PiattaformaBatch(std::istream& script, std::ostream& eventi);

    /// Runs the script on a program whose screens are registered and whose main screen is shown. Returns
    /// the exit status: 0, or 2 after an error event.
    int esegui(Programma& programma);
    /// Fixes today's date.
    void oggi(const Data& d) { oggi_ = d; }
    /// Takes each finished job, beside its `print` event; the number counts from 1.
    std::function<void(LavoroStampa&&, int lavoro)> stampato;
    /// A run of jobs begins (true) or has ended.
    std::function<void(bool)> tornata;
    /// Exit status of a run whose script went well: 2 when something beside it failed.
    int esito_minimo = 0;
    /// Tells a refused write of the archive; from then on the script ends with 3 at least.
    void guasto(const Guasto& g);
    /// Where documents are looked for when one is opened.
    std::function<bool(const std::string& percorso)> esiste_documento;

    Risposta message_box(const std::string& testo, const std::string& titolo, Icona icona, Bottoni bottoni,
                         Risposta prescelta) override;
    std::optional<std::string> open_file(const std::string& titolo, const std::string& modello) override;
    std::optional<std::string> open_folder(const std::string& titolo) override;
    std::optional<Carattere> choose_font(const std::string& titolo, const Carattere& ora) override;
    std::optional<long> choose_colour(const std::string& titolo, long ora) override;
    bool printer_setup() override;
    int open_document(const std::string& percorso) override;
    Data today() override { return oggi_; }
    void refresh() override {}
    void wait_event() override;
    void pointer(Puntatore) override {}
    [[noreturn]] void end() override;
    Printer& printer() override { return stampante_; }

  private:
    bool prossima_riga(std::string& riga);
    void riga(const std::string& r);
    std::string risposta_dialogo(std::deque<std::string>& coda, const char* genere);
    [[noreturn]] void sbaglio(const std::string& testo);
    [[noreturn]] void esci(int stato);

    std::istream& script_;
    Eventi eventi_;
    Programma* prog_ = nullptr;
    RecordingPrinter stampante_;
    int lavori_ = 0;
    int numero_riga_ = 0;
    Data oggi_;
    Pronte pronte_;
};

}  // namespace ambra
