#include "core/disco_vero.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>

#include "core/errori.h"
#include "core/testo.h"

namespace ambra {

namespace {

int numero_errore(int e) {
    switch (e) {
        case 0:
            return 0;
        case ENOENT:
            return errore::file_mancante;
        case ENOTDIR:
            return errore::percorso_mancante;
        case EACCES:
        case EPERM:
        case EROFS:
        case EBUSY:
        case ETXTBSY:
            return errore::permesso_negato;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return errore::disco_pieno;
        case EEXIST:
        case EISDIR:
        case ENOTEMPTY:
            return errore::accesso;
        case EBADF:
            return errore::modo_errato;
        case EMFILE:
        case ENFILE:
            return 67;  // too many files
        default:
            return errore::dispositivo;
    }
}

std::string minuscolo(std::string_view s) {
    std::string r(s);
    for (char& c : r)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    return r;
}

class FilePosix : public FileAperto {
  public:
    explicit FilePosix(int fd) : fd_(fd) {}
    ~FilePosix() override { ::close(fd_); }
    FilePosix(const FilePosix&) = delete;
    FilePosix& operator=(const FilePosix&) = delete;

    int leggi(std::uint64_t posto, std::span<std::byte> dove, std::size_t& letti) override {
        letti = 0;
        while (letti < dove.size()) {
            const ssize_t n =
                ::pread(fd_, dove.data() + letti, dove.size() - letti, static_cast<off_t>(posto + letti));
            if (n < 0 && errno == EINTR) continue;
            if (n < 0) return numero_errore(errno);
            if (n == 0) break;
            letti += static_cast<std::size_t>(n);
        }
        return 0;
    }

    int scrivi(std::uint64_t posto, std::span<const std::byte> che) override {
        const std::uint64_t prima = lunghezza();
        std::size_t scritti = 0;
        while (scritti < che.size()) {
            const ssize_t n = ::pwrite(fd_, che.data() + scritti, che.size() - scritti,
                                       static_cast<off_t>(posto + scritti));
            if (n < 0 && errno == EINTR) continue;
            if (n < 0) {
                const int e = numero_errore(errno);
                // A record that did not fit whole on a full disk must not stand there in part.
                if (lunghezza() > prima) (void)!::ftruncate(fd_, static_cast<off_t>(prima));
                return e;
            }
            scritti += static_cast<std::size_t>(n);
        }
        return 0;
    }

    std::uint64_t lunghezza() override {
        struct stat st {};
        return ::fstat(fd_, &st) == 0 ? static_cast<std::uint64_t>(st.st_size) : 0;
    }

