#include "tests/storia/storia.h"

#include <cstdlib>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>

#include "core/testo.h"
#include "tests/storia/controlli.h"
#include "tests/storia/fattura.h"
#include "tests/storia/insieme.h"
#include "tests/storia/parole.h"
#include "tests/storia/processo.h"
#include "tests/storia/uccisa.h"

namespace fs = std::filesystem;

namespace ambra::storia {

namespace {

[[noreturn]] void salta(const std::string& perche) {
    std::cout << "skipped: " << perche << '\n';
    throw Saltata();
}

// By way of another name: not every file system renames a file whose name changes in its case alone.
void rinomina(const fs::path& da, const fs::path& a) {
    const fs::path via = a.parent_path() / "via";
    fs::rename(da, via);
    fs::rename(via, a);
}

}  // namespace

void Storia::esegui(const fs::path& storia) {
    storia_ = storia;
    passi(storia);
    pretendi_esito();
    if (corse_ == 0) male("the story runs nothing");
}

// What many stories begin with: tests/scenarios/basi/NAME.base.
void Storia::base(const std::string& nome) {
    const int qui = riga_;
    passi(storia_.parent_path().parent_path() / "basi" / (nome + ".base"));
    riga_ = qui;
}

void Storia::contatori(const std::string& resto) {
    drive_.record("tfr 1 parola(0)=" + parola(resto, 0));
    drive_.record("tfr 2 parola(0)=" + parola(resto, 1));
    drive_.record("tfr 3..5");
}

void Storia::passi(const fs::path& da) {
    std::ifstream f(da);
    if (!f) male("no such file: " + da.string());
    for (std::string r; std::getline(f, r);) {
        ++riga_;
        if (r.empty() || r[0] == '#') continue;
        std::istringstream in(r);
        std::string verbo, resto;
        in >> verbo;
        std::getline(in >> std::ws, resto);
        passo(verbo, resto, f);
    }
}

void Storia::passo(const std::string& verbo, const std::string& resto, std::istream& f) {
    const auto file = [&](int quale) { return drive_.percorso(parola(resto, quale)); };
    const std::map<std::string_view, std::function<void()>> passi = {
        {"base", [&] { base(resto); }},
        {"stabile", [&] { drive_.stabile = resto; }},
        {"oggi", [&] { oggi_ = resto; }},
        {"opzioni", [&] { opzioni_ = resto; }},
        {"dati", [&] { dati_demo(resto); }},
        {"record", [&] { drive_.record(resto); }},
        {"contatori", [&] { contatori(resto); }},
        {"file", [&] { scrivi_file(drive_.percorso(resto), blocco_testo(f)); }},
        {"fattura", [&] { scrivi_file(drive_.percorso(resto), fattura_xml(blocco(f))); }},
        {"layout", [&] { drive_.layout(resto); }},
        {"etichette", [&] { drive_.etichette(resto); }},
        {"hex", [&] { drive_.hex(resto); }},
        {"tab", [&] { drive_.voci_contabili(blocco(f)); }},
        {"tronca", [&] { fs::resize_file(file(0), std::stoul(parola(resto, 1))); }},
        {"cancella", [&] { fs::remove_all(drive_.percorso(resto)); }},
        {"cartella", [&] { fs::create_directories(drive_.percorso(resto)); }},
        {"rinomina", [&] { rinomina(file(0), file(1)); }},
        {"sola_lettura", [&] { sola_lettura(resto); }},
        {"esegui", [&] { corri(blocco(f)); }},
        {"insieme", [&] { insieme(blocco(f)); }},
        {"esito", [&] { esito(resto); }},
        {"attesi", [&] { pretendi_attesi(eventi_, blocco(f)); }},
        {"mai", [&] { pretendi_mai(eventi_, blocco(f)); }},
        {"verifica", [&] { verifica(drive_, resto); }},
        {"intero", [&] { intero(drive_, resto); }},
        {"uguale", [&] { uguale(drive_, resto); }},
        {"uguali", [&] { uguali(drive_); }},
        {"cambia", [&] { cambia(drive_, resto); }},
        {"lungo", [&] { lungo(drive_, resto); }},
        {"manca", [&] { manca(drive_, resto); }},
        {"testo", [&] { testo(drive_, resto, blocco_testo(f)); }},
        {"riga", [&] { riga_di(drive_, resto); }},
        {"byte", [&] { byte(drive_, resto); }},
    };
    const auto it = passi.find(verbo);
    if (it == passi.end()) male("unknown step: " + verbo);
    if (verbo != "esito") pretendi_esito();
    it->second();
}

std::string Storia::blocco(std::istream& f) {
    std::string tutto;
    for (std::string r; std::getline(f, r);) {
        ++riga_;
        if (r == ".") return tutto;
        tutto += r + "\n";
    }
    male("a block without its closing point");
}

std::string Storia::blocco_testo(std::istream& f) {
    std::string crlf;
    for (char c : da_utf8(blocco(f))) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return crlf;
}

void Storia::dati_demo(const std::string& che) {
    if (che == "vuoto") return;
    fs::remove_all(drive_.radice());
    const fs::path detto = drive_.radice().string() + ".detto";
    if (esegui_programma({ambra_, "demo", "--today", oggi_, drive_.radice().string()}, detto) != 0)
        male("no demo data");
    fs::remove(detto);
}

void Storia::sola_lettura(const std::string& resto) {
    come_utente_ = true;
    if (!togli_scrittura(drive_.percorso(resto))) salta("writing cannot be refused here");
}

void Storia::insieme(const std::string& righe) {
    ++corse_;
    drive_.fotografa();
    eventi_.clear();
    esito_visto_ = false;
    stato_ = corri_insieme(
        {ambra_, "batch", "--drive", drive_.radice().string(), "--today", oggi_, drive_.stabile}, righe,
        eventi_);
    if (std::getenv("STORIA_MOSTRA"))
        for (const Json& j : eventi_) std::cout << j.dump() << '\n';
    if (stato_ == 2 && !eventi_.empty()) ultimo_errore_ = eventi_.back().dump();
}

void Storia::corri(const std::string& script) {
    ++corse_;
    drive_.fotografa();
    const bool sano = controlla() == 0;
    const fs::path base = drive_.radice().string() + ".corsa";
    scrivi_file(base.string() + ".txt", script);
    std::vector<std::string> parole;
    if (come_utente_ && !come_utente(drive_.radice().parent_path(), parole))
        salta("the program cannot be run as nobody here");
    parole.insert(parole.end(), {ambra_, "batch", "--drive", drive_.radice().string(), "--today", oggi_});
    std::istringstream opzioni(opzioni_);
    for (std::string o; opzioni >> o;) parole.push_back(o);
    parole.insert(parole.end(), {drive_.stabile, base.string() + ".txt"});
    const fs::path qui = fs::current_path();
    fs::current_path(drive_.radice());  // where the script's own paths begin
    if (uccisa) uccidi_ad_ogni_passo(drive_, parole);
    stato_ = esegui_programma(parole, base.string() + ".out");
    fs::current_path(qui);
    eventi_.clear();
    std::istringstream out(leggi_file(base.string() + ".out"));
    for (std::string r; std::getline(out, r);) eventi_.push_back(Json::parse(r));
    if (std::getenv("STORIA_MOSTRA")) std::cout << leggi_file(base.string() + ".out");
    esito_visto_ = false;
    if (stato_ != 0 && stato_ != 2 && stato_ != 3)
        male("the program ended with status " + std::to_string(stato_));
    if (stato_ == 2 && !eventi_.empty()) ultimo_errore_ = eventi_.back().dump();
    if (sano && controlla() != 0) male("no longer a sound archive: " + leggi_file(detto_dal_controllo()));
}

fs::path Storia::detto_dal_controllo() const {
    return drive_.radice().string() + ".check";
}

// What users do leaves a sound archive sound. The status of the check; its words in a file.
int Storia::controlla() const {
    return esegui_programma({ambra_, "check", "--drive", drive_.radice().string()}, detto_dal_controllo());
}

void Storia::pretendi_esito() const {
    if (stato_ != 0 && !esito_visto_) male("status " + std::to_string(stato_) + ": " + ultimo_errore_);
}

void Storia::esito(const std::string& resto) {
    esito_visto_ = true;
    if (stato_ != std::stoi(resto)) male("status " + std::to_string(stato_) + ": " + ultimo_errore_);
}

}  // namespace ambra::storia
