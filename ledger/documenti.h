// What every list needs of the documents and suppliers of a building: sums, name ranges, and the documents
// sorted to their suppliers in one pass.
#pragma once

#include <cstdint>
#include <numeric>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "archivio/archivio.h"
#include "core/lettura.h"
#include "records/fattura.h"
#include "records/fornitore.h"
#include "records/nome.h"

namespace ambra {

/// The amounts of one document, euro, as they stand in the record (positive for a credit note too).
struct ImportiDocumento {
    double impon = 0, ivai = 0, esent = 0, rac = 0;
    double sca = 0, ver = 0;
    double totale() const { return impon + ivai + esent; }
};
ImportiDocumento importi(const RecFattura& f);

/// A stored ddmmyyyy date as dd/mm/yyyy; empty when there is none, that is when it does not read as a number.
std::string data_o_nulla(const Testo<8>& d);

/// The range of supplier names of a list: an empty end does not limit. Compared upper-cased, by character.
class IntervalloNomi {
  public:
    IntervalloNomi(std::string_view inizio, std::string_view fine);
    /// `inte1` is taken trimmed.
    bool contiene(const RecFornitore& f) const;

  private:
    std::string inizio_, fine_;
};

/// Walks the suppliers in the order of the name index: f(record number, supplier).
template <class F>
void per_fornitore(Archivio& arc, int quanti, F f) {
    Passata<RecNome> indice(arc.srf);
    Schedario<RecFornitore> schede(arc.fornitori);
    RecNome nome{};
    const RecFornitore nessuno{}, *fornitore = &nessuno;
    for (int i = 1; i <= quanti; ++i) {
        leggi_o_resta(indice, i, nome);
        vedi_o_resta(schede, nome.numero, fornitore);
        f(int(nome.numero), *fornitore);
    }
}

/// Walks the documents in record order: f(document).
template <class F>
void scorri_documenti(Archivio& arc, int quanti, F f) {
    Passata<RecFattura> documenti(arc.ftr);
    const RecFattura nessuno{}, *documento = &nessuno;
    for (int n = 1; n <= quanti; ++n) {
        vedi_o_resta(documenti, n, documento);
        f(*documento);
    }
}

/// The same with the record number and the supplier: f(record number, document, its supplier).
template <class F>
void per_documento(Archivio& arc, int quanti, F f) {
    Schedario<RecFornitore> schede(arc.fornitori);
    const RecFornitore nessuno{}, *fornitore = &nessuno;
    int n = 0;
    scorri_documenti(arc, quanti, [&](const RecFattura& documento) {
        vedi_o_resta(schede, documento.numfor, fornitore);
        f(++n, documento, *fornitore);
    });
}

/// What a list keeps of each document, by supplier and in record order, from one pass over the file.
/// `estrai` gives it as an optional: nothing for a document that the list leaves out.
template <class Voce>
class DocumentiPerFornitore {
  public:
    template <class E>
    DocumentiPerFornitore(Archivio& arc, int quanti, E estrai) {
        std::vector<std::pair<std::size_t, Voce>> tutte;
        scorri_documenti(arc, quanti, [&](const RecFattura& f) {
            const std::optional<Voce> voce = estrai(f);
            if (!voce) return;
            tutte.emplace_back(posto(f.numfor), *voce);
            ++inizio_[posto(f.numfor) + 1];
        });
        std::partial_sum(inizio_.begin(), inizio_.end(), inizio_.begin());
        voci_.resize(tutte.size());
        std::vector<std::size_t> prossimo = inizio_;
        for (const auto& [chi, voce] : tutte) voci_[prossimo[chi]++] = voce;
    }
    std::span<const Voce> di(int fornitore) const {
        const std::size_t da = inizio_[posto(fornitore)];
        return std::span(voci_).subspan(da, inizio_[posto(fornitore) + 1] - da);
    }

  private:
    // A record may hold any number, those below 0 too.
    static std::size_t posto(int fornitore) { return static_cast<std::uint16_t>(fornitore); }

    std::vector<Voce> voci_;
    std::vector<std::size_t> inizio_ =
        std::vector<std::size_t>((1 << 16) + 1);  // of each, the end of the last
};

}  // namespace ambra
