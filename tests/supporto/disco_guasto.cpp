#include "tests/supporto/disco_guasto.h"

#include <algorithm>

namespace ambra {

namespace {

class FileGuasto : public FileAperto {
  public:
    FileGuasto(std::unique_ptr<FileAperto> dietro, std::string percorso, DiscoGuasto& disco)
        : dietro_(std::move(dietro)), percorso_(std::move(percorso)), disco_(disco) {}

    int leggi(std::uint64_t posto, std::span<std::byte> dove, std::size_t& letti) override {
        if (const int e = disco_.chiedi(Operazione::leggi, percorso_)) return e;
        return dietro_->leggi(posto, dove, letti);
    }
    int scrivi(std::uint64_t posto, std::span<const std::byte> che) override {
        const int e = disco_.chiedi(Operazione::scrivi, percorso_);
        if (e == 0) return dietro_->scrivi(posto, che);
        if (disco_.parte > 0) dietro_->scrivi(posto, che.first(std::min(disco_.parte, che.size())));
        return e;
    }
    std::uint64_t lunghezza() override { return dietro_->lunghezza(); }
    int consolida() override {
        if (const int e = disco_.chiedi(Operazione::consolida, percorso_)) return e;
        return dietro_->consolida();
    }

  private:
    std::unique_ptr<FileAperto> dietro_;
    std::string percorso_;
    DiscoGuasto& disco_;
};

}  // namespace

int DiscoGuasto::chiedi(Operazione op, std::string_view percorso) {
    const bool rotta = ++fatte_ == rotta_;
    const int e = guasto ? guasto(op, percorso) : 0;
    return e != 0 || !rotta ? e : numero_;
}

int DiscoGuasto::apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) {
    if (const int e = chiedi(Operazione::apri, percorso)) return e;
    std::unique_ptr<FileAperto> f;
    if (const int e = dietro_.apri(percorso, come, f)) return e;
    file = std::make_unique<FileGuasto>(std::move(f), std::string(percorso), *this);
    return 0;
}

int DiscoGuasto::leggi_tutto(std::string_view percorso, std::string& contenuto) {
    if (const int e = chiedi(Operazione::leggi_tutto, percorso)) return e;
    return dietro_.leggi_tutto(percorso, contenuto);
}

int DiscoGuasto::scrivi_tutto(std::string_view percorso, std::string_view contenuto) {
    if (const int e = chiedi(Operazione::scrivi_tutto, percorso)) return e;
    return dietro_.scrivi_tutto(percorso, contenuto);
}

int DiscoGuasto::scrivi_nuovo(std::string_view percorso, std::string_view contenuto) {
    if (const int e = chiedi(Operazione::scrivi_nuovo, percorso)) return e;
    return dietro_.scrivi_nuovo(percorso, contenuto);
}

int DiscoGuasto::cosa_c_e(std::string_view percorso, Cosa& che) {
    if (const int e = chiedi(Operazione::cosa_c_e, percorso)) return e;
    return dietro_.cosa_c_e(percorso, che);
}

int DiscoGuasto::sposta(std::string_view da, std::string_view a) {
    if (const int e = chiedi(Operazione::sposta, da)) return e;
    return dietro_.sposta(da, a);
}

int DiscoGuasto::copia(std::string_view da, std::string_view a) {
    const int e = chiedi(Operazione::copia, da);
    if (e == 0) return dietro_.copia(da, a);
    std::string dati;
    if (parte > 0 && dietro_.leggi_tutto(da, dati) == 0)
        dietro_.scrivi_tutto(a, std::string_view(dati).substr(0, parte));
    return e;
}

int DiscoGuasto::rinomina(std::string_view da, std::string_view a) {
    if (const int e = chiedi(Operazione::rinomina, da)) return e;
    return dietro_.rinomina(da, a);
}

int DiscoGuasto::elimina(std::string_view percorso) {
    if (const int e = chiedi(Operazione::elimina, percorso)) return e;
    return dietro_.elimina(percorso);
}

int DiscoGuasto::crea_cartella(std::string_view percorso) {
    if (const int e = chiedi(Operazione::crea_cartella, percorso)) return e;
    return dietro_.crea_cartella(percorso);
}

int DiscoGuasto::elenca(std::string_view cartella, std::vector<std::string>& nomi) {
    if (const int e = chiedi(Operazione::elenca, cartella)) return e;
    return dietro_.elenca(cartella, nomi);
}

int DiscoGuasto::blocca(std::string_view percorso, int sezione, std::chrono::milliseconds pazienza) {
    if (const int e = chiedi(Operazione::blocca, percorso)) return e;
    return dietro_.blocca(percorso, sezione, pazienza);
}

void DiscoGuasto::sblocca(std::string_view percorso, int sezione) {
    chiedi(Operazione::sblocca, percorso);
    dietro_.sblocca(percorso, sezione);
}

int DiscoGuasto::consolida_cartella(std::string_view percorso) {
    if (const int e = chiedi(Operazione::consolida_cartella, percorso)) return e;
    return dietro_.consolida_cartella(percorso);
}

}  // namespace ambra
