#include "invoices/calcolo.h"

#include <algorithm>
#include <cmath>

#include "core/testo.h"

namespace ambra {

namespace {

int gruppo(std::string_view codice, std::size_t posizione) {
    return static_cast<int>(std::nearbyint(leggi_numero(medio(codice, posizione, 3))));
}

void mese_dopo(Data& d) {
    if (++d.mese > 12) {
        d.mese = 1;
        ++d.anno;
    }
}

// As the archive counts it: a leap year is one divisible by 4 and nothing else.
int giorni_contati(const Data& d) {
    switch (d.mese) {
        case 4:
        case 6:
        case 9:
        case 11:
            return 30;
        case 2:
            return d.anno % 4 == 0 ? 29 : 28;
        default:
            return 31;
    }
}

// Padded, never cut: a day of three digits stays visibly wrong.
std::string almeno(int numero, std::size_t cifre) {
    std::string s = std::to_string(numero);
    if (s.size() < cifre) s.insert(0, cifre - s.size(), '0');
    return s;
}

}  // namespace

RigaIva riga_iva(const Cambio& cambio, double aliquota, double aliquota_ritenuta, double imponibile) {
    RigaIva r;
    r.iva = applicaperc(cambio, aliquota, imponibile);
    if (aliquota_ritenuta > 0) r.ritenuta = applicaperc(cambio, aliquota_ritenuta, imponibile);
    return r;
}

Somme calctot(const Dettaglio& d) {
    Somme s;
    for (std::size_t i = 0; i < kCodiciIva; ++i) {
        s.impon += d.impon[i];
        s.ivai += d.ivai[i];
        s.esent += d.esent[i];
        s.rac += d.rac[i];
    }
    s.totale = s.ivai + s.impon + s.esent;
    return s;
}

int Termine::rate() const {
    return 1 + static_cast<int>(std::count_if(mesi.begin() + 1, mesi.end(), [](int m) { return m > 0; }));
}

Termine termine_di(std::string_view codice) {
    Termine t;
    for (std::size_t k = 0; k < kRate; ++k) t.mesi[k] = gruppo(codice, 1 + 3 * k);
    t.fine = medio(codice, 13, 1) == "F";
    t.giorni = gruppo(codice, 14);
    return t;
}

Importi calcrate(const Cambio& cambio, const Termine& t, double netto) {
    const int n = t.rate();
    const double rata = arrotonda(cambio, netto / n);
    Importi r;
    for (std::size_t k = 1; k < kRate; ++k)
        if (t.mesi[k] > 0) r[k] = rata;
    r[0] = netto - (n - 1) * rata;
    return r;
}

std::string datascad(const Data& documento, int mesi, bool fine, int giorni) {
    Data d = documento;
    for (int m = 1; m <= mesi; ++m) mese_dopo(d);
    if (fine && giorni > 0) {
        d.giorno = giorni;
        mese_dopo(d);
    } else {
        d.giorno = fine ? giorni_contati(d) : std::min(d.giorno, giorni_contati(d));
    }
    return unisci(almeno(d.giorno, 2), "/", almeno(d.mese, 2), "/", almeno(d.anno, 4));
}

Scadenze calcscad(const Termine& t, const Data& documento) {
    Scadenze r;
    r[0] = datascad(documento, t.mesi[0], t.fine, t.giorni);
    for (std::size_t k = 1; k < kRate; ++k)
        if (t.mesi[k] > 0) r[k] = datascad(documento, t.mesi[k], t.fine, t.giorni);
    return r;
}

}  // namespace ambra
