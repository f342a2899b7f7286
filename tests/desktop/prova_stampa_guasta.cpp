// A print that fails under a window: the user is told which, and the next one of another window comes out.
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>

#include "qt/gestore_stampa.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

QMessageBox* avviso() {
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* m = qobject_cast<QMessageBox*>(w); m && m->isVisible()) return m;
    return nullptr;
}

struct Tavolo : BancoFinestre {
    StampanteQt stampante;
    GestoreStampa gestore{stampante};
    Tavolo() {
        fornitori({fornitore_vuoto("ROSSI"), fornitore_vuoto("BIANCHI")});
        fatture({});
        piattaforma.altra_stampante = &stampante;
        avvia();
    }
    void stampa(const char* schermo) {
        apri(schermo);
        piattaforma.risposte = {Risposta::si, Risposta::si, Risposta::si};
        QTest::mouseClick(widget<QPushButton>(schermo, "stampante"), Qt::LeftButton);
        quieta();
    }
    /// What is told in the end, once.
    QString detto() {
        QString testo;
        if (QTest::qWaitFor([] { return avviso() != nullptr; })) {
            testo = avviso()->text();
            avviso()->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        return testo;
    }
};

}  // namespace

class ProvaStampaGuasta : public QObject {
    Q_OBJECT
  private slots:
    void si_dice_quale_e_la_seguente_esce() {
        for (const char* schermo : {"lumstct", "lumstcd"}) {
            Tavolo b;
            b.stampante.scelta.cartella_pdf = QStringLiteral("/dev/null/chiusa");
            b.stampa(schermo);
            const QString male = b.detto();
            QVERIFY2(male.startsWith("Stampa non riuscita:\n"), qPrintable(QString(schermo) + ": " + male));

            const QTemporaryDir cartella;
            b.stampante.scelta.cartella_pdf = cartella.path();
            b.stampa("lumstcf");
            const QString bene = b.detto();
            QVERIFY2(bene.startsWith("La stampa si trova nel file:\n"), qPrintable(bene));
            QCOMPARE(QDir(cartella.path()).entryList({"*.pdf"}, QDir::Files).size(), 1);
        }
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaStampaGuasta prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_stampa_guasta.moc"
