// The real disk. On Windows the paths are used as they stand; elsewhere they are mapped to a drive root
// and names are matched without regard to case.
#pragma once

#include <map>
#include <string>

#include "core/disco.h"

namespace ambra {

class DiscoVero : public Disco {
  public:
    /// `radice` is the folder that stands for the current drive (UTF-8).
    explicit DiscoVero(std::string radice);
    /// The nearest folder, from the working directory upwards, that holds a folder "lumdir" in any case;
    /// the working directory if there is none.
    static std::string radice_corrente();

    int apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) override;
    int leggi_tutto(std::string_view percorso, std::string& contenuto) override;
    int scrivi_tutto(std::string_view percorso, std::string_view contenuto) override;
    int copia(std::string_view da, std::string_view a) override;
    int rinomina(std::string_view da, std::string_view a) override;
    int elimina(std::string_view percorso) override;
    int crea_cartella(std::string_view percorso) override;
    int elenca(std::string_view cartella, std::vector<std::string>& nomi) override;
    /// Told by Linux for the programs of this machine, those that serve the folder to others among them.
    bool in_uso(std::string_view percorso) override;
    std::string luogo(std::string_view percorso) override;

    /// The platform's path (UTF-8) of a path of the system, existing or not.
    std::string reale(std::string_view percorso);
    const std::string& radice() const { return radice_; }

  private:
    struct Cartella {
        long long modificata_ns = -1;
        std::map<std::string, std::string> per_minuscolo;
    };
    std::string nome_vero(const std::string& cartella, const std::string& nome);
    const Cartella& elenco_di(const std::string& cartella);

    std::string radice_;
    std::map<std::string, Cartella> cartelle_;
};

}  // namespace ambra
