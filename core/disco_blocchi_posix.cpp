#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "core/disco_blocchi.h"
#include "core/disco_comune.h"
#include "core/disco_file_posix.h"

namespace ambra {

namespace {

static_assert(sizeof(off_t) == 8);

// Locks of the open file, not of the process: those would fall with any close of the file in this program.
int cambia_blocco(int fd, short tipo, int sezione) {
#ifdef F_OFD_SETLK
    struct flock b {};
    b.l_type = tipo;
    b.l_whence = SEEK_SET;
    b.l_start = static_cast<off_t>(kPrimoPostoBlocchi) + sezione;
    b.l_len = 1;
    int r;
    do r = ::fcntl(fd, F_OFD_SETLK, &b);
    while (r != 0 && errno == EINTR);
    return r == 0 ? 0 : errno;
#else
    (void)fd, (void)tipo, (void)sezione;
    return ENOSYS;
#endif
}

class FileDeiBlocchiPosix : public FileDeiBlocchi {
  public:
    explicit FileDeiBlocchiPosix(int fd) : fd_(fd) {}
    ~FileDeiBlocchiPosix() override { ::close(fd_); }
    FileDeiBlocchiPosix(const FileDeiBlocchiPosix&) = delete;
    FileDeiBlocchiPosix& operator=(const FileDeiBlocchiPosix&) = delete;

    bool sta_ancora_in(const std::string& vero) override {
        struct stat a {
        }, b{};
        return ::fstat(fd_, &a) == 0 && ::stat(vero.c_str(), &b) == 0 && a.st_dev == b.st_dev &&
               a.st_ino == b.st_ino;
    }

    ProvaBlocco prova(int sezione) override {
        const int e = cambia_blocco(fd_, F_WRLCK, sezione);
        if (e == 0) return ProvaBlocco::preso;
        return e == EAGAIN || e == EACCES ? ProvaBlocco::di_altri : ProvaBlocco::senza;
    }

    void lascia(int sezione) override { (void)cambia_blocco(fd_, F_UNLCK, sezione); }

  private:
    int fd_;
};

}  // namespace

ProvaBlocco apri_per_blocchi(const std::string& vero, std::unique_ptr<FileDeiBlocchi>& file) {
    int fd = -1;
    if (const int e = apri_regolare(vero, O_RDWR, fd))
        return forse_tra_poco(numero_errore(e)) ? ProvaBlocco::di_altri : ProvaBlocco::senza;
    file = std::make_unique<FileDeiBlocchiPosix>(fd);
    return ProvaBlocco::preso;
}

}  // namespace ambra
