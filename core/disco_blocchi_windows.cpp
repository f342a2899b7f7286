#include "core/disco_blocchi.h"
#include "core/disco_comune.h"
#include "core/disco_file_windows.h"
#include "core/percorsi_windows.h"

namespace ambra {

namespace {

OVERLAPPED posto_di(int sezione) {
    const std::uint64_t posto = kPrimoPostoBlocchi + static_cast<std::uint64_t>(sezione);
    OVERLAPPED o{};
    o.Offset = static_cast<DWORD>(posto);
    o.OffsetHigh = static_cast<DWORD>(posto >> 32);
    return o;
}

class FileDeiBlocchiWindows : public FileDeiBlocchi {
  public:
    explicit FileDeiBlocchiWindows(Maniglia file) : file_(std::move(file)) {}

    // Nobody can take it away while it is open here.
    bool sta_ancora_in(const std::string&) override { return true; }

    ProvaBlocco prova(int sezione) override {
        OVERLAPPED o = posto_di(sezione);
        constexpr DWORD kSubito = LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY;
        if (LockFileEx(*file_, kSubito, 0, 1, 0, &o)) return ProvaBlocco::preso;
        const DWORD e = GetLastError();
        return e == ERROR_LOCK_VIOLATION || e == ERROR_IO_PENDING ? ProvaBlocco::di_altri
                                                                  : ProvaBlocco::senza;
    }

    void lascia(int sezione) override {
        OVERLAPPED o = posto_di(sezione);
        UnlockFileEx(*file_, 0, 1, 0, &o);
    }

  private:
    Maniglia file_;
};

}  // namespace

ProvaBlocco apri_per_blocchi(const std::string& vero, std::unique_ptr<FileDeiBlocchi>& file) {
    Maniglia m;
    const DWORD e =
        apri_regolare(per_windows(vero), GENERIC_READ | GENERIC_WRITE, kPerSempre, OPEN_EXISTING, m);
    if (e != 0) return forse_tra_poco(numero_errore(e)) ? ProvaBlocco::di_altri : ProvaBlocco::senza;
    file = std::make_unique<FileDeiBlocchiWindows>(std::move(m));
    return ProvaBlocco::preso;
}

}  // namespace ambra
