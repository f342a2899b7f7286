#include "core/disco_file_windows.h"

#include <algorithm>

#include "core/errori.h"

namespace ambra {

namespace {

constexpr DWORD kQuotaPassata = 1295;  // ERROR_DISK_QUOTA_EXCEEDED, which not every header has

}  // namespace

int numero_errore(DWORD e) {
    switch (e) {
        case ERROR_SUCCESS:
            return 0;
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
            return errore::file_mancante;
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
        case ERROR_NETWORK_ACCESS_DENIED:
            return errore::permesso_negato;
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_USER_MAPPED_FILE:
        case ERROR_BUSY:
            return errore::gia_aperto;
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case kQuotaPassata:
        case ERROR_FILE_TOO_LARGE:
            return errore::disco_pieno;
        case ERROR_FILE_EXISTS:
        case ERROR_ALREADY_EXISTS:
        case ERROR_DIR_NOT_EMPTY:
            return errore::accesso;
        case ERROR_INVALID_HANDLE:
            return errore::modo_errato;
        case ERROR_TOO_MANY_OPEN_FILES:
            return errore::troppi_file;
        case ERROR_NOT_READY:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_NETNAME_DELETED:
        case ERROR_UNEXP_NET_ERR:
        case ERROR_DEV_NOT_EXIST:
        case ERROR_SEM_TIMEOUT:
        case ERROR_NETWORK_UNREACHABLE:
        case ERROR_CONNECTION_ABORTED:
            return errore::disco_non_pronto;
        default:
            return errore::dispositivo;
    }
}

void Maniglia::chiudi() {
    const HANDLE h = cedi();
    if (h != INVALID_HANDLE_VALUE) CloseHandle(h);
}

bool e_cartella(const std::wstring& vero) {
    const DWORD a = GetFileAttributesW(vero.c_str());
    return a != INVALID_FILE_ATTRIBUTES && (a & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

DWORD apri_regolare(const std::wstring& vero, DWORD accesso, DWORD condiviso, DWORD creazione,
                    Maniglia& file) {
    file.prendi(
        CreateFileW(vero.c_str(), accesso, condiviso, nullptr, creazione, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        const DWORD e = GetLastError();
        return e_cartella(vero) ? ERROR_ALREADY_EXISTS : e;
    }
    if (GetFileType(*file) == FILE_TYPE_DISK) return 0;
    file.chiudi();
    return ERROR_ALREADY_EXISTS;
}

namespace {

constexpr std::size_t kMassimo = 1 << 30;  // what one call of Windows is asked for

// The place of a read or a write, which needs no seek then.
OVERLAPPED a_posto(std::uint64_t posto) {
    OVERLAPPED o{};
    o.Offset = static_cast<DWORD>(posto);
    o.OffsetHigh = static_cast<DWORD>(posto >> 32);
    return o;
}

class FileWindows : public FileAperto {
  public:
    explicit FileWindows(Maniglia file) : file_(std::move(file)) {}

    int leggi(std::uint64_t posto, std::span<std::byte> dove, std::size_t& letti) override {
        return numero_errore(leggi_da(*file_, posto, dove, letti));
    }

    int scrivi(std::uint64_t posto, std::span<const std::byte> che) override {
        const std::uint64_t prima = lunghezza();
        std::size_t scritti = 0;
        const DWORD e = scrivi_in(*file_, posto, che, scritti);
        if (e != 0) ritira(std::max(prima, posto), posto + scritti);
        return numero_errore(e);
    }

    std::uint64_t lunghezza() override { return lunghezza_di(*file_); }

    int consolida() override {
        if (FlushFileBuffers(*file_)) return 0;
        const DWORD e = GetLastError();
        return e == ERROR_ACCESS_DENIED ? 0 : numero_errore(e);  // opened for reading alone: nothing to do
    }

  private:
    // A record that did not fit whole must not stand there in part. Only what this write put at the very end
    // of the file goes: behind it another program may have written its own.
    void ritira(std::uint64_t da, std::uint64_t fine) {
        if (da < fine && lunghezza() == fine) porta_a_lunghezza(*file_, da);
    }

    Maniglia file_;
};

}  // namespace

DWORD leggi_da(HANDLE file, std::uint64_t posto, std::span<std::byte> dove, std::size_t& fatti) {
    fatti = 0;
    while (fatti < dove.size()) {
        OVERLAPPED o = a_posto(posto + fatti);
        DWORD n = 0;
        const auto quanti = static_cast<DWORD>(std::min(dove.size() - fatti, kMassimo));
        if (!ReadFile(file, dove.data() + fatti, quanti, &n, &o)) {
            const DWORD e = GetLastError();
            return e == ERROR_HANDLE_EOF ? 0 : e;
        }
        if (n == 0) break;
        fatti += n;
    }
    return 0;
}

DWORD scrivi_in(HANDLE file, std::uint64_t posto, std::span<const std::byte> che, std::size_t& fatti) {
    fatti = 0;
    while (fatti < che.size()) {
        OVERLAPPED o = a_posto(posto + fatti);
        DWORD n = 0;
        const auto quanti = static_cast<DWORD>(std::min(che.size() - fatti, kMassimo));
        const bool bene = WriteFile(file, che.data() + fatti, quanti, &n, &o) != 0;
        const DWORD e = GetLastError();
        fatti += n;
        if (!bene) return e;
        if (n == 0) return ERROR_DISK_FULL;
    }
    return 0;
}

DWORD porta_a_lunghezza(HANDLE file, std::uint64_t lunghezza) {
    FILE_END_OF_FILE_INFO fine{};
    fine.EndOfFile.QuadPart = static_cast<LONGLONG>(lunghezza);
    return SetFileInformationByHandle(file, FileEndOfFileInfo, &fine, sizeof fine) ? 0 : GetLastError();
}

std::uint64_t lunghezza_di(HANDLE file) {
    LARGE_INTEGER n{};
    return GetFileSizeEx(file, &n) ? static_cast<std::uint64_t>(n.QuadPart) : 0;
}

std::unique_ptr<FileAperto> file_windows(Maniglia file) {
    return std::make_unique<FileWindows>(std::move(file));
}

}  // namespace ambra
