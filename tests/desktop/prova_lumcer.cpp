// The window of the certificates: template, period, list, "SI" and "NO" by click, the jobs.
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "records/prospetto.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

RecFattura fattura(int fornitore, double imponibile) {
    RecFattura f = fattura_vuota();
    f.numfor = fornitore;
    f.datareg = f.datadoc = "20240205";
    f.dverrit = "15022024";
    f.impon[0] = imponibile;
    f.rac[0] = imponibile / 5;
    return f;
}

struct Tavolo : BancoFinestre {
    Tavolo() {
        fornitori({fornitore_vuoto("ROSSI"), fornitore_vuoto("BIANCHI")});
        fatture({fattura(1, 100), fattura(2, 200)});
        RecProspetto p;
        p.nomeprosp = "Certificazione";
        p.numprosp = "001";
        file("lumoral.tot") = byte_di(p);
        file("vexoral.001") = R"({\rtf1 Spett.le $$$251$$$\par})";
        avvia();
        apri("lumcer");
    }
    QString cella(int riga, int colonna) {
        const auto* m = widget<VistaGriglia>("lumcer", "elenco")->tabella()->model();
        return m->index(riga - 1, colonna).data().toString().trimmed();
    }
};

}  // namespace

class ProvaLumcer : public QObject {
    Q_OBJECT
  private slots:
    void certificazioni_di_chi_ha_si() {
        Tavolo b;
        QVERIFY(b.finestra("lumcer").sizeHint().width() <= 1366);
        QVERIFY(b.widget<QComboBox>("lumcer", "tabulato")->currentText().startsWith("001 Certificazione"));
        QCOMPARE(b.cella(1, 1), QString("ROSSI"));
        QCOMPARE(b.cella(2, 5), QString("40,00"));
        b.clic_cella("lumcer", "elenco", 1, 6);
        QCOMPARE(b.cella(1, 6), QString("NO"));
        b.piattaforma.risposte = {Risposta::si};
        b.clic(b.widget<QPushButton>("lumcer", "certif"));
        QCOMPARE(b.piattaforma.messaggi.back().testo, std::string("Iniziare la stampa?"));
        QCOMPARE(b.piattaforma.lavori.size(), std::size_t(1));
        QCOMPARE(b.piattaforma.lavori[0].titolo, std::string("Certificazione 2 BIANCHI"));
        QVERIFY(b.piattaforma.lavori[0].pagine[0].operazioni[0].testo.starts_with("Spett.le BIANCHI"));
        b.clic(b.widget<QPushButton>("lumcer", "indice"));
        QVERIFY(!b.prog.schermi.caricato("lumcer"));
    }

    void il_periodo_e_f5_aggiornano() {
        Tavolo b;
        auto* da = b.widget<QLineEdit>("lumcer", "text1(0)");
        da->setFocus();
        da->selectAll();
        QTest::keyClicks(da, "01/03/2024");
        b.quieta();
        QTest::keyClick(&b.finestra("lumcer"), Qt::Key_F5);
        b.quieta();
        QCOMPARE(b.cella(1, 1), QString());
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaLumcer prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_lumcer.moc"
