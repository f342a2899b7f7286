// Sequential text files, Windows-1252, one value a line. Lines end in CR LF; CR or LF alone also end one.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/disco.h"
#include "core/errori.h"

namespace ambra {

/// A text file read line by line. Errors go to the program's error number: a failed opening sets that of
/// the disc, a read without an open file 52, a read past the end 62. A failed read leaves its target alone.
class LettoreTesto {
  public:
    explicit LettoreTesto(Errore& err) : err_(err) {}
    bool apri(Disco& disco, std::string_view percorso);
    /// The next line without its end.
    bool riga(std::string& s);
    /// The next free-format field as an Integer: fields end at a comma or a line end, blanks around are
    /// skipped, text that is no number is 0, out of range sets 6.
    bool campo_intero(int& v);
    /// The next free-format field as text; a field in double quotes loses them and may hold commas.
    bool campo_testo(std::string& s);
    bool fine() const { return posto_ >= testo_.size(); }

  private:
    bool pronto();
    void salta_fine_riga();

    Errore& err_;
    bool aperto_ = false;
    std::string testo_;
    std::size_t posto_ = 0;
};

/// Replaces the file by the lines, each ended with CR LF.
bool scrivi_righe(Disco& disco, Errore& err, std::string_view percorso, std::span<const std::string> righe);
/// Whether the file can be opened for reading; sets the error number when not.
bool prova_lettura(Disco& disco, Errore& err, std::string_view percorso);

}  // namespace ambra