  private:
    int fd_;
};

bool esiste(const std::string& p) {
    struct stat st {};
    return ::lstat(p.c_str(), &st) == 0;
}

int apri_fd(const std::string& p, int modo) {
    int fd;
    do fd = ::open(p.c_str(), modo | O_CLOEXEC, 0666);
    while (fd < 0 && errno == EINTR);
    return fd;
}

int scrivi_fd(int fd, std::string_view s) {
    while (!s.empty()) {
        const ssize_t n = ::write(fd, s.data(), s.size());
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return numero_errore(errno);
        s.remove_prefix(static_cast<std::size_t>(n));
    }
    return 0;
}

std::string provvisorio(const std::string& vero) {
    static std::atomic<unsigned> contatore{0};
    return vero + ".~" + std::to_string(::getpid()) + "-" + std::to_string(contatore++);
}

}  // namespace

DiscoVero::DiscoVero(std::string radice) : radice_(std::move(radice)) {
    while (radice_.size() > 1 && radice_.back() == '/') radice_.pop_back();
}

std::string DiscoVero::radice_corrente() {
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

const DiscoVero::Cartella& DiscoVero::elenco_di(const std::string& cartella) {
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

std::string DiscoVero::nome_vero(const std::string& cartella, const std::string& nome) {
    if (esiste(cartella + "/" + nome)) return nome;
    const Cartella& c = elenco_di(cartella);
    const auto it = c.per_minuscolo.find(minuscolo(nome));
    return it == c.per_minuscolo.end() ? nome : it->second;
}

std::string DiscoVero::reale(std::string_view percorso) {
    std::string p = radice_;
    // A drive letter names a folder of the drive root: "a:" is the folder "a".
    std::string resto;
    if (percorso.size() >= 2 && percorso[1] == ':') {
        resto = std::string(1, percorso[0]) + "\\" + std::string(percorso.substr(2));
    } else {
        resto = std::string(percorso);
    }
    std::size_t i = 0;
    while (i < resto.size()) {
        const std::size_t fine = std::min(resto.find_first_of("\\/", i), resto.size());
        if (fine > i) {
            const std::string nome = a_utf8(std::string_view(resto).substr(i, fine - i));
            p += "/" + nome_vero(p, nome);
        }
        i = fine + 1;
    }
    return p;
}

std::string DiscoVero::luogo(std::string_view percorso) {
    return da_utf8(reale(percorso));
}

bool DiscoVero::in_uso([[maybe_unused]] std::string_view percorso) {
#ifdef F_SETLEASE
    const int fd = apri_fd(reale(percorso), O_RDONLY);
    if (fd < 0) return false;
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

int DiscoVero::apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) {
    const std::string p = reale(percorso);
    int fd = -1;
    if (come == Apertura::lettura) {
        fd = apri_fd(p, O_RDONLY);
    } else {
        fd = apri_fd(p, O_RDWR | O_CREAT);
        if (fd < 0 && (errno == EACCES || errno == EROFS || errno == EPERM)) fd = apri_fd(p, O_RDONLY);
    }
    if (fd < 0) {
        if (errno == ENOENT && come != Apertura::lettura) return errore::percorso_mancante;
        return numero_errore(errno);
    }
    struct stat st {};
    if (::fstat(fd, &st) == 0 && S_ISDIR(st.st_mode)) {
        ::close(fd);
        return errore::accesso;
    }
    file = std::make_unique<FilePosix>(fd);
    return 0;
}

int DiscoVero::leggi_tutto(std::string_view percorso, std::string& contenuto) {
    std::unique_ptr<FileAperto> f;
    if (const int e = apri(percorso, Apertura::lettura, f)) return e;
    std::string s(static_cast<std::size_t>(f->lunghezza()), '\0');
    std::size_t letti = 0;
    if (const int e = f->leggi(0, std::as_writable_bytes(std::span(s)), letti)) return e;
    s.resize(letti);
    contenuto = std::move(s);
    return 0;
}

int DiscoVero::scrivi_tutto(std::string_view percorso, std::string_view contenuto) {
    const std::string p = reale(percorso);
    // What may not be written must not be replaced by a rename either.
    if (esiste(p) && ::access(p.c_str(), W_OK) != 0) return numero_errore(errno);
    const std::string nuovo = provvisorio(p);
    const int fd = apri_fd(nuovo, O_WRONLY | O_CREAT | O_EXCL);
    if (fd < 0) return errno == ENOENT ? errore::percorso_mancante : numero_errore(errno);
    struct stat st {};
    if (::stat(p.c_str(), &st) == 0) (void)::fchmod(fd, st.st_mode & 07777);
    int e = scrivi_fd(fd, contenuto);
    if (e == 0 && ::fsync(fd) != 0) e = numero_errore(errno);
    if (::close(fd) != 0 && e == 0) e = numero_errore(errno);
    if (e == 0 && ::rename(nuovo.c_str(), p.c_str()) != 0) e = numero_errore(errno);
    if (e != 0) ::unlink(nuovo.c_str());
    return e;
}

int DiscoVero::copia(std::string_view da, std::string_view a) {
    const int in = apri_fd(reale(da), O_RDONLY);
    if (in < 0) return numero_errore(errno);
    const int out = apri_fd(reale(a), O_WRONLY | O_CREAT | O_TRUNC);
    if (out < 0) {
        const int e = errno == ENOENT ? errore::percorso_mancante : numero_errore(errno);
        ::close(in);
        return e;
    }
    std::string buf(1 << 20, '\0');
    int e = 0;
    for (;;) {
        const ssize_t n = ::read(in, buf.data(), buf.size());
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) e = numero_errore(errno);
        if (n <= 0 || e != 0) break;
        e = scrivi_fd(out, std::string_view(buf).substr(0, static_cast<std::size_t>(n)));
        if (e != 0) break;
    }
    ::close(in);
    if (::close(out) != 0 && e == 0) e = numero_errore(errno);
    return e;
}

int DiscoVero::rinomina(std::string_view da, std::string_view a) {
    return ::rename(reale(da).c_str(), reale(a).c_str()) == 0 ? 0 : numero_errore(errno);
}

int DiscoVero::elimina(std::string_view percorso) {
    return ::unlink(reale(percorso).c_str()) == 0 ? 0 : numero_errore(errno);
}

int DiscoVero::crea_cartella(std::string_view percorso) {
    if (::mkdir(reale(percorso).c_str(), 0777) == 0) return 0;
    return errno == ENOENT ? errore::percorso_mancante : numero_errore(errno);
}

int DiscoVero::elenca(std::string_view cartella, std::vector<std::string>& nomi) {
    DIR* d = ::opendir(reale(cartella).c_str());
    if (!d) return errno == ENOENT ? errore::percorso_mancante : numero_errore(errno);
    nomi.clear();
    while (const dirent* e = ::readdir(d)) {
        const std::string_view n = e->d_name;
        if (n != "." && n != "..") nomi.push_back(da_utf8(n));
    }
    ::closedir(d);
    return 0;
}

}  // namespace ambra
