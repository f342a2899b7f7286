// usage: storia AMBRA STORY [--uccisa]
// With --uccisa the program of the story is killed before each of its operations on files as well.
// With STORIA_MOSTRA set all events are shown; with STORIA_TIENI, a folder, the drive of a story that held
// and the last script's events are left there, in FOLDER/NAME.
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>

#include "core/percorso.h"
#include "core/riga.h"
#include "tests/storia/storia.h"
#include "tests/supporto/cartella_prova.h"

namespace fs = std::filesystem;

int main(int argc, char** argv) {
    const ambra::FlussiUtf8 flussi;
    const auto parole = ambra::parole_della_riga(argc, argv);
    const bool uccisa = parole.size() == 3 && parole[2] == "--uccisa";
    if (parole.size() != 2 && !uccisa) return 64;
    const ambra::CartellaProva casa;
    ambra::storia::Storia storia(fs::absolute(ambra::percorso_utf8(parole[0])).string(),
                                 casa.dove() / "drive");
    storia.uccisa = uccisa;
    int stato = 0;
    try {
        storia.esegui(parole[1]);
    } catch (const ambra::storia::Saltata&) {
        stato = 77;
    } catch (const std::exception& e) {
        std::cerr << parole[1] << ":" << storia.riga() << ": " << e.what() << '\n';
        stato = 1;
    }
    if (const char* tieni = std::getenv("STORIA_TIENI"); tieni && stato == 0) {
        const auto file = ambra::percorso_utf8(parole[1]);
        const auto qui = tieni / file.parent_path().filename() / file.stem();
        fs::create_directories(qui);
        fs::copy(casa.dove(), qui, fs::copy_options::recursive);
    }
    return stato;
}
