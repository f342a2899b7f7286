// What a story cannot show: a disc that fails, the turns of the interface, the archive of another process.
#include <gtest/gtest.h>

#include "core/testo.h"
#include "suppliers/duplica.h"
#include "suppliers/lumfor.h"
#include "suppliers/lumftem.h"
#include "suppliers/mrvsel.h"
#include "tests/supporto/banco.h"

namespace ambra {
namespace {

std::vector<RecFornitore> molti(int quanti) {
    std::vector<RecFornitore> r;
    for (int i = 1; i <= quanti; ++i) r.push_back(fornitore_vuoto("F" + con_zeri(i, 5)));
    return r;
}

TEST(CercaNome, TrovaQualunqueNomeColPrefisso) {
    DiscoMemoria disco;
    Errore err;
    FileDi<RecNome> f(err, 1);
    f.apri(disco, "f");
    RecNome r{};
    const std::vector<std::string> nomi = {"ALFA", "BETA", "BETA DUE", "GAMMA", "ZETA"};
    for (const auto& n : nomi) {
        r.nome = n;
        disco.contenuto("f") += byte_di(r);
    }
    struct {
        std::string chiave;
        int trovato;
    } const casi[] = {{"", 3},  {"A", 1}, {"ALFA", 1},  {"B", 3}, {"BETA", 3}, {"BETA D", 3}, {"BETA  ", 2},
                      {"G", 4}, {"Z", 5}, {"ZETAX", 0}, {"0", 0}, {"\xFF", 0}, {"GAMMB", 0},  {"ZETA", 5}};
    for (const auto& c : casi) EXPECT_EQ(cerca_nome(f, 5, c.chiave), c.trovato) << c.chiave;
    EXPECT_EQ(cerca_nome(f, 0, "ALFA"), 1) << "with a count of 0 the first record is still tried";
    EXPECT_EQ(cerca_nome(f, 1, "ALFA"), 1);
    EXPECT_EQ(cerca_nome(f, 1, "BETA"), 0);
    EXPECT_EQ(cerca_nome(f, 5, std::string(41, 'A')), 0);
}

TEST(Registro, UnDiscoCheNonScriveNonFermaNiente) {
    Banco b;
    b.fornitori(molti(3));
    b.avvia();
    b.prog.schermi.apri("lumfor");
    const std::string prima = b.file("for") + b.file("srf") + b.file("tfr");
    b.disco.guasto = [](Operazione op, std::string_view) {
        return op == Operazione::scrivi ? errore::accesso : 0;
    };
    auto& l = b.schermo<Lumfor>("lumfor");
    l.dati.scheda.Text2[0].digita("nuovo");
    l.b_conferma.premi();
    l.b_ins.premi();
    l.b_conferma.premi();
    b.piattaforma.risposte = {Risposta::si};
    l.b_eli.premi();
    l.b_srt.premi();
    EXPECT_EQ(b.file("for") + b.file("srf") + b.file("tfr"), prima);
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

TEST(Registro, UnaLetturaMancataLasciaLaSchedaComEra) {
    Banco b;
    b.fornitori(molti(3));
    b.avvia();
    b.prog.schermi.apri("lumfor");
    auto& l = b.schermo<Lumfor>("lumfor");
    b.disco.guasto = [](Operazione op, std::string_view p) {
        return op == Operazione::leggi && p.ends_with(".for") ? errore::dispositivo : 0;
    };
    l.dati.HScroll1.scorri(3);
    EXPECT_EQ(l.dati.scheda.Text2[0].testo(), "F00001");
    EXPECT_EQ(l.dati.moverec, 3);
}

TEST(Registro, IlRiordinoTieneVivaLInterfaccia) {
    Banco b;
    b.fornitori(molti(1000));
    b.avvia();
    b.prog.schermi.apri("lumfor");
    const int prima = b.piattaforma.rinfreschi;
    b.schermo<Lumfor>("lumfor").b_srt.premi();
    EXPECT_GE(b.piattaforma.rinfreschi - prima, 16 + 9);
    EXPECT_EQ(b.piattaforma.messaggi.back().testo, "Riordino eseguito");
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

TEST(Registro, UnFornitoreAggiuntoDaAltriSiTrovaLoStesso) {
    Banco b;
    b.fornitori(molti(2));
    b.avvia();
    b.prog.schermi.apri("lumfor");
    b.file("tfr")[0] = 3;
    b.file("for") += byte_di(fornitore_vuoto("Zeta"));
    RecNome r{};
    r.nome = "ZETA";
    r.numero = 3;
    b.file("srf") += byte_di(r);
    auto& l = b.schermo<Lumfor>("lumfor");
    l.dati.nome.digita("zeta");
    l.dati.nome.premi_invio();
    EXPECT_EQ(l.dati.scheda.Text2[0].testo(), "Zeta");
    EXPECT_EQ(l.dati.HScroll1.valore(), 3);
}

TEST(CercaNome, UnIndiceDiByteZeroNonFerma) {
    DiscoMemoria disco;
    Errore err;
    FileDi<RecNome> f(err, 1);
    f.apri(disco, "f");
    disco.contenuto("f").assign(5 * sizeof(RecNome), '\0');
    EXPECT_EQ(cerca_nome(f, 5, "ALFA"), 0);
    EXPECT_EQ(cerca_nome(f, 5, " "), 3) << "zero bytes are blanks";
    EXPECT_EQ(cerca_nome(f, 5, ""), 3);
}

TEST(Registro, IlContatorePienoNonTorna) {
    Banco b;
    b.fornitori(molti(1));
    b.file("tfr")[0] = static_cast<char>(0xFF);
    b.file("tfr")[1] = 0x7F;
    b.avvia();
    b.prog.schermi.apri("lumfor");
    auto& l = b.schermo<Lumfor>("lumfor");
    l.b_ins.premi();
    l.b_conferma.premi();
    EXPECT_EQ(b.file("tfr").substr(0, 2), "\xFF\x7F");
}

TEST(Duplica, UnoStabileIlleggibileRestaComE) {
    Banco b;
    b.fornitori(molti(1));
    b.memoria.contenuto(nome_file("002", "tfr")).assign(140, '\0');
    b.memoria.contenuto(nome_file("003", "tfr")).assign(140, '\0');
    b.avvia();
    b.disco.guasto = [](Operazione op, std::string_view p) {
        return op == Operazione::leggi && p.ends_with("002.tfr") ? errore::dispositivo : 0;
    };
    std::vector<std::string> detti;
    duplica(b.prog, fornitore_vuoto("X"), [&](const std::string& s) { detti.push_back(s); });
    EXPECT_EQ(detti.size(), 2u);
    EXPECT_EQ(b.memoria.contenuto(nome_file("002", "for")), "");
    EXPECT_EQ(b.memoria.contenuto(nome_file("003", "for")), byte_di(fornitore_vuoto("X")));
}

TEST(Duplica, DiceOgniStabileMentreLavora) {
    Banco b;
    b.fornitori(molti(1));
    RecStabile s{};
    s.nome = "VIA PO";
    std::string& tot = b.memoria.contenuto("\\lumdir\\lumora\\lumora.tot");
    tot.assign(418, ' ');
    tot += byte_di(s);
    b.memoria.contenuto(nome_file("002", "tfr")).assign(140, '\0');
    b.avvia();
    b.prog.schermi.apri("lumfor");
    std::string visto;
    b.prog.schermi.spia = [&](Registro::Evento e, Schermo& schermo) {
        if (e == Registro::Evento::close && schermo.nome() == "lumwait") {
            EXPECT_EQ(schermo.caption(), "Lumeria Gestione condominio");
            visto = schermo.trova("Label1")->caption();
        }
    };
    b.piattaforma.risposte = {Risposta::si};
    b.schermo<Lumfor>("lumfor").b_dup.premi();
    EXPECT_EQ(visto, "Aggiorno lo stabile:VIA PO");
    EXPECT_EQ(b.prog.schermi.caricato("lumwait"), nullptr);
}

TEST(TrovaCodfis, ConfrontaSenzaGliSpaziAiLati) {
    Banco b;
    auto uno = fornitore_vuoto("a"), due = fornitore_vuoto("b"), tre = fornitore_vuoto("c");
    uno.codfis = "A B";
    due.codfis = "  AB";
    tre.codfis = "";
    b.fornitori({uno, due, tre});
    b.avvia();
    const auto trova = [&](std::string_view codice) {
        Testo<16> t{};
        t = codice;
        return trova_codfis(b.prog.arc.fornitori, 3, t);
    };
    EXPECT_EQ(trova("A B"), 1);
    EXPECT_EQ(trova(" AB  "), 2);
    EXPECT_EQ(trova(""), 3);
    EXPECT_EQ(trova("ab"), 0);
    Testo<16> zeri{};
    EXPECT_EQ(trova_codfis(b.prog.arc.fornitori, 3, zeri), 3) << "zero bytes are blanks";
    EXPECT_EQ(trova_codfis(b.prog.arc.fornitori, 2, zeri), 0);
}

TEST(Lista, OltreIlLimiteDelleRigheNonCresce) {
    Banco b;
    b.fornitori(molti(32100));
    b.avvia();
    b.prog.schermi.apri("mrvsel");
    EXPECT_EQ(b.schermo<Mrvsel>("mrvsel").elenco.righe(), 32000);
    EXPECT_EQ(b.schermo<Mrvsel>("mrvsel").elenco.testo(31999, 4), "31999");
}

TEST(Lista, ChiamanteChiusoNelFrattempo) {
    Banco b;
    b.fornitori(molti(2));
    b.avvia();
    b.prog.nuovafattura = 1;
    b.prog.schermi.apri("mrvsel");
    {
        Registro::Turno turno(b.prog.schermi);
        b.schermo<Mrvsel>("mrvsel").elenco.scegli(1, 0);
    }
    EXPECT_EQ(b.prog.nuovafattura, 99);
    EXPECT_EQ(b.prog.schermi.caricato("mrvsel"), nullptr);
    EXPECT_EQ(b.prog.schermi.caricato("lumfor"), nullptr);
}

TEST(Lumftem, TornaSulFornitoreDellaFattura) {
    Banco b;
    b.fornitori(molti(5));
    b.avvia();
    b.prog.statofattura = 1;
    b.prog.nuovafattura = 1;
    b.prog.recfornitore = 4;
    b.prog.schermi.apri("lumftem");
    auto& l = b.schermo<Lumftem>("lumftem");
    EXPECT_EQ(l.dati.movepos, 4);
    EXPECT_EQ(l.caption(), "Modifica fornitore");
    EXPECT_EQ(b.prog.nuovafattura, 1);
    b.prog.recfornitore = 77;
    b.prog.schermi.apri("lumftem");
    EXPECT_EQ(l.dati.movepos, 1) << "a supplier that is not in the index";
}

}  // namespace
}  // namespace ambra
