// RecFornitore, 600 bytes: one supplier (lumNNN.for). Its record number is its identity for ever.
#pragma once

#include <cstddef>

#include "core/campi.h"

namespace ambra {

struct RecFornitore {
    Testo<40> inte1;       // name, key of the index; a deleted supplier has the character 255 in front
    Testo<40> inte2;       // name, second line
    Testo<40> indir;       // street
    Testo<40> citta;       // town
    Testo<5> cap;          // postal code
    Testo<40> ainte1;      // administrative office: name
    Testo<40> ainte2;      // name, second line
    Testo<40> aindir;      // street
    Testo<40> acitta;      // town
    Testo<5> acap;         // postal code
    Testo<15> tel[3];      // telephones
    Testo<11> piva;        // VAT number
    Testo<16> codfis;      // tax code; the identity of a firm across buildings
    Intero formapag;       // position in lumora.pag, 0 to 39
    Testo<38> email1;      // mail address, characters 1 to 38
    Intero conto;          // default account, a record number of .pia; 0 if none
    Testo<40> luogonas;    // place of birth
    Testo<10> datanas;     // date of birth, as typed
    Intero nofelenco;      // 1: left out of the yearly lists (water, gas, energy)
    Intero fisica;         // 1: natural person
    Testo<40> statoest;    // foreign state
    Testo<5> sigla;        // its code
    Testo<20> codest;      // tax code issued abroad
    Intero nonres;         // 1: not resident
    Testo<2> prov;         // province, registered office
    Testo<2> provnas;      // province of birth
    Testo<1> sesso;        // "M" or "F"; anything else reads as "M"
    Testo<12> email2;      // mail address, characters 39 to 50
    Testo<2> aprov;        // province, administrative office
    Grezzo<14> riservati;  // nobody's
    Intero cancellata;     // 1: deleted
};
static_assert(sizeof(RecFornitore) == 600);
static_assert(offsetof(RecFornitore, inte2) == 40 && offsetof(RecFornitore, indir) == 80);
static_assert(offsetof(RecFornitore, citta) == 120 && offsetof(RecFornitore, cap) == 160);
static_assert(offsetof(RecFornitore, ainte1) == 165 && offsetof(RecFornitore, ainte2) == 205);
static_assert(offsetof(RecFornitore, aindir) == 245 && offsetof(RecFornitore, acitta) == 285);
static_assert(offsetof(RecFornitore, acap) == 325 && offsetof(RecFornitore, tel) == 330);
static_assert(offsetof(RecFornitore, piva) == 375 && offsetof(RecFornitore, codfis) == 386);
static_assert(offsetof(RecFornitore, formapag) == 402 && offsetof(RecFornitore, email1) == 404);
static_assert(offsetof(RecFornitore, conto) == 442 && offsetof(RecFornitore, luogonas) == 444);
static_assert(offsetof(RecFornitore, datanas) == 484 && offsetof(RecFornitore, nofelenco) == 494);
static_assert(offsetof(RecFornitore, fisica) == 496 && offsetof(RecFornitore, statoest) == 498);
static_assert(offsetof(RecFornitore, sigla) == 538 && offsetof(RecFornitore, codest) == 543);
static_assert(offsetof(RecFornitore, nonres) == 563 && offsetof(RecFornitore, prov) == 565);
static_assert(offsetof(RecFornitore, provnas) == 567 && offsetof(RecFornitore, sesso) == 569);
static_assert(offsetof(RecFornitore, email2) == 570 && offsetof(RecFornitore, aprov) == 582);
static_assert(offsetof(RecFornitore, riservati) == 584 && offsetof(RecFornitore, cancellata) == 598);

}  // namespace ambra
