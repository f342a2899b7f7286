// The windows of payment, posting and withheld tax, driven by mouse and keys.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include "tests/ledger/tavolo_record.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Tavolo : BancoFinestre {
    Tavolo() {
        RecFornitore f = fornitore_vuoto("ROSSI");
        f.conto = 60;
        fornitori({f});
        RecFattura d = fattura_vuota();
        d.numfor = 1;
        d.numdoc = "12/A";
        d.datareg = d.datadoc = "20240105";
        d.dscarit = "16022024";
        d.impon[0] = d.sca[0] = 100;
        d.rac[0] = 20;
        fatture({d});
        for (std::size_t n = 1; n <= 99; ++n) conto(n, "Conto " + std::to_string(n));
        conto(3961, "Solleciti");
        conto(4159, "Banca");
        conto(kConti, "");
        std::vector<std::string> righe(654);
        righe[0] = "Spese generali";
        righe[2] = "1000";
        testo("lum001.tab", righe);
        metti_record(file("tot"), 1, RecTotaliLedger{});
        avvia();
    }
    void conto(std::size_t n, const std::string& nome) {
        RecConto c{};
        c.cnome = nome;
        metti_record(file("pia"), n, c);
    }
    QLineEdit* campo(const char* schermo, const char* nome) { return widget<QLineEdit>(schermo, nome); }
    QTableView* tabella(const char* schermo) { return widget<VistaGriglia>(schermo, "elenco")->tabella(); }

    void apri_pagamento() { clic_cella("vexoraf", "elenco", 1, 9); }
    /// "Conferma" waits for the posting window, in which `utente` then acts.
    void conferma(std::function<void()> utente) {
        piattaforma.risposte = {Risposta::si};
        QTimer::singleShot(0, qApp, std::move(utente));
        clic(widget<QPushButton>("luminca", "conferma"));
    }
};

}  // namespace

class ProvaContabilita : public QObject {
    Q_OBJECT
  private slots:
    void si_paga_dalla_tastiera() {
        Tavolo b;
        b.apri_pagamento();
        QWidget* finestra = &b.finestra("luminca");
        QCOMPARE(b.campo("luminca", "sca(0)")->text(), QString("100,00"));
        QTest::keyClicks(b.campo("luminca", "dver(0)"), "10-02-2024");
        QTest::keyClick(b.campo("luminca", "dver(0)"), Qt::Key_Return);
        QTest::keyClicks(b.campo("luminca", "ver(0)"), "100");
        b.quieta();
        QCOMPARE(b.campo("luminca", "dver(0)")->text(), QString("10/02/2024"));
        QCOMPARE(b.campo("luminca", "dver(4)")->text(), QString("18/03/2024"));
        b.clic(b.widget<QPushButton>("luminca", "conferma"));
        QVERIFY(!finestra->isVisible());
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t(1));
        QCOMPARE(record_di<RecFattura>(b.file("ftr"), 1).pagata, 1);
    }

    void la_scorciatoia_propone_il_residuo() {
        Tavolo b;
        b.apri_pagamento();
        auto* rata = b.widget<QToolButton>("luminca", "rata(0)");
        QCOMPARE(rata->text().remove('&'), QString::fromUtf8("La 1' rata è stata integralmente pagata?"));
        b.clic(rata);
        QCOMPARE(b.campo("luminca", "ver(0)")->text(), QString("100"));
        QCOMPARE(b.campo("luminca", "dver(0)")->text(), QString("15/03/2024"));
        QVERIFY(b.campo("luminca", "sca(0)")->isReadOnly());
    }

    void la_contabilita_mostra_dove_va_il_denaro() {
        Tavolo b;
        b.apri_pagamento();
        QTest::keyClicks(b.campo("luminca", "dver(0)"), "10/02/2024");
        QTest::keyClicks(b.campo("luminca", "ver(0)"), "40");
        bool visto = false;
        b.conferma([&] {
            b.quieta();
            visto = b.tabella("lumincx")->rowAt(0) == 59;
            QCOMPARE(b.finestra("lumincx").windowTitle().section(" - ", 0, 0).isEmpty(), false);
            QCOMPARE(b.widget<QLabel>("lumincx", "conto")->text(), QString("Conto 60"));
            QCOMPARE(b.widget<QLabel>("lumincx", "dove(0)")->text(), QString("Conto 60: da 0,00 a 40,00"));
            QCOMPARE(b.widget<QLabel>("lumincx", "dove(1)")->text(), QString("Banca: da 0,00 a -40,00"));
            QVERIFY(!b.widget<QComboBox>("lumincx", "condom")->isVisible());
            QTimer::singleShot(0, qApp, [&] { b.clic(b.widget<QPushButton>("lumincx", "b_fine(1)")); });
        });
        QVERIFY2(visto, "the preselected account is in sight");
        QCOMPARE(double(record_di<RecConto>(b.file("pia"), 60).csaldo), 40.0);
        QCOMPARE(double(record_di<RecConto>(b.file("pia"), 4159).csaldo), -40.0);
        QVERIFY(!b.finestre.finestra("lumincx"));
    }

    void esc_annulla_e_chi_attende_prosegue() {
        Tavolo b;
        b.apri_pagamento();
        QTest::keyClicks(b.campo("luminca", "dver(0)"), "10/02/2024");
        QTest::keyClicks(b.campo("luminca", "ver(0)"), "40");
        b.conferma([&] {
            b.quieta();
            QTest::keyClick(&b.finestra("lumincx"), Qt::Key_Escape);
        });
        QCOMPARE(b.prog.tornada, -1);
        QCOMPARE(double(record_di<RecFattura>(b.file("ftr"), 1).ver[0]), 40.0);
        QVERIFY(b.file("mov").empty());
    }

    void un_clic_segna_la_ritenuta() {
        Tavolo b;
        b.prog.tornada = -99;
        b.apri("lumpgr");
        b.clic_cella("lumpgr", "elenco", 1, 2);
        QCOMPARE(b.campo("lumpgr", "txt")->text(), QString("20,00"));
        const auto* m = b.tabella("lumpgr")->model();
        QCOMPARE(m->index(0, 0).data(Qt::BackgroundRole).value<QBrush>().color(), QColor(0xFF, 0xE0, 0xC0));
        QVERIFY(b.tabella("lumpgr")->isColumnHidden(6) && b.tabella("lumpgr")->isColumnHidden(7));
        b.piattaforma.risposte = {Risposta::si};  // the marked rows are given up
        b.clic(b.widget<QPushButton>("lumpgr", "indice"));
        QVERIFY(!b.finestre.finestra("lumpgr"));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaContabilita prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_contabilita.moc"
