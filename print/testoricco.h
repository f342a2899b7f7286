// The rich-text holder: a document whose ranges can be replaced, formatting kept, and that prints itself.
//
// Positions are characters of the plain text. A replacement takes the formatting of the first character
// that it replaces. Errors go to the program's error number; a file that cannot be read leaves the holder
// as it was.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/disco.h"
#include "core/errori.h"
#include "print/printer.h"
#include "print/rtf.h"

namespace ambra {

class TestoRicco {
  public:
    /// Replaces the whole content by the file's. The file is read each time; one that has not changed is
    /// not parsed anew.
    bool load_file(Disco& disco, Errore& err, std::string_view percorso);
    /// The same from bytes in memory.
    void carica(std::string_view byte);

    /// The plain characters.
    std::string text() const { return rtf::testo_piano(documento_); }
    const rtf::Documento& documento() const { return documento_; }

    /// The selected range, kept inside the text.
    std::size_t sel_start() const { return inizio_; }
    std::size_t sel_length() const { return lunghezza_; }
    void sel_start(std::size_t da);
    void sel_length(std::size_t n);
    std::string sel_text() const;
    /// Replaces the range; what was written is then behind the selection, which is empty.
    void sel_text(std::string_view nuovo);

    /// Replaces every `marca` from left to right, as repeated searches from the start would. What replaces
    /// one is not searched again. Returns how many there were.
    std::size_t sostituisci(std::string_view marca, std::string_view nuovo);

    /// Sends the whole document to the printer.
    void sel_print(Printer& p) const { p.rich_text(documento_); }

  private:
    struct Taglio {
        std::size_t da = 0, n = 0;
    };
    void applica(const std::vector<Taglio>& tagli, std::string_view nuovo);

    rtf::Documento documento_;
    std::size_t inizio_ = 0, lunghezza_ = 0;
    std::string byte_;  // of the file that `pulito_` was read from
    std::shared_ptr<const rtf::Documento> pulito_;
};

}  // namespace ambra
