#include "ledger/documenti.h"

#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

ImportiDocumento importi(const RecFattura& f) {
    return {somma(f.impon), somma(f.ivai), somma(f.esent), somma(f.rac), somma(f.sca), somma(f.ver)};
}

std::string data_o_nulla(const Testo<8>& d) {
    return leggi_numero(d.testo()) == 0 ? std::string{} : mostra_ggmmaaaa(d.testo());
}

IntervalloNomi::IntervalloNomi(std::string_view inizio, std::string_view fine)
    : inizio_(maiuscolo(rifila(inizio))), fine_(maiuscolo(rifila(fine))) {
    if (inizio_.empty()) inizio_ = std::string(1, '\0');
    if (fine_.empty()) fine_.assign(1, '\xFE');
}

bool IntervalloNomi::contiene(const RecFornitore& f) const {
    const std::string nome = maiuscolo(f.inte1.rifilato());
    return nome >= inizio_ && nome <= fine_;
}

}  // namespace ambra
