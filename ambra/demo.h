// `ambra demo`: a complete, deterministic, lifelike drive. The same bytes at every run for the same date.
#pragma once

#include <string>
#include <vector>

#include "core/date.h"
#include "core/disco.h"
#include "core/impostazioni.h"
#include "records/conto.h"
#include "records/fattura.h"
#include "records/fornitore.h"
#include "records/tabelle.h"

namespace ambra::demo {

/// A source of chance that gives the same numbers on every machine.
class Caso {
  public:
    explicit Caso(unsigned long long seme) : stato_(seme) {}
    unsigned long long prossimo();
    /// From `a` to `b`, both included.
    int fra(int a, int b);
    /// True `percento` times in a hundred.
    bool su(int percento) { return fra(1, 100) <= percento; }
    template <class T, std::size_t N>
    const T& uno(const T (&tra)[N]) {
        return tra[static_cast<std::size_t>(fra(0, static_cast<int>(N) - 1))];
    }

  private:
    unsigned long long stato_;
};

/// A building of the demo.
struct Stabile {
    int numero;
    std::string nome, indirizzo, citta, codfisc;
    int fornitori, fatture, condomini;
};

/// What the parts of a building share while it is made.
struct Cantiere {
    Disco& disco;
    Data oggi;
    Stabile stabile;
    Cambio cambio;
    TabellaIva iva;
    TabellaPagamenti pagamenti;
    TabellaVoci voci;
    std::vector<int> conti;  ///< record numbers of the named expense accounts
    std::vector<RecFornitore> fornitori;
    std::vector<RecFattura> fatture;
};

struct Opzioni {
    Data oggi;
    bool intera = false;  ///< building 1 of full size: 30,000 documents, 1,000 suppliers
};

/// Whether an archive stands there that the demo has not made: its first building bears another name.
bool archivio_altrui(Disco& disco);
/// Makes \lumdir\lumora with all global files and three buildings. False if the disc refused.
bool crea(Disco& disco, const Opzioni& o);

// ---- the parts, in the order of making ----
bool scrivi_globali(Disco& disco, const std::vector<Stabile>& stabili, Cantiere& c);
void fai_conti(Cantiere& c, Caso& caso);
void fai_fornitori(Cantiere& c, Caso& caso);
void fai_fatture(Cantiere& c, Caso& caso);
bool scrivi_ledger(Cantiere& c, Caso& caso);
bool scrivi_fornitori(const Cantiere& c);
bool scrivi_fatture(const Cantiere& c);

/// The definition of the certificate, rich text.
std::string modello_certificazione();
/// The bytes of records one after the other.
template <class R>
std::string byte_di(const std::vector<R>& tutti) {
    return {reinterpret_cast<const char*>(tutti.data()), tutti.size() * sizeof(R)};
}

}  // namespace ambra::demo
