#include "tests/supporto/disco_memoria.h"

#include <algorithm>
#include <cstring>

#include "core/disco_comune.h"
#include "core/errori.h"

namespace ambra {

namespace {

std::string chiave(std::string_view percorso) {
    std::string r = minuscolo(percorso);
    std::replace(r.begin(), r.end(), '/', '\\');
    return r;
}

}  // namespace

class DiscoMemoria::Aperto : public FileAperto {
  public:
    Aperto(std::shared_ptr<File> file, std::string percorso, const DiscoMemoria& disco)
        : file_(std::move(file)), percorso_(std::move(percorso)), disco_(disco) {}

    int leggi(std::uint64_t posto, std::span<std::byte> dove, std::size_t& letti) override {
        disco_.annuncia(Operazione::leggi, percorso_);
        const std::string& dati = file_->dati;
        letti = posto >= dati.size() ? 0 : std::min<std::size_t>(dove.size(), dati.size() - posto);
        if (letti > 0) std::memcpy(dove.data(), dati.data() + posto, letti);
        return 0;
    }
    int scrivi(std::uint64_t posto, std::span<const std::byte> che) override {
        disco_.annuncia(Operazione::scrivi, percorso_);
        if (disco_.sola_lettura) return errore::accesso;
        std::string& dati = file_->dati;
        if (dati.size() < posto + che.size()) dati.resize(posto + che.size(), '\0');
        if (!che.empty()) std::memcpy(dati.data() + posto, che.data(), che.size());
        return 0;
    }
    std::uint64_t lunghezza() override { return file_->dati.size(); }
    int consolida() override {
        disco_.annuncia(Operazione::consolida, percorso_);
        return 0;
    }

  private:
    std::shared_ptr<File> file_;
    std::string percorso_;
    const DiscoMemoria& disco_;
};

DiscoMemoria::~DiscoMemoria() {
    for (const auto& [nome, file] : *deposito_)
        std::erase_if(file->blocchi, [this](const auto& b) { return b.second == this; });
}

std::shared_ptr<DiscoMemoria::File> DiscoMemoria::trova(std::string_view percorso) const {
    const auto it = deposito_->find(chiave(percorso));
    return it == deposito_->end() ? nullptr : it->second;
}

std::string& DiscoMemoria::contenuto(std::string_view percorso) {
    auto& f = (*deposito_)[chiave(percorso)];
    if (!f) f = std::make_shared<File>();
    return f->dati;
}

bool DiscoMemoria::esiste(std::string_view percorso) const {
    return trova(percorso) != nullptr;
}

bool DiscoMemoria::bloccato(std::string_view percorso) const {
    const auto f = trova(percorso);
    return f && !f->blocchi.empty();
}

int DiscoMemoria::apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) {
    annuncia(Operazione::apri, percorso);
    if (!trova(percorso)) {
        if (come == Apertura::lettura) return errore::file_mancante;
        contenuto(percorso);
    }
    file = std::make_unique<Aperto>(trova(percorso), std::string(percorso), *this);
    return 0;
}

int DiscoMemoria::leggi_tutto(std::string_view percorso, std::string& contenuto) {
    annuncia(Operazione::leggi_tutto, percorso);
    const auto f = trova(percorso);
    if (!f) return errore::file_mancante;
    contenuto = f->dati;
    return 0;
}

int DiscoMemoria::scrivi_tutto(std::string_view percorso, std::string_view nuovo) {
    annuncia(Operazione::scrivi_tutto, percorso);
    if (sola_lettura) return errore::accesso;
    contenuto(percorso) = std::string(nuovo);
    return 0;
}

int DiscoMemoria::scrivi_nuovo(std::string_view percorso, std::string_view nuovo) {
    annuncia(Operazione::scrivi_nuovo, percorso);
    if (trova(percorso) || sola_lettura) return errore::accesso;
    contenuto(percorso) = std::string(nuovo);
    return 0;
}

int DiscoMemoria::cosa_c_e(std::string_view percorso, Cosa& che) {
    annuncia(Operazione::cosa_c_e, percorso);
    che = trova(percorso) ? Cosa::file : Cosa::niente;
    return 0;
}

int DiscoMemoria::copia(std::string_view da, std::string_view a) {
    annuncia(Operazione::copia, da);
    const auto f = trova(da);
    if (!f) return errore::file_mancante;
    if (sola_lettura) return errore::accesso;
    const std::string dati = f->dati;
    contenuto(a) = dati;
    return 0;
}

int DiscoMemoria::rinomina(std::string_view da, std::string_view a) {
    annuncia(Operazione::rinomina, da);
    const auto it = deposito_->find(chiave(da));
    if (it == deposito_->end()) return errore::file_mancante;
    auto f = it->second;
    deposito_->erase(it);
    (*deposito_)[chiave(a)] = std::move(f);
    return 0;
}

int DiscoMemoria::sposta(std::string_view da, std::string_view a) {
    annuncia(Operazione::sposta, da);
    if (trova(a)) return errore::accesso;
    const auto it = deposito_->find(chiave(da));
    if (it == deposito_->end()) return errore::file_mancante;
    auto f = it->second;
    deposito_->erase(it);
    (*deposito_)[chiave(a)] = std::move(f);
    return 0;
}

int DiscoMemoria::elimina(std::string_view percorso) {
    annuncia(Operazione::elimina, percorso);
    return deposito_->erase(chiave(percorso)) == 1 ? 0 : errore::file_mancante;
}

int DiscoMemoria::crea_cartella(std::string_view percorso) {
    annuncia(Operazione::crea_cartella, percorso);
    return 0;
}

int DiscoMemoria::elenca(std::string_view cartella, std::vector<std::string>& nomi) {
    annuncia(Operazione::elenca, cartella);
    std::string inizio = chiave(cartella);
    if (inizio.empty() || inizio.back() != '\\') inizio += '\\';
    nomi.clear();
    for (const auto& [nome, f] : *deposito_)
        if (nome.starts_with(inizio) && nome.find('\\', inizio.size()) == std::string::npos)
            nomi.push_back(nome.substr(inizio.size()));
    return 0;
}

int DiscoMemoria::blocca(std::string_view percorso, int sezione, std::chrono::milliseconds) {
    annuncia(Operazione::blocca, percorso);
    for (;;) {
        const auto f = trova(percorso);
        if (!f || sola_lettura) return 0;
        const auto di_chi = f->blocchi.try_emplace(sezione, this).first->second;
        if (di_chi == this) return 0;
        if (!occupato || !occupato(percorso, sezione)) return errore::permesso_negato;
    }
}

void DiscoMemoria::sblocca(std::string_view percorso, int sezione) {
    annuncia(Operazione::sblocca, percorso);
    const auto f = trova(percorso);
    if (!f) return;
    const auto b = f->blocchi.find(sezione);
    if (b == f->blocchi.end() || b->second != this) return;
    f->blocchi.erase(b);
    if (liberato) liberato();
}

int DiscoMemoria::consolida_cartella(std::string_view percorso) {
    annuncia(Operazione::consolida_cartella, percorso);
    return 0;
}

}  // namespace ambra
