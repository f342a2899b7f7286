// What stands between the printer and its user: set-up, preview, progress, the word about where a PDF went.
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "print/rtf_lettore.h"
#include "qt/anteprima.h"
#include "qt/gestore_stampa.h"
#include "qt/imposta.h"
#include "tests/qt/pdf_letto.h"

using namespace ambra;

namespace {

void stampa(Printer& p, const std::string& titolo, int pagine) {
    p.document_title = titolo;
    for (int i = 1; i <= pagine; ++i) {
        p.font = {"Arial", 14, true, false};
        p.current_x = 1000;
        p.current_y = 1000;
        p.print("Foglio" + std::to_string(i));
        p.font = {"Arial", 9, false, false};
        for (int r = 0; r < 40; ++r) {
            p.current_x = 1000;
            p.print("Riga " + std::to_string(r) + " di prova");
        }
        p.box(900, 900, 8000, 12000, 0);
        p.new_page();
    }
    p.end_doc();
}

constexpr const char* kLettera =
    R"({\rtf1\paperw11906\paperh16838{\fonttbl{\f0 Arial;}}\f0\fs24 Spett.le ROSSI\par\page Seconda\par})";

// Pictures to look at, where a folder for them is named.
void fotografa(QWidget& w, const char* nome) {
    const QString cartella = qEnvironmentVariable("AMBRA_FOTO");
    if (!cartella.isEmpty()) w.grab().save(cartella + "/" + nome + ".png");
}

QMessageBox* avviso() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* m = qobject_cast<QMessageBox*>(w); m && m->isVisible()) return m;
    return nullptr;
}

struct Tavolo {
    QTemporaryDir cartella;
    StampanteQt stampante;
    GestoreStampa gestore{stampante};
    Tavolo() { stampante.scelta.cartella_pdf = cartella.path(); }
    QStringList file() const { return QDir(cartella.path()).entryList({"*.pdf"}, QDir::Files); }
    template <class W>
    W* pezzo(const char* nome) {
        return gestore.anteprima()->findChild<W*>(QString::fromLatin1(nome));
    }
    void clic(const char* nome) { QTest::mouseClick(pezzo<QPushButton>(nome), Qt::LeftButton); }
};

}  // namespace

class Anteprima : public QObject {
    Q_OBJECT
  private slots:
    void si_voltano_le_pagine() {
        Tavolo t;
        t.stampante.scelta.anteprima = true;
        stampa(t.stampante, "Elenco", 3);
        QVERIFY(t.gestore.anteprima());
        auto& a = *t.gestore.anteprima();
        QVERIFY(QTest::qWaitForWindowExposed(&a));
        QCOMPARE(a.quanti_fogli(), 3);
        QCOMPARE(a.windowTitle(), "Anteprima di stampa: Elenco");
        QVERIFY(!t.pezzo<QPushButton>("indietro")->isEnabled());
        fotografa(a, "anteprima");
        t.clic("avanti");
        QCOMPARE(a.foglio(), 1);
        t.clic("ultima");
        QCOMPARE(a.foglio(), 2);
        QVERIFY(!t.pezzo<QPushButton>("avanti")->isEnabled());
        QCOMPARE(t.pezzo<QSpinBox>("numero")->value(), 3);
        QTest::keyClick(&a, Qt::Key_PageUp);
        QCOMPARE(a.foglio(), 1);
        QTest::keyClick(&a, Qt::Key_Home);
        QCOMPARE(a.foglio(), 0);
        QTest::keyClick(&a, Qt::Key_End);
        QCOMPARE(a.foglio(), 2);
        t.pezzo<QSpinBox>("numero")->setValue(2);
        QCOMPARE(a.foglio(), 1);
        QVERIFY(t.file().isEmpty());
        QTest::keyClick(&a, Qt::Key_Escape);
        QVERIFY(QTest::qWaitFor([&] { return !t.gestore.anteprima(); }));
        QVERIFY(t.file().isEmpty());
    }

    void ingrandimento() {
        Tavolo t;
        t.stampante.scelta.anteprima = true;
        stampa(t.stampante, "Elenco", 1);
        auto& a = *t.gestore.anteprima();
        auto* foglio = t.pezzo<QWidget>("foglio");
        auto* zoom = t.pezzo<QComboBox>("zoom");
        zoom->setCurrentIndex(zoom->findText("Pagina intera"));
        QVERIFY(foglio->height() <= a.height());
        fotografa(a, "anteprima_intera");
        const int intera = foglio->width();
        zoom->setCurrentIndex(zoom->findText("200%"));
        QVERIFY(foglio->width() > 2 * intera);
        fotografa(a, "anteprima_200");
        zoom->setCurrentIndex(zoom->findText("400%"));
        QVERIFY(foglio->width() > 4 * intera);
    }

