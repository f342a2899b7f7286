// The pieces of the windows on a screen made for them: both roads of a value, focus, keys, colours.
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QToolButton>
#include <set>

#include "desktop/parts/colori.h"
#include "desktop/parts/legame.h"
#include "desktop/viste.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

// A screen with one control of each kind.
struct Campionario : Schermo {
    CampoTesto nome, importo, fisso;
    CampoData data;
    Etichetta nota{"Nota"}, link{"Vai"};
    Bottone fai{"Fai"}, vuoto{""};
    Casella casella{"Casella"};
    Opzione si{"Si"}, no{"No"};
    Lista lista;
    Scorrimento barra;
    Progresso progresso;
    Griglia griglia;
    int clic = 0;

    explicit Campionario(Programma& p) : Schermo(p, "campionario", "Campionario") {
        nome.massimo = 40;
        importo.importo = true;
        fisso.sola_lettura = true;
        fisso.testo("fisso");
        aggiungi("nome", nome);
        aggiungi("importo", importo);
        aggiungi("fisso", fisso);
        aggiungi("data", data);
        aggiungi("nota", nota);
        aggiungi("link", link);
        aggiungi("casella", casella);
        aggiungi("si", si);
        aggiungi("no", no);
        aggiungi("lista", lista);
        aggiungi("barra", barra);
        aggiungi("progresso", progresso);
        aggiungi("griglia", griglia);
        aggiungi("fai", fai);
        aggiungi("vuoto", vuoto);
        Opzione::gruppo({&si, &no});
        lista.aggiungi("zero");
        lista.aggiungi("uno");
        barra.limiti(1, 50);
        fai.premuto = link.premuto = [this] { ++clic; };
        griglia.colonne({{"A", 1000}, {"B", 1000, Allineamento::destra}, {"", 0}});
        griglia.aggiungi({"a", "1", "x"});
        griglia.aggiungi({"b", "2", "y"});
    }
};

struct Tavolo : BancoFinestre {
    Campionario* s;
    Tavolo() {
        prog.schermi.registra<Campionario>("campionario");
        apri("campionario");
        s = &static_cast<Campionario&>(*prog.schermi.caricato("campionario"));
    }
    template <class W>
    W* w(const char* nome) {
        return widget<W>("campionario", nome);
    }
};

}  // namespace

class ProvaPezzi : public QObject {
    Q_OBJECT
  private slots:
    void il_testo_va_e_viene() {
        Tavolo b;
        int digitati = 0;
        b.s->nome.digitato = [&] { ++digitati; };
        QTest::keyClicks(b.w<QLineEdit>("nome"), "Per");
        QKeyEvent accentata(QEvent::KeyPress, Qt::Key_Ugrave, Qt::NoModifier, QString::fromUtf8("ù"));
        QApplication::sendEvent(b.w<QLineEdit>("nome"), &accentata);
        QCOMPARE(b.s->nome.testo(), "Perù"_it);
        QCOMPARE(digitati, 4);  // one a keystroke
        b.s->nome.testo("Città"_it);
        b.quieta();
        QCOMPARE(b.w<QLineEdit>("nome")->text(), QString::fromUtf8("Città"));
        QCOMPARE(digitati, 4);
    }

    void quel_che_la_logica_riscrive_si_vede() {
        Tavolo b;
        b.s->nome.digitato = [&] { b.s->nome.testo(maiuscolo(b.s->nome.testo())); };
        QTest::keyClicks(b.w<QLineEdit>("nome"), "abc");
        b.quieta();
        QCOMPARE(b.w<QLineEdit>("nome")->text(), QString("ABC"));
    }

    // The picker keeps what it held while the hand is still writing.
    void la_data_resta_come_digitata() {
        Tavolo b;
        b.s->data.testo("05/02/2024");
        b.quieta();
        auto* e = b.w<QLineEdit>("data");
        e->setFocus();
        b.quieta();
        e->selectAll();
        QTest::keyClicks(e, "3-4");
        b.quieta();
        QCOMPARE(b.s->data.testo(), std::string("05/02/2024"));
        QCOMPARE(e->text(), QString("3-4"));
        QTest::keyClicks(e, "-2024");
        b.quieta();
        QCOMPARE(b.s->data.testo(), std::string("03/04/2024"));
        QCOMPARE(e->text(), QString("03/04/2024"));
    }

    void il_calendario_scrive_nel_campo() {
        Tavolo b;
        b.s->data.testo("05/02/2024");
        b.quieta();
        QTest::keyClick(b.w<QLineEdit>("data"), Qt::Key_Down, Qt::AltModifier);
        b.quieta();
        auto* mese = b.finestra("campionario").findChild<QCalendarWidget*>();
        QVERIFY(mese);
        QCOMPARE(mese->selectedDate(), QDate(2024, 2, 5));
        emit mese->clicked(QDate(2024, 2, 29));
        b.quieta();
        QCOMPARE(b.s->data.testo(), std::string("29/02/2024"));
    }

