#include "print/rtf.h"

namespace ambra::rtf {

std::string testo_piano(const Documento& d) {
    return d.testo;
}

}  // namespace ambra::rtf
