// RecStabile, 418 bytes (lumora.tot), and RecStabile2, 3258 bytes (lumora.tt2): the master data of a
// building, record number = building number. The suite owns both; this system only reads them.
#pragma once

#include <cstddef>

#include "core/campi.h"

namespace ambra {

struct RecStabile {
    Testo<40> nome;       // name of the building
    Testo<40> indirizzo;  // street
    Testo<40> cittastab;  // town
    Testo<40> testo4;     // the suite's own from here on
    Testo<40> testo5;     //
    Testo<40> testo6;     //
    Testo<12> testo7;     //
    Testo<1> testo8;      //
    Testo<10> testo9;     //
    Testo<5> testo10;     //
    Testo<12> testo11;    //
    Testo<5> testo12;     //
    Testo<5> testo13;     //
    Testo<4> testo14;     //
    Testo<1> testo15;     //
    Testo<40> testo16;    //
    Testo<10> testo17;    //
    Testo<30> testo18;    //
    Testo<3> testo19;     //
    Testo<40> testo20;    //
};
static_assert(sizeof(RecStabile) == 418);
static_assert(offsetof(RecStabile, indirizzo) == 40 && offsetof(RecStabile, cittastab) == 80);
static_assert(offsetof(RecStabile, testo4) == 120 && offsetof(RecStabile, testo5) == 160);
static_assert(offsetof(RecStabile, testo6) == 200 && offsetof(RecStabile, testo7) == 240);
static_assert(offsetof(RecStabile, testo8) == 252 && offsetof(RecStabile, testo9) == 253);
static_assert(offsetof(RecStabile, testo10) == 263 && offsetof(RecStabile, testo11) == 268);
static_assert(offsetof(RecStabile, testo12) == 280 && offsetof(RecStabile, testo13) == 285);
static_assert(offsetof(RecStabile, testo14) == 290 && offsetof(RecStabile, testo15) == 294);
static_assert(offsetof(RecStabile, testo16) == 295 && offsetof(RecStabile, testo17) == 335);
static_assert(offsetof(RecStabile, testo18) == 345 && offsetof(RecStabile, testo19) == 375);
static_assert(offsetof(RecStabile, testo20) == 378);

struct RecStabile2 {
    Testo<16> codfisc;     // tax code of the building
    Testo<60> testo2;      // the suite's own from here on
    Testo<60> testo3;      //
    Testo<60> testo4;      //
    Testo<60> testo5;      //
    Testo<40> testo6;      //
    Testo<40> testo7;      //
    Testo<40> testo8;      //
    Testo<12> testo9;      //
    Testo<12> testo10;     //
    Testo<60> dodici[12];  //
    Grezzo<36> numeri1;    //
    Testo<2100> testo24;   //
    Grezzo<2> numeri2;     //
};
static_assert(sizeof(RecStabile2) == 3258);
static_assert(offsetof(RecStabile2, testo2) == 16 && offsetof(RecStabile2, testo3) == 76);
static_assert(offsetof(RecStabile2, testo4) == 136 && offsetof(RecStabile2, testo5) == 196);
static_assert(offsetof(RecStabile2, testo6) == 256 && offsetof(RecStabile2, testo7) == 296);
static_assert(offsetof(RecStabile2, testo8) == 336 && offsetof(RecStabile2, testo9) == 376);
static_assert(offsetof(RecStabile2, testo10) == 388 && offsetof(RecStabile2, dodici) == 400);
static_assert(offsetof(RecStabile2, numeri1) == 1120 && offsetof(RecStabile2, testo24) == 1156);
static_assert(offsetof(RecStabile2, numeri2) == 3256);

}  // namespace ambra
