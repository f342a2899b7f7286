// The archive reset under failing steps, and against the walk as it was told.
#include <gtest/gtest.h>

#include <random>

#include "core/testo.h"
#include "maintenance/mrvaazz.h"
#include "tests/supporto/banco.h"

using namespace ambra;

namespace {

RecFattura documento(int numero, const std::string& datareg) {
    RecFattura f = fattura_vuota();
    f.numdoc = std::to_string(numero);
    f.datareg = datareg;
    return f;
}

void azzera(Banco& b, const std::string& data) {
    auto& s = b.schermo<Mrvaazz>("mrvaazz");
    s.azz8.spuntata(true);
    s.text1_6.testo(data);
    b.piattaforma.risposte = {Risposta::si, Risposta::si};
    s.command3d4[1].premi();
}

// Record by record, as the walk was told.
std::string come_raccontato(const std::string& file, const std::string& limite, int& restano) {
    std::string r = file;
    const std::size_t n = sizeof(RecFattura), quante = file.size() / n;
    std::size_t tolte = 0;
    for (std::size_t i = 0; i < quante; ++i) {
        const std::string f = file.substr(i * n, n);
        if (f.substr(offsetof(RecFattura, datareg), 8) < limite) {
            ++tolte;
        } else {
            r.replace((i - tolte) * n, n, f);
        }
    }
    restano = static_cast<int>(quante - tolte);
    return r;
}

TEST(Azzeramento, StessiByteDelGiroRaccontato) {
    std::mt19937 caso(91);
    for (int giro = 0; giro < 20; ++giro) {
        Banco b;
        std::vector<RecFattura> tutte;
        const int quante = std::uniform_int_distribution<>(1, 900)(caso);
        for (int i = 0; i < quante; ++i)
            tutte.push_back(
                documento(i, std::to_string(std::uniform_int_distribution<>(2008, 2014)(caso)) + "0101"));
        b.fatture(tutte);
        b.avvia();
        int restano = 0;
        const std::string voluto = come_raccontato(b.file("ftr"), "20120101", restano);
        azzera(b, "01/01/2012");
        ASSERT_EQ(b.file("ftr"), voluto);
        RecTotali t{};
        std::memcpy(&t, b.file("tfr").data() + sizeof t, sizeof t);
        ASSERT_EQ(t.parola[0], restano);
    }
}

TEST(Azzeramento, UnDiscoCheNonScriveNonFermaNulla) {
    Banco b;
    b.fatture({documento(1, "20110101"), documento(2, "20240101")});
    b.avvia();
    const std::string ftr = b.file("ftr"), tfr = b.file("tfr");
    b.disco.guasto = [](Operazione op, std::string_view) { return op == Operazione::scrivi ? 61 : 0; };
    azzera(b, "01/01/2012");
    EXPECT_EQ(b.file("ftr"), ftr);
    EXPECT_EQ(b.file("tfr"), tfr);
    EXPECT_EQ(b.piattaforma.messaggi.back().testo, "Operazione effettuata");
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

TEST(Azzeramento, NomeDelLavoroSoloMentreLavora) {
    struct Curiosa : PiattaformaProva {
        Mrvaazz* schermo = nullptr;
        std::string visto;
        void refresh() override {
            if (schermo) visto = schermo->msg.caption();
        }
    } piattaforma;
    Banco dati;
    dati.fatture({documento(1, "20110101")});
    Programma prog(dati.disco, piattaforma, "1");
    registra_tutte(prog.schermi);
    prog.schermi.apri("vexoraf");
    Registro::Turno turno(prog.schermi);
    auto& s = prog.schermi.carica<Mrvaazz>("mrvaazz");
    piattaforma.schermo = &s;
    s.azz8.spuntata(true);
    piattaforma.risposte = {Risposta::si, Risposta::si};
    s.command3d4[1].premi();
    EXPECT_EQ(piattaforma.visto, "Azzero l'archivio fatture ricevute");
    EXPECT_EQ(s.msg.caption(), "");
}

}  // namespace
