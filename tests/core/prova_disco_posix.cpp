// The real disk on a POSIX system: a full disk, what is no regular file, what was made durable.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <functional>

#include "core/errori.h"
#include "core/filerecord.h"
#include "tests/supporto/drive_prova.h"

using namespace ambra;
using namespace std::chrono_literals;

namespace {

int fsync_fatti = 0, fdatasync_fatti = 0;
std::function<void()> prima_di_pwrite;

}  // namespace

// The system's own calls pass through here, so that a test can count them and step between two.
extern "C" {
int fsync(int fd) {
    ++fsync_fatti;
    return static_cast<int>(::syscall(SYS_fsync, fd));
}
int fdatasync(int fd) {
    ++fdatasync_fatti;
    return static_cast<int>(::syscall(SYS_fdatasync, fd));
}
ssize_t pwrite(int fd, const void* che, size_t quanti, off_t posto) {
    if (prima_di_pwrite) prima_di_pwrite();
    return ::syscall(SYS_pwrite64, fd, che, quanti, posto);
}
}

namespace {

// A full disk: no file of this process may grow beyond so many bytes.
class DiscoPieno {
  public:
    explicit DiscoPieno(rlim_t byte) {
        ::getrlimit(RLIMIT_FSIZE, &prima_);
        rlimit poco = prima_;
        poco.rlim_cur = byte;
        ::setrlimit(RLIMIT_FSIZE, &poco);
    }
    ~DiscoPieno() { ::setrlimit(RLIMIT_FSIZE, &prima_); }
    DiscoPieno(const DiscoPieno&) = delete;
    DiscoPieno& operator=(const DiscoPieno&) = delete;

