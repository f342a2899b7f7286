// A printer that fails, under every screen that prints and at each of its operations: the job is ended, the
// printer is left as it was, and what another screen prints afterwards comes out whole.
#include <gtest/gtest.h>

#include "ledger/lumpgr.h"
#include "records/prospetto.h"
#include "tests/insieme/posto.h"

using namespace ambra;

namespace {

class StampanteGuasta : public RecordingPrinter {
  public:
    long fatte = 0, rotta = 0;  ///< the operation that fails, once

    double text_width(std::string_view t) override {
        passo();
        return RecordingPrinter::text_width(t);
    }
    void print(std::string_view t) override {
        passo();
        RecordingPrinter::print(t);
    }
    void line(double x1, double y1, double x2, double y2, long c) override {
        passo();
        RecordingPrinter::line(x1, y1, x2, y2, c);
    }
    void box(double x1, double y1, double x2, double y2, long c) override {
        passo();
        RecordingPrinter::box(x1, y1, x2, y2, c);
    }
    void filled_box(double x1, double y1, double x2, double y2, long c) override {
        passo();
        RecordingPrinter::filled_box(x1, y1, x2, y2, c);
    }
    void rich_text(const rtf::Documento& d) override {
        passo();
        RecordingPrinter::rich_text(d);
    }
    void new_page() override {
        passo();
        RecordingPrinter::new_page();
    }
    void end_doc() override {
        passo();
        RecordingPrinter::end_doc();
    }

  private:
    void passo() {
        if (++fatte == rotta) throw PrinterFault{};
    }
};

struct PiattaformaStampe : PiattaformaProva {
    StampanteGuasta guasta;
    PiattaformaStampe() {
        guasta.finito = [this](LavoroStampa&& l) { lavori.push_back(std::move(l)); };
    }
    Printer& printer() override { return guasta; }
};

std::string racconta(const LavoroStampa& l) {
    std::string r = l.titolo;
    for (const PaginaStampa& p : l.pagine) {
        r += "\n--";
        for (const OperazioneStampa& o : p.operazioni)
            r += "\n" + std::to_string(int(o.tipo)) + " " + std::to_string(o.x1) + " " +
                 std::to_string(o.y1) + " " + o.testo + " " + o.font.nome + " " +
                 std::to_string(o.font.punti);
    }
    return r;
}

// Documents that each of the lists shows: paid, with its tax paid over, this year.
struct ArchivioStampe : ArchivioPronto {
    ArchivioStampe() {
        RecFattura f = fattura_vuota();
        f.numfor = 1;
        f.numdoc = "TUTTA";
        f.datadoc = f.datareg = "20240210";
        f.impon[0] = f.sca[0] = f.ver[0] = 100;
        f.rac[0] = 20;
        f.esent[0] = 7;
        f.dsca[0] = f.dver[0] = f.dscarit = f.dverrit = "01032024";
        f.pagata = 1;
        fatture({f});
        RecProspetto p{};
        p.nomeprosp = "Certificazione";
        p.numprosp = "001";
        memoria.contenuto(kCartella + "lumoral.tot") = byte_di(p);
        memoria.contenuto(kCartella + "vexoral.001") = "{\\rtf1 Compenso $$$402$$$ di $$$411$$$\\par}";
    }
};

struct BancoStampe {
    ArchivioStampe archivio;
    PiattaformaStampe piattaforma;
    Programma prog{archivio.memoria, piattaforma, "1"};

