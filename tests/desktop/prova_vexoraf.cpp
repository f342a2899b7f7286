// The main window, driven by mouse and keys.
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

RecFattura fattura(int fornitore, const char* numero, double importo, double versato) {
    RecFattura f = fattura_vuota();
    f.numfor = fornitore;
    f.numdoc = numero;
    f.datareg = f.datadoc = "20240105";
    f.impon[0] = f.sca[0] = importo;
    f.ver[0] = versato;
    return f;
}

struct Tavolo : BancoFinestre {
    Tavolo() {
        fornitori({fornitore_vuoto("ROSSI"), fornitore_vuoto("BIANCHI")});
        fatture({fattura(1, "12/A", 100, 0), fattura(2, "13", 200, 200)});
        avvia();
    }
    QTableView* tabella() { return widget<VistaGriglia>("vexoraf", "elenco")->tabella(); }
};

}  // namespace

class ProvaVexoraf : public QObject {
    Q_OBJECT
  private slots:
    void la_lista_e_quella_della_logica() {
        Tavolo b;
        const auto* m = b.tabella()->model();
        QCOMPARE(m->rowCount(), 25);
        QCOMPARE(m->index(0, 2).data().toString(), QString("12/A"));
        QCOMPARE(m->index(1, 9).data().toString(), QString("azzera"));
        QVERIFY(b.tabella()->isColumnHidden(10));
    }

    void eliminare_chiede_prima() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 8);
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t(1));
        QCOMPARE(b.piattaforma.messaggi[0].testo, std::string("Confermi l'eliminazione della fattura?"));
        QCOMPARE(b.file("ftr")[520], '\0');
        b.piattaforma.risposte = {Risposta::si};
        b.clic_cella("vexoraf", "elenco", 1, 8);
        QCOMPARE(b.file("ftr")[520], '\1');
    }

    void fine_alla_radice_finisce() {
        Tavolo b;
        auto* stampe = b.widget<QPushButton>("vexoraf", "command3d2(1)");
        auto* fine = b.widget<QPushButton>("vexoraf", "indice");
        b.clic(stampe);
        QCOMPARE(stampe->text().remove('&'), QString("Schede"));
        b.clic(fine);
        QCOMPARE(stampe->text().remove('&'), QString("Stampe"));
        QVERIFY_EXCEPTION_THROWN(QTest::mouseClick(fine, Qt::LeftButton), FineProcesso);
        QVERIFY(b.piattaforma.finita);
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaVexoraf prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_vexoraf.moc"
