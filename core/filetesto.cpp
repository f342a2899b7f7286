#include "core/filetesto.h"

#include <algorithm>

#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

bool LettoreTesto::apri(Disco& disco, std::string_view percorso) {
    posto_ = 0;
    testo_.clear();
    aperto_ = err_.esito(disco.leggi_tutto(percorso, testo_));
    return aperto_;
}

bool LettoreTesto::pronto() {
    if (!aperto_) return err_.esito(errore::numero_file);
    if (fine()) return err_.esito(errore::oltre_la_fine);
    return true;
}

void LettoreTesto::salta_fine_riga() {
    if (fine()) return;
    if (testo_[posto_] == '\r' && posto_ + 1 < testo_.size() && testo_[posto_ + 1] == '\n') ++posto_;
    ++posto_;
}

bool LettoreTesto::riga(std::string& s) {
    if (!pronto()) return false;
    const std::size_t a = std::min(testo_.find_first_of("\r\n", posto_), testo_.size());
    s = testo_.substr(posto_, a - posto_);
    posto_ = a;
    salta_fine_riga();
    return true;
}

bool LettoreTesto::campo_testo(std::string& s) {
    if (!pronto()) return false;
    while (!fine() && testo_[posto_] == ' ') ++posto_;
    if (!fine() && testo_[posto_] == '"') {
        const std::size_t da = posto_ + 1;
        const std::size_t a = std::min(testo_.find('"', da), testo_.size());
        s = testo_.substr(da, a - da);
        posto_ = std::min(testo_.find_first_of(",\r\n", a), testo_.size());
    } else {
        const std::size_t a = std::min(testo_.find_first_of(",\r\n", posto_), testo_.size());
        s = std::string(rifila_destra(std::string_view(testo_).substr(posto_, a - posto_)));
        posto_ = a;
    }
    salta_fine_riga();
    return true;
}

bool LettoreTesto::campo_intero(int& v) {
    std::string s;
    if (!campo_testo(s)) return false;
    Errore qui;
    const int letto = leggi_intero(s, qui);
    if (!err_.esito(qui.numero)) return false;
    v = letto;
    return true;
}

bool scrivi_righe(Disco& disco, Errore& err, std::string_view percorso, std::span<const std::string> righe) {
    std::string tutto;
    for (const auto& r : righe) tutto.append(r).append("\r\n");
    return err.esito(disco.scrivi_tutto(percorso, tutto));
}

bool prova_lettura(Disco& disco, Errore& err, std::string_view percorso) {
    std::unique_ptr<FileAperto> f;
    return err.esito(disco.apri(percorso, Apertura::lettura, f));
}

}  // namespace ambra
