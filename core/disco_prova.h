// Two discs for proof: one that lives in memory, and one that fails on demand in front of another.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "core/disco.h"

namespace ambra {

/// A disc in memory. Names are matched without regard to case; folders need not be made.
class DiscoMemoria : public Disco {
  public:
    int apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) override;
    int leggi_tutto(std::string_view percorso, std::string& contenuto) override;
    int scrivi_tutto(std::string_view percorso, std::string_view contenuto) override;
    int copia(std::string_view da, std::string_view a) override;
    int rinomina(std::string_view da, std::string_view a) override;
    int elimina(std::string_view percorso) override;
    int crea_cartella(std::string_view percorso) override;
    int elenca(std::string_view cartella, std::vector<std::string>& nomi) override;

    /// The content of a file, made empty when missing.
    std::string& contenuto(std::string_view percorso);
    bool esiste(std::string_view percorso) const;
    /// While true every opening for random access gives a file that refuses to be written (error 75).
    bool sola_lettura = false;

  private:
    std::shared_ptr<std::string> trova(std::string_view percorso) const;
    std::map<std::string, std::shared_ptr<std::string>> file_;
};

/// Passes everything on to another disc, and asks `guasto` first: it returns 0 to let the operation
/// through or the error number with which it fails. The operation is told as "apri", "leggi", "scrivi",
/// "leggi_tutto", "scrivi_tutto", "copia", "rinomina", "elimina", "crea_cartella", "elenca", "in_uso"
/// (any number but 0: it is).
class DiscoGuasto : public Disco {
  public:
    using Guasto = std::function<int(std::string_view operazione, std::string_view percorso)>;
    explicit DiscoGuasto(Disco& dietro) : dietro_(dietro) {}
    Guasto guasto;

    int apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) override;
    int leggi_tutto(std::string_view percorso, std::string& contenuto) override;
    int scrivi_tutto(std::string_view percorso, std::string_view contenuto) override;
    int copia(std::string_view da, std::string_view a) override;
    int rinomina(std::string_view da, std::string_view a) override;
    int elimina(std::string_view percorso) override;
    int crea_cartella(std::string_view percorso) override;
    int elenca(std::string_view cartella, std::vector<std::string>& nomi) override;
    bool in_uso(std::string_view percorso) override {
        return chiedi("in_uso", percorso) != 0 || dietro_.in_uso(percorso);
    }
    std::string luogo(std::string_view percorso) override { return dietro_.luogo(percorso); }

    int chiedi(std::string_view operazione, std::string_view percorso) const {
        return guasto ? guasto(operazione, percorso) : 0;
    }

  private:
    Disco& dietro_;
};

}  // namespace ambra
