// The repair mends index, counters and left-overs, touches no record, and leaves an archive that the check
// finds clean.
#include "maintenance/riparazione.h"

#include <functional>

#include "maintenance/ripristino.h"
#include "records/fornitore.h"
#include "records/nome.h"
#include "records/totali.h"
#include "tests/maintenance/archivio_check.h"
#include "tests/supporto/disco_guasto.h"

using namespace ambra;

namespace {

class Riparazione : public Check {
  protected:
    std::string ripara_001() {
        detti.clear();
        return ripara(disco, "001", [this](const std::string& s) { detti.push_back(s); });
    }
    void parola(const char* nome, std::size_t posto, int v) {
        Intero i;
        i = v;
        std::memcpy(file(nome).data() + posto, &i, 2);
    }
    std::vector<std::string> detti;
};

TEST_F(Riparazione, OgniGuastoCheNonVuoleUnaScelta) {
    const std::string fatture = file("lum001.ftr"), fornitori = file("lum001.for"),
                      movimenti = file("lum001.mov");
    const struct {
        const char* nome;
        std::function<void()> fai;
        std::size_t passi;
    } casi[] = {
        {"nothing", [] {}, 0},
        {"missing index", [&] { disco.elimina(kCartella + "lum001.srf"); }, 1},
        {"index on nothing", [&] { parola("lum001.srf", 42 * 3 + 40, 999); }, 1},
        {"short index", [&] { file("lum001.srf").resize(42 * 7); }, 1},
        {"index out of order",
         [&] {
             std::swap_ranges(file("lum001.srf").begin(), file("lum001.srf").begin() + 42,
                              file("lum001.srf").begin() + 84);
         },
         1},
        {"count of suppliers", [&] { parola("lum001.tfr", 0, 3); }, 2},
        {"count of documents beyond the file", [&] { parola("lum001.tfr", 28, 30000); }, 2},
        {"both counts lost", [&] { parola("lum001.tfr", 0, 0), parola("lum001.tfr", 28, 0); }, 3},
        {"no counters", [&] { disco.elimina(kCartella + "lum001.tfr"); }, 3},
        {"counters of the ledger", [&] { parola("lum001.tot", 0, 1), parola("lum001.tot", 6, 1); }, 3},
    };
    for (const auto& c : casi) {
        SetUp();
        c.fai();
        EXPECT_EQ(riparabile(disco, "001"), c.passi > 0) << c.nome;
        EXPECT_EQ(ripara_001(), "") << c.nome;
        EXPECT_EQ(detti.size(), c.passi) << c.nome << (detti.empty() ? "" : ": " + detti[0]);
        const Giro g = verifica(disco);
        EXPECT_EQ(g.stato, 0) << c.nome << "\n" << g.elenco();
        EXPECT_TRUE(file("lum001.ftr") == fatture && file("lum001.for") == fornitori &&
                    file("lum001.mov") == movimenti);
    }
}

TEST_F(Riparazione, LIndiceRifattoEQuelloDelRegistro) {
    const std::string prima = file("lum001.srf");
    std::string& ora = file("lum001.srf");
    std::fill(ora.begin(), ora.end(), 'x');
    ASSERT_EQ(ripara_001(), "");
    std::vector<std::string> a, b;
    for (std::size_t i = 0; i + 42 <= prima.size(); i += 42)
        a.push_back(prima.substr(i, 42)), b.push_back(file("lum001.srf").substr(i, 42));
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    EXPECT_EQ(a, b);
    EXPECT_EQ(detti.at(0), "lum001.srf: indice rifatto, " + std::to_string(a.size()) + " nomi");
}

TEST_F(Riparazione, UnoZeroDaSoloPuoEssereDiUnAzzeramento) {
    parola("lum001.tfr", 28, 0);
    ASSERT_EQ(ripara_001(), "");
    EXPECT_EQ(verifica(disco).stato, 1) << "that is somebody's choice";
}

TEST_F(Riparazione, ChiTieneApertoLArchivioEChiNonScrive) {
    disco.elimina(kCartella + "lum001.srf");
    DiscoGuasto guasto(disco);
    guasto.guasto = [](Operazione op, std::string_view p) {
        return op == Operazione::in_uso && p.ends_with("lum001.ftr") ? 1 : 0;
    };
    EXPECT_EQ(ripara(guasto, "001", [](const std::string&) {}), "un altro programma tiene aperto lum001.ftr");
    EXPECT_FALSE(disco.esiste(kCartella + "lum001.srf"));
    guasto.guasto = [](Operazione op, std::string_view) { return op == Operazione::scrivi_tutto ? 61 : 0; };
    EXPECT_EQ(ripara(guasto, "001", [](const std::string&) {}), "disco pieno (errore 61)");
}

TEST_F(Riparazione, GliAvanzi) {
    const auto togli = [&](Disco& d) {
        detti.clear();
        togli_avanzi(d, [this](const std::string& s) { detti.push_back(s); });
        return detti.size();
    };
    file("lum001.ftr.~~~") = file("lumora.pag.~123-0") = file("appunti.~123-0") = "";
    DiscoGuasto in_uso(disco);
    in_uso.guasto = [](Operazione op, std::string_view p) {
        return op == Operazione::in_uso && p.ends_with("pag.~123-0") ? 1 : 0;
    };
    file(kGiornaleRipristino) = "d\r\n";
    EXPECT_EQ(togli(in_uso), 0u) << "a restore's own";
    disco.elimina(kCartella + kGiornaleRipristino);
    EXPECT_EQ(togli(in_uso), 1u);
    EXPECT_TRUE(disco.esiste(kCartella + "lumora.pag.~123-0")) << "somebody writes it now";
    EXPECT_EQ(togli(disco), 1u);
    EXPECT_EQ(detti.at(0), "lumora.pag.~123-0: tolto, era un file provvisorio");
    EXPECT_TRUE(disco.esiste(kCartella + "appunti.~123-0")) << "none of the archive's";
}

}  // namespace
