// Layouts of all four kinds: fields, defaults, automatic positions, and what the editor shows.
#include "forms/moduli.h"

#include <gtest/gtest.h>

#include "core/impostazioni.h"
#include "core/testo.h"
#include "forms/mrvlay.h"
#include "tests/supporto/banco.h"

namespace ambra {
namespace {

constexpr int kTipi[] = {kAvviso, kRicevuta, kMinisteriale, kSollecito};

TEST(Moduli, CampiDiOgniTipo) {
    const std::tuple<int, int, int, const char*> attesi[] = {
        {kAvviso, 70, 2, "Distanza tra un avviso e l'altro"},
        {kRicevuta, 39, 0, "Note da riportare sulla ricevuta riga 5"},
        {kMinisteriale, 26, 0, "Numero foglio"},
        {kSollecito, 70, 2, "Distanza tra un sollecito e l'altro"}};
    for (const auto& [tipo, quanti, secondo, ultimo] : attesi) {
        const TabellaModulo t = tabella_modulo(tipo);
        EXPECT_EQ(t.quanti, quanti);
        EXPECT_EQ(t.secondo, secondo);
        EXPECT_EQ(t.riga[static_cast<std::size_t>(quanti)].descrizione, ultimo);
        for (int i = 1; i <= quanti; ++i) {
            EXPECT_NE(t.riga[static_cast<std::size_t>(i)].descrizione, "") << tipo << " " << i;
            EXPECT_EQ(t.riga[static_cast<std::size_t>(i)].genere, '1');
        }
    }
}

TEST(Moduli, NomiAlloroPosto) {
    const auto nome = [](int tipo, std::size_t i) { return tabella_modulo(tipo).riga[i].descrizione; };
    EXPECT_EQ(nome(kAvviso, 1), "Studio: intestazione");
    EXPECT_EQ(nome(kAvviso, 3), "Studio: città sede legale"_it);
    EXPECT_EQ(nome(kAvviso, 12), "Studio: tribunale ");
    EXPECT_EQ(nome(kAvviso, 16), "Studio: note riga 4");
    EXPECT_EQ(nome(kAvviso, 17), "Nome stabile");
    EXPECT_EQ(nome(kAvviso, 24), "Note stabile riga 4");
    EXPECT_EQ(nome(kAvviso, 29), "Sub. condomino");
    EXPECT_EQ(nome(kAvviso, 30), "Nome condomino collegato (1)");
    EXPECT_EQ(nome(kAvviso, 35), "Nome condomino collegato (3) - ripetizione");
    EXPECT_EQ(nome(kAvviso, 42), "Non utilizzato");
    EXPECT_EQ(nome(kAvviso, 44), "Data dell'avviso");
    EXPECT_EQ(nome(kSollecito, 44), "Data del sollecito");
    EXPECT_EQ(nome(kAvviso, 54), "Importo del conguaglio (condomino principale) ");
    EXPECT_EQ(nome(kAvviso, 60), "Importo complessivo");
    EXPECT_EQ(nome(kSollecito, 61), "Note da riportare sul sollecito riga 1");
    EXPECT_EQ(nome(kAvviso, 66), "Primo codice a barre ");
    EXPECT_EQ(nome(kAvviso, 69), "Numero di avvisi per foglio");
    EXPECT_EQ(nome(kRicevuta, 33), "Modalità di pagamento"_it);
    EXPECT_EQ(nome(kMinisteriale, 9), "Provincia condominio");
    EXPECT_EQ(nome(kMinisteriale, 10), "Codice fiscale condominio");
}

TEST(Moduli, FileDiOgniTipo) {
    EXPECT_EQ(file_coordinate(kAvviso, "007"), kCartella + "lum007.lay");
    EXPECT_EQ(file_coordinate(kRicevuta, "007"), kCartella + "lum007.lyr");
    EXPECT_EQ(file_coordinate(kMinisteriale, "007"), kCartella + "lummmi.lay");
    EXPECT_EQ(file_coordinate(kSollecito, "007"), kCartella + "lum007.lys");
    EXPECT_EQ(file_intestazione(kRicevuta, "007"), kCartella + "lum007.lxr");
    EXPECT_EQ(file_testi(kSollecito, "007"), kCartella + "lum007.lks");
    EXPECT_EQ(file_intestazione(kMinisteriale, "007"), "");
}

std::string posizioni(const Layout& l) {
    std::string r;
    for (std::size_t i = 1; i <= kCampiLayout; ++i)
        if (l.campo[i].posizione != "000000") r += std::to_string(i) + ":" + l.campo[i].posizione + " ";
    return r;
}

TEST(Moduli, CoordinateAutomatiche) {
    Layout l;
    for (auto& c : l.campo) c = {"111222", "20", "Courier", "1", "1", "255"};
    coordinate_automatiche(kRicevuta, l);
    EXPECT_EQ(
        posizioni(l),
        "1:006007 2:006012 3:006017 6:006022 7:031022 17:006051 25:086026 26:086031 27:086036 30:171007 "
        "31:186081 32:006061 33:006071 35:006096 36:006101 37:006106 38:006111 39:006116 96:111222 "
        "97:111222 98:111222 99:111222 100:111222 ");
    EXPECT_EQ(l.campo[50], (CampoLayout{"000000", "9", "Arial", "0", "0", "255"}));
    EXPECT_EQ(l.campo[96], (CampoLayout{"111222", "20", "Courier", "1", "1", "255"}));
    Layout a, s;
    coordinate_automatiche(kAvviso, a);
    coordinate_automatiche(kSollecito, s);
    EXPECT_EQ(a, s);
    EXPECT_EQ(
        posizioni(a),
        "1:006007 2:006012 3:006017 6:006022 7:031022 17:006051 25:086026 26:086031 27:086036 30:016075 "
        "31:016079 32:016083 33:016091 34:016094 35:016099 38:006061 44:171007 45:006125 46:006071 "
        "47:191071 48:141071 49:141075 50:141079 51:141083 52:006087 53:191087 54:141087 55:141091 "
        "56:141095 57:141099 59:191104 60:191114 69:002002 70:145145 ");
}

TEST(Moduli, AzzeraTutto) {
    for (const int tipo : kTipi) {
        Layout l;
        for (auto& c : l.campo) c = {"111222", "20", "Courier", "1", "1", "255"};
        azzera_coordinate(tipo, l);
        for (std::size_t i = 1; i <= 96; ++i) EXPECT_EQ(l.campo[i], CampoLayout{}) << i;
        const bool ministeriale = tipo == kMinisteriale;
        EXPECT_EQ(l.campo[97].posizione, ministeriale ? "111222" : "000000");
        EXPECT_EQ(l.campo[98].posizione, ministeriale ? "111222" : "000");
        EXPECT_EQ(l.campo[99].posizione, ministeriale ? "111222" : "000");
    }
}

TEST(Moduli, GeneriDiCampo) {
    Banco b;
    b.avvia();
    b.prog.tipomodulo = kMinisteriale;
    auto& s = b.schermo<Mrvlay>("mrvlay");
    s.tabella.riga[2].genere = '2';
    s.tabella.riga[3].genere = '3';
    b.piattaforma.risposte = {Risposta::si};
    s.indice[3].premi();
    const auto riga = [&](int r) {
        return s.elenco.testo(r, 1) + "|" + s.elenco.testo(r, 2) + "|" + s.elenco.testo(r, 3);
    };
    EXPECT_EQ(riga(1), "000|000|Arial (9)");
    EXPECT_EQ(riga(2), "|000|");
    EXPECT_EQ(riga(3), "000||Arial (9)");
    const auto accesi = [&] {
        std::string a;
        for (const Controllo* c : std::initializer_list<const Controllo*>{&s.Text1[0], &s.Text1[1],
                                                                          &s.Command3d5[0], &s.Command3d5[1]})
            a += c->enabled() ? '1' : '0';
        return a;
    };
    EXPECT_EQ(accesi(), "0000");
    s.elenco.scegli(1, 0);
    EXPECT_EQ(accesi(), "1111");
    s.elenco.scegli(2, 0);
    EXPECT_EQ(accesi(), "0100");
    s.elenco.scegli(3, 0);
    EXPECT_EQ(accesi(), "1010");
}

TEST(Moduli, ColoriAssurdi) {
    const std::pair<const char*, long> casi[] = {{"255", 255},
                                                 {" 16777215", 0xFFFFFF},
                                                 {"16777216", 0},
                                                 {"-1", 0},
                                                 {"1e300", 1},
                                                 {"nan", 0},
                                                 {"9999999999999999999999999999", 0},
                                                 {"", 0},
                                                 {"12,5", 12}};
    for (const auto& [testo, rgb] : casi) {
        Banco b;
        b.avvia();
        Layout l;
        l.campo[1].posizione = "010010";
        l.campo[1].colore = testo;
        salva_layout(b.memoria, b.prog.err, file_coordinate(kAvviso, "001"), l);
        b.prog.tipomodulo = kAvviso;
        b.prog.schermi.apri("mrvlay");
        auto& s = b.schermo<Mrvlay>("mrvlay");
        s.elenco.scegli(1, 0);
        EXPECT_EQ(s.car.colore_testo(), rgb) << testo;
        EXPECT_EQ(s.layout().campo[1].colore, testo) << "as it stands in the file, until another is chosen";
    }
}

TEST(Moduli, EsempioDegliAltriTipi) {
    for (const auto& [tipo, titolo] : {std::pair{kAvviso, "Avviso di pagamento"},
                                       {kRicevuta, "Ricevuta di versamento"},
                                       {kSollecito, "Sollecito di pagamento"}}) {
        Banco b;
        b.avvia();
        b.prog.tipomodulo = tipo;
        auto& s = b.schermo<Mrvlay>("mrvlay");
        b.piattaforma.risposte = {Risposta::si, Risposta::si, Risposta::si, Risposta::si};
        s.indice[3].premi();
        s.indice[4].premi();
        s.bianca.clicca();
        s.indice[4].premi();
        s.indice[5].premi();
        ASSERT_EQ(b.piattaforma.lavori.size(), 3u);
        const auto ci_sta = [&](std::size_t lavoro, const std::string& t) {
            for (const auto& o : b.piattaforma.lavori[lavoro].pagine.at(0).operazioni)
                if (o.testo == t) return true;
            return false;
        };
        EXPECT_TRUE(ci_sta(0, "Studio: intestazione"));
        EXPECT_FALSE(ci_sta(0, titolo));
        EXPECT_TRUE(ci_sta(1, titolo));
        EXPECT_TRUE(ci_sta(1, "Lumeria per Windows - Norvel"));
        EXPECT_TRUE(ci_sta(2, titolo_coordinate(tipo)));
    }
}

TEST(Moduli, UnDiscoCheRifiutaNonFermaConferma) {
    Banco b;
    b.avvia();
    b.prog.tipomodulo = kMinisteriale;
    b.prog.schermi.apri("mrvlay");
    b.disco.guasto = [](Operazione op, std::string_view) {
        return op == Operazione::scrivi_tutto ? errore::disco_pieno : 0;
    };
    Registro::Turno turno(b.prog.schermi);
    b.schermo<Mrvlay>("mrvlay").indice[1].premi();
    EXPECT_FALSE(b.memoria.esiste(file_ministeriale()));
    EXPECT_TRUE(b.piattaforma.messaggi.empty());
}

}  // namespace
}  // namespace ambra
