// Every pair of commands that write, on two programs at once, the one at each operation of the other on the
// disc: what comes of it is what would come of the one after the other.
#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/insieme/posto.h"
#include "tests/supporto/intreccio.h"

using namespace ambra;

namespace {

constexpr const char* kCambiato = "cambiato in archivio";
constexpr const char* kCambiata = "cambiata in archivio";
constexpr const char* kOccupato = "occupato da un altro programma";

struct Esito {
    Stato stato;
    bool rifiutato[2] = {};  // the user was told that his document is not what he saw
    int movimenti[2] = {};
};

struct Scena {
    ArchivioPronto archivio;
    Posto uno{archivio, "UNO"}, due{archivio, "DUE"};

    void controlla() {
        for (Posto* p : {&uno, &due}) {
            EXPECT_EQ(p->prog.arc.sezioni_prese(), 0);
            EXPECT_TRUE(p->avvisi.empty());
        }
        EXPECT_FALSE(archivio.memoria.bloccato(nome_file("001", "tfr")));
    }
    Esito esito() {
        controlla();
        Esito e;
        e.stato = stato_di(archivio);
        e.rifiutato[0] = uno.detto(kCambiato) || uno.detto(kCambiata);
        e.rifiutato[1] = due.detto(kCambiato) || due.detto(kCambiata);
        e.movimenti[0] = uno.movimenti;
        e.movimenti[1] = due.movimenti;
        return e;
    }
};

// What the two leave behind one after the other, each alone, and with both windows open before the commands.
std::vector<Esito> di_seguito(const Azione& a, const Azione& b) {
    const std::function<void(Scena&)> modi[] = {[&](Scena& s) { a(s.uno), b(s.due); },
                                                [&](Scena& s) { b(s.due), a(s.uno); },
                                                [&](Scena& s) { a(s.uno); },
                                                [&](Scena& s) { b(s.due); },
                                                [&](Scena& s) {
                                                    a.prepara(s.uno), b.prepara(s.due);
                                                    a.comanda(s.uno), b.comanda(s.due);
                                                },
                                                [&](Scena& s) {
                                                    a.prepara(s.uno), b.prepara(s.due);
                                                    b.comanda(s.due), a.comanda(s.uno);
                                                }};
    std::vector<Esito> r;
    for (const auto& modo : modi) {
        Scena s;
        modo(s);
        r.push_back(s.esito());
    }
    return r;
}

bool ammesso(const Esito& e, const std::vector<Esito>& di_seguito) {
    bool documenti = false, conti = false, fornitori = false;
    for (std::size_t come = 0; come < di_seguito.size(); ++come) {
        const Esito& d = di_seguito[come];
        // Who was refused has written nothing: the other was alone.
        const bool soli = come == 2 ? e.rifiutato[1] : come == 3 ? e.rifiutato[0] : true;
        documenti = documenti || (soli && e.stato.stessi_documenti(d.stato));
        fornitori = fornitori || (soli && e.stato.stessi_fornitori(d.stato));
        conti = conti || (e.movimenti[0] == d.movimenti[0] && e.movimenti[1] == d.movimenti[1] &&
                          e.stato.stessi_conti(d.stato));
    }
    return documenti && conti && fornitori;
}

// Calls `scena(j)` for each step of the second program that it may stand still at, as long as it has one: 0
// is none. All of them take long.
void per_ogni_fermata(const std::function<bool(long j)>& scena) {
    const bool a_fondo = std::getenv("AMBRA_A_FONDO") != nullptr;
    for (long j = 0; (scena(j) || j == 0) && a_fondo; ++j) continue;
}

class Coppie : public testing::TestWithParam<std::size_t> {};

TEST_P(Coppie, UnoDopoLAltro) {
    const Azione& a = kAzioni[GetParam()];
    long incontri = 0;
    for (const Azione& b : kAzioni) {
        const auto attesi = di_seguito(a, b);
        const bool limiti = std::string_view(a.nome) == "limiti" || std::string_view(b.nome) == "limiti";
        per_ogni_fermata([&](long j) {
            bool fermata = false;
            per_ogni_passo([&](long k) {
                Scena s;
                const Corsa c = intreccia(
                    s.uno.memoria, [&] { a(s.uno); }, s.due.memoria, [&] { b(s.due); }, k,
                    SeOccupato::aspetta, j);
                const Esito e = s.esito();
                incontri += c.occupato;
                fermata = fermata || c.fermata;
                EXPECT_FALSE(s.uno.detto(kOccupato) || s.due.detto(kOccupato)) << "nobody holds it for long";
                if (limiti) return c;  // both counters as they were read: the way out undoes on purpose
                if (!ammesso(e, attesi))
                    ADD_FAILURE() << a.nome << " / " << b.nome << ", step " << k << ", standing still at "
                                  << j << "\n"
                                  << in_breve(e.stato) << "--- one after the other:\n"
                                  << in_breve(attesi[0].stato) << "--- or:\n"
                                  << in_breve(attesi[1].stato);
                return HasFailure() ? Corsa{} : c;
            });
            return fermata && !HasFailure();
        });
        if (HasFailure()) return;
    }
    EXPECT_GT(incontri, 0) << "some must have met at a lock";
}

TEST(Azioni, OgnunaFaQualcosa) {
    ArchivioPronto intatto;
    for (const Azione& a : kAzioni) {
        Scena s;
        a(s.uno);
        const Esito e = s.esito();
        const Stato prima = stato_di(intatto);
        const bool ferma =
            e.stato.stessi_documenti(prima) && e.stato.stessi_conti(prima) && e.stato.stessi_fornitori(prima);
        EXPECT_EQ(ferma, std::string_view(a.nome) == "limiti") << a.nome;
        EXPECT_EQ(e.movimenti[0], std::string_view(a.nome).ends_with("addebita") ? 1 : 0) << a.nome;
    }
}

// Whoever is told at once that the archive is held has written nothing, and his next try completes.
TEST_P(Coppie, ChiTrovaOccupatoRiprova) {
    const Azione& a = kAzioni[GetParam()];
    int detti = 0;
    for (const char* nome :
         {"registra", "cambia il pdf", "elimina dallo schermo", "elimina dalla riga", "paga",
          "azzera il saldo", "versa la ritenuta", "riordina", "azzera l'archivio", "inserisce un fornitore",
          "elimina il fornitore dei documenti", "riordina i fornitori"}) {
        const Azione& b = azione(nome);
        if (std::string_view(a.nome) == "limiti") continue;
        const auto attesi = di_seguito(a, b);
        per_ogni_passo([&](long k) {
            Scena s;
            const Corsa c = intreccia(
                s.uno.memoria, [&] { a(s.uno); }, s.due.memoria, [&] { b(s.due); }, k, SeOccupato::rinuncia);
            EXPECT_EQ(s.due.detto(kOccupato), c.occupato) << a.nome << " / " << nome << " " << k;
            if (c.occupato) {
                ++detti;
                const Stato solo = stato_di(s.archivio);
                EXPECT_TRUE(solo.stessi_documenti(attesi[2].stato) && solo.stessi_fornitori(attesi[2].stato))
                    << a.nome << " / " << nome << " " << k;
                b.comanda(s.due);
                if (!s.due.aperto("mrvaazz") && attesi[0].stato.documenti != solo.documenti &&
                    !s.due.aperto("lumfor") && stato_di(s.archivio).stessi_documenti(solo))
                    b(s.due);  // it had not even opened
            }
            const Esito e = s.esito();
            EXPECT_TRUE(ammesso(e, attesi))
                << a.nome << " / " << nome << " " << k << ": " << in_breve(e.stato);
            return HasFailure() ? Corsa{} : c;
        });
        if (HasFailure()) return;
    }
    EXPECT_EQ(detti > 0, std::string_view(a.nome) != "limiti");
}

// Whoever waits for another program's lock, to open a document or to write, shows the hourglass meanwhile,
// and no longer afterwards.
TEST_P(Coppie, ChiAspettaMostraLaClessidra) {
    const Azione& a = kAzioni[GetParam()];
    for (const bool da_prima : {false, true}) {
        Scena s;
        int attese = 0;
        s.uno.memoria.occupato = [&](std::string_view, int) {
            ++attese;
            EXPECT_EQ(s.uno.piattaforma.puntatore, Puntatore::clessidra) << a.nome;
            return false;
        };
        const auto tieni = [&] {
            for (const auto parte : {Serratura::fornitori, Serratura::documenti, Serratura::conti})
                ASSERT_EQ(s.due.memoria.blocca(nome_file("001", "tfr"), parte, {}), 0);
        };
        if (da_prima) tieni();
        a.prepara(s.uno);
        if (!da_prima) tieni();
        if (!da_prima || attese == 0) a.comanda(s.uno);
        EXPECT_GT(attese, 0) << a.nome;
        EXPECT_EQ(s.uno.piattaforma.puntatore, Puntatore::normale) << a.nome;
        s.uno.memoria.occupato = nullptr;
    }
}

std::string nome(const testing::TestParamInfo<std::size_t>& i) {
    std::string s = kAzioni[i.param].nome;
    for (char& c : s)
        if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
    return s;
}
INSTANTIATE_TEST_SUITE_P(Tutte, Coppie, testing::Range(std::size_t{0}, kAzioni.size()), nome);

}  // namespace
