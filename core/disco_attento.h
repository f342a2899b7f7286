// The disc that programs work on: in front of another one, it tries again what passes by itself, and counts
// and tells every write that did not happen.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <thread>

#include "core/disco.h"

namespace ambra {

/// A write of the archive that was refused: the file that was to be written and the run-time error number.
struct Guasto {
    std::string percorso;
    int errore = 0;
};

/// The clock by which a disc waits.
struct Orologio {
    std::function<std::chrono::steady_clock::time_point()> adesso = std::chrono::steady_clock::now;
    std::function<void(std::chrono::milliseconds)> dormi = [](std::chrono::milliseconds quanto) {
        std::this_thread::sleep_for(quanto);
    };
};

/// Openings and reads that find the file busy or shared out (55), too many files open (67) or the share
/// without it (71) are tried for 2 seconds; what is busy still is then error 70. Whatever else fails, fails
/// at once. Refused are writes, also into a file that never opened, copies, renames, and what could not be
/// made durable; openings and deletions are not.
class DiscoAttento : public Disco {
  public:
    explicit DiscoAttento(Disco& dietro, Orologio orologio = {})
        : dietro_(dietro), orologio_(std::move(orologio)) {}

    /// Told once for each refused write, where it happens.
    std::function<void(const Guasto&)> avviso;
    /// Refused writes so far.
    long guasti() const { return guasti_; }

    int apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) override;
    int leggi_tutto(std::string_view percorso, std::string& contenuto) override;
    int scrivi_tutto(std::string_view percorso, std::string_view contenuto) override;
    int scrivi_nuovo(std::string_view percorso, std::string_view contenuto) override;
    int cosa_c_e(std::string_view percorso, Cosa& che) override;
    int copia(std::string_view da, std::string_view a) override;
    int rinomina(std::string_view da, std::string_view a) override;
    int sposta(std::string_view da, std::string_view a) override;
    int elimina(std::string_view percorso) override;
    int crea_cartella(std::string_view percorso) override;
    int elenca(std::string_view cartella, std::vector<std::string>& nomi) override;
    int blocca(std::string_view percorso, int sezione, std::chrono::milliseconds pazienza) override {
        return dietro_.blocca(percorso, sezione, pazienza);
    }
    void sblocca(std::string_view percorso, int sezione) override { dietro_.sblocca(percorso, sezione); }
    int consolida_cartella(std::string_view percorso) override;
    void conta_rifiuto(std::string_view percorso, int errore) override;
    bool in_uso(std::string_view percorso) override { return dietro_.in_uso(percorso); }
    std::string reale(std::string_view percorso) override { return dietro_.reale(percorso); }

  private:
    class File;
    int insisti(const std::function<int()>& prova) const;
    /// Counts what was refused, and hands the number on.
    int scritto(std::string_view percorso, int errore);

    Disco& dietro_;
    Orologio orologio_;
    long guasti_ = 0;
};

}  // namespace ambra
