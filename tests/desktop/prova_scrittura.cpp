// What a hand writes into the fields: amounts in the Italian manner, dates in short, letters of nobody.
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QWheelEvent>

#include "desktop/parts/campo_scritto.h"
#include "desktop/parts/scrittura.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Foglio : Schermo {
    CampoTesto importo, testo;
    CampoData data;
    Lista lista;
    Bottone fai{"Fai"};
    Etichetta vai{"Vai"};
    std::string vista;  // the date as a click on the caption found it

    explicit Foglio(Programma& p) : Schermo(p, "foglio", "Foglio") {
        importo.importo = true;
        aggiungi("data", data);
        aggiungi("importo", importo);
        aggiungi("testo", testo);
        aggiungi("lista", lista);
        aggiungi("vai", vai);
        aggiungi("fai", fai);
        lista.aggiungi("Zeta");
        lista.aggiungi("Xilo");
        lista.scelta(0);
        data.testo("01/01/2026");
        vai.premuto = [this] { vista = data.testo(); };
    }
};

struct Tavolo : BancoFinestre {
    Foglio* s;
    Tavolo() {
        prog.schermi.registra<Foglio>("foglio");
        apri("foglio").activateWindow();
        s = static_cast<Foglio*>(prog.schermi.caricato("foglio"));
        quieta();
    }
    CampoScritto* campo(const char* nome) { return widget<CampoScritto>("foglio", nome); }
    void scrivi(const char* nome, const char* testo) {
        campo(nome)->setFocus(Qt::TabFocusReason);
        campo(nome)->selectAll();
        QTest::keyClicks(campo(nome), testo);
        quieta();
    }
    void lascia() {
        widget<QPushButton>("foglio", "fai")->setFocus(Qt::TabFocusReason);
        quieta();
    }
};

}  // namespace

class ProvaScrittura : public QObject {
    Q_OBJECT
  private slots:
    void importi_data() {
        QTest::addColumn<QString>("scritto");
        QTest::addColumn<QString>("mentre");
        QTest::addColumn<QString>("finito");
        const char* casi[][3] = {{"1000,50", "1000.50", "1000.50"},
                                 {"1.000,50", "1000.50", "1000.50"},
                                 {"-1.234.567,8", "-1234567.8", "-1234567.8"},
                                 {"1.234.567", "1234567", "1234567"},
                                 {"1,000.50", "1000.50", "1000.50"},
                                 {"\u20ac 1.000,50 ", "1000.50", "1000.50"},
                                 {"1.000", "1.000", "1000"},
                                 {"0.125", "0.125", "0.125"},
                                 {"12.50", "12.50", "12.50"},
                                 {"1000.50,", "1000.50", "1000.50"},
                                 {"12,5,0", "12.50", "12.50"},
                                 {",5", ".5", ".5"},
                                 {"", "", ""},
                                 {"abc", "abc", "abc"}};
        for (const auto& c : casi)
            QTest::newRow(c[0]) << QString::fromUtf8(c[0]) << QString::fromUtf8(c[1])
                                << QString::fromUtf8(c[2]);
    }
    void importi() {
        QFETCH(QString, scritto);
        QFETCH(QString, mentre);
        QFETCH(QString, finito);
        QCOMPARE(cifre_scritte(scritto, Cifre::importo), mentre);
        QCOMPARE(cifre_finite(mentre, Cifre::importo), finito);
    }

    void numeri_e_testi() {
        QCOMPARE(cifre_finite(QStringLiteral("2,5"), Cifre::numero), QString("2.5"));
        QCOMPARE(cifre_finite(QStringLiteral("1.125"), Cifre::numero), QString("1.125"));
        QCOMPARE(cifre_finite(QStringLiteral("Via Po, 5"), Cifre::testo), QString("Via Po, 5"));
    }

    void date_data() {
        QTest::addColumn<QString>("finita");
        const char* casi[][2] = {{"05032026", "05/03/2026"}, {"050326", "05/03/2026"},
                                 {"5/3/26", "05/03/2026"},   {"5.3.2026", "05/03/2026"},
                                 {"5-3-1998", "05/03/1998"}, {"010180", "01/01/1980"},
                                 {"311279", "31/12/2079"},   {"29022024", "29/02/2024"},
                                 {"29022025", "29022025"},   {"5/3", "5/3"},
                                 {"320126", "320126"},       {"", ""},
                                 {"domani", "domani"},       {" 5/3/26 ", "05/03/2026"},
                                 {"5032026", "5032026"}};
        for (const auto& c : casi) QTest::newRow(c[0]) << QString::fromLatin1(c[1]);
    }
    void date() {
        QFETCH(QString, finita);
        QCOMPARE(data_finita(QString::fromLatin1(QTest::currentDataTag())), finita);
    }

    void la_virgola_non_perde_i_centesimi() {
        Tavolo b;
        b.scrivi("importo", "1.000,50");
        QCOMPARE(b.s->importo.testo(), std::string("1000.50"));
        QCOMPARE(b.campo("importo")->text(), QString("1000.50"));
        QApplication::clipboard()->setText("2.345,60");
        b.campo("importo")->selectAll();
        b.campo("importo")->paste();
        QCOMPARE(b.s->importo.testo(), std::string("2345.60"));
    }

