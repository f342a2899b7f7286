// Pages on a PDF: what an independent reader finds, and where, is what was recorded.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "core/testo.h"
#include "print/motore.h"
#include "qt/replica.h"
#include "qt/stampante_qt.h"
#include "tests/qt/pdf_letto.h"

using namespace ambra;

namespace {

constexpr double kTolleranza = 0.6;  // points
constexpr int kUguale = 8;           // of 255: where a text begins is told to 1/64 of a twip

// A list of `righe` rows and three columns, as a report prints it.
void stampa_elenco(Printer& p, int righe, const std::string& faccia = "Arial") {
    std::array<RecStampa, 81> tab;
    tab[0].paginasx = tab[0].paginasu = 30;
    tab[0].paginadx = tab[0].paginagiu = 950;
    tab[0].testata = 2;
    tab[0].rigaalt = 240;
    tab[0].fascia = 0xE0FFE0;
    for (auto& v : tab) {
        v.fontnome = faccia;
        v.fontsize = 9;
    }
    tab[1].fontsize = 14;
    tab[1].fontcolore = 0xFF0000;
    tab[0].coltitolo = "Elenco";
    tab[0].colx = 3;
    tab[0].colall = 1;
    const int larghe[] = {20, 60, 20}, tipi[] = {0, 0, 1};
    for (std::size_t i = 0; i < 3; ++i) {
        tab[i + 1].collarg = larghe[i];
        tab[i + 1].coltipo = tipi[i];
        tab[i + 1].coltitolo = std::vector<std::string>{"Numero", "Fornitore", "Importo"}[i];
    }
    Cambio cambio;
    cambio[1] = "1";
    std::array<std::string, 21> intestazione;
    intestazione[1] = "Studio";
    int rigacorr = 0, npagina = -1;
    ContestoStampa c{p, tab, cambio, intestazione, "Condominio", "15/03/2024", rigacorr, npagina};
    p.document_title = "Elenco: prova/1";
    for (int i = 1; i <= righe; ++i) {
        tab[1].coltesto = "N" + std::to_string(i);
        tab[2].coltesto = "Citt\xE0" + std::to_string(i);
        tab[3].coltesto = std::to_string(i) + ",50";
        xstampago(c, rigacorr);
    }
    if (rigacorr > 0) {
        rigacorr = xstampainit(c);
        p.new_page();
    }
    p.end_doc();
}

LavoroStampa registra(int righe, Orientamento verso = Orientamento::verticale,
                      const std::string& faccia = "Arial") {
    RecordingPrinter r;
    LavoroStampa lavoro;
    r.finito = [&](LavoroStampa&& l) { lavoro = std::move(l); };
    r.orientation(verso);
    stampa_elenco(r, righe, faccia);
    return lavoro;
}

double lunga(const std::string& testo, const Carattere& c) {
    RecordingPrinter r;
    r.font = c;
    return r.text_width(testo);
}

// Every recorded text of one word stands on the read page where it was recorded.
void confronta(const PaginaStampa& attesa, const PaginaLetta& letta) {
    QVERIFY(std::abs(letta.larghezza - attesa.larghezza / 20) < 1);
    QVERIFY(std::abs(letta.altezza - attesa.altezza / 20) < 1);
    int viste = 0;
    for (const auto& o : attesa.operazioni) {
        if (o.tipo != OperazioneStampa::Tipo::testo || o.testo.find(' ') != std::string::npos) continue;
        const auto p = letta.trova(testo_qt(o.testo));
        QVERIFY2(p, o.testo.c_str());
        QVERIFY2(std::abs(p->x1 - o.x1 / 20) < kTolleranza, o.testo.c_str());
        QVERIFY2(std::abs(p->x2 - (o.x1 + lunga(o.testo, o.font)) / 20) < kTolleranza, o.testo.c_str());
        QVERIFY2(std::abs(p->y1 - o.y1 / 20) < kTolleranza * 2, o.testo.c_str());
        ++viste;
    }
    QVERIFY(viste > 6);
}

}  // namespace

class StampaPdf : public QObject {
    Q_OBJECT

