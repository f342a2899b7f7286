#include "core/disco_attento.h"

#include "core/disco_comune.h"
#include "core/errori.h"

namespace ambra {

namespace {

constexpr std::chrono::milliseconds kPazienza{2000}, kPausa{20};

// What is busy is told as refused.
int detto(int e) {
    return e == errore::gia_aperto ? errore::permesso_negato : e;
}

}  // namespace

class DiscoAttento::File : public FileAperto {
  public:
    File(std::unique_ptr<FileAperto> dietro, std::string percorso, DiscoAttento& disco)
        : dietro_(std::move(dietro)), percorso_(std::move(percorso)), disco_(disco) {}

    int leggi(std::uint64_t posto, std::span<std::byte> dove, std::size_t& letti) override {
        const int e = dietro_->leggi(posto, dove, letti);
        if (!forse_tra_poco(e)) return e;
        return disco_.insisti([&] { return dietro_->leggi(posto, dove, letti); });
    }
    int scrivi(std::uint64_t posto, std::span<const std::byte> che) override {
        return disco_.scritto(percorso_, dietro_->scrivi(posto, che));
    }
    std::uint64_t lunghezza() override { return dietro_->lunghezza(); }
    int consolida() override { return disco_.scritto(percorso_, dietro_->consolida()); }

  private:
    std::unique_ptr<FileAperto> dietro_;
    std::string percorso_;
    DiscoAttento& disco_;
};

int DiscoAttento::insisti(const std::function<int()>& prova) const {
    int e = prova();
    if (!forse_tra_poco(e)) return e;
    for (const auto fine = orologio_.adesso() + kPazienza; forse_tra_poco(e) && orologio_.adesso() < fine;) {
        orologio_.dormi(kPausa);
        e = prova();
    }
    return detto(e);
}

int DiscoAttento::scritto(std::string_view percorso, int errore) {
    if (errore != 0) conta_rifiuto(percorso, detto(errore));
    return detto(errore);
}

void DiscoAttento::conta_rifiuto(std::string_view percorso, int errore) {
    ++guasti_;
    if (avviso) avviso({std::string(percorso), errore});
}

int DiscoAttento::apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) {
    std::unique_ptr<FileAperto> f;
    const int e = insisti([&] { return dietro_.apri(percorso, come, f); });
    if (e == 0) file = std::make_unique<File>(std::move(f), std::string(percorso), *this);
    return e;
}

int DiscoAttento::leggi_tutto(std::string_view percorso, std::string& contenuto) {
    return insisti([&] { return dietro_.leggi_tutto(percorso, contenuto); });
}

int DiscoAttento::elenca(std::string_view cartella, std::vector<std::string>& nomi) {
    return insisti([&] { return dietro_.elenca(cartella, nomi); });
}

// A whole file is written anew each time, so that its opening may be tried again too.
int DiscoAttento::scrivi_tutto(std::string_view percorso, std::string_view contenuto) {
    return scritto(percorso, insisti([&] { return dietro_.scrivi_tutto(percorso, contenuto); }));
}

int DiscoAttento::scrivi_nuovo(std::string_view percorso, std::string_view contenuto) {
    return scritto(percorso, insisti([&] { return dietro_.scrivi_nuovo(percorso, contenuto); }));
}

int DiscoAttento::cosa_c_e(std::string_view percorso, Cosa& che) {
    return insisti([&] { return dietro_.cosa_c_e(percorso, che); });
}

int DiscoAttento::copia(std::string_view da, std::string_view a) {
    return scritto(a, insisti([&] { return dietro_.copia(da, a); }));
}

int DiscoAttento::rinomina(std::string_view da, std::string_view a) {
    return scritto(a, dietro_.rinomina(da, a));
}

int DiscoAttento::sposta(std::string_view da, std::string_view a) {
    return scritto(a, dietro_.sposta(da, a));
}

int DiscoAttento::elimina(std::string_view percorso) {
    return detto(dietro_.elimina(percorso));
}

int DiscoAttento::crea_cartella(std::string_view percorso) {
    return detto(dietro_.crea_cartella(percorso));
}

int DiscoAttento::consolida_cartella(std::string_view percorso) {
    return scritto(percorso, dietro_.consolida_cartella(percorso));
}

}  // namespace ambra
