// RecNome, 42 bytes: one name of an index (lumNNN.srf, lumNNN.cns).
#pragma once

#include <cstddef>

#include "core/campi.h"

namespace ambra {

struct RecNome {
    Testo<40> nome;  // .srf: the supplier's name in upper case; .cns: a condomino's name
    Intero numero;   // record number in .for or .cnd
};
static_assert(sizeof(RecNome) == 42 && offsetof(RecNome, numero) == 40);

}  // namespace ambra
