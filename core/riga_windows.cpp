#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>

#include "core/riga.h"
#include "core/unicode_windows.h"

namespace ambra {

// The words that main gets have been through the code page of the machine.
std::vector<std::string> parole_della_riga(int, const char* const*) {
    std::vector<std::string> parole;
    int quante = 0;
    wchar_t** w = CommandLineToArgvW(GetCommandLineW(), &quante);
    for (int i = 1; i < quante; ++i) parole.push_back(utf8_di(w[i]));
    LocalFree(w);
    return parole;
}

FlussiUtf8::FlussiUtf8() : pagina_di_prima_(GetConsoleOutputCP()) {
    for (FILE* f : {stdin, stdout, stderr}) (void)_setmode(_fileno(f), _O_BINARY);
    if (pagina_di_prima_ != 0) SetConsoleOutputCP(CP_UTF8);
}

FlussiUtf8::~FlussiUtf8() {
    if (pagina_di_prima_ != 0) SetConsoleOutputCP(pagina_di_prima_);
}

}  // namespace ambra
