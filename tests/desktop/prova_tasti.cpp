// The keys of the windows: letters dealt by what is in sight, Enter from field to field, arrows in the
// columns of amounts, commands that do nothing out of use.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "desktop/parts/mnemonici.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Tavolo : BancoFinestre {
    Tavolo() {
        fornitori({fornitore_vuoto("BIANCHI"), fornitore_vuoto("ROSSI")});
        RecFattura f = fattura_vuota();
        f.numfor = 1;
        f.datareg = f.datadoc = "20240105";
        f.impon[0] = f.sca[0] = 100;
        fatture({f});
        testo("lumora.iva", {"22", "100", "20"});
        testo("lumora.pag", {"Contanti", "000000000000N000"});
        avvia();
    }
    QPushButton* bottone(const char* schermo, const char* nome) { return widget<QPushButton>(schermo, nome); }
    QString fuoco(const char* schermo) {
        const QWidget* w = finestra(schermo).focusWidget();
        return w ? w->objectName() : QString();
    }
    void invio(const char* schermo) {
        QTest::keyClick(finestra(schermo).focusWidget(), Qt::Key_Return);
        quieta();
    }
};

// The letter of a caption; null for none.
QChar lettera(const QString& testo) {
    QString t = testo;
    const auto i = t.remove("&&").indexOf('&');
    return i < 0 ? QChar() : t[i + 1].toLower();
}

}  // namespace

class ProvaTasti : public QObject {
    Q_OBJECT
  private slots:
    // Ctrl+S is the command that goes on or stores, with the field in hand taken as it stands.
    void ctrl_s_conferma() {
        Tavolo b;
        b.clic(b.bottone("vexoraf", "command3d2(2)"));
        QVERIFY(!lettera(b.bottone("lumftem", "b_ins")->text()).isNull());
        QTest::keyClick(b.finestra("lumftem").focusWidget(), Qt::Key_S, Qt::ControlModifier);
        b.quieta();
        QVERIFY(b.finestra("lumftea").isVisible());
        b.apri("lumfor");
        b.clic(b.bottone("lumfor", "b_ins"));
        QTest::keyClicks(b.finestra("lumfor").focusWidget(), "VERDI");
        QTest::keyClick(b.finestra("lumfor").focusWidget(), Qt::Key_S, Qt::ControlModifier);
        b.quieta();
        QVERIFY(b.file("for").find("VERDI") != std::string::npos);
    }

    void conferma_e_annulla_hanno_la_loro_lettera() {
        Tavolo b;
        b.apri("lumfor");
        QCOMPARE(lettera(b.bottone("lumfor", "b_conferma")->text()), QChar());
        const QChar cerca = lettera(b.bottone("lumfor", "b_cerca")->text());
        QVERIFY(!cerca.isNull());
        b.clic(b.bottone("lumfor", "b_ins"));
        QVERIFY(!lettera(b.bottone("lumfor", "b_conferma")->text()).isNull());
        QVERIFY(!lettera(b.bottone("lumfor", "b_annulla")->text()).isNull());
        QCOMPARE(lettera(b.bottone("lumfor", "b_cerca")->text()), QChar());  // out of use it gives it away
        b.clic(b.bottone("lumfor", "b_annulla"));
        QCOMPARE(lettera(b.bottone("lumfor", "b_cerca")->text()), cerca);
    }

