// What the eye meets: boxes in the dark, room on a wide display, helpers beside the work, safe answers.
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryFile>
#include <set>

#include "desktop/manuale.h"
#include "desktop/parts/griglia_vista.h"
#include "qt/accanto.h"
#include "qt/anteprima.h"
#include "qt/gestore_stampa.h"
#include "qt/imposta.h"
#include "qt/stampante_qt.h"
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

    void manuale_e_anteprima_si_aprono_accanto() {
        Tavolo b;
        Finestra& f = b.apri("mrvaazz");
        f.move(10, 10);
        f.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f));
        Manuale* m = apri_manuale("mrvaazz");
        QVERIFY(m && !m->frameGeometry().intersects(f.frameGeometry()));
        m->close();
        f.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f));
        StampanteQt stampante;
        const GestoreStampa gestore(stampante);
        stampante.scelta.anteprima = true;
        stampante.print("Elenco");
        stampante.end_doc();
        const AnteprimaStampa* anteprima = nullptr;
        for (const QWidget* w : QApplication::topLevelWidgets())
            if (!anteprima) anteprima = dynamic_cast<const AnteprimaStampa*>(w);
        QVERIFY(anteprima && anteprima->isVisible());
        QVERIFY(!anteprima->frameGeometry().intersects(f.frameGeometry()));
    }

    // Room is shared alike: what belongs together stays together.
    void sullo_schermo_largo_i_comandi_restano_vicini_al_nome() {
        Tavolo b;
        Finestra& f = b.finestra("vexoraf");
        QHeaderView* testa = b.widget<VistaGriglia>("vexoraf", "elenco")->tabella()->horizontalHeader();
        const auto distanza = [&] {
            return testa->sectionViewportPosition(7) - testa->sectionViewportPosition(4);
        };
        f.resize(1366, 700);
        b.quieta();
        const int prima = distanza();
        f.resize(1920, 1000);
        b.quieta();
        QVERIFY2(distanza() < prima + (1920 - 1366) / 2, qPrintable(QString::number(distanza())));
    }

    // On a narrow one the wide texts give room, each its part; amounts and dates are whole.
    void sullo_schermo_stretto_i_testi_cedono_insieme() {
        Tavolo b;
        Finestra& f = b.apri("lumstct");
        const QHeaderView* testa = b.widget<VistaGriglia>("lumstct", "elenco")->tabella()->horizontalHeader();
        f.resize(1366, 500);
        b.quieta();
        const int nome = testa->sectionSize(0), secondo = testa->sectionSize(1);
        f.resize(960, 500);
        b.quieta();
        QVERIFY(testa->sectionSize(0) < nome && testa->sectionSize(1) < secondo);
        QVERIFY2(testa->sectionSize(0) > nome / 2, qPrintable(QString::number(testa->sectionSize(0))));
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
        int rate = 0;
        for (const auto* l : f.findChildren<QLabel*>())
            if (l->text() == QStringLiteral("1' rata"))
                rate = b.widget<QLineEdit>("lumftea", "dsca(0)")->mapTo(&f, QPoint()).x() -
                       l->mapTo(&f, QPoint()).x();
        QVERIFY2(rate > 0 && rate < 300, qPrintable(QString::number(rate)));
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

// A wide display, whatever the platform would offer.
int main(int argc, char** argv) {
    QTemporaryFile schermo;
    if (!schermo.open()) return 1;
    schermo.write(schermo_finto(1920, 1080));
    schermo.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + schermo.fileName().toLocal8Bit());
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaOcchio prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_occhio.moc"
