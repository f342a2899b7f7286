// The reorganisation of the invoice file: order, removal, every stage that can fail, death at any moment.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <map>
#include <random>

#include "core/disco_vero.h"
#include "core/testo.h"
#include "tests/supporto/banco.h"
#include "tests/supporto/seme.h"
#include "worklist/riordino.h"
#include "worklist/vexoraf.h"

using namespace ambra;

namespace {

RecFattura documento(const std::string& numero, const std::string& datareg, bool cancellata = false) {
    RecFattura f = fattura_vuota();
    f.numdoc = numero;
    f.datareg = datareg;
    f.cancellata = cancellata ? 1 : 0;
    return f;
}

// The numbers of the documents of a file, record by record.
std::vector<std::string> numeri(const std::string& file) {
    std::vector<std::string> r;
    for (std::size_t i = 0; i + sizeof(RecFattura) <= file.size(); i += sizeof(RecFattura))
        r.emplace_back(rifila(std::string_view(file).substr(i + offsetof(RecFattura, numdoc), 10)));
    return r;
}

int contatore(Banco& b) {
    RecTotali t{};
    std::memcpy(&t, b.file("tfr").data() + sizeof t, sizeof t);
    return t.parola[0];
}

struct BancoRiordino : Banco {
    Vexoraf& schermo_principale() { return static_cast<Vexoraf&>(*prog.schermi.caricato("vexoraf")); }
    void riordina(bool conferma = true) {
        piattaforma.risposte = {conferma ? Risposta::si : Risposta::no};
        piattaforma.messaggi.clear();
        schermo_principale().riordino();
    }
    // The text of the message that followed the question, or "".
    std::string guasto() const {
        if (piattaforma.messaggi.size() < 2) return "";
        const auto& m = piattaforma.messaggi.back();
        EXPECT_EQ(m.titolo, "Attenzione");
        EXPECT_EQ(m.icona, Icona::stop);
        EXPECT_EQ(m.bottoni, Bottoni::ok);
        return a_utf8(m.testo);
    }
};

const std::string kCoda =
    " Probabilmente qualche applicazione non è stata chiusa correttamente oppure qualche computer della rete "
    "sta utilizzando Lumeria. Verificate ed eventualmente riavviate Windows.";
const std::string kCaricamento =
    " durante la procedura di caricamento in memoria del dati da riordinare." + kCoda;
const std::string kRiordino =
    " durante la procedura di riordino dei dati in memoria del dati da riordinare." + kCoda;
const std::string kDuplicazione = " durante la procedura di duplicazione del file indici." + kCoda;
const std::string kApertura = " durante la procedura di apertura del file indici." + kCoda;
const std::string kSalvataggio = " durante la procedura di salvataggio dei dati riordinati." + kCoda;

std::string errore_n(int n) {
    return "Si è verificato l'errore " + std::to_string(n);
}

// The sort as it was told: quadratic, taking entry j out and putting it at place i.
void ordine_raccontato(std::vector<VoceRiordino>& v) {
    for (std::size_t i = 0; i + 1 < v.size(); ++i)
        for (std::size_t j = i + 1; j < v.size(); ++j)
            if (v[i].chiave > v[j].chiave) {
                const VoceRiordino tolta = v[j];
                for (std::size_t k = j; k > i; --k) v[k] = v[k - 1];
                v[i] = tolta;
            }
}

TEST(Riordino, OrdinaComeRaccontato) {
    std::mt19937 caso(20240315);
    for (int giro = 0; giro < 400; ++giro) {
        const int quante = std::uniform_int_distribution<>(0, 120)(caso);
        const int chiavi = std::uniform_int_distribution<>(1, 40)(caso);
        std::vector<VoceRiordino> a, b;
        for (int i = 1; i <= quante; ++i)
            a.push_back({i, std::uniform_int_distribution<long>(-1, chiavi)(caso)});
        b = a;
        ordina_voci(a);
        ordine_raccontato(b);
        for (std::size_t i = 0; i < a.size(); ++i) ASSERT_EQ(a[i].rec, b[i].rec) << "giro " << giro;
    }
}

TEST(Riordino, ChiaveDellaData) {
    EXPECT_EQ(chiave_riordino("20240315"), 20240315);
    EXPECT_EQ(chiave_riordino("        "), 0);
    EXPECT_EQ(chiave_riordino("xx240315"), 0);
    EXPECT_EQ(chiave_riordino("2024x315"), 2024);
    EXPECT_EQ(chiave_riordino("  240315"), 240315);
    EXPECT_EQ(chiave_riordino("-1"), -1);
    EXPECT_EQ(chiave_riordino("99999999"), 99999999);
}

TEST(Riordino, TreDocumentiQuelloInMezzoCancellato) {
    BancoRiordino b;
    b.fatture({documento("B", "20240202"), documento("X", "20240101", true), documento("A", "20240101")});
    b.file("tfr")[28 + 2] = 1;
    const std::string prima = b.file("ftr");
    b.avvia();
    b.riordina();
    EXPECT_EQ(b.guasto(), "");
    EXPECT_EQ(contatore(b), 2);
    EXPECT_EQ(numeri(b.file("ftr")), (std::vector<std::string>{"A", "B", "A"}));
    EXPECT_EQ(b.file("$$$"), prima);
    EXPECT_EQ(b.file("ftr").size(), 3 * sizeof(RecFattura));
    EXPECT_EQ(b.file("tfr")[28 + 2], 1) << "word 1 stays";
    EXPECT_EQ(b.schermo_principale().elenco.testo(1, 2), "A") << "the list is rebuilt";
    EXPECT_EQ(b.schermo_principale().righe, 3);
    ASSERT_EQ(b.piattaforma.messaggi.size(), 1u);
    EXPECT_EQ(b.piattaforma.messaggi[0].testo, "Confermi il riordino?");
    EXPECT_EQ(b.piattaforma.messaggi[0].titolo, "Riordino archivio");
    EXPECT_EQ(b.piattaforma.messaggi[0].icona, Icona::domanda);
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

TEST(Riordino, StessaDataTieneOrdine) {
    BancoRiordino b;
    b.fatture({documento("1", "20240202"), documento("2", "20240101"), documento("3", "20240202"),
               documento("4", "20240101"), documento("5", "20240202")});
    b.avvia();
    b.riordina();
    EXPECT_EQ(numeri(b.file("ftr")), (std::vector<std::string>{"2", "4", "1", "3", "5"}));
    EXPECT_EQ(contatore(b), 5);
}

TEST(Riordino, SoloUnoEsattoEMarcaDiCancellazione) {
    BancoRiordino b;
    auto strano = documento("2", "20240101");
    strano.cancellata = 2;
    b.fatture({documento("1", "20240202"), strano});
    b.avvia();
    b.riordina();
    EXPECT_EQ(numeri(b.file("ftr")), (std::vector<std::string>{"2", "1"}));
}

TEST(Riordino, RispostaNoAggiornaSolo) {
    BancoRiordino b;
    b.fatture({documento("1", "20240202"), documento("2", "20240101")});
    b.avvia();
    b.fatture({documento("3", "20240101")});  // another computer's work, not yet in the list
    const std::string ftr = b.file("ftr"), tfr = b.file("tfr");
    b.riordina(false);
    EXPECT_EQ(b.file("ftr"), ftr);
    EXPECT_EQ(b.file("tfr"), tfr);
    EXPECT_FALSE(b.memoria.esiste("\\lumdir\\lumora\\lum001.$$$"));
    EXPECT_EQ(b.schermo_principale().elenco.testo(3, 2), "3");
}

TEST(Riordino, ArchivioVuoto) {
    BancoRiordino b;
    b.fatture({});
    b.avvia();
    b.riordina();
    EXPECT_EQ(b.guasto(), "");
    EXPECT_TRUE(b.memoria.esiste("\\lumdir\\lumora\\lum001.$$$"));
    EXPECT_EQ(b.file("ftr"), "");
    EXPECT_EQ(contatore(b), 0);
}

TEST(Riordino, ContatoreNegativo) {
    BancoRiordino b;
    b.fatture({documento("1", "20240202")});
    b.file("tfr").replace(28, 2, "\xFF\xFF");
    b.avvia();
    const std::string ftr = b.file("ftr");
    b.riordina();
    EXPECT_EQ(b.guasto(), "");
    EXPECT_EQ(contatore(b), -1);
    EXPECT_EQ(b.file("ftr"), ftr);
}

TEST(Riordino, OltreDiecimila) {
    BancoRiordino b;
    std::vector<RecFattura> tutte(10002, documento("x", "20240101"));
    tutte[7].cancellata = 1;
    b.fatture(tutte);
    b.avvia();
    const std::string ftr = b.file("ftr");
    b.riordina();
    EXPECT_EQ(b.guasto(), errore_n(9) + kCaricamento);
    EXPECT_EQ(contatore(b), 10001) << "the count is already lower";
    EXPECT_EQ(b.file("ftr"), ftr);
    EXPECT_FALSE(b.memoria.esiste("\\lumdir\\lumora\\lum001.$$$"));
    EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
}

TEST(Riordino, DiecimilaPiuUnoCancellatoCiStanno) {
    BancoRiordino b;
    std::vector<RecFattura> tutte(10001, documento("x", "20240102"));
    tutte[3].cancellata = 1;
    tutte[10000].datareg = "20240101";
    tutte[10000].numdoc = "ultimo";
    b.fatture(tutte);
    b.avvia();
    b.riordina();
    EXPECT_EQ(b.guasto(), "");
    EXPECT_EQ(contatore(b), 10000);
    EXPECT_EQ(numeri(b.file("ftr"))[0], "ultimo");
}

struct CasoGuasto {
    const char* operazione;
    const char* file;
    int numero;
    const std::string& coda;
    int contatore;  // what .tfr holds after
};

TEST(Riordino, OgniStadioChePuoFallire) {
    const CasoGuasto casi[] = {
        {"leggi", "tfr", 57, kCaricamento, 2},  {"leggi", "ftr", 57, kCaricamento, 3},
        {"scrivi", "tfr", 61, kCaricamento, 3}, {"copia", "ftr", 61, kDuplicazione, 2},
        {"copia", "ftr", 70, kDuplicazione, 2}, {"apri", "ftr", 55, kDuplicazione, 2},
        {"apri", "$$$", 70, kApertura, 2},      {"leggi", "$$$", 57, kSalvataggio, 2},
        {"scrivi", "ftr", 61, kSalvataggio, 2},
    };
    for (const auto& c : casi) {
        SCOPED_TRACE(std::string(c.operazione) + " " + c.file);
        BancoRiordino b;
        b.fatture({documento("B", "20240202"), documento("X", "20240101", true), documento("A", "20240101")});
        b.avvia();
        const std::string prima = b.file("ftr");
        const std::string mio = nome_file("001", c.file);
        b.disco.guasto = [&](std::string_view op, std::string_view percorso) {
            return op == c.operazione && percorso == mio ? c.numero : 0;
        };
        b.riordina();
        b.disco.guasto = nullptr;
        EXPECT_EQ(b.guasto(), errore_n(c.numero) + c.coda);
        EXPECT_EQ(contatore(b), c.contatore);
        EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
        const bool scritto = c.coda == kSalvataggio && std::string_view(c.operazione) == "leggi";
        if (!scritto) {
            EXPECT_EQ(b.file("ftr"), prima);
        }
        if (c.coda == kSalvataggio) {
            EXPECT_EQ(b.file("$$$"), prima);
        }
        // Only a reopening that fails leaves the file closed.
        const bool chiuso = std::string_view(c.operazione) == "apri" && c.coda == kDuplicazione;
        EXPECT_EQ(b.prog.arc.ftr.aperto(), !chiuso);
    }
}

TEST(Riordino, DopoUnGuastoAltroveNonFallisce) {
    BancoRiordino b;
    b.fatture({documento("B", "20240202"), documento("A", "20240101")});
    b.avvia();
    b.prog.err.numero = 53;
    b.riordina();
    EXPECT_EQ(b.guasto(), "");
    EXPECT_EQ(numeri(b.file("ftr")), (std::vector<std::string>{"A", "B"}));
}

// What the display lets happen in between is looked at after the sort.
struct PiattaformaDistratta : PiattaformaProva {
    Programma* prog = nullptr;
    void refresh() override {
        if (prog) prog->err.numero = 5;
    }
};

TEST(Riordino, ErroreMentreSiOrdina) {
    Banco dati;
    dati.fatture({documento("B", "20240202"), documento("A", "20240101")});
    const std::string prima = dati.file("ftr");
    PiattaformaDistratta piattaforma;
    Programma prog(dati.disco, piattaforma, "1");
    registra_tutte(prog.schermi);
    prog.schermi.apri("vexoraf");
    piattaforma.prog = &prog;
    piattaforma.risposte = {Risposta::si};
    static_cast<Vexoraf&>(*prog.schermi.caricato("vexoraf")).riordino();
    EXPECT_EQ(a_utf8(piattaforma.messaggi.back().testo), errore_n(5) + kRiordino);
    EXPECT_EQ(dati.file("ftr"), prima);
}

TEST(Riordino, UnPostoGuastoCostaSoloSe) {
    BancoRiordino b;
    b.fatture({documento("3", "20240303"), documento("2", "20240202"), documento("1", "20240101")});
    b.avvia();
    int volte = 0;  // the whole block, then the record in the middle
    b.disco.guasto = [&](std::string_view op, std::string_view percorso) {
        if (op != "scrivi" || !percorso.ends_with("ftr")) return 0;
        ++volte;
        return volte == 1 || volte == 3 ? 57 : 0;
    };
    b.riordina();
    EXPECT_EQ(b.guasto(), errore_n(57) + kSalvataggio);
    EXPECT_EQ(numeri(b.file("ftr")), (std::vector<std::string>{"1", "2", "3"}))
        << "record 2 was refused and stood right by chance of its place";
}

// ---- death ----

std::map<std::string, int> conta(const std::string& file) {
    std::map<std::string, int> r;
    for (std::size_t i = 0; i + sizeof(RecFattura) <= file.size(); i += sizeof(RecFattura))
        ++r[file.substr(i, sizeof(RecFattura))];
    return r;
}

bool tiene_tutto(const std::string& file, const std::map<std::string, int>& vivi) {
    auto ora = conta(file);
    return std::all_of(vivi.begin(), vivi.end(), [&](const auto& v) { return ora[v.first] >= v.second; });
}

std::vector<RecFattura> archivio_a_caso(std::mt19937& caso, int quante) {
    std::vector<RecFattura> r;
    for (int i = 0; i < quante; ++i) {
        const int giorno = std::uniform_int_distribution<>(1, 28)(caso);
        const int mese = std::uniform_int_distribution<>(1, 12)(caso);
        r.push_back(documento(std::to_string(i), "2023" + con_zeri(mese, 2) + con_zeri(giorno, 2),
                              std::uniform_int_distribution<>(0, 9)(caso) == 0));
    }
    return r;
}

std::map<std::string, int> vivi_di(const std::vector<RecFattura>& tutte) {
    std::map<std::string, int> r;
    for (const auto& f : tutte)
        if (f.cancellata != 1) ++r[byte_di(f)];
    return r;
}

TEST(Riordino, FermoDopoOgniOperazione) {
    std::mt19937 caso(8);
    const auto tutte = archivio_a_caso(caso, 1200);
    const auto vivi = vivi_di(tutte);
    int fermate = 0;
    for (int fermo = 0;; ++fermo) {
        BancoRiordino b;
        b.fatture(tutte);
        b.avvia();
        int fatte = 0;
        bool morto = false;
        b.disco.guasto = [&](std::string_view, std::string_view) {
            morto = morto || fatte++ >= fermo;
            return morto ? 57 : 0;
        };
        b.riordina();
        ASSERT_TRUE(tiene_tutto(b.file("ftr"), vivi) || tiene_tutto(b.file("$$$"), vivi))
            << "dead after operation " << fermo;
        if (!morto) break;
        ++fermate;
    }
    EXPECT_GT(fermate, 20);
}

// The real thing: a process on the real disc, killed without warning.
TEST(Riordino, UccisoInCentoMomenti) {
    namespace fs = std::filesystem;
    char modello[] = "/tmp/riordino-XXXXXX";
    const fs::path radice = ::mkdtemp(modello);
    const fs::path dove = radice / "lumdir" / "lumora";
    fs::create_directories(dove);
    const auto seme = seme_di_prova();
    std::mt19937 caso(seme);
    int interrotti = 0;
    for (int giro = 0; giro < 100; ++giro) {
        const auto tutte = archivio_a_caso(caso, 3000);
        const auto vivi = vivi_di(tutte);
        std::string dati;
        for (const auto& f : tutte) dati += byte_di(f);
        RecTotali t{};
        t.parola[0] = 3000;
        const std::string tfr = std::string(28, '\0') + byte_di(t) + std::string(3 * 28, '\0');
        DiscoVero disco(radice.string());
        ASSERT_EQ(disco.scrivi_tutto("\\lumdir\\lumora\\lum001.ftr", dati), 0);
        ASSERT_EQ(disco.scrivi_tutto("\\lumdir\\lumora\\lum001.tfr", tfr), 0);
        fs::remove(dove / "lum001.$$$");

        int pronto[2];
        ASSERT_EQ(::pipe(pronto), 0);
        const pid_t figlio = ::fork();
        if (figlio == 0) {
            PiattaformaProva piattaforma;
            piattaforma.risposte = {Risposta::si};
            Programma prog(disco, piattaforma, "1");
            registra_tutte(prog.schermi);
            prog.schermi.apri("vexoraf");
            (void)!::write(pronto[1], "x", 1);
            static_cast<Vexoraf&>(*prog.schermi.caricato("vexoraf")).riordino();
            ::_exit(0);
        }
        char c;
        (void)!::read(pronto[0], &c, 1);
        ::usleep(std::uniform_int_distribution<unsigned>(0, 9000)(caso));
        ::kill(figlio, SIGKILL);
        int stato = 0;
        ::waitpid(figlio, &stato, 0);
        ::close(pronto[0]);
        ::close(pronto[1]);
        if (WIFSIGNALED(stato)) ++interrotti;

        std::string ftr, copia;
        ASSERT_EQ(disco.leggi_tutto("\\lumdir\\lumora\\lum001.ftr", ftr), 0);
        disco.leggi_tutto("\\lumdir\\lumora\\lum001.$$$", copia);
        ASSERT_TRUE(tiene_tutto(ftr, vivi) || tiene_tutto(copia, vivi))
            << "giro " << giro << " seme " << seme;
    }
    EXPECT_GT(interrotti, 0);
    fs::remove_all(radice);
}

}  // namespace
