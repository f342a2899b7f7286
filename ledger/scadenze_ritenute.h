// The tax that a building has withheld and not yet paid over: its payments, their terms, and the rows that
// the treasury's form wants of them.
//
// Made whole in one pass over the documents; amounts are cents, negative for credit notes. Documents are told
// by their place in `documenti`, payments by theirs in `pagamenti`, suppliers by theirs in `fornitori`.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "archivio/archivio.h"
#include "ledger/ritenute_documento.h"

namespace ambra {

/// A document with tax withheld that was not paid over. A deleted one counts: what was withheld is owed.
struct DocumentoRitenuta {
    long record = 0;
    std::size_t fornitore = 0;
    Testo<10> numero;
    Testo<8> data;  ///< yyyymmdd
    Famiglia famiglia = Famiglia::lavori;
    bool eliminato = false;
    bool intero = false;  ///< paid up, every payment with a date and in one term
};

struct PagamentoRitenuta {
    std::size_t documento = 0;
    std::optional<Data> data;
    Centesimi pagato = 0, ritenuta = 0;
};

struct FornitoreRitenuta {
    std::string nome;
    Percettore percettore;
};

/// The payments of one code and one month that are due at one term.
struct RigaRitenute {
    std::size_t termine = 0;
    CodiceTributo codice = CodiceTributo::compensi;
    int mese = 0;  ///< `numero_mese` of the payments
    Centesimi importo = 0;
    std::vector<std::size_t> pagamenti;
};

struct ScadenzeRitenute {
    std::vector<DocumentoRitenuta> documenti;
    std::vector<PagamentoRitenuta> pagamenti;   ///< with a date and a tax, by document
    std::vector<PagamentoRitenuta> senza_data;  ///< never guessed: in no term
    std::vector<Termine> termini;     ///< of these payments; what was paid over counted towards them
    std::vector<RigaRitenute> righe;  ///< by date, code, month
    std::vector<FornitoreRitenuta> fornitori;

    const DocumentoRitenuta& documento_di(const PagamentoRitenuta& p) const { return documenti[p.documento]; }
    const FornitoreRitenuta& fornitore_di(const DocumentoRitenuta& d) const { return fornitori[d.fornitore]; }
    /// The documents of the payments of a row or a term, each once a month, in record order by month.
    std::vector<std::size_t> documenti_di(const std::vector<std::size_t>& quali) const;
};

/// The name of a supplier as lists of ours show it: trimmed, without the mark of a deleted one.
std::string nome_fornitore(const RecFornitore& f);
/// Reads documents and suppliers as they stand now.
ScadenzeRitenute scadenze_ritenute(Archivio& arc);

}  // namespace ambra
