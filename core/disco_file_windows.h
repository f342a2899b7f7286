// Files of Windows: opening what is a plain file, the open file, the error numbers.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "core/disco.h"

namespace ambra {

/// The run-time error number of a `GetLastError`.
int numero_errore(DWORD e);

/// An open handle, closed at its end; INVALID_HANDLE_VALUE when there is none.
class Maniglia {
  public:
    Maniglia() = default;
    ~Maniglia() { chiudi(); }
    Maniglia(Maniglia&& altra) noexcept : h_(altra.cedi()) {}
    Maniglia& operator=(Maniglia&& altra) noexcept {
        chiudi();
        h_ = altra.cedi();
        return *this;
    }
    void prendi(HANDLE h) {
        chiudi();
        h_ = h;
    }
    void chiudi();
    HANDLE operator*() const { return h_; }
    explicit operator bool() const { return h_ != INVALID_HANDLE_VALUE; }

  private:
    HANDLE cedi() {
        const HANDLE h = h_;
        h_ = INVALID_HANDLE_VALUE;
        return h;
    }
    HANDLE h_ = INVALID_HANDLE_VALUE;
};

// A file held for life may be read and written by others, never taken away under us: what we write would go
// to a ghost. One that is opened for an instant is in nobody's way.
constexpr DWORD kPerSempre = FILE_SHARE_READ | FILE_SHARE_WRITE;
constexpr DWORD kUnIstante = kPerSempre | FILE_SHARE_DELETE;

bool e_cartella(const std::wstring& vero);

/// Opens a plain file as CreateFileW does; anything else that bears the name (a folder, a device) is refused
/// as an existing thing. 0 or an error of Windows.
DWORD apri_regolare(const std::wstring& vero, DWORD accesso, DWORD condiviso, DWORD creazione,
                    Maniglia& file);

/// Reads or writes all bytes at `posto`; `fatti` is how many there were before the end or the error. 0 or an
/// error of Windows.
DWORD leggi_da(HANDLE file, std::uint64_t posto, std::span<std::byte> dove, std::size_t& fatti);
DWORD scrivi_in(HANDLE file, std::uint64_t posto, std::span<const std::byte> che, std::size_t& fatti);
/// Cuts or extends to this length. 0 or an error of Windows.
DWORD porta_a_lunghezza(HANDLE file, std::uint64_t lunghezza);
std::uint64_t lunghezza_di(HANDLE file);

std::unique_ptr<FileAperto> file_windows(Maniglia file);

}  // namespace ambra
