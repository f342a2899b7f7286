// Two programs on the suppliers of one archive, a step of the one between any two of the other: nobody is
// lost, the counters are right, the index is sound.
#include <gtest/gtest.h>

#include "suppliers/duplica.h"
#include "tests/suppliers/due_registri.h"
#include "tests/supporto/intreccio.h"

namespace ambra {
namespace {

void ogni_coppia(bool libero) {
    const auto prime = azioni("Prima"), seconde = azioni("Seconda");
    for (const Azione& a : prime)
        for (const Azione& b : seconde)
            for (const long j : libero ? std::vector{0L} : std::vector{0L, 4L})
                per_ogni_passo([&](long k) {
                    SCOPED_TRACE(std::string(a.nome) + ", " + b.nome + ", step " + std::to_string(k) + ", " +
                                 std::to_string(j));
                    Due d;
                    prepara(d, libero);
                    const Corsa corsa = intreccia(
                        d.memoria, [&] { a.fai(d.uno(), d.piattaforma); }, d.altra,
                        [&] { b.fai(d.due(), d.piattaforma2); }, k, SeOccupato::aspetta, j);
                    const Archivio1 archivio(d.memoria);
                    archivio.sano();
                    a.controlla(archivio, "Zeta", "Prima");
                    b.controlla(archivio, "Beta", "Seconda");
                    EXPECT_EQ(archivio.vivi("Alfa").size(), 1u);
                    EXPECT_EQ(d.uno().stato, Lumfor::kSfoglia);
                    EXPECT_EQ(d.due().stato, Lumfor::kSfoglia);
                    return testing::Test::HasFailure() ? Corsa{} : corsa;
                });
}

TEST(Insieme, OgniCoppiaAOgniPasso) {
    ogni_coppia(false);
}

TEST(Insieme, OgniCoppiaAOgniPassoConUnPostoLibero) {
    ogni_coppia(true);
}

TEST(Insieme, DueCampiDelloStessoFornitore) {
    per_ogni_passo([](long k) {
        Due d;
        d.fornitori({ditta("Zeta", "Z"), ditta("Beta", "B")});
        d.apri();
        d.uno().dati.scheda.Text2[14].digita("02 5");
        d.due().dati.scheda.Text2[0].digita("Alfa");
        const Corsa corsa = intreccia(
            d.memoria, [&] { d.uno().b_conferma.premi(); }, d.altra, [&] { d.due().b_conferma.premi(); }, k);
        const Archivio1 a(d.memoria);
        a.sano();
        EXPECT_EQ(a.schede[0].inte1.rifilato(), "Alfa") << k;
        EXPECT_EQ(a.schede[0].tel[0].rifilato(), "02 5") << k;
        return corsa;
    });
}

TEST(Insieme, DuplicareDoveUnAltroInserisce) {
    for (const long j : {0L, 4L})
        per_ogni_passo([&](long k) {
            Due d("2");
            d.fornitori({ditta("Zeta", "Z")});
            d.memoria.contenuto(nome_file("002", "tfr")).assign(140, '\0');
            d.apri();
            const Corsa corsa = intreccia(
                d.memoria, [&] { EXPECT_TRUE(duplica(d.prog, ditta("Zeta", "Z"), {})); }, d.altra,
                [&] { inserisci(d.due(), "Beta"); }, k, SeOccupato::aspetta, j);
            const Archivio1 a(d.memoria, "002");
            EXPECT_EQ(int(a.totali.parola[0]), 2) << k;
            EXPECT_EQ(a.vivi("Zeta").size(), 1u) << k;
            EXPECT_EQ(a.vivi("Beta").size(), 1u) << k;
            EXPECT_EQ(a.indice.size(), 2u) << k;
            return corsa;
        });
}

TEST(Insieme, QuelloCheEOccupatoNonSiScriveESiDice) {
    for (const Azione& a : azioni("Nuova")) {
        Due d;
        prepara(d, true);
        const std::string prima = d.file("for") + d.file("srf") + d.file("tfr");
        ASSERT_EQ(d.altra.blocca(nome_file("001", "tfr"), Serratura::fornitori, {}), 0);
        a.fai(d.uno(), d.piattaforma);
        EXPECT_EQ(d.file("for") + d.file("srf") + d.file("tfr"), prima) << a.nome;
        ASSERT_FALSE(d.piattaforma.messaggi.empty()) << a.nome;
        const auto& detto = d.piattaforma.messaggi.back();
        EXPECT_EQ(detto.testo, "L'archivio è occupato da un altro programma: riprovare"_it) << a.nome;
        EXPECT_EQ(detto.icona, Icona::stop);
        EXPECT_EQ(d.piattaforma.puntatore, Puntatore::normale);
        EXPECT_EQ(d.prog.arc.sezioni_prese(), 0);
        // Free again, the same command goes on from the fields that stayed.
        d.altra.sblocca(nome_file("001", "tfr"), Serratura::fornitori);
        if (d.uno().stato == Lumfor::kSfoglia) continue;
        d.uno().b_conferma.premi();
        EXPECT_EQ(d.uno().stato, Lumfor::kSfoglia) << a.nome;
        a.controlla(Archivio1(d.memoria), "Zeta", "Nuova");
    }
}

TEST(Insieme, UnoStabileOccupatoNonFermaGliAltri) {
    Due d("2");
    d.fornitori({ditta("Zeta", "Z")});
    for (const char* nnn : {"002", "003"}) d.memoria.contenuto(nome_file(nnn, "tfr")).assign(140, '\0');
    d.apri();
    ASSERT_EQ(d.altra.blocca(nome_file("002", "tfr"), Serratura::fornitori, {}), 0);
    d.piattaforma.risposte = {Risposta::si};
    d.uno().b_dup.premi();
    EXPECT_EQ(d.piattaforma.messaggi.back().testo,
              "L'archivio è occupato da un altro programma: riprovare"_it);
    EXPECT_EQ(d.memoria.contenuto(nome_file("002", "for")), "");
    EXPECT_EQ(Archivio1(d.memoria, "003").vivi("Zeta").size(), 1u);
    d.altra.sblocca(nome_file("002", "tfr"), Serratura::fornitori);
    d.piattaforma.risposte = {Risposta::si};
    d.uno().b_dup.premi();
    EXPECT_EQ(d.piattaforma.messaggi.size(), 3u) << "two questions, one refusal";
    EXPECT_EQ(Archivio1(d.memoria, "002").vivi("Zeta").size(), 1u);
    EXPECT_EQ(int(Archivio1(d.memoria, "003").totali.parola[0]), 1);
}

// Whichever write is refused, nobody is there by half, the fields stay, and the next "Conferma" does it once.
TEST(Registro, OgniScritturaRifiutataLasciaLArchivioSano) {
    for (const bool libero : {false, true})
        for (const Azione& a : azioni("Nuova"))
            for (int quale = 1, fatte = 0;; ++quale) {
                SCOPED_TRACE(std::string(a.nome) + ", write " + std::to_string(quale));
                Due d;
                prepara(d, libero);
                fatte = 0;
                d.disco.guasto = [&](Operazione op, std::string_view) {
                    return op == Operazione::scrivi && ++fatte == quale ? errore::disco_pieno : 0;
                };
                a.fai(d.uno(), d.piattaforma);
                d.disco.guasto = {};
                if (fatte < quale) break;
                // Behind the count may lie what nobody counts.
                Archivio1 archivio(d.memoria);
                archivio.schede.resize(libero ? 4 : 3);
                archivio.indice.resize(libero ? 4 : 3);
                archivio.sano();
                if (d.uno().stato == Lumfor::kSfoglia) continue;
                d.uno().b_conferma.premi();
                EXPECT_EQ(d.uno().stato, Lumfor::kSfoglia);
                Archivio1(d.memoria).sano();
                a.controlla(Archivio1(d.memoria), "Zeta", "Nuova");
            }
}

}  // namespace
}  // namespace ambra
