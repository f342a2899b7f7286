// A disc that fails on demand, in front of another.
#pragma once

#include <functional>
#include <string>

#include "core/disco.h"
#include "tests/supporto/operazione.h"

namespace ambra {

/// Passes everything on to another disc, unless `guasto` or `rompi` say that the operation fails.
class DiscoGuasto : public Disco {
  public:
    /// 0 lets the operation through, else it fails with that error number (`in_uso`: any number but 0: it
    /// is).
    using Regola = std::function<int(Operazione, std::string_view percorso)>;
    explicit DiscoGuasto(Disco& dietro) : dietro_(dietro) {}
    Regola guasto;
    /// Bytes of a refused write or copy that reach the disc all the same, at most so many.
    std::size_t parte = 0;

    /// The `n`-th operation from now on (from 1) fails with `numero`, once.
    void rompi(long n, int numero) {
        rotta_ = fatte_ + n;
        numero_ = numero;
    }
    /// Operations asked for so far, those that failed too.
    long operazioni() const { return fatte_; }

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
    int blocca(std::string_view percorso, int sezione, std::chrono::milliseconds pazienza) override;
    void sblocca(std::string_view percorso, int sezione) override;
    int consolida_cartella(std::string_view percorso) override;
    void conta_rifiuto(std::string_view percorso, int errore) override {
        dietro_.conta_rifiuto(percorso, errore);
    }
    bool in_uso(std::string_view percorso) override {
        return chiedi(Operazione::in_uso, percorso) != 0 || dietro_.in_uso(percorso);
    }
    std::string reale(std::string_view percorso) override { return dietro_.reale(percorso); }

    /// The error number with which this operation fails; it counts as one.
    int chiedi(Operazione op, std::string_view percorso);

  private:
    Disco& dietro_;
    long fatte_ = 0, rotta_ = 0;
    int numero_ = 0;
};

}  // namespace ambra
