#include "tests/storia/processo.h"

#include <windows.h>

#include <fcntl.h>
#include <io.h>

#include <fstream>

#include "core/unicode_windows.h"

namespace fs = std::filesystem;

namespace ambra::storia {

namespace {

// No word of a story holds a quote or ends in a back slash.
std::wstring riga_di_comando(const std::vector<std::string>& parole) {
    std::wstring r;
    for (const auto& p : parole) r += L'"' + larga(p) + L"\" ";
    return r;
}

// Starts a program with these as its standard input and output; nothing else of ours goes along.
HANDLE crea_processo(const std::vector<std::string>& parole, HANDLE dentro, HANDLE fuori) {
    STARTUPINFOW avvio{};
    avvio.cb = sizeof avvio;
    avvio.dwFlags = STARTF_USESTDHANDLES;
    avvio.hStdInput = dentro;
    avvio.hStdOutput = fuori;
    avvio.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    PROCESS_INFORMATION nuovo{};
    std::wstring riga = riga_di_comando(parole);
    if (!CreateProcessW(nullptr, riga.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &avvio, &nuovo))
        return nullptr;
    CloseHandle(nuovo.hThread);
    return nuovo.hProcess;
}

int esito_di(HANDLE processo) {
    DWORD stato = static_cast<DWORD>(-1);
    WaitForSingleObject(processo, INFINITE);
    GetExitCodeProcess(processo, &stato);
    CloseHandle(processo);
    return static_cast<int>(stato);
}

SECURITY_ATTRIBUTES ereditata{sizeof ereditata, nullptr, TRUE};

FILE* come_file(HANDLE nostra, int modo, const char* come) {
    return _fdopen(_open_osfhandle(reinterpret_cast<intptr_t>(nostra), modo), come);
}

}  // namespace

int esegui_programma(const std::vector<std::string>& parole, const fs::path& uscita) {
    const HANDLE f = CreateFileW(uscita.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &ereditata, CREATE_ALWAYS,
                                 FILE_ATTRIBUTE_NORMAL, nullptr);
    if (f == INVALID_HANDLE_VALUE) return -1;
    const HANDLE processo = crea_processo(parole, GetStdHandle(STD_INPUT_HANDLE), f);
    const int esito = processo ? esito_di(processo) : -1;
    CloseHandle(f);
    return esito;
}

ProgrammaAvviato avvia_programma(const std::vector<std::string>& parole) {
    HANDLE dentro[2], fuori[2];
    if (!CreatePipe(&dentro[0], &dentro[1], &ereditata, 0)) return {};
    if (!CreatePipe(&fuori[0], &fuori[1], &ereditata, 0)) return {};
    SetHandleInformation(dentro[1], HANDLE_FLAG_INHERIT, 0);
    SetHandleInformation(fuori[0], HANDLE_FLAG_INHERIT, 0);
    const HANDLE processo = crea_processo(parole, dentro[0], fuori[1]);
    CloseHandle(dentro[0]);
    CloseHandle(fuori[1]);
    return {come_file(dentro[1], _O_BINARY, "wb"), come_file(fuori[0], _O_RDONLY | _O_BINARY, "rb"),
            reinterpret_cast<intptr_t>(processo)};
}

int attendi(const ProgrammaAvviato& p) {
    return esito_di(reinterpret_cast<HANDLE>(p.processo));
}

// What is read-only here is the file alone: its folder stays open to writing. Under Wine a superuser is not
// refused even the file.
bool togli_scrittura(const fs::path& p) {
    if (fs::is_directory(p) || !SetFileAttributesW(p.c_str(), FILE_ATTRIBUTE_READONLY)) return false;
    return !std::ofstream(p, std::ios::app);
}

bool come_utente(const fs::path&, std::vector<std::string>&) {
    return true;
}

}  // namespace ambra::storia