    void la_virgola_in_mezzo_lascia_il_cursore() {
        Tavolo b;
        b.scrivi("importo", "100050");
        b.campo("importo")->setCursorPosition(4);
        QTest::keyClicks(b.campo("importo"), ",");
        QCOMPARE(b.campo("importo")->text(), QString("1000.50"));
        QCOMPARE(b.campo("importo")->cursorPosition(), 5);
    }

    void le_migliaia_alla_fine() {
        Tavolo b;
        b.scrivi("importo", "1.000");
        QCOMPARE(b.s->importo.testo(), std::string("1.000"));
        b.lascia();
        QCOMPARE(b.s->importo.testo(), std::string("1000"));
        // What the program wrote is left alone by a hand that only passes.
        b.s->importo.testo("1.234");
        b.quieta();
        b.campo("importo")->setFocus(Qt::TabFocusReason);
        b.lascia();
        QCOMPARE(b.s->importo.testo(), std::string("1.234"));
    }

    void una_virgola_in_un_testo_resta() {
        Tavolo b;
        b.scrivi("testo", "Via Po, 5");
        QCOMPARE(b.s->testo.testo(), std::string("Via Po, 5"));
    }

    void la_prima_data_e_tutta_scelta() {
        Tavolo b;
        QCOMPARE(QApplication::focusWidget(), b.campo("data"));
        QCOMPARE(b.campo("data")->selectedText(), QString("01/01/2026"));
        QTest::keyClicks(b.campo("data"), "05032026");
        QCOMPARE(b.campo("data")->text(), QString("05032026"));
    }

    void il_primo_clic_in_una_data_la_sceglie_tutta() {
        Tavolo b;
        b.lascia();
        QTest::mouseClick(b.campo("data"), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(b.campo("data")->selectedText(), QString("01/01/2026"));
        QTest::mouseClick(b.campo("data"), Qt::LeftButton, {}, QPoint(8, 8));
        QCOMPARE(b.campo("data")->selectedText(), QString());
    }

    void una_data_in_breve_si_completa() {
        Tavolo b;
        b.scrivi("data", "5/3/26");
        b.lascia();
        QCOMPARE(b.s->data.testo(), std::string("05/03/2026"));
        QCOMPARE(b.campo("data")->errore(), QString());
        b.scrivi("data", "06032026");
        b.clic(b.widget<QToolButton>("foglio", "vai"));
        QCOMPARE(b.s->vista, std::string("06/03/2026"));
        bool invio = false;
        b.s->data.invio = [&] {
            invio = true;
            QCOMPARE(b.s->data.testo(), std::string("07/03/2026"));
        };
        b.scrivi("data", "070326");
        QTest::keyClick(b.campo("data"), Qt::Key_Return);
        QVERIFY(invio);
    }

    void quel_che_non_e_una_data_lo_dice() {
        Tavolo b;
        b.scrivi("data", "31/02/2026");
        QCOMPARE(b.campo("data")->errore(), QString());
        const QImage prima = b.campo("data")->grab().toImage();
        b.lascia();
        QVERIFY(b.campo("data")->toolTip().startsWith(QStringLiteral("Non è una data")));
        QCOMPARE(b.campo("data")->accessibleDescription(), b.campo("data")->toolTip());
        const QImage dopo = b.campo("data")->grab().toImage();
        const QColor sotto = dopo.pixelColor(dopo.width() / 2, dopo.height() - 3);
        QVERIFY2(sotto.red() > 150 && sotto.green() < 100, qPrintable(sotto.name()));
        b.scrivi("data", "28/02/2026");
        QCOMPARE(b.campo("data")->errore(), QString());
        QCOMPARE(b.campo("data")->toolTip(), QString());
    }

    void oggi_nel_calendario() {
        Tavolo b;
        QTest::keyClick(b.campo("data"), Qt::Key_F4);
        b.quieta();
        auto* oggi = b.finestra("foglio").findChild<QPushButton*>("oggi");
        QVERIFY(oggi);
        oggi->click();
        b.quieta();
        QCOMPARE(b.s->data.testo(), std::string("15/03/2024"));
    }

    void la_rotella_non_sceglie() {
        Tavolo b;
        auto* combo = b.widget<QComboBox>("foglio", "lista");
        const QPointF dove(combo->rect().center());
        QWheelEvent giu(dove, combo->mapToGlobal(dove), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                        Qt::NoScrollPhase, false);
        QApplication::sendEvent(combo, &giu);
        QCOMPARE(b.s->lista.scelta(), 0);
        QCOMPARE(combo->currentIndex(), 0);
        QApplication::sendEvent(b.campo("data"), &giu);
        QCOMPARE(b.s->data.testo(), std::string("01/01/2026"));
    }

    void una_lettera_di_nessuno_non_fa_niente() {
        Tavolo b;
        b.scrivi("testo", "ab");
        QKeyEvent alt(QEvent::KeyPress, Qt::Key_X, Qt::AltModifier, "x");
        QApplication::sendEvent(b.campo("testo"), &alt);
        QCOMPARE(b.s->testo.testo(), std::string("ab"));
        auto* combo = b.widget<QComboBox>("foglio", "lista");
        combo->setFocus();
        QApplication::sendEvent(combo, &alt);
        QCOMPARE(b.s->lista.scelta(), 0);
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaScrittura prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_scrittura.moc"
