// Layout files of all four kinds: read, saved without change, cut short.
#include <gtest/gtest.h>

#include "core/testo.h"
#include "forms/moduli.h"
#include "forms/mrvlay.h"
#include "tests/supporto/banco.h"

namespace ambra {
namespace {

constexpr int kTipi[] = {kAvviso, kRicevuta, kMinisteriale, kSollecito};

std::string layout_qualunque() {
    std::string s;
    for (int i = 1; i <= 100; ++i)
        s += con_zeri(i * 7, 3) + con_zeri(i * 3, 3) + "\r\n" + std::to_string(i % 20) + "\r\nFont " +
             std::to_string(i) + "\r\n" + (i % 2 ? "1" : "") + "\r\n 0\r\n" + std::to_string(i * 1000) +
             "\r\n";
    return s;
}

std::string testi_qualunque() {
    std::string s = "\"primo, valore\"\r\n";
    for (int i = 1; i <= 500; ++i)
        s += "riga " + std::to_string(i) +
             ", con virgola\r\n\r\n\"1\",\"2\",\"a,b\",\"\",\"5\",\"6\",\"7\",\"" + std::to_string(i) +
             "\"\r\n";
    return s;
}

TEST(ModuliFile, OgniTipoSalvatoSenzaModificheEUguale) {
    for (const int tipo : kTipi) {
        Banco b;
        b.avvia();
        b.memoria.contenuto(file_coordinate(tipo, "001")) = layout_qualunque();
        if (tipo != kMinisteriale) {
            b.memoria.contenuto(file_intestazione(tipo, "001")) =
                "\"Oggetto, uno\"\r\n\"Corpo su\r\ndue righe\"\r\n";
            b.memoria.contenuto(file_testi(tipo, "001")) = testi_qualunque();
        }
        b.prog.tipomodulo = tipo;
        b.prog.schermi.apri("mrvlay");
        auto& s = b.schermo<Mrvlay>("mrvlay");
        // The suppliers' number shares its storage: what others do with it is nothing to the open editor.
        b.prog.recfornitore = 9;
        EXPECT_EQ(s.caption(), titolo_finestra(tipo));
        EXPECT_EQ(s.elenco.righe(), tabella_modulo(tipo).quanti + 1);
        EXPECT_EQ(s.bianca.visible(), tipo != kMinisteriale);
        EXPECT_EQ(s.bianca.enabled(), tipo != kMinisteriale);
        EXPECT_EQ(s.Command3d6.visible(), tipo != kMinisteriale);
        for (int r = 1; r < s.elenco.righe(); ++r) s.elenco.scegli(r, 0);
        {
            Registro::Turno turno(b.prog.schermi);
            s.indice[1].premi();
        }
        EXPECT_EQ(b.prog.schermi.caricato("mrvlay"), nullptr);
        EXPECT_EQ(b.memoria.contenuto(file_coordinate(tipo, "001")), layout_qualunque());
        if (tipo == kMinisteriale) continue;
        EXPECT_EQ(b.memoria.contenuto(file_intestazione(tipo, "001")),
                  "\"Oggetto, uno\"\r\n\"Corpo su\r\ndue righe\"\r\n");
        EXPECT_EQ(b.memoria.contenuto(file_testi(tipo, "001")), testi_qualunque());
    }
}

TEST(ModuliFile, TestiLiberiLettiERiscritti) {
    DiscoMemoria d;
    Errore err;
    const std::string file = file_testi(kAvviso, "001");
    d.contenuto(file) = testi_qualunque();
    TestiLiberi t;
    ASSERT_TRUE(carica_testi(d, err, file, t));
    EXPECT_EQ(t.primo, "primo, valore");
    EXPECT_EQ(t.riga[499].linea[0], "riga 500, con virgola");
    EXPECT_EQ(t.riga[0].valore[2], "a,b");
    EXPECT_EQ(t.riga[499].valore[7], "500");
    ASSERT_TRUE(salva_testi(d, err, file, t));
    EXPECT_EQ(d.contenuto(file), testi_qualunque());
    d.contenuto(file).resize(4000);
    EXPECT_FALSE(carica_testi(d, err, file, t));
    EXPECT_TRUE(t.riga.empty());
}

TEST(ModuliFile, OgniTagliaDelLayout) {
    const std::string intero = layout_qualunque();
    const std::size_t ultima = intero.rfind("100000");  // the last line, without which the file is short
    for (std::size_t n = 0; n <= intero.size(); n += n > intero.size() - 20 ? 1 : 37) {
        DiscoMemoria d;
        Errore err;
        d.contenuto(file_ministeriale()) = intero.substr(0, n);
        Layout l;
        const bool letto = carica_layout(d, err, file_ministeriale(), {"1", "2", "3", "4", "5", "6"}, l);
        EXPECT_EQ(letto, n > ultima) << n;
        EXPECT_EQ(l.campo[1].carattere, letto ? "Font 1" : "3");
        EXPECT_EQ(l.campo[100].carattere, letto ? "Font 100" : "3");
        EXPECT_EQ(err.numero, letto ? 0 : errore::oltre_la_fine);
    }
}

}  // namespace
}  // namespace ambra
