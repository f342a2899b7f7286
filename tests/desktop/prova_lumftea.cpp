// The invoice window, driven by keys and mouse.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "records/conto.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Tavolo : BancoFinestre {
    Tavolo() {
        RecFornitore rossi = fornitore_vuoto("ROSSI SNC");
        rossi.conto = 1;
        fornitori({rossi});
        RecFattura f = fattura_vuota();
        f.numfor = 1;
        f.numdoc = "12/A";
        f.datareg = f.datadoc = "20240105";
        f.dsca[0] = "05012024";
        f.impon[0] = f.sca[0] = 100;
        f.pagata = 1;
        f.pdf = "C:\\12.PDF";
        fatture({f});
        testo("lumora.iva", {"22", "100", "20"});
        testo("lumora.pag", {"Contanti", "000000000000N000", "30/60", "001002000000N000"});
        std::vector<std::string> voci(40 * 15 + 54);
        voci[0] = "Spese generali";
        testo("lum001.tab", voci);
        RecConto conto{};
        conto.cnome = "Pulizie";
        file("pia") = byte_di(conto);
        avvia();
    }
    void nuova() {
        prog.tornada = -99;
        prog.recfattura = prog.statofattura = 0;
        prog.recfornitore = 1;
        apri("lumftea");
    }
    template <class W = QLineEdit>
    W* w(const char* nome) {
        return widget<W>("lumftea", nome);
    }
    QString scritto(const char* nome) { return w(nome)->text(); }
    void tasti(const char* testo) {
        QTest::keyClicks(QApplication::focusWidget(), testo);
        quieta();
    }
    void tasto(Qt::Key k) {
        QTest::keyClick(QApplication::focusWidget(), k);
        quieta();
    }
    QString fuoco() { return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : ""; }
    bool aperta() { return prog.schermi.caricato("lumftea") != nullptr; }
    RecFattura fattura(long n) {
        RecFattura f{};
        leggi(prog.arc.ftr, n, f);
        return f;
    }
};

}  // namespace

class ProvaLumftea : public QObject {
    Q_OBJECT
  private slots:
    // In every amount of the invoice, however it is written.
    void la_virgola_vale_nella_fattura() {
        Tavolo b;
        b.nuova();
        b.finestra("lumftea").activateWindow();
        b.w("impon(0)")->setFocus();
        b.tasti("1.000,50");
        QVERIFY2(b.w<QLabel>("netto")->text().contains("1.020,51"), qPrintable(b.w<QLabel>("netto")->text()));
        for (const char* n : {"ivai(0)", "rac(0)", "esent(0)", "sca(0)"}) {
            b.w(n)->setFocus();
            b.w(n)->selectAll();
            b.tasti("12,30");
            QCOMPARE(b.scritto(n), QString("12.30"));
        }
    }

