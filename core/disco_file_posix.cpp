#include "core/disco_file_posix.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "core/errori.h"

namespace ambra {

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
            return errore::permesso_negato;
        case EBUSY:
        case ETXTBSY:
        case EAGAIN:
            return errore::gia_aperto;
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return errore::disco_pieno;
        case EEXIST:
        case EISDIR:
        case ENOTEMPTY:
        case ENXIO:  // a socket
            return errore::accesso;
        case EBADF:
            return errore::modo_errato;
        case EMFILE:
        case ENFILE:
            return errore::troppi_file;
        case EINTR:
        case ESTALE:
            return errore::disco_non_pronto;
        default:
            return errore::dispositivo;
    }
}

int apri_regolare(const std::string& vero, int modo, int& fd) {
    const auto apri = [&](int m) {
        do fd = ::open(vero.c_str(), m | O_CLOEXEC, 0666);
        while (fd < 0 && errno == EINTR);
    };
    apri(modo | O_NONBLOCK);
    // Somebody's lease, which only a regular file can have: he gives it back while a plain opening waits.
    if (fd < 0 && errno == EAGAIN) apri(modo);
    if (fd < 0) return errno;
    struct stat st {};
    if (::fstat(fd, &st) == 0 && S_ISREG(st.st_mode)) return 0;
    ::close(fd);
    fd = -1;
    return EISDIR;
}

int scrivi_fd(int fd, std::string_view byte) {
    while (!byte.empty()) {
        const ssize_t n = ::write(fd, byte.data(), byte.size());
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) return errno;
        byte.remove_prefix(static_cast<std::size_t>(n));
    }
    return 0;
}

namespace {

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
                ritira(std::max(prima, posto), posto + scritti);
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

    int consolida() override { return ::fdatasync(fd_) == 0 || errno == EINVAL ? 0 : numero_errore(errno); }

  private:
    // A record that did not fit whole must not stand there in part. Only what this write put at the very end
    // of the file goes: behind it another program may have written its own.
    void ritira(std::uint64_t da, std::uint64_t fine) {
        if (da < fine && lunghezza() == fine) (void)!::ftruncate(fd_, static_cast<off_t>(da));
    }

    int fd_;
};

}  // namespace

std::unique_ptr<FileAperto> file_posix(int fd) {
    return std::make_unique<FilePosix>(fd);
}

}  // namespace ambra
