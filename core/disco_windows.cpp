#include <windows.h>

#include <algorithm>

#include "core/disco.h"
#include "core/disco_blocchi.h"
#include "core/disco_comune.h"
#include "core/disco_file_windows.h"
#include "core/errori.h"
#include "core/percorsi_windows.h"
#include "core/unicode_windows.h"

namespace ambra {

namespace {

class DiscoWindows : public Disco {
  public:
    explicit DiscoWindows(std::string radice) : radice_(radice_windows(std::move(radice))) {}

    int apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) override;
    int leggi_tutto(std::string_view percorso, std::string& contenuto) override {
        return leggi_aprendo(*this, percorso, contenuto);
    }
    int scrivi_tutto(std::string_view percorso, std::string_view contenuto) override;
    int scrivi_nuovo(std::string_view percorso, std::string_view contenuto) override;
    int cosa_c_e(std::string_view percorso, Cosa& che) override;
    int copia(std::string_view da, std::string_view a) override;
    int rinomina(std::string_view da, std::string_view a) override;
    int sposta(std::string_view da, std::string_view a) override;
    int elimina(std::string_view percorso) override;
    int crea_cartella(std::string_view percorso) override;
    int elenca(std::string_view cartella, std::vector<std::string>& nomi) override;
    int blocca(std::string_view percorso, int sezione, std::chrono::milliseconds pazienza) override {
        return blocchi_.blocca(minuscolo(percorso), reale(percorso), sezione, pazienza);
    }
    void sblocca(std::string_view percorso, int sezione) override {
        blocchi_.sblocca(minuscolo(percorso), sezione);
    }
    /// A rename has written it through; of a folder nothing more can be asked here.
    int consolida_cartella(std::string_view) override { return 0; }
    /// Told by the server of a share for the programs of all machines.
    bool in_uso(std::string_view percorso) override;
    std::string reale(std::string_view percorso) override {
        const bool con_unita = percorso.size() > 1 && percorso[1] == ':';
        return posto_windows(radice_, a_utf8(percorso), con_unita ? GetLogicalDrives() : 0);
    }

  private:
    std::wstring vero(std::string_view percorso) { return per_windows(reale(percorso)); }