    // Number, Enter, Enter, Enter, amount: each keystroke shows in the totals and the instalments.
    void una_fattura_con_la_sola_tastiera() {
        Tavolo b;
        b.nuova();
        QCOMPARE(b.fuoco(), QString("Text2(0)"));
        b.tasti("118");
        for (int i = 0; i < 3; ++i) b.tasto(Qt::Key_Return);
        QCOMPARE(b.fuoco(), QString("impon(0)"));
        b.tasti("1");
        QCOMPARE(b.scritto("ivai(0)"), QString("0.22"));
        QCOMPARE(b.scritto("total(4)"), QString(" 1,22"));
        b.tasti("00");
        QCOMPARE(b.scritto("ivai(0)"), QString("22"));
        QCOMPARE(b.scritto("rac(0)"), QString("20"));
        QCOMPARE(b.scritto("total(4)"), QString(" 122,00"));
        QCOMPARE(b.scritto("sca(0)"), QString("102"));
        b.tasto(Qt::Key_Return);
        QCOMPARE(b.fuoco(), QString("ivai(0)"));
        b.tasto(Qt::Key_Return);
        b.tasto(Qt::Key_Return);
        b.tasto(Qt::Key_Return);
        QCOMPARE(b.fuoco(), QString("impon(1)"));
        b.clic(b.w<QPushButton>("command3d1(0)"));
        QVERIFY(!b.aperta());
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t(1));
        QCOMPARE(b.fattura(2).numdoc.rifilato(), std::string("118"));
        QCOMPARE(double(b.fattura(2).sca[0]), 102.0);
    }

    void la_data_rifiutata_riprende_il_fuoco() {
        Tavolo b;
        b.nuova();
        auto* data = b.w("text1(0)");
        data->setFocus();
        data->selectAll();
        b.tasti("31/02/2024");
        b.clic(b.w<QPushButton>("command3d1(0)"));
        QVERIFY(b.aperta());
        QCOMPARE(b.fuoco(), QString("text1(0)"));
        QCOMPARE(b.file("ftr").size(), std::size_t(522));
    }

    void una_scadenza_a_meta_trattiene_il_fuoco() {
        Tavolo b;
        b.nuova();
        auto* scade = b.w("dsca(0)");
        scade->setFocus();
        scade->selectAll();
        b.tasti("1/2");
        b.w("sca(0)")->setFocus();
        Tavolo::quieta();
        QCOMPARE(b.fuoco(), QString("dsca(0)"));
        scade->selectAll();
        b.tasti("01-02-2024");
        b.w("sca(0)")->setFocus();
        Tavolo::quieta();
        QCOMPARE(b.fuoco(), QString("sca(0)"));
        QCOMPARE(scade->text(), QString("01/02/2024"));
    }

    void il_termine_scelto_frazionato_subito() {
        Tavolo b;
        b.nuova();
        b.w("esent(0)")->setFocus();
        b.tasti("100");
        auto* termine = b.w<QComboBox>("Combo1");
        termine->setFocus();
        b.tasto(Qt::Key_Down);
        QCOMPARE(termine->currentIndex(), 1);
        QCOMPARE(b.scritto("sca(1)"), QString("50"));
        QCOMPARE(b.scritto("dsca(1)"), QString("15/05/2024"));
    }

    void gia_pagata_salta_agli_occhi() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 7);
        auto* avviso = b.w<QLabel>("vispag");
        QVERIFY(avviso->isVisible());
        QVERIFY(avviso->text().contains(QStringLiteral("questa fattura è già stata pagata")));
        QVERIFY(avviso->autoFillBackground());
        QVERIFY(!b.w<QCheckBox>("pagato")->isVisible());
        QVERIFY(b.w<QCheckBox>("addebita")->isVisible());
        QCOMPARE(b.w<QLabel>("fornitore")->text(), QString("ROSSI SNC"));
        QVERIFY(
            b.finestra("lumftea").windowTitle().contains(QStringLiteral("Modifica dati fattura ricevuta")));
    }

    void la_vista_del_pdf_e_ritorno() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 7);
        auto* percorso = b.w("pdf");
        QVERIFY(!percorso->isVisible());
        b.clic(b.w<QPushButton>("command3d1(5)"));
        QVERIFY(percorso->isVisible());
        QCOMPARE(percorso->text(), QString("C:\\12.PDF"));
        QVERIFY(!b.w<QPushButton>("command3d1(0)")->isVisible());
        QCOMPARE(b.fuoco(), QString("Command3(1)"));
        b.piattaforma.esito_documento = 2;
        b.clic(b.w<QPushButton>("Command3(1)"));
        QCOMPARE(b.piattaforma.documenti.back(), std::string("C:\\12.PDF"));
        QCOMPARE(b.piattaforma.messaggi.back().titolo, std::string("ApriPDF"));
        b.tasto(Qt::Key_Escape);
        QVERIFY(b.aperta());
        QVERIFY(!percorso->isVisible());
        QVERIFY(b.w<QPushButton>("command3d1(0)")->isVisible());
        b.tasto(Qt::Key_Escape);
        QVERIFY(!b.aperta());
    }

    // The posting screen works while the invoice screen waits for it.
    void l_addebito_mentre_la_fattura_attende() {
        Tavolo b;
        b.nuova();
        b.w("esent(0)")->setFocus();
        b.tasti("10");
        b.piattaforma.risposte = {Risposta::si};
        bool visto = false;
        QTimer::singleShot(50, [&] {
            visto = true;
            b.clic(b.widget<QPushButton>("lumincx", "b_fine(1)"));
        });
        b.clic(b.w<QPushButton>("command3d1(0)"));
        QVERIFY(QTest::qWaitFor([&] { return !b.aperta(); }));
        QVERIFY(visto);
        QCOMPARE(b.fattura(2).addebita.testo(), std::string("1"));
        QCOMPARE(b.file("mov").size(), std::size_t(154));
    }

    void la_finestra_sta_nello_schermo() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 7);
        b.clic(b.w<QPushButton>("command3d1(5)"));
        const QSize s = b.finestra("lumftea").sizeHint();
        QVERIFY2(s.width() <= 1366 && s.height() <= 720,
                 qPrintable(QString("%1x%2").arg(s.width()).arg(s.height())));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaLumftea prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_lumftea.moc"
