// The fast road through a zip gives, entry by entry, what the careful one gives: for ordinary archives, which
// it takes to their end, and for damaged and odd ones.
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <new>

#include "fatturapa/compresso.h"
#include "fatturapa/indice_zip.h"
#include "fatturapa/lettore.h"
#include "tests/fatturapa/fatture_prova.h"

using namespace ambra;
using namespace ambra::prova;
using fatturapa::Voce;

namespace {

std::string numero(std::size_t n, int byte) {
    std::string r;
    for (int i = 0; i < byte; ++i) r += static_cast<char>(n >> (8 * i) & 0xFF);
    return r;
}

std::size_t crc(const std::string& s) {
    std::uint32_t r = ~0U;
    for (const char c : s) {
        r ^= static_cast<unsigned char>(c);
        for (int k = 0; k < 8; ++k) r = r >> 1 ^ (r & 1 ? 0xEDB88320U : 0U);
    }
    return ~r;
}

// Deflated, in blocks that are stored.
std::string deflate(const std::string& s) {
    std::string r;
    for (std::size_t i = 0; i == 0 || i < s.size(); i += 60'000) {
        const std::string pezzo = s.substr(i, 60'000);
        r += i + 60'000 >= s.size() ? '\1' : '\0';
        r += numero(pezzo.size(), 2) + numero(~pezzo.size(), 2) + pezzo;
    }
    return r;
}

// An entry as it is written; what is said of it may be wrong.
struct Scritta {
    std::string nome = "a.xml", contenuto = "<a>uno</a>";
    std::size_t metodo = 8, bandiere = 0, sistema = 3, attributi = std::size_t{0100644} << 16;
    std::string extra = "", extra_indice = "", commento = "";
    std::size_t di_piu = 0;  // in the size that is told
    bool lunghezze_in_fondo = false;
};

std::string testa(const Scritta& v, const std::string& dati, bool indice) {
    const bool zero = v.lunghezze_in_fondo && !indice;
    return numero(v.bandiere | (v.lunghezze_in_fondo ? 8 : 0), 2) + numero(v.metodo, 2) + numero(0, 4) +
           numero(zero ? 0 : crc(v.contenuto), 4) + numero(zero ? 0 : dati.size(), 4) +
           numero(zero ? 0 : v.contenuto.size() + v.di_piu, 4) + numero(v.nome.size(), 2) +
           numero((indice ? v.extra_indice : v.extra).size(), 2);
}

struct Archivio {
    std::string byte, indice;
    std::size_t quante = 0;

    void aggiungi(const Scritta& v) {
        const std::string dati = v.metodo == 8 ? deflate(v.contenuto) : v.contenuto;
        const std::size_t dove = byte.size();
        byte += "PK\3\4" + numero(20, 2) + testa(v, dati, false) + v.nome + v.extra + dati;
        if (v.lunghezze_in_fondo)
            byte += "PK\7\10" + numero(crc(v.contenuto), 4) + numero(dati.size(), 4) +
                    numero(v.contenuto.size(), 4);
        nell_indice(v, dati, dove);
    }
    // The last that is added comes first in the index.
    void nell_indice(const Scritta& v, const std::string& dati, std::size_t dove) {
        indice = "PK\1\2" + numero(20 | v.sistema << 8, 2) + numero(20, 2) + testa(v, dati, true) +
                 numero(v.commento.size(), 2) + numero(0, 4) + numero(v.attributi, 4) + numero(dove, 4) +
                 v.nome + v.extra_indice + v.commento + indice;
        ++quante;
    }
    std::string intero(const std::string& commento = "") const {
        return byte + indice + "PK\5\6" + numero(0, 4) + numero(quante, 2) + numero(quante, 2) +
               numero(indice.size(), 4) + numero(byte.size(), 4) + numero(commento.size(), 2) + commento;
    }
};

std::string archivio(const std::vector<Scritta>& voci) {
    Archivio a;
    for (const Scritta& v : voci) a.aggiungi(v);
    return a.intero();
}

using Strada = std::function<bool(const std::function<bool(Voce&)>&)>;

std::string percorri(const Strada& strada) {
    std::string r;
    const bool bene = strada([&](Voce& v) {
        r += v.nome + "|" + v.contenuto + "|" + (v.intera ? "intera" : v.difetto) + "\n";
        return r.size() < (std::size_t{20} << 20);
    });
    return r + (bene ? "fine" : "non leggibile");
}

bool tutte(const std::string&) {
    return true;
}

// What both roads give, if it is the same.
std::string concordi(const std::string& byte) {
    const std::string svelta = percorri([&](const auto& f) {
        return per_ogni_voce(
            byte, tutte, [](Voce&) {}, f);
    });
    const std::string attenta =
        percorri([&](const auto& f) { return per_ogni_voce_con_cura(byte, 0, tutte, f); });
    EXPECT_TRUE(svelta == attenta) << svelta.substr(0, 300) << "\n--- but with care:\n"
                                   << attenta.substr(0, 300);
    return attenta;
}

const std::string kOrario = std::string("UT\5\0\3", 5) + "abcd", kProprietario("ux\4\0\1\1a\1", 8);

std::vector<Scritta> ordinarie() {
    std::vector<Scritta> r(9);
    r[1] = {.nome = "sotto/b.xml", .contenuto = std::string(100'000, 'b'), .extra = kOrario + kProprietario};
    r[2] = {.nome = "cartella/", .contenuto = "", .metodo = 0, .attributi = std::size_t{040755} << 16};
    r[3] = {
        .nome = "c.txt", .contenuto = "come sta", .metodo = 0, .extra_indice = kOrario, .commento = "detto"};
    r[4].lunghezze_in_fondo = true;
    r[5] = {.nome = "a.xml", .bandiere = 0x800, .sistema = 0, .attributi = 0x20};
    r[6] = {.nome = "d/", .contenuto = "", .metodo = 0, .sistema = 0, .attributi = 0x10};
    r[7] = {.nome = "vuoto", .contenuto = "", .metodo = 0};
    r[8] = {.nome = "dentro.zip", .contenuto = archivio({{}, {}}), .metodo = 0, .attributi = 0};
    return r;
}

TEST(Zip, GliOrdinariVannoTuttiPerLaViaSvelta) {
    for (const std::string& s : {archivio(ordinarie()), zip({{"a.xml", fattura()}, {"b.xml", fattura()}})}) {
        EXPECT_TRUE(fatturapa::indice_zip(s).completo);
        EXPECT_TRUE(concordi(s).ends_with("fine"));
    }
    const std::string letto = concordi(archivio(ordinarie()));
    EXPECT_EQ(letto.substr(0, 24), "a.xml|<a>uno</a>|intera\n");
    EXPECT_NE(letto.find("c.txt|come sta|intera\n"), letto.npos);
    EXPECT_EQ(letto.find("cartella"), letto.npos);
}

TEST(Zip, GliStraniVannoPerLaViaAttenta) {
    const std::size_t collegamento = std::size_t{0120777} << 16;
    const Scritta buona;
    const std::vector<Scritta> strane = {
        {.nome = "perch\x82.xml"},
        {.nome = "perch\xC3\xA9.xml", .bandiere = 0x800},
        {.nome = "sotto\\a.xml", .sistema = 0},
        {.nome = std::string("a\0b", 3)},
        {.nome = "a\nb"},
        {.nome = ""},
        {.metodo = 12},
        {.bandiere = 1},
        {.bandiere = 0x2041},
        {.nome = "altro", .attributi = collegamento},
        {.nome = "fila", .attributi = std::size_t{010644} << 16},
        {.sistema = 7},
        {.nome = "senza", .sistema = 0, .attributi = 0x10},
        {.nome = "senza", .sistema = 0, .attributi = 0x11},
        {.nome = "senza", .attributi = std::size_t{040755} << 16},
        {.extra = "xl"},
        {.extra = kOrario + "x"},
        {.extra = std::string("UT\0\0", 4)},
        {.extra = std::string("\1\0\0\0", 4)},
        {.extra_indice = std::string("UT\0\0", 4)},
        {.extra_indice = std::string("\1\0\0\0", 4)},
        {.extra_indice = "troppo corto"},
        {.extra = std::string("up\7\0\1", 5) + numero(crc("a.xml"), 4) + "al"},
        {.metodo = 0, .di_piu = 3},
        {.contenuto = std::string((5 << 20) + 1, ' ')},
        {.contenuto = "", .metodo = 0, .di_piu = 5}};
    for (const Scritta& v : strane) {
        const std::string s = archivio({buona, v, buona});
        EXPECT_FALSE(fatturapa::indice_zip(s).completo) << testing::PrintToString(v.nome);
        concordi(s);
    }
    // What shows only in the data, and what is no harm.
    for (const Scritta& v :
         {Scritta{.di_piu = 3}, Scritta{.di_piu = std::size_t{0} - 3}, Scritta{.contenuto = ""},
          Scritta{.nome = "x/", .contenuto = "con un contenuto"}})
        concordi(archivio({buona, v, buona}));
    Archivio doppia;
    doppia.aggiungi(buona);
    doppia.nell_indice(buona, deflate(buona.contenuto), 0);
    EXPECT_EQ(concordi(doppia.intero()), "a.xml|<a>uno</a>|intera\nfine");
    Archivio fuori;
    fuori.aggiungi(buona);
    fuori.nell_indice(buona, deflate(buona.contenuto), 1'000'000);
    concordi(fuori.intero());

    // An entry within another's data.
    Archivio sovrapposte;
    sovrapposte.aggiungi({.contenuto = "PK\3\4" + numero(20, 2) + testa({.metodo = 0}, "<a>uno</a>", false) +
                                       "a.xml<a>uno</a>",
                          .metodo = 0});
    sovrapposte.nell_indice({.metodo = 0}, "<a>uno</a>", 35);
    EXPECT_FALSE(fatturapa::indice_zip(sovrapposte.intero()).completo);
    concordi(sovrapposte.intero());
    const std::string sano = archivio({buona, buona});
    for (const std::string& s :
         {zip({{"a.xml", fattura()}, {"b.xml", fattura()}}, true), "davanti" + sano, sano + "dietro",
          Archivio().intero(), Archivio().intero("commento"), zip({})}) {
        EXPECT_FALSE(fatturapa::indice_zip(s).completo);
        concordi(s);
    }
}

TEST(Zip, OgniByteGuastoDaLoStesso) {
    std::vector<Scritta> poche = ordinarie();
    poche[1].contenuto.resize(50);
    const std::string xml =
        zip({{"a.xml", "<a>" + std::string(90, 'x') + fattura().substr(0, 200)}, {"b", "b"}});
    int guasti = 0;
    for (const std::string& sano : {archivio(poche), xml})
        for (std::size_t i = 0; i < sano.size(); ++i)
            for (const int come : {0x01, 0x80, 0xFF, 0x08, 0x24}) {
                std::string s = sano;
                s[i] = static_cast<char>(s[i] ^ come);
                guasti += concordi(s) != concordi(sano);
                ASSERT_FALSE(testing::Test::HasFailure()) << i << " " << come;
            }
    EXPECT_GT(guasti, 1000);
}

TEST(Zip, TagliatiRimescolatiAllungati) {
    const std::string sano = archivio(ordinarie()), piccolo = archivio({{}, {.nome = "b", .metodo = 0}, {}});
    for (std::size_t n = 0; n < piccolo.size(); ++n) {
        concordi(piccolo.substr(0, n));
        concordi(piccolo.substr(n));
        concordi(piccolo.substr(0, n) + "PK" + piccolo.substr(n));
    }
    unsigned seme = 4321;
    const auto a_caso = [&](std::size_t n) { return (seme = seme * 1664525U + 1013904223U) / 7 % n; };
    for (int giro = 0; giro < 3000; ++giro) {
        std::string s = giro % 2 ? piccolo : archivio({{}, {.nome = "b", .lunghezze_in_fondo = true}, {}});
        for (std::size_t k = a_caso(4) + 1; k > 0; --k)  // numbers of the index and the headings above all
            s.replace(a_caso(s.size() - 4), 4, numero(a_caso(2) ? a_caso(s.size()) : a_caso(1U << 31), 4));
        concordi(s);
        ASSERT_FALSE(HasFailure()) << giro;
    }
}

// Whatever is in the archive; what follows its end sends the whole of it the careful way.
std::string raccontata(const std::string& byte) {
    const FileLetto l = fatturapa::Lettore().leggi(byte, "f.zip");
    std::string r = std::to_string(l.saltate) + " saltate\n";
    for (const FatturaLetta& f : l.fatture)
        r += f.voce + " " + f.numero + " " + std::to_string(f.corpo) + "/" + std::to_string(f.corpi) + " " +
             f.fornitore.denominazione + " " + std::to_string(f.impronta) + " " +
             std::to_string(f.righe.size() + f.riepiloghi.size() + f.allegati.size()) +
             (f.firma_non_verificata ? " firmata\n" : "\n");
    for (const FatturaRifiutata& f : l.rifiutate) r += f.voce + ": " + f.motivo + "\n";
    return r;
}

TEST(Zip, LettePrimaDelTurnoMaNellOrdine) {
    std::vector<Scritta> voci;
    for (int i = 0; i < 600; ++i) {
        Pezzi p;
        p.generali = "<Data>2026-10-05</Data><Numero>" + std::to_string(i) + "</Numero>";
        p.in_fondo = "<!--" + std::string(3000, 'x') + "-->";
        p.corpi = i % 7 == 0 ? 3 : 1;
        if (i % 11 == 0) p.beni += "<DatiRiepilogo><Imposta>tanta</Imposta></DatiRiepilogo>";
        std::string byte = fattura(p);
        if (i % 13 == 0) byte = busta_der(byte);
        if (i % 17 == 0) byte = zip({{"dentro.xml", byte}, {"e.txt", "ciao"}});
        if (i % 19 == 0) byte = busta_ber(zip({{"firmato.xml", byte}}));
        if (i % 23 == 0) byte.resize(300);
        if (i % 29 == 0) byte = "altro";
        voci.push_back({.nome = "v" + std::to_string(i), .contenuto = byte});
    }
    const std::string sano = archivio(voci);
    EXPECT_TRUE(fatturapa::indice_zip(sano).completo);
    EXPECT_EQ(raccontata(sano), raccontata(sano + "x"));
    std::string guasto = sano;
    guasto[sano.size() / 2] ^= 1;
    EXPECT_NE(raccontata(guasto), raccontata(sano));
    EXPECT_EQ(raccontata(guasto), raccontata(guasto + "x"));
    voci[300].contenuto = "<FatturaElettronica>" + std::string(90'000, ' ') + "</FatturaElettronica>";
    std::string molti = "<FatturaElettronica>";
    for (int i = 0; i < 23'000; ++i) molti += "<FatturaElettronicaBody/>";
    voci[100].contenuto = voci[590].contenuto = molti + "</FatturaElettronica>";
    const std::string troppi = archivio(voci);
    EXPECT_EQ(raccontata(troppi), "0 saltate\n: troppi documenti in un file\n");
    EXPECT_EQ(raccontata(troppi), raccontata(troppi + "x"));
}

TEST(Zip, ChiNonSiLeggePrimaSiLeggeNelTurno) {
    const std::vector<Scritta> voci(500, {.contenuto = std::string(2000, 'a')});
    int prima = 0, nel_turno = 0;
    const auto da_sola = [n = std::make_shared<std::atomic<int>>()](Voce& v) {
        const int i = (*n)++;
        if (i % 3 == 0) throw std::bad_alloc();
        v.contenuto = "usato";
        if (i % 3 == 1) v.letta.emplace();
    };
    EXPECT_TRUE(fatturapa::per_ogni_voce(archivio(voci), tutte, da_sola, [&](Voce& v) {
        ++(v.letta ? prima : nel_turno);
        EXPECT_EQ(v.contenuto, v.letta ? "" : voci[0].contenuto);
        return true;
    }));
    EXPECT_EQ(prima, 167);
    EXPECT_EQ(nel_turno, 333);
}

}  // namespace
