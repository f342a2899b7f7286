#include "print/rtf.h"

#include <algorithm>

namespace ambra::rtf {

std::string testo_piano(const Documento& d) {
    std::string s = d.testo;
    std::replace(s.begin(), s.end(), kACapo, '\n');
    return s;
}

}  // namespace ambra::rtf
