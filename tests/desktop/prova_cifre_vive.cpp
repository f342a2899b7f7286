// Figures where the eye is: captions of the windows alone, made from what the controls hold.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>

#include "desktop/manuale.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Tavolo : BancoFinestre {
    Tavolo() {
        fornitori({fornitore_vuoto("ROSSI SNC")});
        RecFattura f = fattura_vuota();
        f.numfor = 1;
        f.datareg = f.datadoc = "20240105";
        f.dsca[0] = "05012024";
        f.impon[0] = 1000;
        f.ivai[0] = 220;
        f.rac[0] = 200;
        f.sca[0] = 600;
        f.sca[1] = 420;
        f.ver[0] = 600;
        f.dscarit = "16022024";
        RecFattura g = f;
        g.dscarit = "16032024";
        RecFattura h = f;
        h.dscarit = "";
        fatture({f, g, h});
        testo("lumora.iva", {"22", "100", "20"});
        testo("lumora.pag", {"Contanti", "000000000000N000", "30/60", "001002000000N000"});
        avvia();
    }
    QString detto(const char* schermo, const char* nome) {
        const auto* l = widget<QLabel>(schermo, nome);
        return l->isVisible() ? l->text() : QString();
    }
    void scrivi(const char* schermo, const char* nome, const char* testo) {
        auto* e = widget<QLineEdit>(schermo, nome);
        e->setFocus();
        e->selectAll();
        QTest::keyClicks(e, testo);
        quieta();
    }
};

}  // namespace

class ProvaCifreVive : public QObject {
    Q_OBJECT
  private slots:
    void il_netto_della_fattura() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 7);
        QCOMPARE(b.detto("lumftea", "netto"), QString("Netto a pagare 1.020,00  -  ritenuta 200,00\n"
                                                      "Pagato 600,00  -  residuo 420,00"));
        QCOMPARE(b.detto("lumftea", "somma_rate"), QString());
        b.scrivi("lumftea", "sca(1)", "400");
        QCOMPARE(b.detto("lumftea", "somma_rate"),
                 QString("Le rate sommano 1.000,00: al netto mancano 20,00"));
        b.scrivi("lumftea", "sca(1)", "430");
        QCOMPARE(b.detto("lumftea", "somma_rate"),
                 QString::fromUtf8("Le rate sommano 1.030,00: il netto è superato di 10,00"));
        const QColor rosso = b.widget<QLabel>("lumftea", "somma_rate")->palette().color(QPalette::WindowText);
        QVERIFY2(rosso.red() > rosso.green() + 80, qPrintable(rosso.name()));
    }

    void la_situazione_del_pagamento() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 9);
        QCOMPARE(b.detto("luminca", "fornitore"), QString("ROSSI SNC"));
        QCOMPARE(b.detto("luminca", "conto"),
                 QString::fromUtf8("Netto a pagare 1.020,00  -  ritenuta 200,00  -  già pagato 600,00  -  "
                                   "pagato ora 0,00  -  residuo 420,00"));
        b.clic(b.widget<QToolButton>("luminca", "rata(1)"));
        QVERIFY(b.detto("luminca", "conto").endsWith("pagato ora 420,00  -  residuo 0,00"));
    }

    void tutte_le_ritenute_entro_una_data() {
        Tavolo b;
        b.prog.tornada = -99;
        b.apri("lumpgr");
        auto* entro = b.widget<QLineEdit>("lumpgr", "entro");
        QCOMPARE(entro->text(), QString("15/03/2024"));
        auto* segna = b.widget<QPushButton>("lumpgr", "segna_entro");
        segna->click();
        b.quieta();
        QCOMPARE(b.widget<QLineEdit>("lumpgr", "txt")->text(), QString("200,00"));
        segna->click();  // what is marked stays marked
        b.quieta();
        QCOMPARE(b.widget<QLineEdit>("lumpgr", "txt")->text(), QString("200,00"));
        QVERIFY(b.finestra("lumpgr").scritta());
        entro->setText("160324");
        segna->click();
        b.quieta();
        QCOMPARE(entro->text(), QString("16/03/2024"));
        QCOMPARE(b.widget<QLineEdit>("lumpgr", "txt")->text(), QString("400,00"));
    }

    void la_lista_dei_termini_senza_righe_vuote() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 7);
        auto* termini = b.widget<QComboBox>("lumftea", "Combo1");
        QVERIFY(termini->count() > 30);
        termini->showPopup();
        b.quieta();
        auto* elenco = qobject_cast<QListView*>(termini->view());
        QVERIFY(elenco);
        QVERIFY(!elenco->isRowHidden(1) && elenco->isRowHidden(2));
        QVERIFY2(elenco->window()->height() < 20 * elenco->sizeHintForRow(0),
                 qPrintable(QString::number(elenco->window()->height())));
        termini->hidePopup();
    }

    void il_titolo_di_un_messaggio_si_legge_tutto() {
        RecordingPrinter stampante;
        PiattaformaQt p(stampante);
        int larga = 0, titolo = 0;
        QTimer::singleShot(0, qApp, [&] {
            auto* m = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            larga = m->width();
            titolo = m->fontMetrics().horizontalAdvance(m->windowTitle());
            m->close();
        });
        p.message_box("Fatto", "Stampa delle certificazioni dei compensi", Icona::informazione, Bottoni::ok,
                      {});
        QVERIFY2(larga > titolo * 5 / 4 + 50, qPrintable(QString("%1 %2").arg(larga).arg(titolo)));
    }

    void esc_chiude_il_manuale() {
        Tavolo b;
        Manuale* m = apri_manuale("vexoraf");
        QVERIFY(m && m->isVisible());
        QVERIFY(QTest::qWaitForWindowActive(m));
        QTest::keyClick(m, Qt::Key_Escape);
        b.quieta();
        QVERIFY(!m->isVisible());
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaCifreVive prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_cifre_vive.moc"
