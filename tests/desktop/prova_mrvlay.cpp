// The editor of the coordinates and its picture of the sheet, driven by mouse and keys.
#include "forms/mrvlay.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/mrvlay_foglio.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Tavolo : BancoFinestre {
    explicit Tavolo(int tipo = kMinisteriale) {
        Layout l;
        l.campo[1].posizione = "020030";
        l.campo[1].corpo = "24";
        l.campo[2].posizione = "020200";
        l.campo[97].posizione = "055000";
        salva_layout(memoria, prog.err, file_coordinate(tipo, "001"), l);
        avvia();
        prog.tipomodulo = tipo;
        prog.schermi.apri("mrvlay");
        finestra("mrvlay").resize(1280, 720);
        quieta();
    }
    VistaFoglio* foglio() { return widget<VistaFoglio>("mrvlay", "foglio"); }
    QLineEdit* campo(const char* nome) { return widget<QLineEdit>("mrvlay", nome); }
    QTableView* tabella() { return widget<VistaGriglia>("mrvlay", "elenco")->tabella(); }
    QImage immagine() { return foglio()->grab().toImage(); }
};

}  // namespace

class ProvaMrvlay : public QObject {
    Q_OBJECT
  private slots:
    void senza_un_campo_scelto_niente_da_scrivere() {
        Tavolo b;
        QVERIFY(!b.campo("Text1(0)")->isEnabled());
        QVERIFY(!b.widget<QPushButton>("mrvlay", "Command3d5(0)")->isEnabled());
        QVERIFY(!b.widget<QCheckBox>("mrvlay", "bianca")->isVisible());
        QVERIFY(!b.widget<QPushButton>("mrvlay", "Command3d6")->isVisible());
        QVERIFY(!b.campo("Text2(0)")->isVisible());
    }

    void il_campo_si_muove_sul_foglio_mentre_si_scrive() {
        Tavolo b;
        b.clic_cella("mrvlay", "elenco", 1, 0);
        const QRectF prima = b.foglio()->posto(1);
        const QImage foto = b.immagine();
        auto* x = b.campo("Text1(0)");
        QCOMPARE(x->text(), QString("020"));
        x->setFocus();
        x->selectAll();
        QTest::keyClick(x, Qt::Key_1);
        QVERIFY(b.foglio()->posto(1).left() < prima.left());
        QTest::keyClick(x, Qt::Key_0);
        QTest::keyClick(x, Qt::Key_0);
        b.quieta();
        const QRectF dopo = b.foglio()->posto(1);
        // 80 millimetres across, in the scale of the 170 that lie between the two fields.
        const double scala = (b.foglio()->posto(2).top() - dopo.top()) / 170;
        QVERIFY(qAbs((dopo.left() - prima.left()) - 80 * scala) < 0.01);
        QCOMPARE(dopo.top(), prima.top());
        QCOMPARE(b.tabella()->model()->index(0, 1).data().toString(), QString("100"));
        QVERIFY(b.immagine() != foto);
    }

    void la_negativa_diventa_positiva_uscendo() {
        Tavolo b;
        b.clic_cella("mrvlay", "elenco", 2, 0);
        auto* y = b.campo("Text1(1)");
        y->setFocus();
        y->selectAll();
        QTest::keyClicks(y, "-7");
        b.campo("Text1(0)")->setFocus();
        b.quieta();
        QCOMPARE(y->text(), QString("7"));
        QCOMPARE(b.tabella()->model()->index(1, 2).data().toString(), QString("007"));
    }

    void un_clic_sul_foglio_sceglie_il_campo() {
        Tavolo b;
        const QPointF centro = b.foglio()->posto(2).center();
        QTest::mouseClick(b.foglio(), Qt::LeftButton, {}, centro.toPoint());
        b.quieta();
        QCOMPARE(b.widget<QLabel>("mrvlay", "nomcam")->text().remove('&'),
                 QString("Indirizzo amministratore"));
        QCOMPARE(b.tabella()->currentIndex().row(), 1);
        QTest::mouseClick(b.foglio(), Qt::LeftButton, {}, QPoint(2, 2));
        QCOMPARE(b.tabella()->currentIndex().row(), 1);
    }

    void un_campo_spento_non_sta_sul_foglio() {
        Tavolo b;
        QVERIFY(b.foglio()->posto(3).isNull());
        QVERIFY(b.foglio()->posto(0).isNull());
        QVERIFY(b.foglio()->posto(27).isNull());
    }

    void conferma_scrive_annulla_no() {
        Tavolo b;
        const std::string prima = b.memoria.contenuto(file_ministeriale());
        b.clic_cella("mrvlay", "elenco", 1, 0);
        auto* x = b.campo("Text1(0)");
        x->setFocus();
        x->selectAll();
        QTest::keyClicks(x, "5");
        b.piattaforma.risposte = {Risposta::si};
        b.clic(b.widget<QPushButton>("mrvlay", "indice(0)"));
        QVERIFY(!b.prog.schermi.caricato("mrvlay"));
        QCOMPARE(b.memoria.contenuto(file_ministeriale()), prima);
        b.prog.tipomodulo = kMinisteriale;
        b.prog.schermi.apri("mrvlay");
        b.quieta();
        b.clic_cella("mrvlay", "elenco", 1, 0);
        x = b.campo("Text1(0)");
        x->setFocus();
        x->selectAll();
        QTest::keyClicks(x, "5");
        b.clic(b.widget<QPushButton>("mrvlay", "indice(1)"));
        QCOMPARE(b.memoria.contenuto(file_ministeriale()), "005030" + prima.substr(6));
    }

    void gli_altri_moduli_hanno_le_loro_parti() {
        Tavolo b(kAvviso);
        QVERIFY(b.widget<QCheckBox>("mrvlay", "bianca")->isVisible());
        QVERIFY(b.widget<QPushButton>("mrvlay", "Command3d6")->isVisible());
        QVERIFY(b.campo("Text2(1)")->isVisible());
        QVERIFY(!b.foglio()->posto(1).isNull());
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaMrvlay prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_mrvlay.moc"
