#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

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

// The library's own would have been through the code page, too.
std::string dell_ambiente(const char* nome) {
    const std::wstring quale = larga(nome);
    std::wstring parola(GetEnvironmentVariableW(quale.c_str(), nullptr, 0), 0);
    parola.resize(GetEnvironmentVariableW(quale.c_str(), parola.data(), static_cast<DWORD>(parola.size())));
    return utf8_di(parola);
}

void di_a_chi_chiama(std::FILE* dove, const std::string& testo) {
    const HANDLE flusso = GetStdHandle(dove == stderr ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE);
    if (GetFileType(flusso) != FILE_TYPE_UNKNOWN)
        std::fputs(testo.c_str(), dove);
    else
        MessageBoxW(nullptr, larga(testo).c_str(), L"Kit Ambra", MB_OK);
}

FlussiUtf8::FlussiUtf8() : pagina_di_prima_(GetConsoleOutputCP()) {
    for (FILE* f : {stdin, stdout, stderr}) (void)_setmode(_fileno(f), _O_BINARY);
    if (pagina_di_prima_ != 0) SetConsoleOutputCP(CP_UTF8);
}

FlussiUtf8::~FlussiUtf8() {
    if (pagina_di_prima_ != 0) SetConsoleOutputCP(pagina_di_prima_);
}

}  // namespace ambra
