// The sample print of a form: every field that has a place shows its own name there.
#pragma once

#include <string>
#include <vector>

#include "print/printer.h"
#include "records/layout.h"

namespace ambra {

struct VoceEsempio {
    const CampoLayout* campo;
    std::string nome;
};

/// Prints one sheet in millimetres and gives the printer back in twips. `modulo_bianco` first draws the
/// form itself (kinds 1, 2 and 4). A printer fault leaves out what it hit.
void stampa_esempio(Printer& p, int tipo, bool modulo_bianco, const std::vector<VoceEsempio>& voci);

}  // namespace ambra
