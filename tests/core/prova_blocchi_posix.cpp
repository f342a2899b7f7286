// What several processes on one POSIX disk do to each other: locks, leases, files that cannot be opened yet.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <latch>
#include <thread>
#include <vector>

#include "core/disco_attento.h"
#include "tests/supporto/drive_prova.h"

using namespace ambra;
using namespace std::chrono_literals;

namespace {

// Nobody in particular: the superuser may write everywhere.
class UtenteComune {
  public:
    UtenteComune() { diventa(65534); }
    ~UtenteComune() { diventa(0); }
    UtenteComune(const UtenteComune&) = delete;
    UtenteComune& operator=(const UtenteComune&) = delete;

  private:
    void diventa(uid_t altri) const {
        if (chi_ == 0) {
            EXPECT_EQ(::seteuid(altri), 0);
        }
    }
    uid_t chi_ = ::geteuid();
};

TEST(BlocchiPosix, DoveNonSiPuoScrivereNonSiBlocca) {
    const DriveProva dr;
    dr.metti("lum001.tfr", "x");
    ::chmod(dr.radice.c_str(), 0755);
    ::chmod(dr.vero("lum001.tfr").c_str(), 0444);
    const UtenteComune io;
    const auto uno = disco_vero(dr.radice.string()), due = disco_vero(dr.radice.string());
    EXPECT_EQ(uno->blocca(kCasa + "lum001.tfr", 1, 0ms), 0);
    EXPECT_EQ(due->blocca(kCasa + "lum001.tfr", 1, 0ms), 0);
    std::unique_ptr<FileAperto> f;
    EXPECT_EQ(uno->apri(kCasa + "lum001.tfr", Apertura::scambio, f), 0) << "to be read alone";
    EXPECT_EQ(f->scrivi(0, come_byte("y")), 54);
}

// Too many open files: the next one opens when another has been closed.
TEST(BlocchiPosix, UnFileCheSiApreUnMomentoDopo) {
    const DriveProva dr;
    dr.metti("lum001.ftr", "x");
    const auto d = disco_vero(dr.radice.string());
    DiscoAttento attento(*d);
    std::unique_ptr<FileAperto> f, g;
    ASSERT_EQ(d->apri(kCasa + "lum001.ftr", Apertura::scambio, f), 0);
    ASSERT_EQ(attento.apri(kCasa + "lum001.ftr", Apertura::scambio, g), 0);
    f.reset();
    g.reset();
    std::vector<int> tutti;
    std::latch pieno(1);
    std::thread altrove([&] {
        pieno.wait();
        std::this_thread::sleep_for(200ms);
        for (const int fd : tutti) ::close(fd);
    });
    for (int fd; (fd = ::open("/dev/null", O_RDONLY | O_CLOEXEC)) >= 0;) tutti.push_back(fd);
    const int subito = d->apri(kCasa + "lum001.ftr", Apertura::scambio, f);
    pieno.count_down();
    const int poi = attento.apri(kCasa + "lum001.ftr", Apertura::scambio, g);
    altrove.join();
    EXPECT_EQ(subito, 67);
    EXPECT_EQ(poi, 0);
}

// A process that says when it holds the lock, and keeps it until it is told to go or is killed.
class Processo {
  public:
    Processo(const DriveProva& dr, int sezione) {
        EXPECT_EQ(::pipe(pronto_), 0);
        EXPECT_EQ(::pipe(via_), 0);
        pid_ = ::fork();
        if (pid_ != 0) {
            char c = 0;
            EXPECT_EQ(::read(pronto_[0], &c, 1), 1);
            EXPECT_EQ(c, '0') << "the other process did not get its lock";
            return;
        }
        const auto d = disco_vero(dr.radice.string());
        const char c = d->blocca(kCasa + "lum001.tfr", sezione, 0ms) == 0 ? '0' : '1';
        (void)!::write(pronto_[1], &c, 1);
        char via;
        (void)!::read(via_[0], &via, 1);
        d->sblocca(kCasa + "lum001.tfr", sezione);
        (void)!::write(pronto_[1], &c, 1);
        for (;;) ::pause();
    }
    ~Processo() {
        uccidi();
        for (const int fd : {pronto_[0], pronto_[1], via_[0], via_[1]}) ::close(fd);
    }
    Processo(const Processo&) = delete;
    Processo& operator=(const Processo&) = delete;
    void sblocca() {
        char c = 'v';
        EXPECT_EQ(::write(via_[1], &c, 1), 1);
        EXPECT_EQ(::read(pronto_[0], &c, 1), 1);
    }
    void uccidi() {
        if (pid_ <= 0) return;
        ::kill(pid_, SIGKILL);
        ::waitpid(pid_, nullptr, 0);
        pid_ = 0;
    }

