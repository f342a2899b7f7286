// A studio at work on documents: two suppliers, the tables, a small ledger, and the invoice screen.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "invoices/lumftea.h"
#include "ledger/lumincx.h"
#include "records/conto.h"
#include "records/movimento.h"
#include "tests/supporto/banco.h"

namespace ambra {

class Studio : public testing::Test {
  protected:
    // Positions of the payment terms below.
    enum Termini { contanti, trenta_fine, tre_rate, con_buco, fine_31, quattro_rate, senza_codice };

    Banco b;

    Studio() {
        b.testo("lumora.iva", righe_iva());
        b.testo("lumora.pag", righe_pag());
        RecFornitore rossi = fornitore_vuoto("ROSSI SNC"), bianchi = fornitore_vuoto("BIANCHI SRL");
        rossi.formapag = contanti;
        rossi.conto = 1;
        bianchi.formapag = tre_rate;
        bianchi.conto = 100;
        b.fornitori({rossi, bianchi});
        b.fatture({});
        prepara_ledger();
        b.avvia();
    }

    static std::vector<std::string> righe_iva() {
        std::vector<std::string> r;
        const char* codici[8][2] = {{"22", "20"}, {"10", "0"}, {"4", ""},   {"20,5", "-4"},
                                    {"", ""},     {"0", "4"},  {"abc", ""}, {"22.5", "2.5"}};
        for (const auto& c : codici) {
            r.emplace_back(c[0]);
            r.emplace_back("100");
            r.emplace_back(c[1]);
        }
        for (int i = 1; i <= 8; ++i) r.push_back("Art. " + std::to_string(i));
        return r;
    }

    static std::vector<std::string> righe_pag() {
        std::vector<std::string> r = {"Contanti",        "000000000000N000",
                                      "30 gg fine mese", "001000000000F000",
                                      "30/60/90",        "001002003000N000",
                                      "Uno e tre mesi",  "001000003000N000",
                                      "Fine mese 31",    "001000000000F031",
                                      "Quattro rate",    "001002003004N000",
                                      "Senza codice",    ""};
        r.resize(80);
        return r;
    }

    void prepara_ledger() {
        std::vector<std::string> voci(40 * 15 + 54);
        voci[0] = "Spese generali";
        voci[2] = "1000";
        voci[15] = "Ascensore";
        voci[17] = "1000";
        b.testo("lum001.tab", voci);
        conto(1, "Pulizie", 100);
        conto(100, "Manutenzione", 0);
        conto(3961, "Addebiti vari", 0);  // the first account of the single condomini
        conto(4159, "Banca", -100);
        b.file("tot").assign(28, '\0');
    }

    void conto(std::size_t n, const std::string& nome, double saldo) {
        RecConto c{};
        c.cnome = nome;
        c.csaldo = saldo;
        std::string& f = b.file("pia");
        if (f.size() < n * sizeof c) f.resize(n * sizeof c, '\0');
        f.replace((n - 1) * sizeof c, sizeof c, byte_di(c));
    }
    double saldo(long n) {
        RecConto c{};
        leggi(b.prog.arc.pia, n, c);
        return c.csaldo;
    }
    RecMovimento movimento(long n) {
        RecMovimento m{};
        leggi(b.prog.arc.mov, n, m);
        return m;
    }
    int movimenti() {
        RecTotaliLedger t{};
        leggi(b.prog.arc.tot, 1, t);
        return t.tmovimenti;
    }

    // Whatever a user does is one event.
    template <class F>
    void fai(F f) {
        Registro::Turno turno(b.prog.schermi);
        f();
    }
    void premi(Bottone& bottone) {
        fai([&] { bottone.premi(); });
    }
    void digita(CampoTesto& c, const std::string& s) {
        fai([&] { c.digita(s); });
    }

    Lumftea& nuova(int fornitore = 1) {
        Programma& p = b.prog;
        p.tornada = -99;
        p.modofattura = p.recfattura = p.statofattura = 0;
        p.recfornitore = fornitore;
        p.schermi.apri("lumftea");
        return schermo();
    }
    Lumftea& esistente(int record) {
        Programma& p = b.prog;
        p.recfattura = record;
        p.modofattura = 1;
        p.statofattura = 0;
        p.recfornitore = fattura(record).numfor;
        p.tornada = -99;
        p.schermi.apri("lumftea");
        return schermo();
    }
    Lumftea& schermo() { return *static_cast<Lumftea*>(b.prog.schermi.caricato("lumftea")); }
    Lumincx& uscita() { return *static_cast<Lumincx*>(b.prog.schermi.caricato("lumincx")); }
    bool aperto() const { return b.prog.schermi.caricato("lumftea") != nullptr; }

    RecFattura fattura(long n) {
        RecFattura f{};
        leggi(b.prog.arc.ftr, n, f);
        return f;
    }
    RecTotali contatori() {
        RecTotali t{};
        leggi(b.prog.arc.tfr, 2, t);
        return t;
    }

    /// A document on file: 100.00 at 22 per cent, 20 withheld, in one instalment.
    static RecFattura semplice() {
        RecFattura f = fattura_vuota();
        f.numfor = 1;
        f.numdoc = "12/A";
        f.datadoc = "20240103";
        f.datareg = "20240105";
        f.dsca[0] = "03012024";
        f.impon[0] = 100;
        f.ivai[0] = 22;
        f.rac[0] = 20;
        f.sca[0] = 102;
        return f;
    }

    /// The files that a registration may touch.
    struct Foto {
        std::string ftr, tfr, mov, pia, tot;
        bool operator==(const Foto&) const = default;
    };
    Foto foto() { return {b.file("ftr"), b.file("tfr"), b.file("mov"), b.file("pia"), b.file("tot")}; }
    void risposte(std::initializer_list<Risposta> r) { b.piattaforma.risposte.assign(r); }
    void conferma() { premi(schermo().command3d1[0]); }

    static constexpr const char* kDomanda =
        "Addebitare immediatamente la fattura nella contabilit\xE0 del condominio?";

    const PiattaformaProva::Messaggio& ultimo() { return b.piattaforma.messaggi.back(); }
    void atteso_rifiuto(const std::string& testo) {
        ASSERT_EQ(b.piattaforma.messaggi.size(), 1u);
        EXPECT_EQ(ultimo().testo, testo);
        EXPECT_EQ(ultimo().titolo, "Attenzione");
        EXPECT_EQ(ultimo().icona, Icona::stop);
        EXPECT_EQ(ultimo().bottoni, Bottoni::ok);
    }
};

}  // namespace ambra
