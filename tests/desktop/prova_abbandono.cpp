// Nothing that was written is lost without a word: every way out of a window asks, and so does what would
// put another document in it.
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QWindow>

#include "records/conto.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

const std::string kDomanda = "Abbandonare i dati inseriti?";

struct Tavolo : BancoFinestre {
    Tavolo() {
        fornitori({fornitore_vuoto("ROSSI"), fornitore_vuoto("BIANCHI")});
        RecFattura f = fattura_vuota();
        f.numfor = 1;
        f.datareg = f.datadoc = "20240105";
        f.dsca[0] = "05012024";
        f.impon[0] = f.sca[0] = 100;
        f.rac[0] = 20;
        f.numdoc = "UNO";
        RecFattura g = f;
        g.numdoc = "DUE";
        fatture({f, g});
        testo("lumora.iva", {"22", "100", "20"});
        testo("lumora.pag", {"Contanti", "000000000000N000"});
        std::vector<std::string> voci(40 * 15 + 54);
        voci[0] = "Spese generali";
        testo("lum001.tab", voci);
        RecConto conto{};
        conto.cnome = "Pulizie";
        file("pia") = byte_di(conto);
        avvia();
    }
    QLineEdit* campo(const char* schermo, const char* nome) { return widget<QLineEdit>(schermo, nome); }
    QPushButton* bottone(const char* schermo, const char* nome) { return widget<QPushButton>(schermo, nome); }
    void scrivi(const char* schermo, const char* nome, const char* testo) {
        QLineEdit* e = campo(schermo, nome);
        finestra(schermo).activateWindow();
        e->setFocus();
        e->selectAll();
        QTest::keyClicks(e, testo);
        quieta();
    }
    void premi(const char* caption) {
        for (auto* b : finestra("vexoraf").findChildren<QPushButton*>())
            if (b->text().remove('&') == caption) return clic(b);
        qFatal("no command %s", caption);
    }
    void esc(const char* schermo) {
        QTest::keyClick(&finestra(schermo), Qt::Key_Escape);
        quieta();
    }
    bool aperta(const char* schermo) {
        const Schermo* s = prog.schermi.caricato(schermo);
        return s && s->visible();
    }
    void modifica(int riga) { clic_cella("vexoraf", "elenco", riga, 7); }
    // How often the user was asked; forgets it.
    std::size_t domande() {
        std::size_t n = 0;
        for (const auto& m : piattaforma.messaggi) n += m.testo == kDomanda && m.bottoni == Bottoni::si_no;
        piattaforma.messaggi.clear();
        return n;
    }
};

}  // namespace

class ProvaAbbandono : public QObject {
    Q_OBJECT
  private slots:
    void chi_non_ha_scritto_esce_e_basta() {
        Tavolo b;
        b.modifica(1);
        b.esc("lumftea");
        QVERIFY(!b.aperta("lumftea"));
        QCOMPARE(b.domande(), std::size_t(0));
    }

    void ogni_via_d_uscita_chiede_data() {
        QTest::addColumn<int>("via");
        QTest::newRow("Esc") << 0;
        QTest::newRow("close box") << 1;
        QTest::newRow("Annulla") << 2;
    }
    void ogni_via_d_uscita_chiede() {
        QFETCH(int, via);
        Tavolo b;
        b.modifica(1);
        b.scrivi("lumftea", "Text2(0)", "TRE");
        const auto esci = [&] {
            if (via == 0) b.esc("lumftea");
            if (via == 1) b.finestra("lumftea").close();
            if (via == 2) b.clic(b.bottone("lumftea", "command3d1(1)"));
            b.quieta();
        };
        esci();
        QCOMPARE(b.domande(), std::size_t(1));
        QVERIFY(b.aperta("lumftea"));
        QCOMPARE(b.campo("lumftea", "Text2(0)")->text(), QString("TRE"));
        b.piattaforma.risposte = {Risposta::si};
        esci();
        QCOMPARE(b.domande(), std::size_t(1));
        QVERIFY(!b.aperta("lumftea"));
        b.modifica(1);
        QCOMPARE(b.campo("lumftea", "Text2(0)")->text(), QString("UNO"));
    }

    void un_altro_documento_nella_stessa_finestra() {
        Tavolo b;
        b.modifica(1);
        b.scrivi("lumftea", "Text2(0)", "TRE");
        b.modifica(2);
        QCOMPARE(b.domande(), std::size_t(1));
        QCOMPARE(b.campo("lumftea", "Text2(0)")->text(), QString("TRE"));
        QCOMPARE(b.prog.recfattura, 1);  // the click never reached the list
        b.piattaforma.risposte = {Risposta::si};
        b.modifica(2);
        QCOMPARE(b.campo("lumftea", "Text2(0)")->text(), QString("DUE"));
        b.domande();
        b.modifica(1);
        QCOMPARE(b.domande(), std::size_t(0));
        QCOMPARE(b.campo("lumftea", "Text2(0)")->text(), QString("UNO"));
    }

