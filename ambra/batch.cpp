#include "ambra/batch.h"

#include <algorithm>
#include <cassert>
#include <istream>
#include <ostream>
#include <sstream>

#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

Risposta risposta_di(const std::string& s) {
    return s == "yes"  ? Risposta::si
           : s == "no" ? Risposta::no
           : s == "ok" ? Risposta::ok
                       : Risposta::annulla;
}

}  // namespace

PiattaformaBatch::PiattaformaBatch(std::istream& script, std::ostream& eventi)
    : script_(script), eventi_(eventi) {
    stampante_.finito = [this](LavoroStampa&& l) {
        ++lavori_;
        eventi_.stampa(l, lavori_);
        if (stampato) stampato(std::move(l), lavori_);
    };
    stampante_.tornata = [this](bool inizia) {
        if (tornata) tornata(inizia);
    };
}

void PiattaformaBatch::esci(int stato) {
    eventi_.svuota();
    throw FineBatch{stato};
}

void PiattaformaBatch::sbaglio(const std::string& testo) {
    eventi_.sbaglio(numero_riga_, testo);
    esci(2);
}

void PiattaformaBatch::end() {
    eventi_.fine();
    esci(0);
}

void PiattaformaBatch::guasto(const Guasto& g) {
    if (!di_archivio(g.percorso)) return;  // a diskette has its own words
    eventi_.guasto(g);
    if (esito_minimo == 0) esito_minimo = 3;
}

int PiattaformaBatch::esegui(Programma& programma) {
    prog_ = &programma;
    eventi_.inizio();
    prog_->schermi.spia = [this](Registro::Evento e, Schermo& s) { eventi_.schermo(e, s); };
    try {
        std::string r;
        while (prossima_riga(r)) riga(r);
        eventi_.svuota();
        return esito_minimo;
    } catch (const FineBatch& fine) {
        return fine.stato == 0 ? esito_minimo : fine.stato;  // as it stands when all is closed
    }
}

void PiattaformaBatch::wait_event() {
    assert(prog_->arc.sezioni_prese() == 0);
    std::string r;
    if (!prossima_riga(r)) esci(0);
    riga(r);
}

bool PiattaformaBatch::prossima_riga(std::string& riga) {
    // Whoever feeds the script line by line sees what came of a line before he gives the next.
    eventi_.svuota();
    while (std::getline(script_, riga)) {
        ++numero_riga_;
        if (!riga.empty() && riga.back() == '\r') riga.pop_back();
        if (numero_riga_ == 1 && riga.starts_with("\xEF\xBB\xBF")) riga.erase(0, 3);
        const auto inizio = riga.find_first_not_of(" \t");
        if (inizio == std::string::npos || riga[inizio] == '#') continue;
        riga.erase(0, inizio);
        return true;
    }
    return false;
}

void PiattaformaBatch::riga(const std::string& r) {
    Registro::Turno turno(prog_->schermi);
    try {
        esegui_riga({*prog_, eventi_, pronte_, oggi_}, r);
    } catch (const RigaSbagliata& male) {
        sbaglio(male.testo);
    }
}

Risposta PiattaformaBatch::message_box(const std::string& testo, const std::string& titolo, Icona icona,
                                       Bottoni bottoni, Risposta) {
    assert(!prog_ || prog_->arc.sezioni_prese() == 0);
    if (pronte_.risposte.empty())
        sbaglio("message box without an answer: " + a_utf8(titolo) + ": " + a_utf8(testo));
    const std::string r = pronte_.risposte.front();
    pronte_.risposte.pop_front();
    eventi_.messaggio(titolo, testo, icona, bottoni, r);
    return risposta_di(r);
}

std::string PiattaformaBatch::risposta_dialogo(std::deque<std::string>& coda, const char* genere) {
    if (coda.empty()) sbaglio(std::string("dialog without an answer: ") + genere);
    std::string r = coda.front();
    coda.pop_front();
    eventi_.dialogo(genere, r);
    return r;
}

std::optional<std::string> PiattaformaBatch::open_file(const std::string&, const std::string&) {
    const std::string r = risposta_dialogo(pronte_.file, "file");
    if (r == "-") return {};
    return da_utf8(r);
}

// A folder is answered as a file is.
std::optional<std::string> PiattaformaBatch::open_folder(const std::string& titolo) {
    return open_file(titolo, "");
}

std::optional<Carattere> PiattaformaBatch::choose_font(const std::string&, const Carattere& ora) {
    const std::string r = risposta_dialogo(pronte_.caratteri, "font");
    if (r == "-") return {};
    Carattere c = ora;
    std::istringstream parti(r);
    std::string p;
    if (std::getline(parti, p, ';')) c.nome = da_utf8(p);
    if (std::getline(parti, p, ';')) c.punti = leggi_numero(p);
    if (std::getline(parti, p, ';')) c.grassetto = leggi_numero(p) != 0;
    if (std::getline(parti, p, ';')) c.corsivo = leggi_numero(p) != 0;
    return c;
}

std::optional<long> PiattaformaBatch::choose_colour(const std::string&, long) {
    const std::string r = risposta_dialogo(pronte_.colori, "colour");
    if (r == "-") return {};
    return static_cast<long>(std::clamp(leggi_numero(r), 0.0, double{0xFFFFFF}));
}

bool PiattaformaBatch::printer_setup() {
    const std::string r = risposta_dialogo(pronte_.stampanti, "printer");
    if (r == "-") return false;
    stampante_.orientation(r == "landscape" ? Orientamento::orizzontale : Orientamento::verticale);
    return true;
}

int PiattaformaBatch::open_document(const std::string& percorso) {
    int esito = !esiste_documento || esiste_documento(percorso) ? 33 : 2;
    if (!pronte_.aperture.empty()) {
        esito = pronte_.aperture.front();
        pronte_.aperture.pop_front();
    }
    eventi_.documento(percorso, esito);
    return esito;
}

}  // namespace ambra