    // Many jobs of one run: one window, all of them printed by one click, told once.
    void molti_lavori_una_finestra_un_avviso() {
        Tavolo t;
        t.stampante.scelta.anteprima = true;
        for (int i = 1; i <= 5; ++i) stampa(t.stampante, "Certificazione " + std::to_string(i), i);
        auto& a = *t.gestore.anteprima();
        QVERIFY(QTest::qWaitForWindowExposed(&a));
        QCOMPARE(a.quanti_lavori(), 5);
        auto* lavoro = t.pezzo<QComboBox>("lavoro");
        QVERIFY(lavoro->isVisible());
        lavoro->setCurrentIndex(3);
        emit lavoro->activated(3);
        QCOMPARE(a.quanti_fogli(), 4);
        fotografa(a, "anteprima_molti");
        t.clic("stampa");
        QCOMPARE(t.file().size(), 5);
        QCOMPARE(leggi_pdf(t.cartella.filePath("Certificazione 5.pdf")).size(), std::size_t(5));
        QVERIFY(QTest::qWaitFor([&] { return avviso() != nullptr; }));
        QCOMPARE(avviso()->text(),
                 "5 stampe si trovano nella cartella:\n" + QDir::toNativeSeparators(t.cartella.path()));
        fotografa(*avviso(), "avviso_molti");
        avviso()->close();
    }

    // A run that keeps the hourglass up is told at its end, with one word for all.
    void una_parola_sola_alla_fine() {
        Tavolo t;
        QApplication::setOverrideCursor(Qt::WaitCursor);
        for (int i = 1; i <= 3; ++i) {
            stampa(t.stampante, "Certificazione " + std::to_string(i), 1);
            QTest::qWait(600);
            QVERIFY(!avviso());
        }
        QApplication::restoreOverrideCursor();
        QVERIFY(QTest::qWaitFor([&] { return avviso() != nullptr; }));
        QVERIFY(avviso()->text().startsWith("3 stampe si trovano nella cartella:\n"));
        stampa(t.stampante, "Certificazione 4", 1);
        QVERIFY(QTest::qWaitFor([&] { return avviso() && avviso()->text().startsWith("4 stampe"); }));
        avviso()->close();
        stampa(t.stampante, "Certificazione 5", 1);
        QVERIFY(QTest::qWaitFor(
            [&] { return avviso() && avviso()->text().startsWith("La stampa si trova nel file:\n"); }));
        avviso()->close();
    }

    // A run of many short jobs shows its progress too.
    void avanzamento_di_molti_lavori() {
        Tavolo t;
        t.stampante.avanza("Certificazione 1", 1);
        t.stampante.stampato("Certificazione 1", {}, true);
        QTest::qSleep(1100);
        t.stampante.avanza("Certificazione 2", 1);
        bool visto = false;
        for (QWidget* w : QApplication::topLevelWidgets())
            visto = visto || (w->isVisible() && w->windowTitle() == "Stampa in corso");
        QVERIFY(visto);
    }

    // What could not be printed stays in sight.
    void anteprima_resta_se_non_riesce() {
        Tavolo t;
        t.stampante.scelta.anteprima = true;
        t.stampante.scelta.cartella_pdf = "/proc/non si puo";
        stampa(t.stampante, "Elenco", 1);
        t.clic("stampa");
        QVERIFY(QTest::qWaitFor([&] { return avviso() != nullptr; }));
        QVERIFY(avviso()->text().startsWith("Stampa non riuscita:\n"));
        QVERIFY(t.gestore.anteprima() && t.gestore.anteprima()->isVisible());
        avviso()->close();
    }

    void lettera_in_anteprima() {
        Tavolo t;
        t.stampante.scelta.anteprima = true;
        t.stampante.document_title = "Certificazione 1 ROSSI";
        t.stampante.rich_text(rtf::leggi(kLettera));
        t.stampante.end_doc();
        QCOMPARE(t.gestore.anteprima()->quanti_fogli(), 2);
        t.gestore.anteprima()->vai(1);
        fotografa(*t.gestore.anteprima(), "anteprima_lettera");
        t.clic("stampa");
        const auto pagine = leggi_pdf(t.cartella.filePath("Certificazione 1 ROSSI.pdf"));
        QCOMPARE(pagine.size(), std::size_t(2));
        QVERIFY(pagine[0].trova("ROSSI") && pagine[1].trova("Seconda"));
    }

