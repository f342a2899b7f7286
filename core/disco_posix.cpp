#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <map>

#include "core/disco.h"
#include "core/disco_blocchi.h"
#include "core/disco_comune.h"
#include "core/disco_file_posix.h"
#include "core/errori.h"

namespace ambra {

namespace {

class DiscoPosix : public Disco {
  public:
    explicit DiscoPosix(std::string radice) : radice_(std::move(radice)) {
        while (radice_.size() > 1 && radice_.back() == '/') radice_.pop_back();
    }

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
    int consolida_cartella(std::string_view percorso) override;
    /// Told by Linux for the programs of this machine, those that serve the folder to others among them.
    bool in_uso(std::string_view percorso) override;
    std::string reale(std::string_view percorso) override;

  private:
    struct Cartella {
        long long modificata_ns = -1;
        std::map<std::string, std::string> per_minuscolo;
    };
    std::string nome_vero(const std::string& cartella, const std::string& nome);
    const Cartella& elenco_di(const std::string& cartella);

    std::string radice_;
    std::map<std::string, Cartella> cartelle_;
    Blocchi blocchi_;
};

bool esiste(const std::string& p) {
    struct stat st {};
    return ::lstat(p.c_str(), &st) == 0;
}

// The number of a failed making of a file or folder: what is missing is its folder.
int errore_di_creazione(int e) {
    return e == ENOENT ? errore::percorso_mancante : numero_errore(e);
}

std::string cartella_di(const std::string& vero) {
    const auto barra = vero.rfind('/');
    return barra == std::string::npos ? "." : barra == 0 ? "/" : vero.substr(0, barra);
}

// 0 too where folders cannot be asked for it: then the drive's own promise must do.
int consolida_vera(const std::string& cartella) {
    const int fd = ::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return errno == EACCES ? 0 : errore_di_creazione(errno);
    const int e = ::fsync(fd) == 0 ? 0 : errno;
    ::close(fd);
    return e == EINVAL || e == EBADF || e == ENOTSUP || e == ENOSYS ? 0 : numero_errore(e);
}

// Makes a file that is not there, durable but for its name; a failed one does not stay. `permessi` are those
// of a new file, or of the one whose place it takes. 0 or an `errno`.
int crea_nuovo(const std::string& p, std::string_view contenuto, mode_t permessi = 0) {
    int fd = -1;
    if (const int e = apri_regolare(p, O_WRONLY | O_CREAT | O_EXCL, fd)) return e;
    if (permessi != 0) (void)::fchmod(fd, permessi);
    int e = scrivi_fd(fd, contenuto);
    if (e == 0 && ::fsync(fd) != 0) e = errno;
    if (::close(fd) != 0 && e == 0) e = errno;
    if (e != 0) ::unlink(p.c_str());
    return e;
}

// The same beside `vero`, under a name that nobody bears: one that a killed process left is passed over.
int crea_accanto(const std::string& vero, std::string_view contenuto, std::string& nuovo,
                 mode_t permessi = 0) {
    int e = EEXIST;
    for (int volte = 0; e == EEXIST && volte < 100; ++volte)
        e = crea_nuovo(nuovo = nome_provvisorio(vero, ::getpid()), contenuto, permessi);
    return e;
}

// Puts the file made beside `vero` in its place; where it cannot, it goes.
int metti_al_posto(const std::string& nuovo, const std::string& vero) {
    if (::rename(nuovo.c_str(), vero.c_str()) == 0) return consolida_vera(cartella_di(vero));
    const int e = numero_errore(errno);
    ::unlink(nuovo.c_str());
    return e;
}

const DiscoPosix::Cartella& DiscoPosix::elenco_di(const std::string& cartella) {
    struct stat st {};
    Cartella& c = cartelle_[cartella];
    if (::stat(cartella.c_str(), &st) != 0) {
        c = {};
        return c;
    }
    const long long ora = static_cast<long long>(::time(nullptr)) * 1000000000LL;
    const long long modificata = st.st_mtim.tv_sec * 1000000000LL + st.st_mtim.tv_nsec;
    if (c.modificata_ns == modificata) return c;
    c = {};
    if (DIR* d = ::opendir(cartella.c_str())) {
        while (const dirent* e = ::readdir(d)) c.per_minuscolo.emplace(minuscolo(e->d_name), e->d_name);
        ::closedir(d);
        // A folder touched a moment ago may change again within the clock's tick: do not trust the list.
        if (ora - modificata > 2000000000LL) c.modificata_ns = modificata;
    }
    return c;
}

std::string DiscoPosix::nome_vero(const std::string& cartella, const std::string& nome) {
    if (esiste(cartella + "/" + nome)) return nome;
    const Cartella& c = elenco_di(cartella);
    const auto it = c.per_minuscolo.find(minuscolo(nome));
    return it == c.per_minuscolo.end() ? nome : it->second;
}

std::string DiscoPosix::reale(std::string_view percorso) {
    std::string p = radice_;
    for (const auto& nome : nomi_del_percorso(percorso)) p += "/" + nome_vero(p, a_utf8(nome));
    return p;
}

bool DiscoPosix::in_uso([[maybe_unused]] std::string_view percorso) {
#ifdef F_SETLEASE
    int fd = -1;
    if (apri_regolare(reale(percorso), O_RDONLY, fd) != 0) return false;
    // A lease to write is granted only on a file that nobody else has open. It is given back at once; who
    // opens the file in between waits for that, and the signal that tells us so is not to end this process.
    struct sigaction ignora {
    }, prima{};
    ignora.sa_handler = SIG_IGN;
    ::sigaction(SIGIO, &ignora, &prima);
    const bool altri = ::fcntl(fd, F_SETLEASE, F_WRLCK) != 0 && errno == EAGAIN;
    ::close(fd);
    ::sigaction(SIGIO, &prima, nullptr);
    return altri;
#else
    return false;
#endif
}

int DiscoPosix::apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) {
    const std::string p = reale(percorso);
    int fd = -1;
    int e = 0;
    if (come == Apertura::lettura) {
        e = numero_errore(apri_regolare(p, O_RDONLY, fd));
    } else {
        e = errore_di_creazione(apri_regolare(p, O_RDWR | O_CREAT, fd));
        if (e == errore::permesso_negato) e = errore_di_creazione(apri_regolare(p, O_RDONLY, fd));
    }
    if (e == 0) file = file_posix(fd);
    return e;
}

int DiscoPosix::scrivi_tutto(std::string_view percorso, std::string_view contenuto) {
    const std::string p = reale(percorso);
    // What may not be written must not be replaced by a rename either.
    if (esiste(p) && ::access(p.c_str(), W_OK) != 0) return numero_errore(errno);
    struct stat st {};
    const bool c_era = ::stat(p.c_str(), &st) == 0;
    if (c_era && !S_ISREG(st.st_mode)) return errore::accesso;
    std::string nuovo;
    if (const int e = crea_accanto(p, contenuto, nuovo, c_era ? st.st_mode & 07777 : 0))
        return errore_di_creazione(e);
    return metti_al_posto(nuovo, p);
}

int DiscoPosix::scrivi_nuovo(std::string_view percorso, std::string_view contenuto) {
    return errore_di_creazione(crea_nuovo(reale(percorso), contenuto));
}

int DiscoPosix::cosa_c_e(std::string_view percorso, Cosa& che) {
    struct stat st {};
    che = Cosa::niente;
    if (::lstat(reale(percorso).c_str(), &st) != 0) return errno == ENOENT ? 0 : numero_errore(errno);
    che = S_ISREG(st.st_mode)   ? Cosa::file
          : S_ISLNK(st.st_mode) ? Cosa::collegamento
          : S_ISDIR(st.st_mode) ? Cosa::cartella
                                : Cosa::altro;
    return 0;
}

int DiscoPosix::copia(std::string_view da, std::string_view a) {
    int in = -1, out = -1;
    if (const int e = apri_regolare(reale(da), O_RDONLY, in)) return numero_errore(e);
    if (const int e = apri_regolare(reale(a), O_WRONLY | O_CREAT, out)) {
        ::close(in);
        return errore_di_creazione(e);
    }
    std::string buf(1 << 20, '\0');
    int e = ::ftruncate(out, 0) == 0 ? 0 : errno;
    while (e == 0) {
        const ssize_t n = ::read(in, buf.data(), buf.size());
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) e = errno;
        if (n <= 0) break;
        e = scrivi_fd(out, std::string_view(buf).substr(0, static_cast<std::size_t>(n)));
    }
    ::close(in);
    if (::close(out) != 0 && e == 0) e = errno;
    return numero_errore(e);
}

