// The main window, driven by mouse and keys.
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

#include "desktop/parts/colori.h"
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

void fatture_in_piu(Tavolo& b) {
    b.fatture({fattura(1, "14", 300, 0)});
    RecTotali t{};
    t.parola[0] = 3;
    b.file("tfr").replace(sizeof t, sizeof t, byte_di(t));
}

// Contrast of the strongest mark on a painted cell with the cell's background.
double contrasto_dipinto(QTableView* t, int riga, int colonna) {
    const QRect r = t->visualRect(t->model()->index(riga, colonna)).adjusted(2, 2, -2, -2);
    const QImage im = t->viewport()->grab(r).toImage();
    const QColor dietro = im.pixelColor(0, 0);
    double massimo = 1;
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < im.width(); ++x)
            massimo = std::max(massimo, contrasto(im.pixelColor(x, y), dietro));
    return massimo;
}

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

    void modificare_apre_il_documento() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 2, 7);
        QCOMPARE(b.prog.recfattura, 2);
        QCOMPARE(b.prog.modofattura, 1);
        QVERIFY(b.finestra("lumftea").isVisible());
        QVERIFY(b.finestra("vexoraf").isVisible());
    }

    void azzerare_chiede_e_paga_di_nuovo() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 2, 9);
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t(1));
        QVERIFY(!b.finestre.finestra("luminca"));
        b.piattaforma.risposte = {Risposta::si};
        b.clic_cella("vexoraf", "elenco", 2, 9);
        QVERIFY(b.finestra("luminca").isVisible());
    }

    void una_riga_vuota_non_fa_nulla() {
        Tavolo b;
        for (int colonna : {0, 7, 8, 9}) b.clic_cella("vexoraf", "elenco", 10, colonna);
        QVERIFY(b.piattaforma.messaggi.empty());
        QCOMPARE(b.prog.schermi.pila().size(), std::size_t(1));
    }

    void invio_sulla_cella_e_un_clic() {
        Tavolo b;
        QTableView* t = b.tabella();
        t->setCurrentIndex(t->model()->index(0, 8));
        QTest::keyClick(t, Qt::Key_Return);
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t(1));
    }

    void riordina_mette_in_ordine_di_nome() {
        Tavolo b;
        b.clic(b.widget<QToolButton>("vexoraf", "srx(4)"));
        const auto* m = b.tabella()->model();
        QCOMPARE(m->index(0, 4).data().toString(), QString("BIANCHI"));
        QCOMPARE(m->index(1, 4).data().toString(), QString("ROSSI"));
        QCOMPARE(m->rowCount(), 25);
        QVERIFY(b.tabella()->hasFocus());
    }

    // Each label stands over its column, whatever the window's width, the user's widths and the scrolling.
    void le_etichette_seguono_le_colonne() {
        Tavolo b;
        const auto* vista = b.widget<VistaGriglia>("vexoraf", "elenco");
        QHeaderView* testa = b.tabella()->horizontalHeader();
        const auto verifica = [&] {
            b.quieta();
            for (int c : {0, 1, 4}) {
                const QWidget* e = vista->etichette()[static_cast<std::size_t>(c)];
                const int x =
                    b.tabella()->viewport()->mapTo(vista, QPoint(testa->sectionViewportPosition(c), 0)).x();
                QCOMPARE(e->mapTo(vista, QPoint(0, 0)).x(), x);
                QVERIFY(e->width() > 0 && e->width() <= testa->sectionSize(c));
            }
        };
        verifica();
        for (const int larga : {1000, 1340, 2400}) {
            b.finestra("vexoraf").resize(larga, 600);
            verifica();
            QCOMPARE(testa->length(), b.tabella()->viewport()->width());
        }
        testa->resizeSection(0, 200);
        verifica();
        testa->resizeSection(4, 3000);
        b.quieta();
        b.tabella()->horizontalScrollBar()->setValue(150);
        verifica();
    }

    // The told cell colours stay as told, and what stands on them reads, in light and in dark.
    void le_celle_si_leggono_in_chiaro_e_in_scuro() {
        for (const QColor& base : {QColor(Qt::white), QColor(0x1e, 0x1e, 0x1e)}) {
            QPalette p(base == QColor(Qt::white) ? QColor(0xee, 0xee, 0xee) : QColor(0x38, 0x38, 0x38));
            p.setColor(QPalette::Base, base);
            QApplication::setPalette(p);
            Tavolo b;
            const auto* m = b.tabella()->model();
            QCOMPARE(m->index(0, 7).data(Qt::BackgroundRole).value<QColor>(), QColor(0xFF, 0xFF, 0x80));
            QCOMPARE(m->index(0, 8).data(Qt::BackgroundRole).value<QColor>(), QColor(0xFF, 0x80, 0x80));
            QCOMPARE(m->index(0, 9).data(Qt::BackgroundRole).value<QColor>(), QColor(0x80, 0xFF, 0x80));
            QCOMPARE(m->index(1, 9).data(Qt::BackgroundRole).value<QColor>(), QColor(0xDD, 0xDD, 0xDD));
            b.tabella()->setCurrentIndex(m->index(20, 0));
            for (const QPoint cella : {QPoint(0, 7), QPoint(0, 8), QPoint(0, 9), QPoint(1, 9), QPoint(0, 5)})
                QVERIFY2(contrasto_dipinto(b.tabella(), cella.x(), cella.y()) >= 4.5,
                         qPrintable(QString("row %1 column %2").arg(cella.x()).arg(cella.y())));
        }
        QApplication::setPalette(QPalette());
    }

    void f5_aggiorna_soltanto_alla_radice() {
        Tavolo b;
        fatture_in_piu(b);
        b.clic(b.widget<QPushButton>("vexoraf", "command3d2(1)"));
        QTest::keyClick(&b.finestra("vexoraf"), Qt::Key_F5);
        b.quieta();
        QCOMPARE(b.tabella()->model()->index(2, 2).data().toString(), QString());
        QVERIFY(!b.finestre.finestra("lumstcd"));
        b.clic(b.widget<QPushButton>("vexoraf", "indice"));
        QTest::keyClick(&b.finestra("vexoraf"), Qt::Key_F5);
        b.quieta();
        QCOMPARE(b.tabella()->model()->index(2, 2).data().toString(), QString("14"));
    }

    void un_livello_senza_tutti_i_comandi_tiene_i_posti() {
        Tavolo b;
        auto* ultimo = b.widget<QPushButton>("vexoraf", "Label2");
        auto* primo = b.widget<QPushButton>("vexoraf", "command3d2(3)");
        const int x = ultimo->x(), largo = primo->width();
        b.clic(b.widget<QPushButton>("vexoraf", "stampante"));
        QCOMPARE(primo->property("didascalia").toString(), QString("Riordino"));
        QVERIFY(!ultimo->isVisible());
        QCOMPARE(primo->width(), largo);
        b.clic(b.widget<QPushButton>("vexoraf", "indice"));
        QVERIFY(ultimo->isVisible());
        QCOMPARE(ultimo->x(), x);
    }

    void lo_stabile_e_sempre_in_vista() {
        Tavolo b;
        QCOMPARE(b.widget<QLabel>("vexoraf", "stabili")->text().left(3), QString("001"));
        b.clic(b.widget<QPushButton>("vexoraf", "command3d2(3)"));
        QVERIFY(b.finestra("lumfor").windowTitle().contains("001"));
    }

    void la_chiusura_finisce() {
        [[maybe_unused]] const SenzaPerdite qui;
        Tavolo b;
        QVERIFY_EXCEPTION_THROWN(b.finestra("vexoraf").close(), FineProcesso);
    }

    void fine_alla_radice_finisce() {
        [[maybe_unused]] const SenzaPerdite qui;
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
