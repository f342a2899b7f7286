// The windows of the list screens: filters, sorts and commands by mouse and keys.
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "desktop/parts/campo_scritto.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

RecFattura fattura(int fornitore, const char* numero, double importo) {
    RecFattura f = fattura_vuota();
    f.numfor = fornitore;
    f.numdoc = numero;
    f.datareg = f.datadoc = "20240105";
    f.impon[0] = f.sca[0] = importo;
    f.dsca[0] = f.dscarit = "01022024";
    f.rac[0] = importo / 5;
    return f;
}

struct Tavolo : BancoFinestre {
    explicit Tavolo(int cancellata = 0) {
        fornitori({fornitore_vuoto("ROSSI"), fornitore_vuoto("BIANCHI")});
        std::vector<RecFattura> due{fattura(1, "12", 100), fattura(2, "9", 200)};
        due[1].cancellata = static_cast<short>(cancellata);
        fatture(due);
        avvia();
    }
    QString cella(const char* schermo, int riga, int colonna) {
        const auto* m = widget<VistaGriglia>(schermo, "elenco")->tabella()->model();
        return m->index(riga, colonna).data().toString().trimmed();
    }
};

constexpr const char* kTutti[] = {"lumstct", "lumstcs", "lumstcf", "lumstcd", "lumstca", "lumstcr"};

}  // namespace

class ProvaElenchi : public QObject {
    Q_OBJECT
  private slots:
    void ogni_elenco_ha_i_quattro_comandi_e_sta_nello_schermo() {
        Tavolo b;
        for (const char* s : kTutti) {
            Finestra& f = b.apri(s);
            QVERIFY2(f.sizeHint().width() <= 1366 && f.sizeHint().height() <= 768, s);
            for (const char* c : {"command3d1", "command3d2", "stampante", "indice"})
                QVERIFY2(b.widget<QPushButton>(s, c)->isVisible(), s);
            b.piattaforma.risposte = {Risposta::si};
            const std::size_t prima = b.piattaforma.lavori.size();
            b.clic(b.widget<QPushButton>(s, "stampante"));
            QCOMPARE(b.piattaforma.messaggi.back().icona, Icona::domanda);
            QCOMPARE(b.piattaforma.lavori.size(), prima + 1);
            b.clic(b.widget<QPushButton>(s, "indice"));
            QVERIFY2(!b.prog.schermi.caricato(s), s);
        }
    }

    void le_parole_di_un_documento_tolto_si_leggono_intere() {
        Tavolo b(1);
        b.prog.tornada = -99;
        for (const char* s : {"lumstca", "lumpgr"}) {
            b.apri(s);
            QCOMPARE(b.cella(s, 1, 3), QString("Fattura eliminata"));
            const QTableView* t = b.widget<VistaGriglia>(s, "elenco")->tabella();
            QStyleOptionViewItem o;
            o.widget = t;
            o.font = t->font();
            QVERIFY2(t->columnWidth(3) > t->itemDelegate()->sizeHint(o, t->model()->index(1, 3)).width(), s);
        }
    }

    void le_etichette_riordinano() {
        Tavolo b;
        b.apri("lumstcf");
        QCOMPARE(b.cella("lumstcf", 0, 0), QString("12"));
        b.clic(b.widget<QWidget>("lumstcf", "srx(0)"));
        QCOMPARE(b.cella("lumstcf", 0, 0), QString("9"));
        QCOMPARE(b.cella("lumstcf", 2, 2), QString("Totale"));
    }

    void il_nome_e_f5_filtrano() {
        Tavolo b;
        Finestra& f = b.apri("lumstcd");
        auto* nome = b.widget<QLineEdit>("lumstcd", "Text2");
        nome->setFocus();
        QTest::keyClicks(nome, "ros");
        b.quieta();
        QTest::keyClick(&f, Qt::Key_F5);
        b.quieta();
        QCOMPARE(b.cella("lumstcd", 0, 2), QString("ROSSI"));
        QCOMPARE(b.cella("lumstcd", 1, 2), QString("Totale"));
    }

    // It says so, and the list stays as it was.
    void una_data_che_non_lo_e_non_svuota_la_lista() {
        Tavolo b;
        for (const char* s : {"lumstcs", "lumstcf", "lumstcd", "lumstca", "lumstcr"}) {
            Finestra& f = b.apri(s);
            f.activateWindow();
            auto* data = b.widget<CampoScritto>(s, "text1(0)");
            const QString prima = data->text(), riga = b.cella(s, 0, 0);
            QVERIFY2(!riga.isEmpty(), s);
            data->setFocus(Qt::TabFocusReason);
            data->selectAll();
            QTest::keyClicks(data, "31/02/2024");
            QTest::keyClick(&f, Qt::Key_F5);
            b.quieta();
            QCOMPARE(b.cella(s, 0, 0), riga);
            QVERIFY2(data->errore().startsWith(QString::fromUtf8("Non è una data")), s);
            QVERIFY2(data->errore().endsWith(prima), qPrintable(data->errore()));
        }
    }

    void invio_passa_al_campo_dopo() {
        Tavolo b;
        b.apri("lumstcs");
        auto* inizio = b.widget<QLineEdit>("lumstcs", "t_inizio");
        inizio->setFocus();
        QTest::keyClick(inizio, Qt::Key_Return);
        b.quieta();
        QCOMPARE(b.prog.schermi.caricato("lumstcs")->fuoco()->nome(), std::string("t_fine"));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaElenchi prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_elenchi.moc"
