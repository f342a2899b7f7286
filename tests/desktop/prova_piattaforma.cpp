// The platform of the desktop program: message boxes as the user meets them, documents, pointer, event loop.
#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include "core/disco.h"
#include "qt/gestore_stampa.h"
#include "qt/stampante_qt.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Visto {
    QString titolo, testo, fuoco;
    QStringList bottoni;
    QMessageBox::Icon icona = QMessageBox::NoIcon;
};

// Shows a message box, notes what is on it and answers with a key.
Risposta chiedi(PiattaformaQt& p, Visto& v, const std::string& testo, Icona icona, Bottoni bottoni,
                Qt::Key tasto, Risposta prescelta = Risposta::si) {
    QTimer::singleShot(0, qApp, [&v, tasto] {
        auto* m = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!m) qFatal("no message box");
        v.titolo = m->windowTitle();
        v.testo = m->text();
        v.icona = m->icon();
        for (auto* b : m->buttons()) v.bottoni += b->text().remove('&');
        v.bottoni.sort();
        if (const auto* b = qobject_cast<QPushButton*>(m->focusWidget())) v.fuoco = b->text().remove('&');
        QTest::keyClick(m->focusWidget() ? m->focusWidget() : m, tasto);
    });
    return p.message_box(testo, "Attenzione", icona, bottoni, prescelta);
}

}  // namespace

class Apritore : public QObject {
    Q_OBJECT
  public:
    QList<QUrl> aperti;
  public slots:
    void apri(const QUrl& u) { aperti += u; }
};