    QTemporaryDir cartella_;
    QString file(const char* nome) const { return cartella_.filePath(QString::fromLatin1(nome)); }

  private slots:
    // A recorded job on a PDF keeps every text at its place, upright and across.
    void testi_dove_sono_registrati() {
        Facce facce;
        for (const auto verso : {Orientamento::verticale, Orientamento::orizzontale}) {
            const LavoroStampa lavoro = registra(150, verso);
            QVERIFY(lavoro.pagine.size() > 2);
            QVERIFY(scrivi_pdf(lavoro, file("replica.pdf"), facce));
            const auto pagine = leggi_pdf(file("replica.pdf"));
            QCOMPARE(pagine.size(), lavoro.pagine.size());
            for (std::size_t i = 0; i < pagine.size(); ++i) confronta(lavoro.pagine[i], pagine[i]);
        }
    }

    // Texts that go to the device together look like texts drawn one by one, and what comes over one covers
    // it.
    void testi_insieme_come_uno_per_uno() {
        LavoroStampa lavoro = registra(150);
        auto& prima = lavoro.pagine[0].operazioni;
        for (int i = 0; i < 80; ++i) {  // more faces than are kept
            prima.push_back(prima.back());
            prima.back().x1 = 6000;
            prima.back().y1 = 5000.0 + 100 * i;
            prima.back().font.punti = 5 + 0.1 * i;
        }
        OperazioneStampa sopra;
        sopra.tipo = OperazioneStampa::Tipo::pieno;
        sopra.x1 = 5000;
        sopra.y1 = 5500;
        sopra.x2 = 9000;
        sopra.y2 = 7000;
        sopra.colore = 0x00FFFF;
        prima.push_back(sopra);
        Facce facce;
        QVERIFY(scrivi_pdf(lavoro, file("insieme.pdf"), facce));
        const auto uscita = uscita_pdf(file("soli.pdf"), QString());
        for (const PaginaStampa& pagina : lavoro.pagine) {
            QPainter* p = uscita->pagina(pagina.larghezza, pagina.altezza);
            QVERIFY(p);
            for (const OperazioneStampa& o : pagina.operazioni) Pittore(*p, facce).operazione(o);
        }
        QVERIFY(uscita->fine());
        QVERIFY(QFileInfo(file("insieme.pdf")).size() < QFileInfo(file("soli.pdf")).size());
        for (const char* quale : {"insieme", "soli"})
            esci("pdftoppm", {"-r", "60", "-png", file(quale) + ".pdf", file(quale)});
        for (std::size_t n = 1; n <= lavoro.pagine.size(); ++n) {
            const QImage a(file("insieme") + QStringLiteral("-%1.png").arg(n)),
                b(file("soli") + QStringLiteral("-%1.png").arg(n));
            QVERIFY(!a.isNull() && a.size() == b.size());
            for (int y = 0; y < a.height(); ++y)
                for (int x = 0; x < a.width(); ++x)
                    QVERIFY(std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))) <= kUguale);
            if (n == 1) QCOMPARE(a.pixelColor(280, 260), QColor(255, 255, 0));
        }
    }

    // The desktop's printer puts the same job at the same places, in a file named after the job.
    void stampante_su_pdf() {
        StampanteQt s;
        s.scelta.cartella_pdf = file("documenti");
        QString dove;
        bool bene = false;
        std::vector<int> pagine_viste;
        s.stampato = [&](const std::string&, const QString& f, bool riuscito) {
            dove = f;
            bene = riuscito;
        };
        s.avanza = [&](const std::string&, int n) { pagine_viste.push_back(n); };
        stampa_elenco(s, 150);
        QVERIFY(bene);
        QCOMPARE(dove, file("documenti/Elenco prova 1.pdf"));
        const LavoroStampa lavoro = registra(150);
        const auto pagine = leggi_pdf(dove);
        QCOMPARE(pagine.size(), lavoro.pagine.size());
        QCOMPARE(pagine_viste.size(), lavoro.pagine.size());
        for (std::size_t i = 0; i < pagine.size(); ++i) confronta(lavoro.pagine[i], pagine[i]);
        stampa_elenco(s, 1);
        QCOMPARE(dove, file("documenti/Elenco prova 1 (2).pdf"));
    }

    // The job kept for a preview is the recorded one.
    void pagine_per_l_anteprima() {
        StampanteQt s;
        LavoroStampa vista;
        s.scelta.anteprima = true;
        s.da_mostrare = [&](LavoroStampa&& l) { vista = std::move(l); };
        stampa_elenco(s, 70);
        const LavoroStampa attesa = registra(70);
        QCOMPARE(vista.pagine.size(), attesa.pagine.size());
        QCOMPARE(vista.titolo, attesa.titolo);
        for (std::size_t i = 0; i < attesa.pagine.size(); ++i) {
            const auto &v = vista.pagine[i].operazioni, &a = attesa.pagine[i].operazioni;
            QCOMPARE(v.size(), a.size());
            for (std::size_t k = 0; k < a.size(); ++k) {
                QCOMPARE(v[k].tipo, a[k].tipo);
                QCOMPARE(v[k].testo, a[k].testo);
                QVERIFY(std::abs(v[k].x1 - a[k].x1) < 1e-6 && std::abs(v[k].y1 - a[k].y1) < 1e-6);
                QVERIFY(std::abs(v[k].x2 - a[k].x2) < 1e-6 && std::abs(v[k].y2 - a[k].y2) < 1e-6);
                QCOMPARE(v[k].colore, a[k].colore);
                QVERIFY(v[k].font == a[k].font);
            }
        }
    }

    // Faces are embedded, and a face that the machine lacks has a stand-in of the same widths.
    void caratteri_incorporati() {
        Facce facce;
        QVERIFY(scrivi_pdf(registra(3), file("arial.pdf"), facce));
        const QString elenco = esci("pdffonts", {file("arial.pdf")});
        const QStringList righe = elenco.trimmed().split(u'\n');
        QVERIFY2(righe.size() > 2, qPrintable(elenco));
        for (const QString& r : righe.mid(2))
            QVERIFY2(r.contains(QRegularExpression("Identity-H +yes ")), qPrintable(r));
        const QString arial = famiglia_da_disegno("Arial");
        QVERIFY(arial == "Arial" || arial == "Liberation Sans");
        QCOMPARE(QFontInfo(QFont(arial)).family(), arial);
    }

    // Also of a machine that has some faces as bitmaps, and of one that has none.
    void sostituti_dei_caratteri() {
        const auto in_windows = famiglie_sostituite([](const QString& f) {
            return QStringList{"Arial", "Courier New", "Times New Roman", "Arial Narrow"}.contains(f);
        });
        QCOMPARE(in_windows, (QHash<QString, QString>{{"helvetica", "Arial"},
                                                      {"ms sans serif", "Arial"},
                                                      {"microsoft sans serif", "Arial"},
                                                      {"times", "Times New Roman"},
                                                      {"courier", "Courier New"}}));
        QVERIFY(famiglie_sostituite([](const QString&) { return false; }).isEmpty());
        QCOMPARE(famiglia_da_disegno("Una Mai Vista"), QString("Una Mai Vista"));
    }

    // Other faces are measured by their own advances, and right-aligned cells still end at their edge.
    void altre_facce() {
        StampanteQt s;
        s.font = {"Courier New", 10, false, false};
        QVERIFY(std::abs(s.text_width("iiii") - s.text_width("WWWW")) < 1);
        QVERIFY(std::abs(s.text_width("iiii") - 4 * 0.6 * 200) < 8);
        s.font.nome = "Times New Roman";
        QVERIFY(s.text_width("iiii") < s.text_width("WWWW") / 2);
        Facce facce;
        const LavoroStampa lavoro = registra(5, Orientamento::verticale, "Times New Roman");
        QVERIFY(scrivi_pdf(lavoro, file("times.pdf"), facce));
        QVERIFY(leggi_pdf(file("times.pdf"))[0].trova("N3"));
    }

    // Sizes, colours and places of a table gone wrong neither crash nor lose the rest of the page.
    void misure_impazzite() {
        StampanteQt s;
        s.scelta.cartella_pdf = cartella_.path();
        QString dove;
        s.stampato = [&](const std::string&, const QString& f, bool) { dove = f; };
        for (const double punti : {-5.0, 0.0, 0.25, 32767.0, 1e300, std::nan("")}) {
            s.font = {"", punti, true, true};
            s.fore_color = -1;
            s.current_x = s.current_y = 1e15;
            s.print("lontano");
            QVERIFY(std::isfinite(s.text_width("abc")) && s.text_width("abc") > 0);
        }
        s.font = {std::string("Arial\0x", 7), 9, false, false};
        s.current_x = std::nan("");
        s.print("x");
        s.draw_width = -7;
        s.line(-1e18, std::nan(""), 1e18, 0, 0x7FFFFFFFFFFF);
        s.filled_box(5, 5, -5, -5, 255);
        s.font = {"Arial", 9, false, false};
        s.current_x = 1000;
        s.current_y = 2000;
        s.print("vivo");
        s.current_x = 1000;
        s.current_y = 3000;
        s.print(std::string(10000, 'W'));
        s.end_doc();
        const auto pagine = leggi_pdf(dove);
        QCOMPARE(pagine.size(), std::size_t{1});
        QVERIFY(pagine[0].trova("vivo"));
        QVERIFY(std::abs(pagine[0].trova("vivo")->x1 - 50) < kTolleranza);
    }

    // Pages and jobs that hold nothing.
    void pagine_vuote() {
        StampanteQt s;
        s.scelta.cartella_pdf = file("vuote");
        int lavori = 0;
        QString dove;
        s.stampato = [&](const std::string&, const QString& f, bool) {
            ++lavori;
            dove = f;
        };
        s.end_doc();
        s.print("");
        s.end_doc();
        QCOMPARE(lavori, 0);
        QVERIFY(!QDir(file("vuote")).exists());
        s.new_page();
        s.print("seconda");
        s.new_page();
        s.end_doc();
        QCOMPARE(lavori, 1);
        QCOMPARE(leggi_pdf(dove).size(), std::size_t{2});
    }

    // Millimetres are millimetres.
    void scala_in_millimetri() {
        StampanteQt s;
        s.scelta.cartella_pdf = cartella_.path();
        QString dove;
        s.stampato = [&](const std::string&, const QString& f, bool) { dove = f; };
        s.scale_mode(Scala::millimetri);
        s.font = {"Arial", 10, false, false};
        s.current_x = 100;
        s.current_y = 50;
        s.print("qui");
        QVERIFY(std::abs(s.current_y - (50 + 11.5 * 25.4 / 72)) < 0.01);
        s.end_doc();
        const auto p = leggi_pdf(dove)[0].trova("qui");
        QVERIFY(p && std::abs(p->x1 - 100 / 25.4 * 72) < kTolleranza);
    }

    // A folder that cannot be written fails the job, says so once, and spoils nothing after it.
    void cartella_che_non_si_scrive() {
        QFile blocco(file("blocco"));
        QVERIFY(blocco.open(QIODevice::WriteOnly));
        StampanteQt s;
        s.scelta.cartella_pdf = file("blocco/sotto");
        std::vector<bool> esiti;
        s.stampato = [&](const std::string&, const QString&, bool riuscito) { esiti.push_back(riuscito); };
        stampa_elenco(s, 150);
        QCOMPARE(esiti, std::vector<bool>{false});
        s.scelta.cartella_pdf = file("buona");
        stampa_elenco(s, 2);
        QCOMPARE(esiti, (std::vector<bool>{false, true}));
        Facce facce;
        QVERIFY(!scrivi_pdf(registra(2), file("blocco/x.pdf"), facce));
    }

    void nomi_di_file() {
        QCOMPARE(nome_di_file("Certificazione 1 ROSSI S.R.L. <a/b:c>\x01?"),
                 "Certificazione 1 ROSSI S R L a b c");
        QCOMPARE(nome_di_file(std::string(300, 'x')).size(), 80);
        QCOMPARE(nome_di_file("  "), "");
        QCOMPARE(pdf_libero(file("nuova"), ""), file("nuova/Stampa.pdf"));
    }
};

QTEST_MAIN(StampaPdf)
#include "stampa_pdf.moc"
