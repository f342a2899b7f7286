// The reorganisation of the invoice file: drops what was deleted and puts the rest in order of
// registration date.
#include "worklist/vexoraf.h"

namespace ambra {

void Vexoraf::riordino() {
    // PROVVISORIO
}

}  // namespace ambra
