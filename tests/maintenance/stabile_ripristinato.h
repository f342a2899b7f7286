// A building on a disc in memory, before and after the restore of its backup.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "maintenance/ripristino.h"
#include "tests/supporto/foto.h"

namespace ambra {

inline void metti(DiscoMemoria& d, const Foto& f) {
    for (const auto& [n, c] : f) d.contenuto(kCartella + n) = c;
}

/// What the archive's folder holds of the archive itself, without what a broken restore leaves.
inline Foto pulita(Foto f) {
    std::erase_if(f, [](const auto& x) { return x.first.ends_with(".~~~"); });
    return f;
}

inline const Foto kSalvata = {{"lum002.cnd", "condomini"}, {"lum002.ftr", "fatture"},
                              {"lum002.for", "fornitori"}, {"lum002.srf", "indice"},
                              {"lum002.tfr", "contatori"}, {"lumora.pag", "pagamenti"},
                              {"lumora.tot", "stabili"},   {"vexoral.001", "{\\rtf}"}};
/// After a year of work: files changed, one gone, one that the backup lacks.
inline const Foto kPrima = {
    {"lum002.cnd", "condomini"}, {"lum002.ftr", "fatture di più"}, {"lum002.for", "altri"},
    {"lum002.$$$", "copia"},     {"lum002.tfr", "altri"},          {"lumora.pag", ""},
    {"lumora.tot", "stabili"},   {"vexoral.001", "{\\rtf}"},       {"lum001.ftr", "vicino"}};

inline Foto dopo_il_ripristino() {
    Foto f = kSalvata;
    f["lum001.ftr"] = "vicino";
    return f;
}

class RipristinoProva : public testing::Test {
  protected:
    void SetUp() override {
        DiscoMemoria d;
        metti(d, kSalvata);
        ASSERT_EQ(raccogli(d, "002", file), "");
        metti(disco, kPrima);
    }
    std::string fai(Disco& d) { return ripristina(d, file, "002", "deposito-1"); }
    Foto deposito(DiscoMemoria& d) {
        std::vector<std::string> nomi;
        d.elenca(kCartella + "deposito-1", nomi);
        Foto f;
        for (const auto& n : nomi) f[n] = d.contenuto(kCartella + "deposito-1\\" + n);
        return f;
    }

    DiscoMemoria disco;
    std::vector<FileSalvato> file;
};

}  // namespace ambra
