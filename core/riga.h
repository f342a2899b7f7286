// What the platform hands to a program: words of the command line and of the environment, standard streams.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace ambra {

/// The words behind the program's name, UTF-8 on every platform.
std::vector<std::string> parole_della_riga(int argc, const char* const* argv);

/// A word of the environment, UTF-8 on every platform; "" where there is none.
std::string dell_ambiente(const char* nome);

/// Says this (UTF-8) on a standard stream, or in a box where a program of windows has none.
void di_a_chi_chiama(std::FILE* dove, const std::string& testo);

/// While it lives the standard streams carry bytes as they are, and a terminal takes them for UTF-8;
/// libraries take text for UTF-8, too, whatever the user's language.
class FlussiUtf8 {
  public:
    FlussiUtf8();
    ~FlussiUtf8();
    FlussiUtf8(const FlussiUtf8&) = delete;
    FlussiUtf8& operator=(const FlussiUtf8&) = delete;

  private:
    [[maybe_unused]] unsigned pagina_di_prima_ = 0;  // of a Windows terminal
};

}  // namespace ambra
