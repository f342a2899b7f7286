// Where the windows stand: all of a page can be reached on a small display, places and sizes come back.
#include <QAbstractScrollArea>
#include <QLineEdit>
#include <QLockFile>
#include <QPushButton>
#include <QTemporaryFile>

#include "desktop/parts/pagina_scorrevole.h"
#include "desktop/ricordo_stampa.h"
#include "qt/stampante_qt.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

constexpr int kLarghezza = 960, kAltezza = 540;  // 1920 x 1080 at 200 %

struct Tavolo : BancoFinestre {
    explicit Tavolo(bool ricorda = false) : BancoFinestre("1", ricorda) {
        fornitori({fornitore_vuoto("BIANCHI")});
        RecFattura f = fattura_vuota();
        f.numfor = 1;
        f.datareg = f.datadoc = "20240105";
        fatture({f});
        avvia();
        prog.recfattura = prog.recfornitore = 1;
    }
};

std::vector<std::string> tutti() {
    BancoFinestre b;
    return b.prog.schermi.nomi();
}

}  // namespace

class ProvaPosto : public QObject {
    Q_OBJECT
  private slots:
    void ogni_campo_si_raggiunge_data() {
        QTest::addColumn<QString>("nome");
        for (const auto& n : tutti()) QTest::newRow(n.c_str()) << QString::fromStdString(n);
    }
    void ogni_campo_si_raggiunge() {
        QFETCH(QString, nome);
        Tavolo b;
        Finestra& f = b.apri(nome.toStdString());
        f.activateWindow();
        QVERIFY2(f.width() <= kLarghezza && f.height() < kAltezza,
                 qPrintable(QString("%1x%2").arg(f.width()).arg(f.height())));
        auto* pagina = f.findChild<PaginaScorrevole*>();
        QVERIFY(pagina);
        for (QWidget* w : f.findChildren<QWidget*>()) {
            if (!w->isVisible() || !w->isEnabled() || !(w->focusPolicy() & Qt::TabFocus)) continue;
            if (w->inherits("QAbstractScrollArea") || w->height() > kAltezza / 2) continue;
            w->setFocus(Qt::TabFocusReason);
            if (!w->hasFocus()) continue;
            b.quieta();
            if (!w->hasFocus()) continue;  // the screen hands the focus on
            const QRect vista = pagina->viewport()->rect();
            const QRect dove(w->mapTo(pagina->viewport(), QPoint(0, 0)), w->size());
            QVERIFY2(vista.contains(dove.center()) && vista.intersected(dove).width() >= dove.width() / 2,
                     qPrintable(w->objectName()));
        }
    }

    void il_posto_torna() {
        QByteArray prima;
        {
            Tavolo b;
            Finestra& f = b.apri("mrvaazz");
            f.setGeometry(40, 60, 640, 410);
            b.quieta();
            f.close();
            b.apri("mrvaazz");
            QCOMPARE(b.finestra("mrvaazz").geometry(), QRect(40, 60, 640, 410));
            b.finestra("vexoraf").resize(950, 444);
            b.quieta();
            b.finestre.ricorda();
        }
        Tavolo b(true);
        QCOMPARE(b.finestra("vexoraf").size(), QSize(950, 444));
        QCOMPARE(b.apri("mrvaazz").geometry(), QRect(40, 60, 640, 410));
    }

    // Neither of two programs covers the other, and each comes back to where it was.
    void il_secondo_programma_non_sta_sopra_il_primo() {
        QRect prima, dopo;
        {
            Tavolo b;
            b.finestra("vexoraf").setGeometry(20, 40, 700, 400);
            b.quieta();
            b.finestre.ricorda();
            prima = b.finestra("vexoraf").geometry();
            Tavolo c(true);
            QVERIFY(c.finestra("vexoraf").pos().x() > prima.x() &&
                    c.finestra("vexoraf").pos().y() > prima.y());
            QCOMPARE(c.finestra("vexoraf").size(), prima.size());
            c.finestra("vexoraf").setGeometry(200, 60, 650, 380);
            c.quieta();
            c.finestre.ricorda();
            dopo = c.finestra("vexoraf").geometry();
        }
        Tavolo b(true);
        QCOMPARE(b.finestra("vexoraf").geometry(), prima);
        Tavolo c(true);
        QCOMPARE(c.finestra("vexoraf").geometry(), dopo);
    }

    void la_stampante_torna() {
        Tavolo b;
        StampanteQt prima;
        prima.scelta.cartella_pdf = QStringLiteral("/stampe");
        prima.scelta.carta = QPageSize(QPageSize::A3);
        prima.scelta.anteprima = true;
        prima.orientation(Orientamento::orizzontale);
        ricorda_stampa(prima);
        StampanteQt dopo;
        riprendi_stampa(dopo);
        QCOMPARE(dopo.scelta.cartella_pdf, QString("/stampe"));
        QCOMPARE(dopo.scelta.carta.id(), QPageSize::A3);
        QVERIFY(dopo.scelta.anteprima);
        QCOMPARE(dopo.orientation(), Orientamento::orizzontale);
    }

    void il_titolo_comincia_dallo_stabile() {
        Tavolo b;
        QVERIFY2(b.apri("lumfor").windowTitle().startsWith("001 "),
                 qPrintable(b.finestra("lumfor").windowTitle()));
        QVERIFY(b.finestra("lumfor").windowTitle().endsWith(" - Gestione archivio fornitori"));
    }
};

// A small display, whatever the platform would offer.
int main(int argc, char** argv) {
    QTemporaryFile schermo;
    if (!schermo.open()) return 1;
    schermo.write(schermo_finto(kLarghezza, kAltezza));
    schermo.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + schermo.fileName().toLocal8Bit());
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaPosto prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_posto.moc"