    void scelte_e_barre() {
        Tavolo b;
        auto* casella = b.w<QCheckBox>("casella");
        casella->click();
        QVERIFY(b.s->casella.spuntata());
        b.w<QRadioButton>("no")->click();
        b.w<QRadioButton>("no")->click();  // a chosen option stays chosen
        QVERIFY(b.s->no.scelta() && b.w<QRadioButton>("no")->isChecked());
        b.w<QRadioButton>("si")->click();
        b.quieta();
        QVERIFY(b.s->si.scelta() && !b.s->no.scelta() && !b.w<QRadioButton>("no")->isChecked());
        b.s->si.scelta(false);
        b.quieta();
        QVERIFY(!b.w<QRadioButton>("si")->isChecked());

        auto* lista = b.w<QComboBox>("lista");
        QCOMPARE(lista->currentIndex(), -1);
        QTest::keyClick(lista, Qt::Key_Down);
        QCOMPARE(b.s->lista.scelta(), 0);
        b.s->lista.svuota();
        b.s->lista.aggiungi("altra");
        b.quieta();
        QCOMPARE(lista->count(), 1);
        QCOMPARE(lista->currentIndex(), -1);

        b.w<QScrollBar>("barra")->setValue(7);
        QCOMPARE(b.s->barra.valore(), 7);
        b.s->progresso.massimo(200);
        b.s->progresso.valore(50);
        b.quieta();
        QCOMPARE(b.w<QProgressBar>("progresso")->value(), 50);
    }

    void visibile_abilitato_didascalia() {
        Tavolo b;
        QVERIFY(!b.w<QPushButton>("vuoto")->isVisible());
        QVERIFY(b.w<QPushButton>("vuoto")->sizePolicy().retainSizeWhenHidden());
        b.s->vuoto.caption("Ora & qui");
        b.s->fai.enabled(false);
        b.s->nome.visible(false);
        b.quieta();
        auto* vuoto = b.w<QPushButton>("vuoto");
        QVERIFY(vuoto->isVisible());
        QCOMPARE(vuoto->property(kDidascalia).toString(), QString("Ora & qui"));
        QVERIFY(vuoto->text().contains("&&"));
        QVERIFY(!b.w<QPushButton>("fai")->isEnabled());
        QVERIFY(!b.w<QLineEdit>("nome")->isVisible());
        QVERIFY(b.w<QLineEdit>("fisso")->isReadOnly());
        QCOMPARE(b.w<QLineEdit>("importo")->alignment() & Qt::AlignRight, Qt::AlignRight);
    }

    void molti_cambi_una_volta() {
        Tavolo b;
        int volte = 0;
        auto* e = b.w<QLineEdit>("nome");
        connect(e, &QLineEdit::textChanged, e, [&] { ++volte; });
        for (int i = 0; i < 100; ++i) b.s->nome.testo(std::to_string(i));
        QCOMPARE(volte, 0);
        b.quieta();
        QCOMPARE(volte, 1);
        QCOMPARE(e->text(), QString("99"));
    }

    void un_campo_trattiene_il_fuoco() {
        Tavolo b;
        auto* nome = b.w<QLineEdit>("nome");
        b.finestra("campionario").activateWindow();
        nome->setFocus();
        b.quieta();
        QCOMPARE(b.s->fuoco(), static_cast<Controllo*>(&b.s->nome));
        int chiesto = 0;
        b.s->nome.lasciato = [&] { return ++chiesto > 1; };
        b.clic(b.w<QPushButton>("fai"));
        QCOMPARE(chiesto, 1);
        QCOMPARE(b.s->clic, 0);  // the click went with the focus that was refused
        QVERIFY(nome->hasFocus());
        b.clic(b.w<QPushButton>("fai"));
        QCOMPARE(chiesto, 2);
        QCOMPARE(b.s->clic, 1);
    }

    // A command reached by its letter leaves the field first, as a click does.
    void un_campo_trattiene_anche_dai_tasti() {
        Tavolo b;
        auto* nome = b.w<QLineEdit>("nome");
        b.finestra("campionario").activateWindow();
        nome->setFocus();
        b.quieta();
        int chiesto = 0;
        b.s->nome.lasciato = [&] { return ++chiesto > 2; };
        b.w<QPushButton>("fai")->click();
        b.quieta();
        b.w<QCheckBox>("casella")->click();
        b.quieta();
        QCOMPARE(chiesto, 2);
        QCOMPARE(b.s->clic, 0);
        QVERIFY(!b.s->casella.spuntata() && !b.w<QCheckBox>("casella")->isChecked());
        QVERIFY(nome->hasFocus());
        b.w<QPushButton>("fai")->click();
        QCOMPARE(chiesto, 3);
        QCOMPARE(b.s->clic, 1);
    }

    void il_fuoco_della_logica_arriva() {
        Tavolo b;
        b.finestra("campionario").activateWindow();
        b.quieta();
        int ricevuti = 0;
        b.s->importo.ricevuto = [&] {
            ++ricevuti;
            b.s->fuoco(b.s->data);  // hands it on
        };
        b.s->nome.invio = [&] { b.s->fuoco(b.s->importo); };
        b.w<QLineEdit>("nome")->setFocus();
        QTest::keyClick(b.w<QLineEdit>("nome"), Qt::Key_Return);
        b.quieta();
        QCOMPARE(ricevuti, 1);
        QVERIFY(b.w<QLineEdit>("data")->hasFocus());
        // The same by the user's own step.
        b.w<QLineEdit>("importo")->setFocus(Qt::TabFocusReason);
        b.quieta();
        QCOMPARE(ricevuti, 2);
        QVERIFY(b.w<QLineEdit>("data")->hasFocus());
    }

