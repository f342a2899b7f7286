// The windows of the two purchase summaries, driven by mouse and keys.
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Tavolo : BancoFinestre {
    explicit Tavolo(const char* schermo) {
        RecFornitore acqua = fornitore_vuoto("ACQUEDOTTO");
        acqua.nofelenco = 1;
        fornitori({acqua, fornitore_vuoto("ROSSI")});
        std::vector<RecFattura> documenti(2, fattura_vuota());
        for (int k = 0; k < 2; ++k) {
            RecFattura& f = documenti[static_cast<std::size_t>(k)];
            f.numfor = k + 1;
            f.datareg = f.datadoc = "20240105";
            f.impon[0] = 300 + 100 * k;
        }
        fatture(documenti);
        avvia();
        prog.schermi.apri(schermo);
        quieta();
    }
    QString cella(const char* schermo, int r, int c) {
        return widget<VistaGriglia>(schermo, "elenco")->tabella()->model()->index(r, c).data().toString();
    }
};

}  // namespace

class ProvaRiepiloghi : public QObject {
    Q_OBJECT
  private slots:
    void la_soglia_e_f5() {
        Tavolo b("lumstcx");
        QCOMPARE(b.cella("lumstcx", 0, 1), QString("300,00"));
        QCOMPARE(b.cella("lumstcx", 1, 1), QString("400,00"));
        auto* soglia = b.widget<QLineEdit>("lumstcx", "Text3(1)");
        soglia->setFocus();
        soglia->selectAll();
        QTest::keyClicks(soglia, "400");
        QTest::keyClick(soglia, Qt::Key_F5);
        b.quieta();
        QCOMPARE(b.cella("lumstcx", 0, 0).trimmed(), QString("ROSSI"));
        QCOMPARE(b.cella("lumstcx", 2, 0), QString("Totali"));
    }

    void i_fornitori_particolari() {
        Tavolo b("lumstcy");
        QVERIFY(b.cella("lumstcy", 0, 0).startsWith("ACQUEDOTTO"));
        QTest::mouseClick(b.widget<QCheckBox>("lumstcy", "Eli"), Qt::LeftButton, {}, QPoint(8, 8));
        b.clic(b.widget<QPushButton>("lumstcy", "command3d2"));
        QVERIFY(b.cella("lumstcy", 0, 0).startsWith("ROSSI"));
        QVERIFY(b.widget<VistaGriglia>("lumstcy", "elenco")->tabella()->isColumnHidden(6));
    }

    void ctrl_p_stampa() {
        Tavolo b("lumstcy");
        b.piattaforma.risposte = {Risposta::si};
        QTest::keyClick(b.widget<QLineEdit>("lumstcy", "t_inizio"), Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(b.piattaforma.messaggi.at(0).titolo, std::string("Stampa prospetto"));
        QCOMPARE(b.piattaforma.lavori.size(), std::size_t(1));
    }

    void quadro_ac_chiede_due_volte() {
        Tavolo b("lumstcx");
        b.piattaforma.risposte = {Risposta::no, Risposta::si};
        b.clic(b.widget<QToolButton>("lumstcx", "Label1(1)"));
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t(2));
        QCOMPARE(b.piattaforma.lavori.size(), std::size_t(1));
        QCOMPARE(b.piattaforma.lavori[0].pagine[0].operazioni[0].unita, Scala::millimetri);
    }

    void l_esportazione_dice_dove() {
        Tavolo b("lumstcx");
        auto* dove = b.widget<QLabel>("lumstcx", "dove");
        QCOMPARE(dove->text(), QString());
        b.piattaforma.risposte = {Risposta::ok};
        b.clic(b.widget<QToolButton>("lumstcx", "Label1(0)"));
        b.quieta();
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t(1));
        QCOMPARE(dove->text(), QString("Dati esportati in a:lumxp001.txt"));
        QVERIFY(b.memoria.esiste("a:lumxp001.txt"));
    }

    void invio_cammina_ed_esc_chiude() {
        Tavolo b("lumstcx");
        auto* primo = b.widget<QLineEdit>("lumstcx", "t_inizio");
        primo->setFocus();
        QTest::keyClick(primo, Qt::Key_Return);
        b.quieta();
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("t_fine"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        b.quieta();
        QVERIFY(!b.prog.schermi.caricato("lumstcx"));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaRiepiloghi prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_riepiloghi.moc"