    std::string radice_;
    Blocchi blocchi_;
};

// The number of a failed making of a file or folder: what is missing is its folder.
int errore_di_creazione(DWORD e) {
    return e == ERROR_PATH_NOT_FOUND || e == ERROR_FILE_NOT_FOUND ? errore::percorso_mancante
                                                                  : numero_errore(e);
}

bool qualcuno_lo_tiene(DWORD e) {
    return e == ERROR_ACCESS_DENIED || e == ERROR_SHARING_VIOLATION || e == ERROR_USER_MAPPED_FILE;
}

// A file that somebody has open is not given up: as a rule he is a scanner that has done in a moment. 0 or
// the error of Windows.
template <class Prova>
DWORD insisti(Prova prova) {
    constexpr int kProve = 5;
    constexpr DWORD kPausaMs = 20;
    DWORD e = 0;
    for (int n = 0; n < kProve; ++n) {
        if (n > 0) Sleep(kPausaMs);
        if (prova()) return 0;
        e = GetLastError();
        if (!qualcuno_lo_tiene(e)) break;
    }
    return e;
}

// Puts a file in the place of another, written through.
DWORD rinomina_vero(const std::wstring& da, const std::wstring& a) {
    return insisti([&] {
        return MoveFileExW(da.c_str(), a.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
    });
}

// The whole content of an open file becomes this, durably.
DWORD riscrivi(HANDLE file, std::string_view contenuto) {
    std::size_t scritti = 0;
    DWORD e = scrivi_in(file, 0, std::as_bytes(std::span(contenuto)), scritti);
    if (e == 0) e = porta_a_lunghezza(file, contenuto.size());
    if (e == 0 && !FlushFileBuffers(file)) e = GetLastError();
    return e;
}

// Makes a file that is not there; a failed one does not stay.
DWORD crea_nuovo(const std::wstring& vero, std::string_view contenuto) {
    Maniglia file;
    DWORD e = apri_regolare(vero, GENERIC_WRITE, 0, CREATE_NEW, file);
    if (e != 0) return e;
    e = riscrivi(*file, contenuto);
    file.chiudi();
    if (e != 0) DeleteFileW(vero.c_str());
    return e;
}

// The same beside `vero`, under a name that nobody bears: one that a killed process left is passed over.
DWORD crea_accanto(const std::wstring& vero, std::string_view contenuto, std::wstring& nuovo) {
    DWORD e = ERROR_FILE_EXISTS;
    for (int volte = 0; e == ERROR_FILE_EXISTS && volte < 100; ++volte) {
        nuovo = larga(nome_provvisorio(utf8_di(vero), static_cast<long>(GetCurrentProcessId())));
        e = crea_nuovo(nuovo, contenuto);
    }
    return e;
}

// Where somebody keeps the file open its bytes are changed where they lie. What it held stays beside it until
// that is done, for whoever comes after a crash.
DWORD scrivi_sul_posto(const std::wstring& vero, std::string_view contenuto) {
    Maniglia file;
    DWORD e = apri_regolare(vero, GENERIC_READ | GENERIC_WRITE, kUnIstante, OPEN_EXISTING, file);
    if (e != 0) return e;
    std::string vecchio(static_cast<std::size_t>(lunghezza_di(*file)), '\0');
    std::size_t letti = 0;
    std::wstring prima;
    e = leggi_da(*file, 0, std::as_writable_bytes(std::span(vecchio)), letti);
    if (e == 0) e = crea_accanto(vero, vecchio, prima);
    if (e != 0) return e;
    e = riscrivi(*file, contenuto);
    const bool intero = e == 0 || riscrivi(*file, vecchio) == 0;
    if (intero) DeleteFileW(prima.c_str());
    return e;
}

// Puts this content in the place of whatever file stands there.
int metti_al_posto(const std::wstring& vero, std::string_view contenuto) {
    std::wstring nuovo;
    if (const DWORD e = crea_accanto(vero, contenuto, nuovo)) return errore_di_creazione(e);
    DWORD e = rinomina_vero(nuovo, vero);
    if (e == 0) return 0;
    if (qualcuno_lo_tiene(e) && !e_cartella(vero)) e = scrivi_sul_posto(vero, contenuto);
    DeleteFileW(nuovo.c_str());
    return numero_errore(e);
}

// A name as it stands in its folder, whatever case it is asked for in: a replaced file keeps it.
std::wstring con_nome_suo(const std::wstring& vero) {
    WIN32_FIND_DATAW d{};
    const HANDLE h = FindFirstFileW(vero.c_str(), &d);
    if (h == INVALID_HANDLE_VALUE) return vero;
    FindClose(h);
    return vero.substr(0, vero.rfind(L'\\') + 1) + d.cFileName;
}

int DiscoWindows::apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) {
    const std::wstring p = vero(percorso);
    Maniglia m;
    int e = 0;
    if (come == Apertura::lettura) {
        e = numero_errore(apri_regolare(p, GENERIC_READ, kUnIstante, OPEN_EXISTING, m));
    } else {
        e = errore_di_creazione(apri_regolare(p, GENERIC_READ | GENERIC_WRITE, kPerSempre, OPEN_ALWAYS, m));
        if (e == errore::permesso_negato)
            e = errore_di_creazione(apri_regolare(p, GENERIC_READ, kPerSempre, OPEN_EXISTING, m));
    }
    if (e == 0) file = file_windows(std::move(m));
    return e;
}

int DiscoWindows::scrivi_tutto(std::string_view percorso, std::string_view contenuto) {
    const std::wstring p = con_nome_suo(vero(percorso));
    if (e_cartella(p)) return errore::accesso;
    // What may not be written must not be replaced by a rename either.
    const DWORD a = GetFileAttributesW(p.c_str());
    if (a != INVALID_FILE_ATTRIBUTES && (a & FILE_ATTRIBUTE_READONLY) != 0) return errore::permesso_negato;
    return metti_al_posto(p, contenuto);
}

int DiscoWindows::scrivi_nuovo(std::string_view percorso, std::string_view contenuto) {
    return errore_di_creazione(crea_nuovo(vero(percorso), contenuto));
}

// What is not there is so only where its folder could be one: beneath a file nothing can be told.
int DiscoWindows::cosa_c_e(std::string_view percorso, Cosa& che) {
    che = Cosa::niente;
    std::wstring p = vero(percorso);
    WIN32_FIND_DATAW d{};
    const DWORD a = GetFileAttributesW(p.c_str());
    if (a == INVALID_FILE_ATTRIBUTES) {
        const DWORD e = GetLastError();
        if (e == ERROR_FILE_NOT_FOUND) return 0;
        if (e != ERROR_PATH_NOT_FOUND) return numero_errore(e);
        do p.resize(std::min(p.rfind(L'\\'), p.size()));
        while (!p.empty() && GetFileAttributesW(p.c_str()) == INVALID_FILE_ATTRIBUTES &&
               p.find(L'\\') != p.npos);
        return e_cartella(p) ? 0 : errore::percorso_mancante;
    }
    che = (a & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Cosa::cartella : Cosa::file;
    // Files that a cloud service holds are marked as links are, and are none.
    if ((a & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
        if (const HANDLE h = FindFirstFileW(p.c_str(), &d); h != INVALID_HANDLE_VALUE) {
            FindClose(h);
            if (d.dwReserved0 == IO_REPARSE_TAG_SYMLINK || d.dwReserved0 == IO_REPARSE_TAG_MOUNT_POINT)
                che = Cosa::collegamento;
        }
    return 0;
}

int DiscoWindows::copia(std::string_view da, std::string_view a) {
    Maniglia in, out;
    if (const DWORD e = apri_regolare(vero(da), GENERIC_READ, kUnIstante, OPEN_EXISTING, in))
        return numero_errore(e);
    if (const DWORD e = apri_regolare(vero(a), GENERIC_WRITE, kUnIstante, OPEN_ALWAYS, out))
        return errore_di_creazione(e);
    std::string buf(1 << 20, '\0');
    std::uint64_t posto = 0;
    DWORD e = porta_a_lunghezza(*out, 0);
    while (e == 0) {
        std::size_t letti = 0, scritti = 0;
        e = leggi_da(*in, posto, std::as_writable_bytes(std::span(buf)), letti);
        if (e != 0 || letti == 0) break;
        e = scrivi_in(*out, posto, std::as_bytes(std::span(buf).first(letti)), scritti);
        posto += letti;
    }
    return numero_errore(e);
}

int DiscoWindows::rinomina(std::string_view da, std::string_view a) {
    return numero_errore(rinomina_vero(vero(da), vero(a)));
}

int DiscoWindows::sposta(std::string_view da, std::string_view a) {
    return MoveFileExW(vero(da).c_str(), vero(a).c_str(), MOVEFILE_WRITE_THROUGH)
               ? 0
               : numero_errore(GetLastError());
}

int DiscoWindows::elimina(std::string_view percorso) {
    const std::wstring p = vero(percorso);
    // What is open for its locks stays where it is: whoever removes a file gives its locks back.
    blocchi_.chiudi(minuscolo(percorso));
    const DWORD e = e_cartella(p) ? ERROR_ALREADY_EXISTS : insisti([&] { return DeleteFileW(p.c_str()); });
    return numero_errore(e);
}

int DiscoWindows::crea_cartella(std::string_view percorso) {
    return CreateDirectoryW(vero(percorso).c_str(), nullptr) ? 0 : errore_di_creazione(GetLastError());
}

int DiscoWindows::elenca(std::string_view cartella, std::vector<std::string>& nomi) {
    WIN32_FIND_DATAW d{};
    const HANDLE h = FindFirstFileW(per_windows(radice_windows(reale(cartella)) + "\\*").c_str(), &d);
    if (h == INVALID_HANDLE_VALUE) {
        // The root of an empty drive has not even the two names of every folder.
        const DWORD e = GetLastError();
        if (e != ERROR_FILE_NOT_FOUND) return errore_di_creazione(e);
        nomi.clear();
        return 0;
    }
    nomi.clear();
    do {
        const std::wstring_view n = d.cFileName;
        if (n != L"." && n != L"..") nomi.push_back(da_utf8(utf8_di(n)));
    } while (FindNextFileW(h, &d));
    FindClose(h);
    return 0;
}

bool DiscoWindows::in_uso(std::string_view percorso) {
    Maniglia m;
    return apri_regolare(vero(percorso), GENERIC_READ, 0, OPEN_EXISTING, m) == ERROR_SHARING_VIOLATION;
}

bool ha_archivio(const std::wstring& cartella) {
    return e_cartella(cartella + L"lumdir");
}

std::wstring intero(const wchar_t* percorso) {
    std::wstring p(GetFullPathNameW(percorso, 0, nullptr, nullptr), 0);
    p.resize(GetFullPathNameW(percorso, static_cast<DWORD>(p.size()), p.data(), nullptr));
    return p;
}

}  // namespace

std::unique_ptr<Disco> disco_vero(std::string radice) {
    return std::make_unique<DiscoWindows>(std::move(radice));
}

int scrivi_fuori(const std::string& percorso, std::string_view contenuto) {
    return metti_al_posto(per_windows(radice_windows(percorso)), contenuto);
}

// The current drive itself, as the paths are meant here; only where no archive lies at its root is one looked
// for from the working directory upwards.
std::string radice_corrente() {
    const std::wstring unita = intero(L"\\");
    if (ha_archivio(unita)) return utf8_di(unita);
    std::wstring p = intero(L".");
    if (!p.ends_with(L'\\')) p += L'\\';
    while (p.size() > unita.size()) {
        if (ha_archivio(p)) return radice_windows(utf8_di(p));
        p.resize(p.rfind(L'\\', p.size() - 2) + 1);
    }
    return utf8_di(unita);
}

}  // namespace ambra
