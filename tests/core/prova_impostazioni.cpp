// The settings at start: every file missing, short or full of rubbish has its told outcome.
#include <gtest/gtest.h>

#include <algorithm>

#include "core/impostazioni.h"
#include "core/testo.h"
#include "tests/supporto/disco_guasto.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;

namespace {

struct Avvio {
    DiscoMemoria disco;
    Errore err;
    Impostazioni imp;

    void file(const std::string& nome, const std::string& contenuto) {
        disco.contenuto(kCartella + nome) = contenuto;
    }
    void carica() { caricatabelle(disco, err, imp); }
};

std::string tabella_intera() {
    std::string s = "10,20\r\n30, 40\r\n1\r\n";
    for (int i = 0; i <= 5; ++i) {
        const std::string n = std::to_string(i);
        s += (i == 0 ? "6" : "99");
        s += "\r\nFaccia " + n + "\r\n1" + n + "\r\n1\r\n0\r\n25" + n + "\r\n";
    }
    return s + "1\r\n2\r\n3\r\n4\r\n5\r\n15987699\r\n";
}

TEST(Impostazioni, StudioConMenoRigheLasciaIlRestoVuoto) {
    Avvio a;
    a.file("lumora.int", "Studio\r\nVia\r\n");
    a.carica();
    EXPECT_EQ(a.imp.intestazione[1], "Studio");
    EXPECT_EQ(a.imp.intestazione[2], "Via");
    EXPECT_EQ(a.imp.intestazione[3], "");
}

TEST(Impostazioni, LoZeroDelFileNonPortaAlleLire) {
    Avvio a;
    a.file("lumeria.eur", "0\r\n1900.5\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni\r\nl\r\n");
    a.carica();
    EXPECT_EQ(a.imp.cambio[1], "1");
    EXPECT_EQ(a.imp.cambio[2], "1900.5");
    EXPECT_EQ(a.imp.cambio[10], "l");
    EXPECT_EQ(fmtimporto(a.imp.cambio, 12), "12,00");
}

TEST(Impostazioni, NoveRigheDiCambioPerdonoAncheLaSeconda) {
    for (const char* s : {"1\r\n1900\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n", ""}) {
        Avvio a;
        if (*s) a.file("lumeria.eur", s);
        a.carica();
        EXPECT_EQ(a.imp.cambio[1], "1");
        EXPECT_EQ(a.imp.cambio[2], "1936.27");
        EXPECT_EQ(a.imp.cambio[3], "");
    }
}

TEST(Impostazioni, TabellaDiStampaIntera) {
    Avvio a;
    a.file("lumeria.tbl", tabella_intera());
    a.carica();
    const RecStampa& l = a.imp.tabstampa[0];
    EXPECT_EQ(l.paginasx, 10);
    EXPECT_EQ(l.paginadx, 20);
    EXPECT_EQ(l.paginasu, 30);
    EXPECT_EQ(l.paginagiu, 40);
    EXPECT_EQ(l.testata, 1);
    EXPECT_EQ(l.rigaalt, 25 * 6 + 140);  // only block 0 gives the spacing
    EXPECT_EQ(l.fascia, 15987699);
    for (int i = 0; i <= 5; ++i) {
        const RecStampa& v = a.imp.tabstampa[static_cast<std::size_t>(i)];
        EXPECT_EQ(v.fontnome, riempi("Faccia " + std::to_string(i), 30));
        EXPECT_EQ(v.fontsize, 10 + i);
        EXPECT_EQ(v.fontbold, 1);
        EXPECT_EQ(v.fontital, 0);
        EXPECT_EQ(v.fontcolore, 250 + i);
    }
}

TEST(Impostazioni, TabellaTroncataInOgniPunto) {
    const std::string intera = tabella_intera();
    for (std::size_t n = 0; n <= intera.size(); ++n) {
        Avvio a;
        a.file("lumeria.tbl", intera.substr(0, n));
        a.carica();
        const RecStampa& l = a.imp.tabstampa[0];
        const auto righe = std::count(intera.begin(), intera.begin() + static_cast<long>(n), '\n');
        const bool a_capo = n > 0 && intera[n - 1] == '\n';
        const bool iniziata = n > 0 && !a_capo && intera[n - 1] != '\r';
        const auto lette = righe + (iniziata || (n > 0 && intera[n - 1] == '\r') ? 1 : 0);
        if (lette < 39) {  // 3 lines of numbers and 36 of blocks
            EXPECT_EQ(a.imp.tabstampa[1].fontsize, 14) << n;
            EXPECT_EQ(a.imp.tabstampa[4].fontnome, riempi("Arial", 30)) << n;
            EXPECT_EQ(l.rigaalt, 240) << n;
        }
        if (lette < 45) {
            EXPECT_EQ(l.fascia, 16777215) << n;
        }
    }
}

TEST(Impostazioni, TabellaSoloGeometria) {
    Avvio a;
    a.file("lumeria.tbl", "1,2,3,4,0\r\n");
    a.carica();
    const RecStampa& l = a.imp.tabstampa[0];
    EXPECT_EQ(l.paginasx, 1);
    EXPECT_EQ(l.paginagiu, 4);
    EXPECT_EQ(l.testata, 0);
    EXPECT_EQ(l.fontnome, "");  // entry 0 is not given a font
    EXPECT_EQ(a.imp.tabstampa[1].fontsize, 14);
    EXPECT_EQ(a.imp.tabstampa[5].fontsize, 9);
    EXPECT_EQ(l.rigaalt, 240);
    EXPECT_EQ(l.fascia, kNessunaFascia);
}

TEST(Impostazioni, TabellaMancante) {
    Avvio a;
    a.carica();
    const RecStampa& l = a.imp.tabstampa[0];
    EXPECT_EQ(l.paginasx, 30);
    EXPECT_EQ(l.paginadx, 950);
    EXPECT_EQ(l.paginasu, 30);
    EXPECT_EQ(l.paginagiu, 950);
    EXPECT_EQ(l.testata, 2);
    EXPECT_EQ(l.rigaalt, 240);
    EXPECT_EQ(l.fascia, kNessunaFascia);
}

TEST(Impostazioni, NumeriSenzaSenso) {
    // A number that an Integer cannot hold is an error like a missing line.
    Avvio a;
    a.file("lumeria.tbl", "99999,2,3,4,0\r\n");
    a.carica();
    EXPECT_EQ(a.imp.tabstampa[0].paginasx, 30);
    Avvio b;
    std::string t = tabella_intera();
    t.replace(t.find("\r\n12\r\n"), 6, "\r\n99999\r\n");
    b.file("lumeria.tbl", t);
    b.carica();
    EXPECT_EQ(b.imp.tabstampa[1].fontsize, 14);
    EXPECT_EQ(b.imp.tabstampa[0].fascia, kNessunaFascia);
    EXPECT_EQ(b.imp.tabstampa[0].paginasx, 10);
}

TEST(Impostazioni, SpaziaturaZeroQuattroEConDecimali) {
    for (const auto& [h, alta] : {std::pair{"0", 140}, {"4", 240}, {"0.3", 148}, {"-0.1", 138}}) {
        Avvio a;
        std::string t = tabella_intera();
        t.replace(t.find("\r\n6\r\n"), 5, std::string("\r\n") + h + "\r\n");
        a.file("lumeria.tbl", t);
        a.carica();
        EXPECT_EQ(a.imp.tabstampa[0].rigaalt, alta);
    }
}

TEST(Impostazioni, GeneraleMancanteNasceColSuoContenuto) {
    Avvio a;
    a.carica();
    const std::string& f = a.disco.contenuto(kCartella + "lumeria.gnr");
    ASSERT_EQ(f.size(), 402u);
    EXPECT_EQ(f.substr(0, 18), std::string(18, '\0'));
    // 8454143 as a Double, little-endian
    EXPECT_EQ(f.substr(26, 8), std::string("\x00\x00\x00\xE0\xFF\x1F\x60\x41", 8));
    EXPECT_EQ(f.substr(130, 72), std::string(72, '\0'));
    EXPECT_EQ(f.substr(202, 100), riempi("\\LUMDIR\\PDF", 100));
    EXPECT_EQ(f.substr(302, 100), std::string(100, ' '));
    const double colori[14] = {0, 8454143,  16777215, 0,        65535, 0,       65535,
                               0, 16711680, 255,      16711680, 255,   8421376, 16711680};
    for (int i = 0; i < 14; ++i) EXPECT_EQ(double(a.imp.generale.col[i]), colori[i]) << i;
}

TEST(Impostazioni, GeneraleSenzaCartellaPdfLaRiceveEIlRestoResta) {
    Avvio a;
    std::string f(402, '\x55');
    f.replace(202, 100, std::string(100, ' '));
    a.file("lumeria.gnr", f);
    a.carica();
    f.replace(202, 100, riempi("\\LUMDIR\\PDF", 100));
    EXPECT_EQ(a.disco.contenuto(kCartella + "lumeria.gnr"), f);
}

TEST(Impostazioni, GeneraleConCartellaPdfNonSiTocca) {
    Avvio a;
    DiscoGuasto spia(a.disco);
    bool fatta = false;
    spia.guasto = [&](Operazione operazione, std::string_view) {
        fatta |= operazione == Operazione::crea_cartella || operazione == Operazione::scrivi;
        return 0;
    };
    std::string f(402, '\x55');
    f.replace(202, 100, riempi("\\ALTROVE", 100));
    a.file("lumeria.gnr", f);
    caricatabelle(spia, a.err, a.imp);
    EXPECT_FALSE(fatta);
    EXPECT_EQ(a.disco.contenuto(kCartella + "lumeria.gnr"), f);
}

TEST(Impostazioni, NienteDiScrivibileNonFermaNulla) {
    Avvio a;
    DiscoGuasto guasto(a.disco);
    guasto.guasto = [](Operazione, std::string_view) { return errore::permesso_negato; };
    caricatabelle(guasto, a.err, a.imp);
    EXPECT_EQ(a.imp.tabstampa[0].rigaalt, 240);
    EXPECT_EQ(a.imp.cambio[1], "1");
}

}  // namespace