    BancoStampe() {
        registra_tutte(prog.schermi);
        prog.schermi.apri("vexoraf");
        Printer& p = piattaforma.guasta;
        p.font = {"Courier", 7, true, true};
        p.fore_color = 255;
        p.scale_mode(Scala::millimetri);
        p.document_title = "PRIMA";
    }
    void stampa(const std::string& schermo, const std::string& comando, Risposta prima = Risposta::si,
                void (*avvio)(BancoStampe&) = nullptr) {
        Registro::Turno turno(prog.schermi);
        prog.schermi.apri_foglia(schermo);
        if (avvio) avvio(*this);
        piattaforma.risposte = {prima, Risposta::si, Risposta::si};
        trova<Controllo>(schermo, comando).premi();
    }
    template <class C>
    C& trova(const std::string& schermo, const std::string& nome) {
        return dynamic_cast<C&>(*prog.schermi.caricato(schermo)->trova(nome));
    }
};

struct Caso {
    const char *schermo, *comando;
    Risposta prima = Risposta::si;          ///< the first question's answer
    void (*avvio)(BancoStampe&) = nullptr;  ///< what is done before
};
// Marks the first row; one copy of each label; a place for the first field.
void segna(BancoStampe& b) {
    if (auto& s = b.prog.schermi.carica<Lumpgr>("lumpgr"); !s.segnata(1)) s.elenco.scegli(1, 0);
}
void copie(BancoStampe& b) {
    b.trova<Bottone>("lumstce", "command3d5").premi();
}
void colloca(BancoStampe& b) {
    b.trova<Griglia>("mrvlay", "elenco").scegli(1, 0);
    for (const char* asse : {"Text1(0)", "Text1(1)"}) b.trova<CampoTesto>("mrvlay", asse).digita("50");
}

void PrintTo(const Caso& s, std::ostream* o) {
    *o << s.schermo << '.' << s.comando;
}

constexpr Caso kStampe[] = {{"lumstct", "stampante"},
                            {"lumstcs", "stampante"},
                            {"lumstcf", "stampante"},
                            {"lumstcd", "stampante"},
                            {"lumstcy", "stampante"},
                            {"lumstcx", "stampante"},
                            {"lumstcx", "Label1(1)"},
                            {"lumstcx", "Label1(1)", Risposta::no},
                            {"lumstca", "stampante"},
                            {"lumstcr", "stampante"},
                            {"lumpgr", "command3d1", Risposta::si, segna},
                            {"lumcer", "certif"},
                            {"lumcer", "stampante"},
                            {"lumstce", "stampante", Risposta::si, copie},
                            {"mrvlay", "indice(4)", Risposta::si, colloca},
                            {"mrvlay", "indice(5)"},
                            {"mrvcal", "stampante"},
                            {"mrvanz", "stampante"}};

class Stampanti : public testing::TestWithParam<Caso> {};

TEST_P(Stampanti, UnGuastoFinisceConIlSuoLavoro) {
    const Caso& s = GetParam();
    const std::string altro = s.schermo == std::string_view("lumstct") ? "lumstcf" : "lumstct";
    std::string sano;
    {
        BancoStampe b;
        b.stampa(s.schermo, s.comando, s.prima, s.avvio);
        ASSERT_FALSE(b.piattaforma.lavori.empty()) << "it prints something";
        b.stampa(altro, "stampante", Risposta::si);
        sano = racconta(b.piattaforma.lavori.back());
    }
    long guasti = 0;
    for (long n = 1;; ++n) {
        BancoStampe b;
        b.piattaforma.guasta.rotta = n;
        b.stampa(s.schermo, s.comando, s.prima, s.avvio);
        if (b.piattaforma.guasta.fatte < n) break;
        SCOPED_TRACE(n);
        ++guasti;
        Printer& p = b.piattaforma.guasta;
        EXPECT_EQ(p.font, (Carattere{"Courier", 7, true, true}));
        EXPECT_EQ(p.fore_color, 255);
        EXPECT_EQ(p.scale_mode(), Scala::millimetri);
        EXPECT_EQ(p.document_title, "PRIMA");
        EXPECT_EQ(b.piattaforma.puntatore, Puntatore::normale);
        b.piattaforma.lavori.clear();
        b.stampa(altro, "stampante", Risposta::si);
        ASSERT_EQ(b.piattaforma.lavori.size(), 1u);
        EXPECT_EQ(racconta(b.piattaforma.lavori[0]), sano) << "the next job is whole";
        if (HasFailure()) return;
    }
    EXPECT_GE(guasti, 2);
}
INSTANTIATE_TEST_SUITE_P(Tutte, Stampanti, testing::ValuesIn(kStampe));

}  // namespace
