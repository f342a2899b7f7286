// One story: a drive is laid out, `ambra batch` runs scripts on it, events and file bytes are compared. See
// docs/dev/storie.md for the language.
#pragma once

#include <filesystem>
#include <istream>
#include <string>

#include "tests/storia/dischetto.h"
#include "tests/storia/eventi.h"

namespace ambra::storia {

/// Thrown by a story that cannot be told on this machine.
struct Saltata {};

class Storia {
  public:
    /// `ambra` is the program, `drive` a folder for this story alone.
    Storia(std::string ambra, std::filesystem::path drive)
        : ambra_(std::move(ambra)), drive_(std::move(drive)) {}

    /// Tells the whole story; throws std::runtime_error where it does not hold, Saltata where
    /// this machine cannot tell it.
    void esegui(const std::filesystem::path& storia);
    /// Before each run its program dies at every step, see uccisa.h.
    bool uccisa = false;
    /// The line of the story that was reached.
    int riga() const { return riga_; }

  private:
    void passi(const std::filesystem::path& da);
    void passo(const std::string& verbo, const std::string& resto, std::istream& f);
    std::string blocco(std::istream& f);
    std::string blocco_testo(std::istream& f);

    void dati_demo(const std::string& che);
    void sola_lettura(const std::string& resto);
    void base(const std::string& nome);
    void contatori(const std::string& resto);
    void insieme(const std::string& righe);
    void corri(const std::string& script);
    int controlla() const;
    std::filesystem::path detto_dal_controllo() const;
    void esito(const std::string& resto);
    void pretendi_esito() const;

    std::string ambra_, oggi_ = "15/03/2024", opzioni_, ultimo_errore_;
    Dischetto drive_;
    std::filesystem::path storia_;
    int riga_ = 0, corse_ = 0, stato_ = 0;
    bool esito_visto_ = false;
    bool come_utente_ = false;
    Eventi eventi_;
};

}  // namespace ambra::storia
