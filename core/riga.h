// The command line as the platform hands it over: words, standard streams, the clock on the wall.
#pragma once

#include <ctime>
#include <string>
#include <vector>

namespace ambra {

/// The words behind the program's name, UTF-8 on every platform.
std::vector<std::string> parole_della_riga(int argc, const char* const* argv);

/// While it lives the standard streams carry bytes as they are, and a terminal takes them for UTF-8.
class FlussiUtf8 {
  public:
    FlussiUtf8();
    ~FlussiUtf8();
    FlussiUtf8(const FlussiUtf8&) = delete;
    FlussiUtf8& operator=(const FlussiUtf8&) = delete;

  private:
    unsigned pagina_di_prima_ = 0;
};

}  // namespace ambra
