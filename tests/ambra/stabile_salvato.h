// A building of the demo drive, its backup, and a folder of this machine to put it in.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "ambra/archivio_compresso.h"
#include "ambra/demo.h"
#include "maintenance/ripristino.h"
#include "tests/supporto/cartella_prova.h"
#include "tests/supporto/foto.h"

namespace ambra {

class Salvataggio : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(demo::crea(disco, {{15, 3, 2024}, false}));
        ASSERT_EQ(raccogli(disco, "002", file), "");
    }

    std::string archivio() const { return (dove / "s.tar.gz").string(); }
    /// Changes what a year of work would change, and adds a file that the backup lacks.
    void rovina() {
        disco.contenuto(kCartella + "lum002.ftr") += "altro";
        disco.contenuto(kCartella + "lum002.tfr")[28] ^= 3;
        disco.elimina(kCartella + "lum002.srf");
        disco.contenuto(kCartella + "lum002.$$$") = "copia";
        disco.contenuto(kCartella + "lumora.pag") = "vuota\r\n";
    }

    DiscoMemoria disco;
    std::vector<FileSalvato> file;
    CartellaProva casa;
    const std::filesystem::path& dove = casa.dove();
};

}  // namespace ambra
