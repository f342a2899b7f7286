#include "maintenance/verifica_cartella.h"

#include "core/impostazioni.h"
#include "core/testo.h"
#include "maintenance/nomi_archivio.h"

namespace ambra {

namespace {

// Findings of one kind are told alike but for their figures, and for what stands behind a colon.
std::string specie(const Rilievo& r) {
    std::string s = unisci(r.file, "|", r.campo.substr(0, r.campo.find('(')), "|",
                           r.gravita == Gravita::errore ? "e" : "a", "|");
    for (const char c : std::string_view(r.atteso).substr(0, r.atteso.find(':')))
        if (std::string_view("0123456789.,- ").find(c) == std::string_view::npos) s += c;
    return s;
}

}  // namespace

Cartella::~Cartella() {
    for (const Rilievo& r : rilievi_) v_.raccolta_(r);
    v_.rilievi_ += static_cast<long>(rilievi_.size());
}

std::string Cartella::nome(std::string_view file) const {
    if (file.find('.') != std::string_view::npos) return std::string(file);
    return unisci("lum", nnn_, ".", file);
}

std::string Cartella::percorso(std::string_view file) const {
    return kCartella + nome(file);
}

void Cartella::rilievo(Gravita g, std::string_view file, long record, std::string campo, std::string trovato,
                       std::string atteso) {
    const std::string intero = nome(file);
    Rilievo r{g,
              fa_lo_stabile(intero) ? padrone(intero) : nnn_,
              intero,
              record,
              std::move(campo),
              std::move(trovato),
              std::move(atteso)};
    const auto [quale, nuova] = per_specie_.emplace(specie(r), rilievi_.size());
    if (nuova)
        rilievi_.push_back(std::move(r));
    else
        ++rilievi_[quale->second].volte;
}

void Cartella::illeggibile(std::string_view file, long record) {
    v_.illeggibile_ = true;
    Cosa che{};
    if (disco().cosa_c_e(percorso(file), che) == 0 && (che == Cosa::cartella || che == Cosa::altro)) return;
    errore(file, record, "", in_parole(err.numero), "un file che si legge");
}

bool Cartella::manca(std::string_view file) {
    Cosa che{};
    return disco().cosa_c_e(percorso(file), che) == 0 && che == Cosa::niente;
}

bool Cartella::apri(FileRecord& f, std::string_view file, bool deve) {
    err.azzera();
    std::unique_ptr<FileAperto> aperto;
    const int e = disco().apri(percorso(file), Apertura::lettura, aperto);
    if (e == errore::file_mancante || e == errore::percorso_mancante) {
        if (deve) errore(file, 0, "", "manca", "il file");
        return false;
    }
    if (e != 0) {
        err.numero = e;
        illeggibile(file, 0);
        return false;
    }
    const auto lungo = aperto->lunghezza();
    if (lungo % f.lunghezza_record() != 0)
        errore(file, 0, "", unisci(std::to_string(lungo), " byte"),
               unisci("un multiplo di ", std::to_string(f.lunghezza_record()), " byte"));
    aperto.reset();
    return f.apri(disco(), percorso(file), Apertura::lettura);
}

}  // namespace ambra
