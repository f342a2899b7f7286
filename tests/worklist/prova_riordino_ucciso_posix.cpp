// The reorganisation of a process that is killed without warning, on the real disc.
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <random>

#include "core/disco.h"
#include "tests/supporto/drive_prova.h"
#include "tests/supporto/seme.h"
#include "tests/worklist/archivio_a_caso.h"

using namespace ambra;

namespace {

TEST(RiordinoGuasti, UccisoInCentoMomenti) {
    const DriveProva drive;
    const auto seme = seme_di_prova();
    std::mt19937 caso(seme);
    int interrotti = 0;
    const auto tutte = archivio_a_caso(caso, 3000);
    const auto vivi = vivi_di(tutte);
    std::string dati;
    for (const auto& f : tutte) dati += byte_di(f);
    RecTotali t{};
    t.parola[0] = 3000;
    const std::string tfr = std::string(28, '\0') + byte_di(t) + std::string(3 * 28, '\0');
    const auto vero = disco_vero(drive.radice.string());
    Disco& disco = *vero;
    for (int giro = 0; giro < 100; ++giro) {
        ASSERT_EQ(disco.scrivi_tutto("\\lumdir\\lumora\\lum001.ftr", dati), 0);
        ASSERT_EQ(disco.scrivi_tutto("\\lumdir\\lumora\\lum001.tfr", tfr), 0);
        std::filesystem::remove(drive.vero("lum001.$$$"));

        int pronto[2];
        ASSERT_EQ(::pipe(pronto), 0);
        const pid_t figlio = ::fork();
        if (figlio == 0) {
            PiattaformaProva piattaforma;
            piattaforma.risposte = {Risposta::si};
            Programma prog(disco, piattaforma, "1");
            registra_tutte(prog.schermi);
            prog.schermi.apri("vexoraf");
            (void)!::write(pronto[1], "x", 1);
            static_cast<Vexoraf&>(*prog.schermi.caricato("vexoraf")).riordino();
            ::_exit(0);
        }
        char c;
        (void)!::read(pronto[0], &c, 1);
        ::usleep(std::uniform_int_distribution<unsigned>(0, 9000)(caso));
        ::kill(figlio, SIGKILL);
        int stato = 0;
        ::waitpid(figlio, &stato, 0);
        ::close(pronto[0]);
        ::close(pronto[1]);
        if (WIFSIGNALED(stato)) ++interrotti;

        std::string ftr, copia;
        ASSERT_EQ(disco.leggi_tutto("\\lumdir\\lumora\\lum001.ftr", ftr), 0);
        (void)disco.leggi_tutto("\\lumdir\\lumora\\lum001.$$$", copia);  // there may be none yet
        ASSERT_TRUE(tiene_tutto(ftr, vivi) || tiene_tutto(copia, vivi))
            << "giro " << giro << " seme " << seme;
    }
    EXPECT_GT(interrotti, 0);
}

}  // namespace
