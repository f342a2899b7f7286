#include "core/disco_blocchi_posix.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <thread>

#include "core/disco_file_posix.h"
#include "core/errori.h"

namespace ambra {

namespace {

constexpr off_t kPrimoPosto = 0x3FFFFFFFFFFFF000;
static_assert(sizeof(off_t) == 8);

// Locks of the open file, not of the process: those would fall with any close of the file in this program.
int cambia_blocco(int fd, short tipo, int sezione) {
#ifdef F_OFD_SETLK
    struct flock b {};
    b.l_type = tipo;
    b.l_whence = SEEK_SET;
    b.l_start = kPrimoPosto + sezione;
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

bool stesso_file(int fd, const std::string& vero) {
    struct stat a {
    }, b{};
    return ::fstat(fd, &a) == 0 && ::stat(vero.c_str(), &b) == 0 && a.st_dev == b.st_dev &&
           a.st_ino == b.st_ino;
}

bool passa_da_se(int e) {
    const int n = numero_errore(e);
    return n == errore::gia_aperto || n == errore::troppi_file || n == errore::disco_non_pronto;
}

}  // namespace

BlocchiPosix::~BlocchiPosix() {
    for (const auto& [chiave, file] : file_)
        if (file.fd >= 0) ::close(file.fd);
}

BlocchiPosix::Prova BlocchiPosix::prova(Tenuto& file, const std::string& vero, int sezione) {
    // A file that was replaced under its name is another one: a lock on the old one would exclude nobody.
    if (file.fd >= 0 && file.sezioni.empty() && !stesso_file(file.fd, vero)) {
        ::close(file.fd);
        file.fd = -1;
    }
    if (file.fd < 0)
        if (const int e = apri_regolare(vero, O_RDWR, file.fd))
            return passa_da_se(e) ? Prova::di_altri : Prova::senza;
    const int e = cambia_blocco(file.fd, F_WRLCK, sezione);
    if (e == 0) {
        file.sezioni.insert(sezione);
        return Prova::presa;
    }
    return e == EAGAIN || e == EACCES ? Prova::di_altri : Prova::senza;
}

int BlocchiPosix::blocca(const std::string& chiave, const std::string& vero, int sezione,
                         std::chrono::milliseconds pazienza) {
    using Tempo = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds kPausa{10};
    const auto fine = Tempo::now() + pazienza;
    while (prova(file_[chiave], vero, sezione) == Prova::di_altri) {
        const auto resto = std::chrono::ceil<std::chrono::milliseconds>(fine - Tempo::now());
        if (resto <= std::chrono::milliseconds::zero()) return errore::permesso_negato;
        std::this_thread::sleep_for(std::min(kPausa, resto));
    }
    return 0;
}

void BlocchiPosix::sblocca(const std::string& chiave, int sezione) {
    const auto it = file_.find(chiave);
    if (it == file_.end() || it->second.sezioni.erase(sezione) == 0) return;
    (void)cambia_blocco(it->second.fd, F_UNLCK, sezione);
}

}  // namespace ambra
