// The supplier windows and the two tables, driven by mouse and keys.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "suppliers/lumfor.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Tavolo : BancoFinestre {
    Tavolo() {
        fornitori({fornitore_vuoto("BIANCHI"), fornitore_vuoto("DE ROSSI"), fornitore_vuoto("ROSSI")});
        testo("lumora.pag", {"Contanti", "000000000000N000", "30/60 f.m.", "001002000000F000"});
        testo("lumora.iva", {"22", "100", "20"});
        avvia();
    }
    QLineEdit* campo(const char* schermo, const char* nome) { return widget<QLineEdit>(schermo, nome); }
};

}  // namespace

class ProvaFornitori : public QObject {
    Q_OBJECT
  private slots:
    void scrivere_in_un_campo_comincia_la_modifica_e_la_mano_resta() {
        Tavolo b;
        b.apri("lumfor");
        QVERIFY(b.campo("lumfor", "nome")->isVisible());
        QVERIFY(!b.widget<QPushButton>("lumfor", "b_conferma")->isVisible());
        QLineEdit* iva = b.campo("lumfor", "Text2(7)");
        iva->setFocus();
        QTest::keyClicks(iva, "0");
        b.quieta();
        QWidget* mano = b.finestra("lumfor").focusWidget();
        QCOMPARE(mano, iva);
        QTest::keyClicks(mano, "1234");
        b.quieta();
        QCOMPARE(iva->text(), QString("01234"));
        QCOMPARE(b.campo("lumfor", "Text2(0)")->text(), QString("BIANCHI"));
        QVERIFY(!b.campo("lumfor", "nome")->isVisible());
        b.clic(b.widget<QPushButton>("lumfor", "b_conferma"));
        QCOMPARE(b.file("for").substr(375, 11), std::string("01234      "));
        QCOMPARE(b.finestra("lumfor").focusWidget(), b.campo("lumfor", "nome"));
    }

    void modifica_porta_al_nome() {
        Tavolo b;
        b.apri("lumfor");
        b.clic(b.widget<QPushButton>("lumfor", "b_mod"));
        QCOMPARE(b.finestra("lumfor").focusWidget(), b.campo("lumfor", "Text2(0)"));
        QVERIFY(b.widget<QPushButton>("lumfor", "b_copia")->isEnabled());
        b.clic(b.widget<QPushButton>("lumfor", "b_annulla"));
        QVERIFY(!b.widget<QPushButton>("lumfor", "b_copia")->isEnabled());
    }

    void un_clic_in_un_campo_comincia_la_modifica() {
        Tavolo b;
        b.apri("lumfor");
        QLineEdit* via = b.campo("lumfor", "Text2(2)");
        b.clic(via);
        QVERIFY(b.widget<QPushButton>("lumfor", "b_conferma")->isVisible());
        QCOMPARE(b.finestra("lumfor").focusWidget(), via);
    }

    void dal_nome_alla_lista_e_ritorno_con_i_soli_tasti() {
        Tavolo b;
        b.prog.nuovafattura = 1;
        b.apri("lumftem");
        QLineEdit* nome = b.campo("lumftem", "nome");
        QCOMPARE(b.finestra("lumftem").focusWidget(), nome);
        QTest::keyClicks(nome, "rossi");
        QTest::keyClick(b.widget<QPushButton>("lumftem", "b_lista"), Qt::Key_Return);
        b.quieta();
        QTableView* t = b.widget<VistaGriglia>("mrvsel", "elenco")->tabella();
        QCOMPARE(t->model()->index(0, 0).data().toString().trimmed(), QString("DE ROSSI"));
        QCOMPARE(b.finestra("mrvsel").focusWidget(), t);
        QTest::keyClick(t, Qt::Key_Down);
        QTest::keyClick(t, Qt::Key_Return);
        b.quieta();
        QCOMPARE(b.campo("lumftem", "Text2(0)")->text(), QString("ROSSI"));
        QCOMPARE(nome->text(), QString());
    }

    void la_scelta_mostra_soltanto() {
        Tavolo b;
        b.prog.nuovafattura = 1;
        b.apri("lumftem");
        QLineEdit* campo = b.campo("lumftem", "Text2(0)");
        QVERIFY(campo->isReadOnly());
        b.clic(campo);
        QCOMPARE(b.finestra("lumftem").focusWidget(), b.campo("lumftem", "nome"));
        auto* fisica = b.widget<QCheckBox>("lumftem", "indeti(0)");
        b.clic(fisica);
        QVERIFY(!fisica->isChecked());
    }

    void l_invio_cammina_nelle_tabelle() {
        Tavolo b;
        b.apri("mrvtiva");
        QTest::keyClick(b.campo("mrvtiva", "Text1(0)"), Qt::Key_Return);
        b.quieta();
        QCOMPARE(b.finestra("mrvtiva").focusWidget(), b.campo("mrvtiva", "Text1(1)"));
        b.apri("mrvtpag");
        QTest::keyClick(b.campo("mrvtpag", "sc4(0)"), Qt::Key_Return);
        b.quieta();
        QCOMPARE(b.finestra("mrvtpag").focusWidget(), b.widget<QCheckBox>("mrvtpag", "fine(0)"));
        QCOMPARE(b.campo("mrvtpag", "sc2(1)")->text(), QString("2"));
        b.widget<QScrollBar>("mrvtpag", "selpag")->setValue(40);
        b.quieta();
        QCOMPARE(b.widget<QLabel>("mrvtpag", "numero(0)")->text(), QString("40"));
        b.campo("mrvtpag", "text1(0)")->selectAll();
        QTest::keyClicks(b.campo("mrvtpag", "text1(0)"), "Ultima");
        b.clic(b.widget<QPushButton>("mrvtpag", "indice(0)"));
        QVERIFY(b.file("lumora.pag").ends_with("Ultima\r\n\r\n"));
    }

    void tutte_le_finestre_stanno_sullo_schermo() {
        Tavolo b;
        b.prog.nuovafattura = 1;
        for (const char* nome : {"lumfor", "lumftem", "mrvsel", "mrvtiva", "mrvtpag"}) {
            const QSize s = b.apri(nome).sizeHint();
            QVERIFY2(s.width() <= 1366 && s.height() <= 740, nome);
        }
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaFornitori prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_fornitori.moc"