class ProvaPiattaforma : public QObject {
    Q_OBJECT
  private slots:
    void dove_sono_le_stampe_resta_detto_quando_la_finestra_si_chiude() {
        StampanteQt stampante;
        GestoreStampa gestore(stampante);
        auto finestra = std::make_unique<QWidget>();
        finestra->show();
        finestra->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(finestra.get()));
        stampante.stampato("Lista", QStringLiteral("/lista.pdf"), true);
        QPointer<QMessageBox> avviso;
        QVERIFY(QTest::qWaitFor([&] {
            for (QWidget* w : QApplication::allWidgets())
                if (auto* m = qobject_cast<QMessageBox*>(w); m && m->isVisible()) avviso = m;
            return !avviso.isNull();
        }));
        finestra.reset();
        QTest::qWait(10);
        QVERIFY(avviso && avviso->isVisible());
        QVERIFY(avviso->text().endsWith("lista.pdf"));
    }

    void la_risposta_prudente_ha_il_fuoco() {
        RecordingPrinter stampante;
        PiattaformaQt p(stampante);
        Visto v;
        QCOMPARE(chiedi(p, v, "Confermi l'eliminazione della fattura?", Icona::domanda, Bottoni::si_no,
                        Qt::Key_Return, Risposta::no),
                 Risposta::no);
        QCOMPARE(v.titolo, QString("Attenzione"));
        QCOMPARE(v.testo, QString("Confermi l'eliminazione della fattura?"));
        QCOMPARE(v.bottoni, (QStringList{"No", QString::fromUtf8("Sì")}));
        QCOMPARE(v.fuoco, QString("No"));
        QCOMPARE(v.icona, QMessageBox::Question);
    }

    void una_domanda_innocua_si_conferma_con_invio() {
        RecordingPrinter stampante;
        PiattaformaQt p(stampante);
        Visto v;
        QCOMPARE(chiedi(p, v, "Iniziare la stampa?", Icona::domanda, Bottoni::si_no, Qt::Key_Return),
                 Risposta::si);
        QCOMPARE(v.fuoco, QString::fromUtf8("Sì"));
        QCOMPARE(chiedi(p, v, "Iniziare la stampa?", Icona::domanda, Bottoni::si_no, Qt::Key_Escape),
                 Risposta::no);
    }

    void ok_e_annulla() {
        RecordingPrinter stampante;
        PiattaformaQt p(stampante);
        Visto v;
        QCOMPARE(chiedi(p, v, "Data errata", Icona::stop, Bottoni::ok, Qt::Key_Escape), Risposta::ok);
        QCOMPARE(v.bottoni, QStringList{"OK"});
        QCOMPARE(v.icona, QMessageBox::Critical);
        v = {};
        QCOMPARE(chiedi(p, v, "Procedo", Icona::informazione, Bottoni::ok_annulla, Qt::Key_Escape),
                 Risposta::annulla);
        QCOMPARE(v.bottoni, (QStringList{"Annulla", "OK"}));
        v = {};
        QCOMPARE(chiedi(p, v, "Sei proprio sicuro?", Icona::esclamazione, Bottoni::ok_annulla, Qt::Key_Return,
                        Risposta::annulla),
                 Risposta::annulla);
        QCOMPARE(v.fuoco, QString("Annulla"));
    }

    // A text that looks like markup is text.
    void il_testo_non_e_html() {
        RecordingPrinter stampante;
        PiattaformaQt p(stampante);
        Visto v;
        chiedi(p, v, "Fornitore <b>ROSSI & C.</b> gi\xE0 presente", Icona::stop, Bottoni::ok, Qt::Key_Return);
        QCOMPARE(v.testo, QString::fromUtf8("Fornitore <b>ROSSI & C.</b> già presente"));
    }

    void i_documenti() {
        QTemporaryDir dove;
        QDir(dove.path()).mkpath("lumdir/PDF");
        QFile f(dove.path() + "/lumdir/PDF/Fattura 1.pdf");
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.close();
        const auto vero = disco_vero(dove.path().toStdString());
        Disco& disco = *vero;
        RecordingPrinter stampante;
        PiattaformaQt p(stampante, &disco);
        QCOMPARE(p.open_document("\\lumdir\\pdf\\manca.pdf"), 2);
        QCOMPARE(p.open_document(""), 2);  // the drive itself is no document
        QCOMPARE(p.open_document("\\altrove\\manca.pdf"), 3);
        QCOMPARE(p.open_document("\\LUMDIR\\pdf\\FATTURA 1.PDF"), 31);  // nothing opens documents here
        Apritore apritore;
        QDesktopServices::setUrlHandler("file", &apritore, "apri");
        QCOMPARE(p.open_document("\\LUMDIR\\pdf\\FATTURA 1.PDF"), 33);
        QCOMPARE(p.open_document(f.fileName().toStdString()), 33);  // picked outside the drive
        QDesktopServices::unsetUrlHandler("file");
        QCOMPARE(apritore.aperti.size(), 2);
        QCOMPARE(apritore.aperti[0].toLocalFile(), f.fileName());
        QCOMPARE(apritore.aperti[1].toLocalFile(), f.fileName());
    }

    void la_clessidra() {
        RecordingPrinter stampante;
        PiattaformaQt p(stampante);
        p.pointer(Puntatore::clessidra);
        p.pointer(Puntatore::clessidra);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        // Who is asked something sees the arrow.
        QTimer::singleShot(0, qApp, [] {
            QVERIFY(!QApplication::overrideCursor());
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        });
        p.message_box("Procedo", "", Icona::nessuna, Bottoni::ok, Risposta::ok);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        p.pointer(Puntatore::normale);
        QVERIFY(!QApplication::overrideCursor());
    }

    void aspettare_un_evento() {
        RecordingPrinter stampante;
        PiattaformaQt p(stampante);
        int tornada = 0;
        QTimer::singleShot(20, qApp, [&] { tornada = 1; });
        int giri = 0;
        while (tornada == 0 && ++giri < 10000) p.wait_event();
        QCOMPARE(tornada, 1);
        QVERIFY(giri < 1000);  // it waits, it does not spin
    }

    // The library's own dialogs speak Italian, whatever is installed.
    void i_dialoghi_della_libreria() {
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Annulla"));
        QCOMPARE(QCoreApplication::translate("QColorDialog", "Select Color").isEmpty(), false);
        QVERIFY(QCoreApplication::translate("QFileDialog", "File &name:") != QString("File &name:"));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaPiattaforma prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_piattaforma.moc"
