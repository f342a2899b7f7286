#include "core/disco_prova.h"

#include <algorithm>
#include <cstring>

#include "core/errori.h"

namespace ambra {

namespace {

std::string chiave(std::string_view percorso) {
    std::string r(percorso);
    for (char& c : r) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
        if (c == '/') c = '\\';
    }
    return r;
}

class FileMemoria : public FileAperto {
  public:
    FileMemoria(std::shared_ptr<std::string> dati, const bool& sola_lettura)
        : dati_(std::move(dati)), sola_lettura_(sola_lettura) {}

    int leggi(std::uint64_t posto, std::span<std::byte> dove, std::size_t& letti) override {
        letti = posto >= dati_->size() ? 0 : std::min<std::size_t>(dove.size(), dati_->size() - posto);
        if (letti > 0) std::memcpy(dove.data(), dati_->data() + posto, letti);
        return 0;
    }
    int scrivi(std::uint64_t posto, std::span<const std::byte> che) override {
        if (sola_lettura_) return errore::accesso;
        if (dati_->size() < posto + che.size()) dati_->resize(posto + che.size(), '\0');
        if (!che.empty()) std::memcpy(dati_->data() + posto, che.data(), che.size());
        return 0;
    }
    std::uint64_t lunghezza() override { return dati_->size(); }

  private:
    std::shared_ptr<std::string> dati_;
    const bool& sola_lettura_;
};

class FileGuasto : public FileAperto {
  public:
    FileGuasto(std::unique_ptr<FileAperto> dietro, std::string percorso, const DiscoGuasto& disco)
        : dietro_(std::move(dietro)), percorso_(std::move(percorso)), disco_(disco) {}

    int leggi(std::uint64_t posto, std::span<std::byte> dove, std::size_t& letti) override {
        if (const int e = disco_.chiedi("leggi", percorso_)) return e;
        return dietro_->leggi(posto, dove, letti);
    }
    int scrivi(std::uint64_t posto, std::span<const std::byte> che) override {
        if (const int e = disco_.chiedi("scrivi", percorso_)) return e;
        return dietro_->scrivi(posto, che);
    }
    std::uint64_t lunghezza() override { return dietro_->lunghezza(); }

  private:
    std::unique_ptr<FileAperto> dietro_;
    std::string percorso_;
    const DiscoGuasto& disco_;
};

}  // namespace

std::shared_ptr<std::string> DiscoMemoria::trova(std::string_view percorso) const {
    const auto it = file_.find(chiave(percorso));
    return it == file_.end() ? nullptr : it->second;
}

std::string& DiscoMemoria::contenuto(std::string_view percorso) {
    auto& f = file_[chiave(percorso)];
    if (!f) f = std::make_shared<std::string>();
    return *f;
}

bool DiscoMemoria::esiste(std::string_view percorso) const {
    return trova(percorso) != nullptr;
}

int DiscoMemoria::apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) {
    if (!trova(percorso)) {
        if (come == Apertura::lettura) return errore::file_mancante;
        contenuto(percorso);
    }
    file = std::make_unique<FileMemoria>(trova(percorso), sola_lettura);
    return 0;
}

int DiscoMemoria::leggi_tutto(std::string_view percorso, std::string& contenuto) {
    const auto f = trova(percorso);
    if (!f) return errore::file_mancante;
    contenuto = *f;
    return 0;
}

int DiscoMemoria::scrivi_tutto(std::string_view percorso, std::string_view nuovo) {
    if (sola_lettura) return errore::accesso;
    contenuto(percorso) = std::string(nuovo);
    return 0;
}

int DiscoMemoria::copia(std::string_view da, std::string_view a) {
    const auto f = trova(da);
    return f ? scrivi_tutto(a, *f) : errore::file_mancante;
}

int DiscoMemoria::rinomina(std::string_view da, std::string_view a) {
    const auto it = file_.find(chiave(da));
    if (it == file_.end()) return errore::file_mancante;
    auto f = it->second;
    file_.erase(it);
    file_[chiave(a)] = std::move(f);
    return 0;
}

int DiscoMemoria::elimina(std::string_view percorso) {
    return file_.erase(chiave(percorso)) == 1 ? 0 : errore::file_mancante;
}

int DiscoMemoria::crea_cartella(std::string_view) {
    return 0;
}

int DiscoMemoria::elenca(std::string_view cartella, std::vector<std::string>& nomi) {
    std::string inizio = chiave(cartella);
    if (inizio.empty() || inizio.back() != '\\') inizio += '\\';
    nomi.clear();
    for (const auto& [nome, f] : file_)
        if (nome.starts_with(inizio) && nome.find('\\', inizio.size()) == std::string::npos)
            nomi.push_back(nome.substr(inizio.size()));
    return 0;
}

int DiscoGuasto::apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) {
    if (const int e = chiedi("apri", percorso)) return e;
    std::unique_ptr<FileAperto> f;
    if (const int e = dietro_.apri(percorso, come, f)) return e;
    file = std::make_unique<FileGuasto>(std::move(f), std::string(percorso), *this);
    return 0;
}

int DiscoGuasto::leggi_tutto(std::string_view percorso, std::string& contenuto) {
    if (const int e = chiedi("leggi_tutto", percorso)) return e;
    return dietro_.leggi_tutto(percorso, contenuto);
}

int DiscoGuasto::scrivi_tutto(std::string_view percorso, std::string_view contenuto) {
    if (const int e = chiedi("scrivi_tutto", percorso)) return e;
    return dietro_.scrivi_tutto(percorso, contenuto);
}

int DiscoGuasto::copia(std::string_view da, std::string_view a) {
    if (const int e = chiedi("copia", da)) return e;
    return dietro_.copia(da, a);
}

int DiscoGuasto::rinomina(std::string_view da, std::string_view a) {
    if (const int e = chiedi("rinomina", da)) return e;
    return dietro_.rinomina(da, a);
}

int DiscoGuasto::elimina(std::string_view percorso) {
    if (const int e = chiedi("elimina", percorso)) return e;
    return dietro_.elimina(percorso);
}

int DiscoGuasto::crea_cartella(std::string_view percorso) {
    if (const int e = chiedi("crea_cartella", percorso)) return e;
    return dietro_.crea_cartella(percorso);
}

int DiscoGuasto::elenca(std::string_view cartella, std::vector<std::string>& nomi) {
    if (const int e = chiedi("elenca", cartella)) return e;
    return dietro_.elenca(cartella, nomi);
}

}  // namespace ambra
