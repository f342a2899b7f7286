// A disc in memory, which several programs can share.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "core/disco.h"
#include "tests/supporto/operazione.h"

namespace ambra {

/// A disc in memory, as one program sees it. Names are matched without regard to case; folders need not be
/// made. Another program on the same store is `altro_programma()`: it sees every byte at once, and its locks
/// exclude this one's. A view must outlive the files that it opened.
class DiscoMemoria : public Disco {
  public:
    DiscoMemoria() : deposito_(std::make_shared<Deposito>()) {}
    /// Its locks go with a program.
    ~DiscoMemoria() override;
    DiscoMemoria(const DiscoMemoria&) = delete;
    DiscoMemoria& operator=(const DiscoMemoria&) = delete;
    /// The same store as another program has it.
    DiscoMemoria altro_programma() const { return DiscoMemoria(deposito_); }

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
    /// Nobody waits here by the clock: a lock that another program holds is left to `occupato`, and without
    /// one it is error 70 at once.
    int blocca(std::string_view percorso, int sezione, std::chrono::milliseconds pazienza) override;
    void sblocca(std::string_view percorso, int sezione) override;
    int consolida_cartella(std::string_view percorso) override;

    /// The content of a file, made empty when missing.
    std::string& contenuto(std::string_view percorso);
    bool esiste(std::string_view percorso) const;
    /// Whether any program holds a lock of that file.
    bool bloccato(std::string_view percorso) const;
    /// While true every opening for random access gives a file that refuses to be written (error 75).
    bool sola_lettura = false;

    /// Told before each operation of this program; another one may work meanwhile.
    std::function<void(Operazione, std::string_view percorso)> prima_di;
    /// Told after each operation that gave a lock back.
    std::function<void()> liberato;
    /// Asked when another program holds the lock that this one wants: it may let that one go on, and answers
    /// whether to try again.
    std::function<bool(std::string_view percorso, int sezione)> occupato;

    void annuncia(Operazione op, std::string_view percorso) const {
        if (prima_di) prima_di(op, percorso);
    }

  private:
    struct File {
        std::string dati;
        std::map<int, const DiscoMemoria*> blocchi;  ///< section to who holds it
    };
    using Deposito = std::map<std::string, std::shared_ptr<File>>;
    class Aperto;

    explicit DiscoMemoria(std::shared_ptr<Deposito> deposito) : deposito_(std::move(deposito)) {}
    std::shared_ptr<File> trova(std::string_view percorso) const;

    std::shared_ptr<Deposito> deposito_;
};

}  // namespace ambra