int DiscoPosix::rinomina(std::string_view da, std::string_view a) {
    const std::string vero_da = reale(da), vero_a = reale(a);
    if (::rename(vero_da.c_str(), vero_a.c_str()) != 0) return numero_errore(errno);
    int e = consolida_vera(cartella_di(vero_a));
    if (e == 0 && cartella_di(vero_a) != cartella_di(vero_da)) e = consolida_vera(cartella_di(vero_da));
    return e;
}

int DiscoPosix::sposta(std::string_view da, std::string_view a) {
    const std::string prima = reale(da), dopo = reale(a);
#ifdef RENAME_NOREPLACE
    if (::renameat2(AT_FDCWD, prima.c_str(), AT_FDCWD, dopo.c_str(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return numero_errore(errno);
#endif
    // A file system that cannot do both at once: looking first is the next best thing.
    if (esiste(dopo)) return errore::accesso;
    return ::rename(prima.c_str(), dopo.c_str()) == 0 ? 0 : numero_errore(errno);
}

int DiscoPosix::consolida_cartella(std::string_view percorso) {
    return consolida_vera(cartella_di(reale(percorso)));
}

int DiscoPosix::elimina(std::string_view percorso) {
    return ::unlink(reale(percorso).c_str()) == 0 ? 0 : numero_errore(errno);
}

int DiscoPosix::crea_cartella(std::string_view percorso) {
    if (::mkdir(reale(percorso).c_str(), 0777) == 0) return 0;
    return errore_di_creazione(errno);
}

int DiscoPosix::elenca(std::string_view cartella, std::vector<std::string>& nomi) {
    DIR* d = ::opendir(reale(cartella).c_str());
    if (!d) return errore_di_creazione(errno);
    nomi.clear();
    while (const dirent* e = ::readdir(d)) {
        const std::string_view n = e->d_name;
        if (n != "." && n != "..") nomi.push_back(da_utf8(n));
    }
    ::closedir(d);
    return 0;
}

}  // namespace

std::unique_ptr<Disco> disco_vero(std::string radice) {
    // A file at its largest is a refused write, not the end of the program.
    static const bool una_volta = ::signal(SIGXFSZ, SIG_IGN) != SIG_ERR;
    (void)una_volta;
    return std::make_unique<DiscoPosix>(std::move(radice));
}

int scrivi_fuori(const std::string& percorso, std::string_view contenuto) {
    struct stat st {};
    const bool qualcosa = ::lstat(percorso.c_str(), &st) == 0;
    if (qualcosa && !S_ISREG(st.st_mode) && !S_ISLNK(st.st_mode)) return errore::accesso;
    std::string nuovo;
    if (const int e = crea_accanto(percorso, contenuto, nuovo)) return errore_di_creazione(e);
    return metti_al_posto(nuovo, percorso);
}

std::string radice_corrente() {
    char buf[PATH_MAX];
    const char* c = ::getcwd(buf, sizeof buf);
    const std::string qui = c ? c : ".";
    for (std::string p = qui;;) {
        if (DIR* d = ::opendir(p.empty() ? "/" : p.c_str())) {
            bool trovata = false;
            while (const dirent* e = ::readdir(d))
                if (minuscolo(e->d_name) == "lumdir") {
                    struct stat st {};
                    trovata |= ::stat((p + "/" + e->d_name).c_str(), &st) == 0 && S_ISDIR(st.st_mode);
                }
            ::closedir(d);
            if (trovata) return p.empty() ? "/" : p;
        }
        const auto barra = p.rfind('/');
        if (barra == std::string::npos || p.empty()) return qui;
        p.resize(barra);
    }
}

}  // namespace ambra
