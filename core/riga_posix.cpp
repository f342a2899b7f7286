#include "core/riga.h"

namespace ambra {

std::vector<std::string> parole_della_riga(int argc, const char* const* argv) {
    return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>{};
}

FlussiUtf8::FlussiUtf8() = default;
FlussiUtf8::~FlussiUtf8() = default;

}  // namespace ambra
