// Every screen of the system as a window: complete, within the display, reachable from the keyboard.
#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <set>

#include "desktop/manuale.h"
#include "desktop/parts/legame.h"
#include "desktop/parts/mnemonici.h"
#include "desktop/parts/pagina_scorrevole.h"
#include "desktop/viste.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

// A laptop's display less the bar of the desktop and the title of the window.
constexpr int kLarghezza = 1366, kAltezza = 700;

std::vector<std::string> tutti() {
    BancoFinestre b;
    return b.prog.schermi.nomi();
}

struct Tavolo : BancoFinestre {
    explicit Tavolo(const std::string& nome) {
        fornitori({fornitore_vuoto("ROSSI"), fornitore_vuoto("BIANCHI")});
        RecFattura f = fattura_vuota();
        f.numfor = 1;
        f.datareg = f.datadoc = "20240105";
        f.impon[0] = f.sca[0] = 100;
        fatture({f});
        avvia();
        prog.recfattura = prog.recfornitore = 1;
        apri(nome);
    }
};

// The letter after a lone ampersand, lower case; null for none.
QChar mnemonico(QString t) {
    const auto i = t.remove("&&").indexOf('&');
    return i < 0 || i + 1 >= t.size() ? QChar() : t[i + 1].toLower();
}

}  // namespace

class ProvaFinestre : public QObject {
    Q_OBJECT
  private slots:
    // A typewriter's face, all that some machines offer, would push the windows off the screen.
    void il_carattere_e_proporzionale() {
        const QFont fisso(QStringLiteral("Liberation Mono"), 10);
        QVERIFY(QFontInfo(fisso).fixedPitch());
        const QFont f = carattere_leggibile(fisso);
        QVERIFY(!QFontInfo(f).fixedPitch());
        QCOMPARE(f.pointSize(), 10);
        QCOMPARE(carattere_leggibile(f), f);
    }

    void finestra_data() {
        QTest::addColumn<QString>("nome");
        for (const auto& n : tutti()) QTest::newRow(n.c_str()) << QString::fromStdString(n);
    }
    void finestra() {
        QFETCH(QString, nome);
        Tavolo b(nome.toStdString());
        Finestra& f = b.finestra(nome.toStdString());
        QVERIFY(f.isVisible());
        if (!vista_di(nome.toStdString())) {
            QCOMPARE(nome, QString("lumwait"));  // one line of text: the plain form is all it wants
            return;
        }

        for (const Controllo* c : f.schermo()->controlli()) {
            if (senza_volto(*c)) continue;
            QVERIFY2(f.legame(*c) || intitola_un_gruppo(f, *c),
                     qPrintable(QString("%1 is not on the window").arg(qs(c->nome()))));
        }
        const QSize minima = f.findChild<PaginaScorrevole*>()->widget()->minimumSizeHint();
        QVERIFY2(minima.width() <= kLarghezza && minima.height() <= kAltezza,
                 qPrintable(QString("needs %1 x %2").arg(minima.width()).arg(minima.height())));
        verifica_tastiera(f);
    }

    void ogni_schermata_ha_il_suo_capitolo() {
        for (const auto& n : tutti()) {
            Manuale* m = apri_manuale(n);
            QVERIFY(m);
            const QTextBlock dove = m->pagina().textCursor().block();
            QVERIFY2(dove.text() == capitolo_di(n) && dove.blockFormat().headingLevel() > 0,
                     qPrintable(QString("no chapter for %1").arg(QString::fromStdString(n))));
        }
        delete apri_manuale("vexoraf");
    }

  private:
    // What no user ever sees: a holder of values, and the mere pair of two buttons or of a bar and its
    // text.
    static bool senza_volto(const Controllo& c) {
        return c.nome() == "selnome" || (c.genere() == Genere::label && c.caption().empty() && !c.visible());
    }
    // The caption of a frame stands over its group.
    static bool intitola_un_gruppo(const Finestra& f, const Controllo& c) {
        if (c.genere() != Genere::label) return false;
        for (const auto* g : f.findChildren<QGroupBox*>())
            if (g->title().remove('&') == qs(c.caption())) return true;
        return false;
    }

    static void verifica_tastiera(Finestra& f) {
        std::set<QChar> presi;
        // A command goes without a letter only where all of its own are taken.
        QList<QPushButton*> senza;
        for (QWidget* w : f.findChildren<QWidget*>()) {
            if (!w->isVisible()) continue;
            const auto* b = qobject_cast<QAbstractButton*>(w);
            const auto* l = qobject_cast<QLabel*>(w);
            const QChar m = b ? mnemonico(b->text()) : l && l->buddy() ? mnemonico(l->text()) : QChar();
            if (auto* p = qobject_cast<QPushButton*>(w); p && m.isNull() && p->isEnabled()) senza += p;
            if (!m.isNull()) QVERIFY2(presi.insert(m).second, qPrintable(QString("Alt+%1 twice").arg(m)));
            if (!qobject_cast<QLineEdit*>(w) && !qobject_cast<QComboBox*>(w)) continue;
            if (w->objectName().startsWith("qt_") || w->parentWidget()->inherits("QAbstractSpinBox"))
                continue;
            QVERIFY2(!w->accessibleName().isEmpty(),
                     qPrintable(QString("%1 has no accessible name").arg(w->objectName())));
        }
        for (const QPushButton* p : senza)
            for (const QChar c : p->property(kDidascalia).toString().toLower())
                QVERIFY2(!c.isLetter() || c.unicode() > 0x7F || presi.contains(c),
                         qPrintable(QString("%1: no letter, and %2 is free").arg(p->text()).arg(c)));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaFinestre prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_finestre.moc"