    // A window may come to the front at once, or only when the screen has told where the focus goes.
    void la_finestra_in_primo_piano_non_toglie_il_fuoco() {
        Tavolo b;
        b.finestra("campionario").activateWindow();
        b.quieta();
        b.s->fuoco(b.s->data);
        QFocusEvent con_la_finestra(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
        QApplication::sendEvent(b.w<QLineEdit>("nome"), &con_la_finestra);
        b.quieta();
        QVERIFY(b.w<QLineEdit>("data")->hasFocus());
    }

    void invio_preme_il_bottone() {
        Tavolo b;
        QTest::keyClick(b.w<QPushButton>("fai"), Qt::Key_Return);
        QTest::keyClick(b.w<QToolButton>("link"), Qt::Key_Space);
        QCOMPARE(b.s->clic, 2);
    }

    void la_griglia_da_tastiera() {
        Tavolo b;
        std::vector<std::pair<int, int>> scelte;
        b.s->griglia.scelto = [&](int r, int c) { scelte.emplace_back(r, c); };
        auto* t = b.w<VistaGriglia>("griglia")->tabella();
        t->setCurrentIndex(t->model()->index(0, 0));
        QTest::keyClick(t, Qt::Key_Down);
        QTest::keyClick(t, Qt::Key_Right);
        QTest::keyClick(t, Qt::Key_Return);
        QTest::keyClick(t, Qt::Key_Space);
        QCOMPARE(scelte, (std::vector<std::pair<int, int>>{{2, 1}, {2, 1}}));
        QVERIFY(t->isColumnHidden(2));
        b.s->griglia.righe(1);
        b.s->griglia.aggiungi({"sola"});
        b.quieta();
        QCOMPARE(t->model()->rowCount(), 1);
        QCOMPARE(t->model()->index(0, 0).data().toString(), QString("sola"));
    }

    void la_prima_riga_visibile() {
        Tavolo b;
        b.s->griglia.righe(2000);
        b.s->griglia.prima_visibile(1500);
        b.quieta();
        auto* t = b.w<VistaGriglia>("griglia")->tabella();
        QCOMPARE(t->rowAt(0) + 1, 1500);
        // The user goes elsewhere; the same row told again is a change.
        t->verticalScrollBar()->setValue(0);
        b.quieta();
        QCOMPARE(b.s->griglia.prima_visibile(), 1);
        b.s->griglia.prima_visibile(1500);
        b.quieta();
        QCOMPARE(t->rowAt(0) + 1, 1500);
    }

    void mnemonici_unici() {
        Tavolo b;
        std::set<QChar> presi;
        for (const auto* x : b.finestra("campionario").findChildren<QAbstractButton*>()) {
            QString t = x->text();
            const auto i = t.remove("&&").indexOf('&');
            if (x->isVisible() && i >= 0) QVERIFY(presi.insert(t[i + 1].toLower()).second);
        }
        QVERIFY(presi.size() >= 4);
    }

    void la_chiusura_e_della_logica() {
        Tavolo b;
        bool chiesta = false;
        b.s->via_d_uscita = [&] { chiesta = true; };
        QTest::keyClick(&b.finestra("campionario"), Qt::Key_Escape);
        QVERIFY(chiesta);
        QVERIFY(b.finestra("campionario").isVisible());
        b.s->via_d_uscita = nullptr;
        b.finestra("campionario").close();
        QVERIFY(!b.prog.schermi.caricato("campionario"));
        QVERIFY(!b.finestre.finestra("campionario"));
        b.quieta();
    }

    // A button that closes its own screen: the event goes on over a window whose screen is gone.
    void chi_chiude_se_stesso() {
        Tavolo b;
        b.s->fai.premuto = [&] { b.prog.schermi.chiudi("campionario"); };
        b.clic(b.w<QPushButton>("fai"));
        QVERIFY(!b.prog.schermi.caricato("campionario"));
    }

    void un_testo_si_legge_su_ogni_sfondo() {
        for (long sfondo : {0x80FFFFL, 0x8080FFL, 0x80FF80L, 0xDDDDDDL, 0x000000L, 0xFFFFFFL, 0x2B2B2BL}) {
            QVERIFY(contrasto(testo_su(colore_di(sfondo)), colore_di(sfondo)) >= 4.5);
            for (long testo : {0xFF0000L, 0x0000FFL, 0x00FF00L, 0x808080L, 0xFFFFFFL, 0L})
                QVERIFY(contrasto(leggibile(colore_di(testo), colore_di(sfondo)), colore_di(sfondo)) >= 4.5);
        }
        QCOMPARE(colore_di(0x8080FF), QColor(0xFF, 0x80, 0x80));  // blue in the high byte
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaPezzi prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_pezzi.moc"
