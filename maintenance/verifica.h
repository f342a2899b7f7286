// The watchman of an archive: reads everything, changes nothing, and tells every breach of what the formats
// promise.
//
// A file is opened for reading only. What may stand there by the program's own doing (documents behind the
// count after a reorganisation, a due date without its instalment, a mark in front of a name twice) is no
// finding.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/disco.h"

namespace ambra {

enum class Gravita {
    avviso,  ///< worth a look: an operator may have meant it
    errore   ///< the program cannot have left it so, or will go wrong on it
};

/// One breach. Texts are Windows-1252.
struct Rilievo {
    Gravita gravita = Gravita::errore;
    std::string stabile;  ///< NNN, or "" for a global file
    std::string file;     ///< "lum007.ftr"
    long record = 0;      ///< from 1; 0 when it is about the file; in a text file the line
    std::string campo;    ///< "datareg", "sca(2)"; "" when it is about the record
    std::string trovato;  ///< what stands there
    std::string atteso;   ///< what was expected
    long volte = 1;       ///< how many of its kind there are; this is the first
};

class Verifica {
  public:
    using Raccolta = std::function<void(const Rilievo&)>;
    Verifica(Disco& disco, Raccolta raccolta) : disco_(disco), raccolta_(std::move(raccolta)) {}

    /// The buildings that have a file in the archive, in order. False when the folder cannot be read.
    bool quali_stabili(std::vector<std::string>& nnn);
    /// The files that all buildings share, and the names of all files.
    void globali();
    /// One building. A building without any file is unreadable.
    void stabile(const std::string& nnn);

    /// Something could not be read: the picture is not whole.
    bool illeggibile() const { return illeggibile_; }
    long rilievi() const { return rilievi_; }
    /// 0 clean, 1 findings, 2 unreadable.
    int stato() const { return illeggibile_ ? 2 : rilievi_ > 0 ? 1 : 0; }

  private:
    friend class Cartella;
    Disco& disco_;
    Raccolta raccolta_;
    bool illeggibile_ = false;
    long rilievi_ = 0;
};

}  // namespace ambra
