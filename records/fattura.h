// RecFattura, 522 bytes: one received document, invoice or credit note (lumNNN.ftr).
//
// A credit note stores positive amounts; the sign lives in `tipodc`. Document dates are yyyymmdd, all
// others ddmmyyyy.
#pragma once

#include <cstddef>

#include "core/campi.h"

namespace ambra {

/// Instalments of a document.
constexpr std::size_t kRate = 4;

struct RecFattura {
    Intero numfor;          // record number of the supplier in .for
    Testo<10> numdoc;       // number of the document, as typed
    Grezzo<2> riservati1;   // nobody's
    Testo<8> datareg;       // date of registration, yyyymmdd
    Testo<8> datadoc;       // date of the document, yyyymmdd
    Testo<8> dsca[4];       // due dates of the instalments, ddmmyyyy
    Testo<8> dver[4];       // dates of their payments, ddmmyyyy; blank while unpaid
    Doppio impon[8];        // taxable amounts by VAT code, euro
    Doppio ivai[8];         // VAT by VAT code
    Doppio esent[8];        // exempt amounts by exemption code
    Doppio sca[4];          // amounts of the instalments
    Doppio ver[4];          // paid so far against each
    Intero tipodc;          // 0 invoice, 1 credit note
    Grezzo<2> riservati2;   // nobody's
    Intero pagata;          // 1: paid in full
    Intero modpag;          // payment term, position in lumora.pag, 0 to 39
    Testo<38> pdf;          // path of the attached PDF
    Grezzo<4> riservati3;   // nobody's
    Grezzo<2> riservati4;   // nobody's
    Doppio rac[8];          // withholding tax by VAT code
    Testo<8> dscarit;       // when the withheld tax falls due, ddmmyyyy
    Testo<8> dverrit;       // when it was paid over, ddmmyyyy
    Testo<1> addebita;      // "1": already in the building's accounts
    Testo<1> riporta;       // "1": charged to a single condomino
    Grezzo<36> riservati5;  // nobody's
    Intero cancellata;      // 1: deleted
};
static_assert(sizeof(RecFattura) == 522);
static_assert(offsetof(RecFattura, numdoc) == 2 && offsetof(RecFattura, riservati1) == 12);
static_assert(offsetof(RecFattura, datareg) == 14 && offsetof(RecFattura, datadoc) == 22);
static_assert(offsetof(RecFattura, dsca) == 30 && offsetof(RecFattura, dver) == 62);
static_assert(offsetof(RecFattura, impon) == 94 && offsetof(RecFattura, ivai) == 158);
static_assert(offsetof(RecFattura, esent) == 222 && offsetof(RecFattura, sca) == 286);
static_assert(offsetof(RecFattura, ver) == 318 && offsetof(RecFattura, tipodc) == 350);
static_assert(offsetof(RecFattura, riservati2) == 352 && offsetof(RecFattura, pagata) == 354);
static_assert(offsetof(RecFattura, modpag) == 356 && offsetof(RecFattura, pdf) == 358);
static_assert(offsetof(RecFattura, riservati3) == 396 && offsetof(RecFattura, riservati4) == 400);
static_assert(offsetof(RecFattura, rac) == 402 && offsetof(RecFattura, dscarit) == 466);
static_assert(offsetof(RecFattura, dverrit) == 474 && offsetof(RecFattura, addebita) == 482);
static_assert(offsetof(RecFattura, riporta) == 483 && offsetof(RecFattura, riservati5) == 484);
static_assert(offsetof(RecFattura, cancellata) == 520);

/// Plain sum of an array of amounts, first to last.
template <std::size_t N>
double somma(const Doppio (&importi)[N]) {
    double s = 0;
    for (const Doppio& x : importi) s += x;
    return s;
}

/// -1 for a credit note, else 1.
inline int segno(const RecFattura& f) {
    return f.tipodc == 1 ? -1 : 1;
}

}  // namespace ambra
