// What the eye meets: boxes in the dark, room on a wide display, helpers beside the work, safe answers.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <set>

#include "desktop/parts/griglia_vista.h"
#include "qt/accanto.h"
#include "qt/imposta.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Tavolo : BancoFinestre {
    Tavolo() {
        fornitori({fornitore_vuoto("BIANCHI"), fornitore_vuoto("ROSSI")});
        RecFattura f = fattura_vuota();
        f.numfor = 1;
        f.datareg = f.datadoc = "20240105";
        f.impon[0] = f.sca[0] = 100;
        fatture({f});
        avvia();
    }
};

// The letter after the ampersand; null for none.
QChar lettera(const QString& testo) {
    const auto i = testo.indexOf('&');
    return i < 0 || i + 1 >= testo.size() ? QChar() : testo[i + 1].toLower();
}

// How far the pixel furthest from the window's own colour is from it, in lightness.
int stacco(QWidget& w, const QColor& fondo) {
    w.resize(w.sizeHint());
    const QImage i = w.grab().toImage();
    int massimo = 0;
    for (int y = 0; y < i.height(); ++y)
        for (int x = 0; x < i.width(); ++x)
            massimo = std::max(massimo, std::abs(i.pixelColor(x, y).lightness() - fondo.lightness()));
    return massimo;
}

}  // namespace

class ProvaOcchio : public QObject {
    Q_OBJECT
  private slots:
    void una_casella_vuota_si_vede_nel_buio() {
        const QColor buio(0x2b, 0x2b, 0x2b);
        QPalette p;
        p.setColor(QPalette::Window, buio);
        p.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
        p.setColor(QPalette::WindowText, QColor(0xee, 0xee, 0xee));
        p.setColor(QPalette::Text, QColor(0xee, 0xee, 0xee));
        QCheckBox casella;
        QRadioButton tondo;
        for (QWidget* w : {static_cast<QWidget*>(&casella), static_cast<QWidget*>(&tondo)}) {
            w->setPalette(p);
            w->setAutoFillBackground(true);
            QVERIFY2(stacco(*w, buio) > 60, qPrintable(QString::number(stacco(*w, buio))));
        }
    }

    void le_lettere_di_imposta_sono_di_uno_solo() {
        DialogoImposta d(SceltaStampa{}, Orientamento::verticale);
        std::set<QChar> prese;
        const auto prendi = [&](const QString& testo) {
            const QChar l = lettera(testo);
            return l.isNull() || prese.insert(l).second;
        };
        for (const auto* l : d.findChildren<QLabel*>()) QVERIFY2(prendi(l->text()), qPrintable(l->text()));
        for (const auto* b : d.findChildren<QAbstractButton*>())
            QVERIFY2(prendi(b->text()), qPrintable(b->text()));
        QVERIFY(prese.size() >= 6);
        QVERIFY(d.findChild<QPushButton*>()->icon().isNull());
    }

    void chi_aiuta_sta_accanto_al_lavoro() {
        QWidget lavoro;
        lavoro.setGeometry(20, 20, 300, 300);
        lavoro.show();
        lavoro.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&lavoro));
        QWidget aiuto;
        aiuto.resize(200, 200);
        metti_accanto(aiuto);
        QVERIFY(!aiuto.frameGeometry().intersects(lavoro.frameGeometry()));
    }

    void le_linee_dei_riepiloghi_non_si_accorciano() {
        Tavolo b;
        for (const char* s : {"lumstcy", "lumstcx"}) {
            b.apri(s);
            const auto* elenco = b.finestra(s).findChild<VistaGriglia*>("elenco");
            QVERIFY(elenco && elenco->tabella()->textElideMode() == Qt::ElideNone);
        }
    }

    void sullo_schermo_largo_la_scritta_resta_vicina_alla_cifra() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 7);
        Finestra& f = b.finestra("lumftea");
        f.resize(1900, 1000);
        b.quieta();
        const auto* scritta = b.widget<QLabel>("lumftea", "es(0)");
        const auto* campo = b.widget<QLineEdit>("lumftea", "esent(0)");
        const int distanza = campo->mapTo(&f, QPoint()).x() - scritta->mapTo(&f, QPoint()).x();
        QVERIFY2(distanza > 0 && distanza < 400, qPrintable(QString::number(distanza)));
    }

    // What drops documents for good waits for a deliberate yes.
    void il_riordino_ha_pronto_il_no() {
        Tavolo b;
        b.clic(b.widget<QPushButton>("vexoraf", "stampante"));
        b.clic(b.widget<QPushButton>("vexoraf", "command3d2(3)"));
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t{1});
        QCOMPARE(b.piattaforma.messaggi[0].titolo, std::string("Riordino archivio"));
        QVERIFY(b.piattaforma.messaggi[0].prescelta == Risposta::no);
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaOcchio prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_occhio.moc"
