#include "print/testoricco.h"

#include <algorithm>

#include "print/rtf_lettore.h"

namespace ambra {

bool TestoRicco::load_file(Disco& disco, Errore& err, std::string_view percorso) {
    std::string byte;
    if (!err.esito(disco.leggi_tutto(percorso, byte))) return false;
    carica(byte);
    return true;
}

void TestoRicco::carica(std::string_view byte) {
    if (!pulito_ || byte != byte_) {
        pulito_ = std::make_shared<const rtf::Documento>(rtf::leggi(byte));
        byte_ = std::string(byte);
    }
    documento_ = *pulito_;
    inizio_ = lunghezza_ = 0;
}

void TestoRicco::sel_start(std::size_t da) {
    inizio_ = std::min(da, documento_.testo.size());
    lunghezza_ = 0;
}

void TestoRicco::sel_length(std::size_t n) {
    lunghezza_ = std::min(n, documento_.testo.size() - inizio_);
}

std::string TestoRicco::sel_text() const {
    return text().substr(inizio_, lunghezza_);
}

void TestoRicco::sel_text(std::string_view nuovo) {
    applica({{inizio_, lunghezza_}}, nuovo);
    inizio_ += nuovo.size();
    lunghezza_ = 0;
}

std::size_t TestoRicco::sostituisci(std::string_view marca, std::string_view nuovo) {
    if (marca.empty()) return 0;
    // The text before the search is `fatto`, as it will read; what comes is the rest of the document's.
    // An empty replacement may bring the halves of another mark together: the search then goes back.
    const std::string& testo = documento_.testo;
    std::string fatto;
    std::vector<std::size_t> origine;  // of each character of `fatto` that a search may still take
    std::vector<Taglio> tagli;
    if (!nuovo.empty()) {
        for (auto p = testo.find(marca); p != std::string::npos; p = testo.find(marca, p + marca.size()))
            tagli.push_back({p, marca.size()});
        if (!tagli.empty()) applica(tagli, nuovo);
        return tagli.size();
    }
    std::size_t quanti = 0;
    if (testo.find(marca) == std::string::npos) return 0;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        fatto.push_back(testo[i]);
        origine.push_back(i);
        if (!std::string_view(fatto).ends_with(marca)) continue;
        for (std::size_t k = origine.size() - marca.size(); k < origine.size(); ++k)
            tagli.push_back({origine[k], 1});
        fatto.resize(fatto.size() - marca.size());
        origine.resize(fatto.size());
        ++quanti;
    }
    std::sort(tagli.begin(), tagli.end(), [](const Taglio& a, const Taglio& b) { return a.da < b.da; });
    applica(tagli, nuovo);
    return quanti;
}

// Replaces all cuts, which are in order and do not overlap, in one walk over text, runs and paragraphs.
void TestoRicco::applica(const std::vector<Taglio>& tagli, std::string_view nuovo) {
    rtf::Documento& d = documento_;
    // An empty holder takes text as well.
    if (d.tratti.empty()) d.tratti.push_back({});
    if (d.paragrafi.empty()) {
        d.paragrafi.push_back({});
        d.parti.assign(1, {rtf::TipoParte::corpo, 1});
    }
    std::string testo;
    testo.reserve(d.testo.size());
    std::size_t da = 0;
    for (const Taglio& t : tagli) {
        testo.append(d.testo, da, t.da - da);
        testo.append(nuovo);
        da = t.da + t.n;
    }
    testo.append(d.testo, da, std::string::npos);

    // In a list of lengths each cut takes from those it covers and gives its text to the first of them.
    const auto accorcia = [&](auto& lista) {
        std::size_t inizio = 0, taglio = 0, tolto = 0;
        for (auto& voce : lista) {
            const std::size_t fine = inizio + voce.n;
            while (taglio < tagli.size() && tagli[taglio].da + tolto < fine) {
                const Taglio& t = tagli[taglio];
                const std::size_t primo = t.da + tolto;
                const std::size_t via = std::min(fine - primo, t.n - tolto);
                voce.n -= via;
                if (tolto == 0) voce.n += nuovo.size();
                tolto += via;
                if (tolto < t.n) break;
                tolto = 0;
                ++taglio;
            }
            inizio = fine;
        }
        // A range of no characters at the very end of the text.
        for (; taglio < tagli.size() && !lista.empty(); ++taglio) lista.back().n += nuovo.size();
    };
    accorcia(d.tratti);
    accorcia(d.paragrafi);
    d.testo = std::move(testo);
}

}  // namespace ambra