    void chi_ha_una_lettera_la_tiene() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 7);
        const auto data = [&]() -> QChar {
            for (const auto* l : b.finestra("lumftea").findChildren<QLabel*>())
                if (l->property(kDidascalia).toString() == "Data documento") return lettera(l->text());
            return {};
        };
        const QChar prima = data();
        QVERIFY(!prima.isNull());
        b.clic(b.bottone("lumftea", "command3d1(5)"));
        QVERIFY(b.widget<QLineEdit>("lumftea", "pdf")->isVisible());
        QCOMPARE(data(), prima);
    }

    void quel_che_si_mostra_soltanto_non_prende_lettere() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 9);
        for (const auto* l : b.finestra("luminca").findChildren<QLabel*>())
            if (l->property(kDidascalia).toString() == "Numero del documento")
                QCOMPARE(lettera(l->text()), QChar());
    }

    void i_comandi_vani_del_registro_sono_spenti() {
        Tavolo b;
        b.apri("lumfor");
        const auto accesi = [&] {
            QStringList r;
            for (const char* n : {"b_ins", "b_mod", "b_dup", "b_srt", "b_eli"})
                if (b.bottone("lumfor", n)->isEnabled()) r += n;
            return r.join(' ');
        };
        QCOMPARE(accesi(), QString("b_ins b_mod b_dup b_srt b_eli"));
        b.clic(b.bottone("lumfor", "b_ins"));
        QCOMPARE(accesi(), QString());
        QVERIFY(b.prog.schermi.caricato("lumfor")->trova("b_dup")->enabled());  // the screen's own stays
        b.clic(b.bottone("lumfor", "b_annulla"));
        b.clic(b.bottone("lumfor", "b_mod"));
        QCOMPARE(accesi(), QString("b_mod b_dup b_eli"));
    }

    void invio_cammina_nel_registro() {
        Tavolo b;
        b.apri("lumfor").activateWindow();
        b.clic(b.bottone("lumfor", "b_ins"));
        QCOMPARE(b.fuoco("lumfor"), QString("Text2(0)"));
        QStringList visti;
        for (int i = 0; i < 60 && b.fuoco("lumfor") != "b_conferma"; ++i) {
            b.invio("lumfor");
            visti += b.fuoco("lumfor");
        }
        QCOMPARE(visti.first(), QString("Text2(1)"));
        for (const char* n : {"Text2(7)", "indeti(0)", "Text2(8)", "Text2(17)", "Combo1", "b_conferma"})
            QVERIFY2(visti.contains(n), n);
        QVERIFY(!visti.contains("b_copia"));
        QVERIFY(!b.widget<QAbstractButton>("lumfor", "indeti(0)")->isChecked());
        // The told Enter of the search stays.
        b.clic(b.bottone("lumfor", "b_annulla"));
        QTest::keyClicks(b.widget<QLineEdit>("lumfor", "nome"), "ros");
        b.widget<QLineEdit>("lumfor", "nome")->setFocus();
        b.invio("lumfor");
        QCOMPARE(b.widget<QLineEdit>("lumfor", "Text2(0)")->text(), QString("ROSSI"));
    }

    void il_secondo_invio_non_sceglie_un_altro_fornitore() {
        Tavolo b;
        b.prog.nuovafattura = 1;
        b.apri("lumftem");
        auto* nome = b.widget<QLineEdit>("lumftem", "nome");
        QTest::keyClicks(nome, "ros");
        QTest::keyClick(nome, Qt::Key_Return);
        b.quieta();
        QCOMPARE(b.widget<QLineEdit>("lumftem", "Text2(0)")->text(), QString("ROSSI"));
        QTest::keyClick(nome, Qt::Key_Return);
        b.quieta();
        QCOMPARE(b.widget<QLineEdit>("lumftem", "Text2(0)")->text(), QString("ROSSI"));
        QVERIFY(b.piattaforma.messaggi.empty());
    }

    void le_frecce_nelle_colonne_degli_importi() {
        Tavolo b;
        b.clic_cella("vexoraf", "elenco", 1, 7);
        b.widget<QLineEdit>("lumftea", "impon(0)")->setFocus();
        const auto tasto = [&](Qt::Key k) {
            QTest::keyClick(b.finestra("lumftea").focusWidget(), k);
            b.quieta();
            return b.fuoco("lumftea");
        };
        QCOMPARE(tasto(Qt::Key_Down), QString("impon(1)"));
        QCOMPARE(tasto(Qt::Key_Down), QString("impon(2)"));
        QCOMPARE(tasto(Qt::Key_Up), QString("impon(1)"));
        b.widget<QLineEdit>("lumftea", "sca(3)")->setFocus();
        QCOMPARE(tasto(Qt::Key_Down), QString("sca(3)"));
        QCOMPARE(tasto(Qt::Key_Up), QString("sca(2)"));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaTasti prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_tasti.moc"
