// The whole of what the logic asks of the outside. Three implementations: the window library's, that of
// `ambra batch`, and that of the unit tests.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/date.h"
#include "print/printer.h"

namespace ambra {

enum class Icona { nessuna, stop, domanda, esclamazione, informazione };
enum class Bottoni { ok, ok_annulla, si_no };
enum class Risposta { ok, annulla, si, no };
enum class Puntatore { normale, clessidra };

class Platform {
  public:
    virtual ~Platform() = default;

    /// `prescelta` is the answer that stands ready: the one that harms nobody.
    virtual Risposta message_box(const std::string& testo, const std::string& titolo, Icona icona,
                                 Bottoni bottoni, Risposta prescelta) = 0;
    /// A file chosen by the user, filtered on `modello` ("*.pdf"); nothing when cancelled.
    virtual std::optional<std::string> open_file(const std::string& titolo, const std::string& modello) = 0;
    /// A folder chosen by the user; nothing when cancelled.
    virtual std::optional<std::string> open_folder(const std::string& titolo) = 0;
    virtual std::optional<Carattere> choose_font(const std::string& titolo, const Carattere& ora) = 0;
    /// An RGB number, blue in the high byte.
    virtual std::optional<long> choose_colour(const std::string& titolo, long ora) = 0;
    /// The printer set-up of "Imposta"; on confirmation the printer has taken the orientation over.
    virtual bool printer_setup() = 0;
    /// Opens a document with the program of its type; below 33 is a failure.
    virtual int open_document(const std::string& percorso) = 0;
    virtual Data today() = 0;
    /// Lets the interface draw for a moment; what the user does waits for the end of the work.
    virtual void refresh() = 0;
    /// Waits for the next event of the user and handles it.
    virtual void wait_event() = 0;
    virtual void pointer(Puntatore p) = 0;
    /// Ends the process at once.
    [[noreturn]] virtual void end() = 0;
    virtual Printer& printer() = 0;
};

}  // namespace ambra