    // Without a printer the job is a file, and the user is told which.
    void si_dice_dove() {
        Tavolo t;
        stampa(t.stampante, "Elenco", 1);
        QVERIFY(!avviso());
        QVERIFY(QTest::qWaitFor([&] { return avviso() != nullptr; }));
        QCOMPARE(avviso()->text(), "La stampa si trova nel file:\n" +
                                       QDir::toNativeSeparators(t.cartella.filePath("Elenco.pdf")));
        fotografa(*avviso(), "avviso_uno");
        avviso()->close();
    }

    void non_si_puo_scrivere() {
        Tavolo t;
        t.stampante.scelta.cartella_pdf = "/proc/non si puo";
        try {
            stampa(t.stampante, "Elenco", 1);
            QFAIL("no fault");
        } catch (const PrinterFault&) {
            t.stampante.end_doc();
        }
        QVERIFY(QTest::qWaitFor([&] { return avviso() != nullptr; }));
        QVERIFY(avviso()->text().startsWith("Stampa non riuscita:\n"));
        QCOMPARE(avviso()->icon(), QMessageBox::Warning);
        fotografa(*avviso(), "avviso_guasto");
        avviso()->close();
    }

    // The progress window comes after a while, names job and page, and goes with the end of the job.
    void avanzamento() {
        Tavolo t;
        const auto in_vista = [] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (w->isVisible() && w->windowTitle() == "Stampa in corso") return w;
            return static_cast<QWidget*>(nullptr);
        };
        t.stampante.avanza("Elenco", 1);
        QVERIFY(!in_vista());
        QTest::qSleep(1100);
        t.stampante.avanza("Elenco", 25);
        QVERIFY(in_vista());
        QVERIFY(in_vista()->findChild<QLabel*>() || qobject_cast<QLabel*>(in_vista()));
        auto* scritta = qobject_cast<QLabel*>(in_vista());
        if (!scritta) scritta = in_vista()->findChild<QLabel*>();
        QCOMPARE(scritta->text(), "Elenco: pagina 25");
        fotografa(*in_vista(), "avanzamento");
        t.stampante.stampato("Elenco", {}, true);
        QVERIFY(QTest::qWaitFor([&] { return !in_vista(); }));
    }

    void imposta() {
        Tavolo t;
        QTimer::singleShot(0, [] {
            auto* d = QApplication::activeModalWidget();
            QVERIFY(d);
            fotografa(*d, "imposta");
            QCOMPARE(d->findChild<QComboBox*>("stampante")->itemText(0), "File PDF");
            QVERIFY(d->findChild<QLineEdit*>("cartella")->isEnabled());
            d->findChild<QRadioButton*>("orizzontale")->click();
            auto* carta = d->findChild<QComboBox*>("carta");
            carta->setCurrentIndex(carta->findText("A5", Qt::MatchStartsWith));
            d->findChild<QCheckBox*>("anteprima")->click();
            d->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
        });
        QVERIFY(t.gestore.imposta(nullptr));
        QVERIFY(t.stampante.scelta.anteprima);
        QCOMPARE(t.stampante.scelta.carta.id(), QPageSize::A5);
        QCOMPARE(t.stampante.orientation(), Orientamento::orizzontale);
        QVERIFY(t.stampante.width() > t.stampante.height());
        QVERIFY(std::abs(t.stampante.height() - 148 * 1440 / 25.4) < 2);
        stampa(t.stampante, "Elenco", 1);
        QVERIFY(t.gestore.anteprima());
        fotografa(*t.gestore.anteprima(), "anteprima_orizzontale");
        t.clic("stampa");
        const auto pagine = leggi_pdf(t.cartella.filePath("Elenco.pdf"));
        QCOMPARE(pagine.size(), std::size_t(1));
        QVERIFY(std::abs(pagine[0].larghezza - 595.3) < 1.5);
    }

    void imposta_annullata() {
        Tavolo t;
        QTimer::singleShot(0, [] {
            auto* d = QApplication::activeModalWidget();
            d->findChild<QRadioButton*>("orizzontale")->click();
            QTest::keyClick(d, Qt::Key_Escape);
        });
        QVERIFY(!t.gestore.imposta(nullptr));
        QCOMPARE(t.stampante.orientation(), Orientamento::verticale);
    }
};

QTEST_MAIN(Anteprima)
#include "anteprima.moc"
