// Which documents of the archive are registered already: an index by supplier, number, year and kind, built
// once for the whole program and kept fresh by what this program writes and by the counter of documents.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "screen/programma.h"

namespace ambra {

/// What makes two documents the same one.
struct ChiaveDocumento {
    long fornitore = 0;  ///< his record; one of the same VAT number is the same supplier
    std::string numero;  ///< as in the record: its last ten characters count
    std::string anno;    ///< of the document's date, "2026"
    bool nota_credito = false;
};

/// The number by which documents are compared: its last ten characters in upper case, without blanks and
/// without leading zeros of each group of digits.
std::string numero_confrontabile(std::string_view numero);

class Registrate : public Osservatore {
  public:
    explicit Registrate(Programma& p) : Osservatore(p.arc) {}
    /// The one of the program.
    static Registrate& di(Programma& p);

    /// Reads everything again at the next question.
    void rifai() { letti_ = -1; }
    /// The first live document of that key but `escluso`, read into `f`; 0 if there is none.
    long cerca(const ChiaveDocumento& k, long escluso, RecFattura& f);
    /// The highest live document of a supplier, read into `f`; 0 if there is none.
    long ultima(long fornitore, RecFattura& f);

    void scritta(long n, const RecFattura& prima, const RecFattura& dopo) override;
    void spostate(std::span<const Impronta>, std::span<const long>) override { rifai(); }
    void fornitore_scritto(long, const RecFornitore& prima, const RecFornitore& dopo) override {
        if (prima.piva.rifilato() != dopo.piva.rifilato()) rifai();
    }

  private:
    void aggiorna();
    void leggi_fino_a(long quante);
    std::string chiave(const ChiaveDocumento& k);
    std::string chiave_di(const RecFattura& f);
    const std::string& chi_e(long fornitore);

    long letti_ = -1;  ///< documents in the index; -1: none of them is to be trusted
    std::unordered_map<std::string, std::vector<long>> per_chiave_;
    std::unordered_map<long, long> ultime_;            ///< supplier to his highest live document
    std::unordered_map<long, std::string> fornitori_;  ///< supplier to what makes him the same as another
};

}  // namespace ambra
