// The windows of the upkeep: label design and label print, archive reset, record counts; by mouse and keys.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "desktop/mrvteti_immagine.h"
#include "forms/etichette.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Tavolo : BancoFinestre {
    explicit Tavolo(const char* schermo) {
        auto f = fornitore_vuoto("ROSSI");
        f.citta = "ROMA";
        fornitori({f, fornitore_vuoto("BIANCHI")});
        RecFattura d = fattura_vuota();
        d.numfor = 1;
        d.datareg = "20110101";
        fatture({d});
        avvia();
        prog.tipomodulo = 3;
        nome = schermo;
        prog.schermi.apri(nome);
        quieta();
    }
    QLineEdit* campo(const char* c) { return widget<QLineEdit>(nome, c); }
    void scrivi(const char* c, const char* testo) {
        campo(c)->setFocus();
        campo(c)->selectAll();
        QTest::keyClicks(campo(c), testo);
        quieta();
    }
    void clic(const char* c) {
        QTest::mouseClick(widget<QPushButton>(nome, c), Qt::LeftButton);
        quieta();
    }
    std::string nome;
};

}  // namespace

class ProvaManutenzione : public QObject {
    Q_OBJECT
  private slots:
    void un_campo_si_muove_sull_etichetta_mentre_si_scrive() {
        Tavolo b("mrvteti");
        auto* immagine = b.widget<VistaEtichetta>("mrvteti", "immagine");
        const QRectF prima = immagine->posto(1);
        QVERIFY(!prima.isNull());
        const double scala = immagine->etichetta().width() / 70;
        b.scrivi("Text1(0)", "25");
        QVERIFY(qAbs(immagine->posto(1).left() - prima.left() - 20 * scala) < 0.01);
        b.scrivi("Text1(0)", "0");
        QVERIFY2(immagine->posto(1).isNull(), "a field at the edge itself is not printed");
    }

    void l_immagine_segue_le_misure_del_foglio() {
        Tavolo b("mrvteti");
        auto* immagine = b.widget<VistaEtichetta>("mrvteti", "immagine");
        const double prima = immagine->etichetta().width() / immagine->etichetta().height();
        b.scrivi("text(6)", "1");
        const QRectF dopo = immagine->etichetta();
        QVERIFY(qAbs(dopo.width() / dopo.height() - 3 * prima) < 0.01);
        // Measures that are none: no picture, no crash.
        for (const char* storta : {"0", "-3", "abc", "1e9", "99999999999"}) {
            b.scrivi("text(6)", storta);
            b.scrivi("text(0)", storta);
            immagine->grab();
        }
        b.scrivi("text(6)", "");
        QVERIFY(immagine->etichetta().isEmpty());
    }

    void il_cursore_mostra_gli_altri_campi() {
        Tavolo b("mrvteti");
        b.scrivi("Text1(0)", "33");
        auto* cursore = b.widget<QScrollBar>("mrvteti", "VScroll1");
        QCOMPARE(cursore->maximum(), 5);
        cursore->setValue(5);
        b.quieta();
        QCOMPARE(b.widget<QLabel>("mrvteti", "campo(0)")->text().remove('&'), QString("Campo libero riga 1"));
        cursore->setValue(0);
        b.quieta();
        QCOMPARE(b.campo("Text1(0)")->text(), QString("33"));
        b.clic("indice(0)");
        QVERIFY(b.memoria.esiste(file_etichette(3)));
        QVERIFY(!b.prog.schermi.caricato("mrvteti"));
    }

    void le_copie_con_un_clic() {
        Tavolo b("lumstce");
        b.scrivi("text1(5)", "4");
        b.clic_cella("lumstce", "elenco", 1, 0);
        auto* m = b.widget<VistaGriglia>("lumstce", "elenco")->tabella()->model();
        QCOMPARE(m->index(0, 4).data().toString(), QString("4"));
        b.scrivi("text1(2)", "ro");
        b.clic("command3d2");
        QCOMPARE(m->index(0, 3).data().toString().trimmed(), QString("ROMA"));
        QVERIFY(m->index(1, 0).data().toString().isEmpty());
    }

    void azzeramento_con_data_storta() {
        Tavolo b("mrvaazz");
        QVERIFY(!b.widget<QCheckBox>("mrvaazz", "azz(8)")->isChecked());
        QTest::keyClick(b.widget<QCheckBox>("mrvaazz", "azz(8)"), Qt::Key_Space);
        b.scrivi("text1(6)", "31/02/2012");
        b.clic("command3d4(1)");
        QVERIFY(b.prog.schermi.caricato("mrvaazz"));
        b.scrivi("text1(6)", "01/01/2012");
        b.piattaforma.risposte = {Risposta::si, Risposta::si};
        b.clic("command3d4(1)");
        QVERIFY(!b.prog.schermi.caricato("mrvaazz"));
        QCOMPARE(int(static_cast<unsigned char>(b.file("tfr")[28])), 0);
    }

    void un_indice_rifiutato_tiene_il_fuoco() {
        Tavolo b("mrvaind");
        b.scrivi("text1(0)", "30000");
        QTest::keyClick(b.campo("text1(0)"), Qt::Key_Tab);
        b.quieta();
        QVERIFY(b.campo("text1(0)")->hasFocus());
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t{1});
        b.scrivi("text1(0)", "29999");
        QTest::keyClick(b.campo("text1(0)"), Qt::Key_Return);
        b.quieta();
        QVERIFY(b.campo("text1(1)")->hasFocus());
        b.clic("command3d4(1)");
        QCOMPARE(b.file("tfr").substr(0, 2), std::string("\x2F\x75"));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaManutenzione prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_manutenzione.moc"
