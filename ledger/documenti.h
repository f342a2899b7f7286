// What every list needs of the documents and suppliers of a building: sums, name ranges, and the documents
// sorted to their suppliers in one pass.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
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
    RecFornitore fornitore{};
    for (int i = 1; i <= quanti; ++i) {
        leggi_o_resta(indice, i, nome);
        leggi_o_resta(schede, nome.numero, fornitore);
        f(int(nome.numero), fornitore);
    }
}

/// Walks the documents in record order: f(record number, document, its supplier).
template <class F>
void per_documento(Archivio& arc, int quanti, F f) {
    Passata<RecFattura> documenti(arc.ftr);
    Schedario<RecFornitore> schede(arc.fornitori);
    RecFattura documento{};
    RecFornitore fornitore{};
    for (int n = 1; n <= quanti; ++n) {
        leggi_o_resta(documenti, n, documento);
        leggi_o_resta(schede, documento.numfor, fornitore);
        f(n, documento, fornitore);
    }
}

/// The documents of each supplier, in record order, read in one pass over the file. `tieni` says which.
class DocumentiPerFornitore {
  public:
    template <class P>
    DocumentiPerFornitore(Archivio& arc, int quante, P tieni) {
        Passata<RecFattura> passata(arc.ftr);
        RecFattura f{};
        for (int i = 1; i <= quante; ++i) {
            leggi_o_resta(passata, i, f);
            if (tieni(f)) per_numero_[f.numfor].push_back(f);
        }
    }
    const std::vector<RecFattura>& di(int fornitore) const {
        static const std::vector<RecFattura> kNessuno;
        const auto it = per_numero_.find(fornitore);
        return it == per_numero_.end() ? kNessuno : it->second;
    }

  private:
    std::unordered_map<int, std::vector<RecFattura>> per_numero_;
};

}  // namespace ambra