  private:
    int pronto_[2], via_[2];
    pid_t pid_ = 0;
};

TEST(BlocchiPosix, DueProcessiSiEscludono) {
    const DriveProva dr;
    dr.metti("lum001.tfr", std::string(140, 'x'));
    const auto d = disco_vero(dr.radice.string());
    Processo altro(dr, 2);
    EXPECT_EQ(d->blocca(kCasa + "lum001.tfr", 2, 30ms), 70);
    EXPECT_EQ(d->blocca(kCasa + "lum001.tfr", 1, 0ms), 0);
    altro.sblocca();
    EXPECT_EQ(d->blocca(kCasa + "lum001.tfr", 2, 0ms), 0) << "given back while the other lives";
    d->sblocca(kCasa + "lum001.tfr", 2);
    Processo terzo(dr, 2);
    EXPECT_EQ(d->blocca(kCasa + "lum001.tfr", 2, 0ms), 70);
    terzo.uccidi();
    EXPECT_EQ(d->blocca(kCasa + "lum001.tfr", 2, 0ms), 0) << "a killed program holds nothing";
    EXPECT_EQ(dr.byte("lum001.tfr"), std::string(140, 'x'));
}

// A file server holds a lease on what its clients have open, and gives it back when somebody else comes.
TEST(BlocchiPosix, ChiTieneUnPrestitoLoRende) {
    const DriveProva dr;
    dr.metti("f", "x");
    const auto d = disco_vero(dr.radice.string());
    int pronto[2];
    ASSERT_EQ(::pipe(pronto), 0);
    const pid_t altro = ::fork();
    if (altro == 0) {
        sigset_t s;
        ::sigemptyset(&s);
        ::sigaddset(&s, SIGIO);
        ::sigprocmask(SIG_BLOCK, &s, nullptr);
        const int fd = ::open(dr.vero("f").c_str(), O_RDONLY);
        const char c = ::fcntl(fd, F_SETLEASE, F_WRLCK) == 0 ? '0' : '1';
        (void)!::write(pronto[1], &c, 1);
        ::sigwaitinfo(&s, nullptr);
        ::usleep(50000);
        ::fcntl(fd, F_SETLEASE, F_UNLCK);
        ::_exit(0);
    }
    char c = 0;
    ASSERT_EQ(::read(pronto[0], &c, 1), 1);
    std::unique_ptr<FileAperto> f;
    const int e = c == '0' ? d->apri(kCasa + "f", Apertura::scambio, f) : 0;
    ::kill(altro, SIGKILL);
    ::waitpid(altro, nullptr, 0);
    ::close(pronto[0]);
    ::close(pronto[1]);
    if (c != '0') GTEST_SKIP() << "no leases here";
    EXPECT_EQ(e, 0);
}

// What other programs of the house can rely on: where the locks lie.
TEST(BlocchiPosix, IlBloccoStaAlSuoPosto) {
    const DriveProva dr;
    dr.metti("lum001.tfr", "x");
    const auto d = disco_vero(dr.radice.string());
    ASSERT_EQ(d->blocca(kCasa + "lum001.tfr", 2, 0ms), 0);
    const int fd = ::open(dr.vero("lum001.tfr").c_str(), O_RDWR | O_CLOEXEC);
    struct flock b {};
    b.l_type = F_WRLCK;
    ASSERT_EQ(::fcntl(fd, F_OFD_GETLK, &b), 0);  // anywhere in the file
    EXPECT_EQ(b.l_type, F_WRLCK);
    EXPECT_EQ(b.l_start, 0x3FFFFFFFFFFFF002);
    EXPECT_EQ(b.l_len, 1);
    ::close(fd);
}

}  // namespace