  private:
    rlimit prima_{};
};

TEST(DiscoPosix, UnDiscoPienoSiDiceELasciaIFileComeErano) {
    const DriveProva dr;
    const auto d = disco_vero(dr.radice.string());
    dr.metti("vecchio.txt", "vecchio");
    dr.metti("grande.txt", std::string(3000, 'g'));
    Errore err;
    FileRecord f(err, 24, 522);
    ASSERT_TRUE(f.apri(*d, kCasa + "lum001.ftr"));
    const std::string record(522, 'r');
    {
        const DiscoPieno pieno(1200);
        EXPECT_TRUE(f.scrivi_byte(1, come_byte(record)));
        EXPECT_TRUE(f.scrivi_byte(2, come_byte(record)));
        EXPECT_FALSE(f.scrivi_byte(3, come_byte(record)));
        EXPECT_EQ(err.numero, 61);
        EXPECT_FALSE(f.scrivi_byte(9, come_byte(record)));
        EXPECT_EQ(d->scrivi_tutto(kCasa + "vecchio.txt", std::string(1201, 'n')), 61);
        EXPECT_EQ(d->copia(kCasa + "grande.txt", kCasa + "copia.txt"), 61);
    }
    EXPECT_EQ(dr.byte("lum001.ftr"), record + record);
    EXPECT_EQ(dr.byte("vecchio.txt"), "vecchio");
    EXPECT_EQ(dr.nomi(), 4) << "no temporary file stays";
    EXPECT_TRUE(f.scrivi_byte(3, come_byte(record)));
    EXPECT_EQ(dr.byte("lum001.ftr").size(), 3 * 522u);
}

// An unfinished last record, of an older crash: what stood there is not cut shorter.
TEST(DiscoPosix, UnRecordNonFinitoNonSiAccorcia) {
    const DriveProva dr;
    dr.metti("f", std::string(110, 'a'));
    const auto d = disco_vero(dr.radice.string());
    std::unique_ptr<FileAperto> f;
    ASSERT_EQ(d->apri(kCasa + "f", Apertura::scambio, f), 0);
    const DiscoPieno pieno(120);
    EXPECT_EQ(f->scrivi(100, come_byte(std::string(50, 'b'))), 61);
    EXPECT_EQ(f->lunghezza(), 110u);
}

TEST(DiscoPosix, CioCheUnAltroHaAggiuntoIntantoResta) {
    const DriveProva dr;
    const auto d = disco_vero(dr.radice.string());
    const std::string mio(100, 'm'), suo(100, 's');
    std::unique_ptr<FileAperto> f;
    ASSERT_EQ(d->apri(kCasa + "f", Apertura::scambio, f), 0);
    ASSERT_EQ(f->scrivi(0, come_byte(mio)), 0);
    int volte = 0;
    prima_di_pwrite = [&] {
        // The first call got half of the record to the disk, the second is going to fail.
        if (++volte != 2) return;
        const int fd = ::open(dr.vero("f").c_str(), O_WRONLY | O_CLOEXEC);
        EXPECT_EQ(::syscall(SYS_pwrite64, fd, suo.data(), 50, 200), -1) << "the disk is full";
        rlimit tutto{};
        ::getrlimit(RLIMIT_FSIZE, &tutto);
        const rlimit poco = tutto;
        tutto.rlim_cur = tutto.rlim_max;
        ::setrlimit(RLIMIT_FSIZE, &tutto);  // another program, on its own machine
        EXPECT_EQ(::syscall(SYS_pwrite64, fd, suo.data(), suo.size(), 200), 100);
        ::setrlimit(RLIMIT_FSIZE, &poco);
        ::close(fd);
    };
    {
        const DiscoPieno pieno(150);
        EXPECT_EQ(f->scrivi(100, come_byte(mio)), 61);
    }
    prima_di_pwrite = nullptr;
    EXPECT_EQ(volte, 2);
    ASSERT_EQ(dr.byte("f").size(), 300u);
    EXPECT_EQ(dr.byte("f").substr(200), suo);
    EXPECT_EQ(dr.byte("f").substr(0, 100), mio);
}

TEST(DiscoPosix, CioCheNonEUnFileSiRifiutaSenzaAspettare) {
    const DriveProva dr;
    const auto d = disco_vero(dr.radice.string());
    ASSERT_EQ(::mkfifo(dr.vero("coda").c_str(), 0666), 0);
    std::filesystem::create_symlink("/dev/null", dr.vero("nulla"));
    std::filesystem::create_directory(dr.vero("cartella"));
    dr.metti("file", "x");
    ::alarm(20);  // a door that waits never comes back
    for (const char* nome : {"coda", "nulla", "cartella"}) {
        const std::string p = kCasa + nome;
        std::unique_ptr<FileAperto> f;
        std::string s;
        EXPECT_EQ(d->apri(p, Apertura::lettura, f), 75) << nome;
        EXPECT_EQ(d->apri(p, Apertura::scambio, f), 75) << nome;
        EXPECT_EQ(d->leggi_tutto(p, s), 75) << nome;
        EXPECT_EQ(d->scrivi_tutto(p, "x"), 75) << nome;
        EXPECT_EQ(d->copia(p, kCasa + "altro"), 75) << nome;
        EXPECT_EQ(d->copia(kCasa + "file", p), 75) << nome;
        EXPECT_FALSE(d->in_uso(p)) << nome;
        EXPECT_EQ(d->blocca(p, 1, 0ms), 0) << nome;
    }
    ::alarm(0);
    EXPECT_EQ(dr.nomi(), 4);
}

TEST(DiscoPosix, SiRendeDurevoleIlFileELaSuaCartella) {
    const DriveProva dr;
    const auto d = disco_vero(dr.radice.string());
    const auto conta = [](const std::function<void()>& che) {
        const int prima = fsync_fatti;
        che();
        return fsync_fatti - prima;
    };
    EXPECT_EQ(conta([&] { EXPECT_EQ(d->scrivi_tutto(kCasa + "a", "x"), 0); }), 2)
        << "the file, and the folder of the rename";
    EXPECT_EQ(conta([&] { EXPECT_EQ(d->rinomina(kCasa + "a", kCasa + "b"), 0); }), 1);
    ASSERT_EQ(d->crea_cartella(kCasa + "sotto"), 0);
    EXPECT_EQ(conta([&] { EXPECT_EQ(d->rinomina(kCasa + "b", kCasa + "sotto\\b"), 0); }), 2);
    EXPECT_EQ(conta([&] { EXPECT_EQ(d->consolida_cartella(kCasa + "sotto\\b"), 0); }), 1);
    EXPECT_EQ(d->consolida_cartella("\\nessuna\\b"), 76);

    Errore err;
    FileRecord f(err, 23, 42);
    ASSERT_TRUE(f.apri(*d, kCasa + "lum001.srf"));
    const int prima = fdatasync_fatti;
    f.scrivi_byte(1, come_byte(std::string(42, 'x')));
    EXPECT_TRUE(f.consolida());
    EXPECT_TRUE(f.consolida());
    EXPECT_EQ(fdatasync_fatti - prima, 1);
}

TEST(DiscoPosix, UnFileSostituitoTieneISuoiPermessiEPassaSuiNomiRimasti) {
    const DriveProva dr;
    dr.metti("f", "vecchio");
    ::chmod(dr.vero("f").c_str(), 0640);
    const auto d = disco_vero(dr.radice.string());
    // What a killed process of the same number left there.
    for (int n = 0; n < 60; ++n) dr.metti("f.~" + std::to_string(::getpid()) + "-" + std::to_string(n), "");
    EXPECT_EQ(d->scrivi_tutto(kCasa + "f", "nuovo"), 0);
    EXPECT_EQ(dr.byte("f"), "nuovo");
    struct stat st {};
    EXPECT_EQ(::stat(dr.vero("f").c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 07777, 0640u);
    EXPECT_EQ(dr.nomi(), 61);
}

}  // namespace