    void una_conferma_rifiutata_non_dimentica() {
        Tavolo b;
        b.modifica(1);
        b.scrivi("lumftea", "Text2(0)", "TRE");
        b.scrivi("lumftea", "text1(0)", "domani");
        b.clic(b.bottone("lumftea", "command3d1(0)"));
        QVERIFY(b.aperta("lumftea"));
        b.domande();
        b.esc("lumftea");
        QCOMPARE(b.domande(), std::size_t(1));
    }

    void indietro_dalla_vista_del_pdf_non_perde_niente() {
        Tavolo b;
        b.modifica(1);
        b.clic(b.bottone("lumftea", "command3d1(5)"));
        b.scrivi("lumftea", "pdf", "C:\\1.PDF");
        b.esc("lumftea");
        QCOMPARE(b.domande(), std::size_t(0));
        QVERIFY(!b.campo("lumftea", "pdf")->isVisible());
        b.esc("lumftea");
        QCOMPARE(b.domande(), std::size_t(1));
        QVERIFY(b.aperta("lumftea"));
    }

    void il_pagamento() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 9);
        b.clic(b.widget<QToolButton>("luminca", "tutta"));
        b.clic(b.bottone("luminca", "indice"));
        QCOMPARE(b.domande(), std::size_t(1));
        b.clic_cella("vexoraf", "elenco", 2, 9);
        QCOMPARE(b.domande(), std::size_t(1));
        QCOMPARE(b.campo("luminca", "Text2(0)")->text(), QString("UNO"));
        // Hidden and shown again it starts afresh.
        b.piattaforma.risposte = {Risposta::si};
        b.clic(b.bottone("luminca", "indice"));
        b.clic_cella("vexoraf", "elenco", 2, 9);
        b.domande();
        b.esc("luminca");
        QCOMPARE(b.domande(), std::size_t(0));
        QVERIFY(!b.aperta("luminca"));
    }

    void le_ritenute_segnate() {
        Tavolo b;
        b.premi("Rit.Acconto");
        b.premi("Versam.ritenute");
        b.clic_cella("lumpgr", "elenco", 1, 0);
        b.premi("Versam.ritenute");
        QCOMPARE(b.domande(), std::size_t(1));
        QCOMPARE(b.campo("lumpgr", "txt")->text().trimmed(), QString("20,00"));
        b.clic(b.bottone("lumpgr", "indice"));
        QCOMPARE(b.domande(), std::size_t(1));
        QVERIFY(b.aperta("lumpgr"));
    }

    void il_fornitore_nuovo() {
        Tavolo b;
        b.apri("lumfor");
        b.scrivi("lumfor", "nome", "ros");  // a search is nothing to lose
        b.clic(b.bottone("lumfor", "b_ins"));
        b.clic(b.bottone("lumfor", "b_annulla"));
        QCOMPARE(b.domande(), std::size_t(0));
        b.clic(b.bottone("lumfor", "b_ins"));
        b.scrivi("lumfor", "Text2(0)", "VERDI");
        for (const char* via : {"b_annulla", "b_fine"}) {
            b.clic(b.bottone("lumfor", via));
            QCOMPARE(b.domande(), std::size_t(1));
            QCOMPARE(b.campo("lumfor", "Text2(0)")->text(), QString("VERDI"));
        }
        b.esc("lumfor");
        QCOMPARE(b.domande(), std::size_t(1));
        QVERIFY(b.aperta("lumfor"));
        b.clic(b.bottone("lumfor", "b_conferma"));
        b.clic(b.bottone("lumfor", "b_fine"));
        QCOMPARE(b.domande(), std::size_t(0));
        QVERIFY(!b.aperta("lumfor"));
    }

    void le_tabelle_data() {
        QTest::addColumn<QString>("campo");
        QTest::addColumn<QString>("uscita");
        QTest::newRow("mrvtiva") << "Text1(0)"
                                 << "indice(1)";
        QTest::newRow("mrvtpag") << "text1(0)"
                                 << "indice(1)";
        QTest::newRow("mrvteti") << "text(0)"
                                 << "indice(1)";
        QTest::newRow("mrvaind") << "text1(0)"
                                 << "command3d4(0)";
    }
    void le_tabelle() {
        QFETCH(QString, campo);
        QFETCH(QString, uscita);
        Tavolo b;
        const char* nome = QTest::currentDataTag();
        b.apri(nome);
        b.scrivi(nome, qPrintable(campo), "7");
        b.clic(b.bottone(nome, qPrintable(uscita)));
        QCOMPARE(b.domande(), std::size_t(1));
        QVERIFY(b.aperta(nome));
        b.piattaforma.risposte = {Risposta::si};
        b.esc(nome);
        QVERIFY(!b.aperta(nome));
    }

    void esc_nell_albero_dei_comandi() {
        Tavolo b;
        b.esc("vexoraf");
        QVERIFY(b.aperta("vexoraf") && !b.piattaforma.finita);
        b.premi("Stampe");
        b.esc("vexoraf");
        QVERIFY(!b.piattaforma.finita);
        b.premi("Fornitori");  // back on the first level
        QVERIFY(b.aperta("lumfor"));
    }

    void la_fine_del_programma_chiede() {
        Tavolo b;
        b.modifica(1);
        b.scrivi("lumftea", "Text2(0)", "TRE");
        b.clic(b.bottone("vexoraf", "indice"));
        QCOMPARE(b.domande(), std::size_t(1));
        b.finestra("vexoraf").close();
        QCOMPARE(b.domande(), std::size_t(1));
        QVERIFY(!b.piattaforma.finita);
        b.premi("Stampe");
        b.clic(b.bottone("vexoraf", "indice"));  // back a level: nothing to ask
        QCOMPARE(b.domande(), std::size_t(0));
    }

    void le_finestre_stanno_sopra_la_principale() {
        Tavolo b;
        for (const char* nome : {"lumfor", "lumstcd", "mrvtiva"})
            QCOMPARE(b.apri(nome).windowHandle()->transientParent(), b.finestra("vexoraf").windowHandle());
        QVERIFY(!b.finestra("vexoraf").windowHandle()->transientParent());
    }

    // While the posting is awaited the invoice can be neither closed nor written in.
    void chi_attende_non_si_chiude() {
        Tavolo b;
        b.modifica(1);
        b.scrivi("lumftea", "Text2(0)", "TRE");
        b.piattaforma.risposte = {Risposta::si};
        bool visto = false;
        QTimer::singleShot(50, [&] {
            visto = true;
            b.domande();
            b.esc("lumftea");
            b.clic(b.bottone("lumftea", "command3d1(1)"));
            b.clic(b.bottone("lumftea", "command3d1(0)"));
            QVERIFY(b.aperta("lumftea"));
            QTest::keyClicks(b.campo("lumftea", "Text2(0)"), "X");
            b.quieta();
            QCOMPARE(b.campo("lumftea", "Text2(0)")->text(), QString("TRE"));
            QVERIFY(b.piattaforma.messaggi.empty());
            b.clic(b.bottone("lumincx", "b_fine(0)"));
        });
        b.clic(b.bottone("lumftea", "command3d1(0)"));
        QVERIFY(QTest::qWaitFor([&] { return !b.aperta("lumftea"); }));
        QVERIFY(visto);
        QCOMPARE(b.file("ftr").size(), std::size_t(2 * 522));
        QCOMPARE(b.file("ftr").substr(2, 3), std::string("TRE"));
    }

    // A copy put back ends the program: what is written is asked about first, and a posting is finished
    // first.
    void una_copia_rimessa_non_porta_via_cio_che_e_scritto() {
        Tavolo b;
        QAction* rimetti = b.finestra("vexoraf").findChild<QMenu*>("strumenti")->actions().last();
        QCOMPARE(rimetti->text(), QString("Rimetti una copia datata..."));
        b.modifica(1);
        b.scrivi("lumftea", "Text2(0)", "TRE");
        b.domande();
        rimetti->trigger();
        QCOMPARE(b.domande(), std::size_t(1));
        b.piattaforma.risposte = {Risposta::si};
        bool visto = false;
        QTimer::singleShot(50, [&] {
            visto = true;
            b.domande();
            rimetti->trigger();
            QVERIFY(b.piattaforma.messaggi.empty());
            b.clic(b.bottone("lumincx", "b_fine(0)"));
        });
        b.clic(b.bottone("lumftea", "command3d1(0)"));
        QVERIFY(QTest::qWaitFor([&] { return !b.aperta("lumftea"); }));
        QVERIFY(visto);
        QCOMPARE(b.file("ftr").substr(2, 3), std::string("TRE"));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaAbbandono prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_abbandono.moc"
