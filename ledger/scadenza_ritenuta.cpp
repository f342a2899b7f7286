#include "ledger/scadenza_ritenuta.h"

#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {
constexpr int kDomenica = 0, kSabato = 6;
}  // namespace

std::string scadenza_ritenuta(std::string_view pagamento) {
    Data d{16, 1 + static_cast<int>(leggi_numero(medio(pagamento, 4, 2))),
           static_cast<int>(leggi_numero(destra(pagamento, 4)))};
    if (d.mese > 12) {
        d.mese = 1;
        ++d.anno;
    }
    // Characters that are no month have no weekday.
    if (d.mese >= 1 && d.anno >= 1) {
        const int giorno = giorno_settimana(d);
        if (giorno == kDomenica) d.giorno += 1;
        if (giorno == kSabato) d.giorno += 2;
    }
    return testo_data(d);
}

}  // namespace ambra
