// RecConto, 64 bytes: one account (lumNNN.pia). The chart is a fixed grid of 4258 record numbers.
#pragma once

#include <cstddef>

#include "core/campi.h"

namespace ambra {

struct RecConto {
    Testo<40> cnome;   // name of the account; all blank: the position is not in use
    Grezzo<8> suite1;  // carried through
    Doppio csaldo;     // balance, euro
    Grezzo<8> suite2;  // carried through
};
static_assert(sizeof(RecConto) == 64 && offsetof(RecConto, suite1) == 40);
static_assert(offsetof(RecConto, csaldo) == 48 && offsetof(RecConto, suite2) == 56);

constexpr int kConti = 4258;              ///< records of the chart
constexpr int kVociSpesa = 40;            ///< voci 1 to 40 are the expense headings
constexpr int kVoceAddebiti = 41;         ///< charges to a single condomino
constexpr int kVoceAccrediti = 42;        ///< named, never offered
constexpr int kContiPerVoce = 99;         ///< accounts of a voce
constexpr int kBaseContropartite = 4158;  ///< counter-account n is record 4158 + n, n from 1 to 99

/// Record number of an account: voce from 1, conto from 1 to 99.
constexpr int idconto(int voce, int conto) {
    return (voce - 1) * kContiPerVoce + conto;
}

}  // namespace ambra
