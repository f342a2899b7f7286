// usage: storia AMBRA STORY      (with STORIA_MOSTRA set, all events are shown)
#include <stdlib.h>

#include <exception>
#include <filesystem>
#include <iostream>

#include "tests/storia/storia.h"

namespace fs = std::filesystem;

int main(int argc, char** argv) {
    if (argc != 3) return 64;
    char modello[] = "/tmp/storia-XXXXXX";
    const char* d = ::mkdtemp(modello);
    if (!d) return 70;
    const fs::path casa = d;
    ambra::storia::Storia storia(fs::absolute(argv[1]).string(), casa / "drive");
    int stato = 0;
    try {
        storia.esegui(argv[2]);
    } catch (const std::exception& e) {
        std::cerr << argv[2] << ":" << storia.riga() << ": " << e.what() << '\n';
        stato = 1;
    }
    std::error_code ec;
    fs::remove_all(casa, ec);
    return stato;
}
