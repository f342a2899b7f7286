// The dated copies in the windows: before what cannot be undone, and back by the user's choice.
#include <QDialog>
#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "core/impostazioni.h"
#include "desktop/copie.h"
#include "tests/supporto/disco_memoria.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

struct Tavolo : BancoFinestre {
    Tavolo() {
        fornitori({fornitore_vuoto("ROSSI"), fornitore_vuoto("BIANCHI")});
        RecFattura d = fattura_vuota();
        d.numfor = 1;
        d.datareg = "20110101";
        fatture({d});
        avvia();
    }
    const Controllo& controllo(const char* schermo, const char* nome) {
        return *prog.schermi.caricato(schermo)->trova(nome);
    }
    std::optional<Motivo> motivo(const char* schermo, const char* nome) {
        return senza_ritorno(*prog.schermi.caricato(schermo), controllo(schermo, nome));
    }
};

// Answers the dialog that comes up: `premi` is the button, `riga` the copy.
void rispondi(const char* premi, int riga) {
    QTimer::singleShot(0, [premi, riga] {
        auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(d);
        if (riga >= 0) d->findChild<QListWidget*>("copie")->setCurrentRow(riga);
        for (auto* b : d->findChildren<QPushButton*>())
            if (b->text().remove('&') == premi) return b->click();
        QFAIL("no such button");
    });
}

}  // namespace

class ProvaCopie : public QObject {
    Q_OBJECT
  private slots:
    void che_cosa_non_ha_ritorno() {
        Tavolo b;
        QVERIFY(!b.motivo("vexoraf", "command3d2(3)"));
        b.prog.schermi.apri("mrvaazz");
        QVERIFY(b.motivo("mrvaazz", "command3d4(1)") == Motivo::azzeramento);
        QVERIFY(!b.motivo("mrvaazz", "command3d4(0)"));
        b.prog.schermi.apri("lumfor");
        QVERIFY(b.motivo("lumfor", "b_srt") == Motivo::indice);
        QVERIFY(!b.motivo("lumfor", "b_dup"));
    }

    void il_riordino_si_conosce_dalla_parola_del_bottone() {
        Tavolo b;
        int visti = 0, riordini = 0;
        b.finestre.prima_del_clic = [&](const Schermo& s, const Controllo& c) {
            ++visti;
            const bool riordino = senza_ritorno(s, c) == Motivo::riordino;
            if (riordino) ++riordini;
            return !riordino;
        };
        QTest::mouseClick(b.widget<QPushButton>("vexoraf", "stampante"), Qt::LeftButton);
        b.quieta();
        QTest::mouseClick(b.widget<QPushButton>("vexoraf", "command3d2(3)"), Qt::LeftButton);
        b.quieta();
        QCOMPARE(visti, 2);
        QCOMPARE(riordini, 1);
        QVERIFY2(b.piattaforma.messaggi.empty(), "a click that is held back asks nothing");
    }

    void senza_copia_si_chiede() {
        Tavolo b;
        QVERIFY(!copia_prima(b.prog, nullptr, Motivo::riordino));
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t{1});
        QVERIFY(b.piattaforma.messaggi[0].prescelta == Risposta::no);
        b.piattaforma.risposte = {Risposta::si};
        QVERIFY(copia_prima(b.prog, nullptr, Motivo::riordino));
        DiscoMemoria fuori;
        QVERIFY(copia_prima(b.prog, &fuori, Motivo::riordino));
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t{2});
        QCOMPARE(copie_di(fuori, b.prog.nnn()).size(), std::size_t{1});
    }

    void la_copia_scelta_torna_quando_nessuno_ha_aperto_l_archivio() {
        QTemporaryDir casa;
        qputenv("XDG_DATA_HOME", casa.filePath("dati").toUtf8());
        const std::string radice = casa.filePath("disco").toStdString();
        QVERIFY(QDir(casa.path()).mkpath("disco/lumdir/lumora"));
        const auto disco = disco_vero(radice), fuori = cartella_delle_copie(radice);
        QVERIFY(fuori);
        QCOMPARE(disco->scrivi_tutto(kCartella + "lum007.ftr", "prima"), 0);
        QCOMPARE(
            QString::fromStdString(fai_copia(*disco, *fuori, "007", Motivo::riordino, "20240315-101502")),
            QString());
        QCOMPARE(disco->scrivi_tutto(kCartella + "lum007.ftr", "dopo"), 0);
        QVERIFY2(!finisci_ripristino_copia(radice), "nothing was asked for");

        std::string ora;
        std::unique_ptr<FileAperto> altro;
        QCOMPARE(disco->apri(kCartella + "lum007.ftr", Apertura::scambio, altro), 0);
        const auto prova = [&] {
            prenota_ripristino("007", copie_di(*fuori, "007").at(0).file);
            rispondi("OK", -1);
            QVERIFY(finisci_ripristino_copia(radice));
            QCOMPARE(disco->leggi_tutto(kCartella + "lum007.ftr", ora), 0);
        };
        prova();
        QCOMPARE(ora, std::string("dopo"));
        altro.reset();
        prova();
        QCOMPARE(ora, std::string("prima"));
        QVERIFY2(!finisci_ripristino_copia(radice), "only once");
        qunsetenv("XDG_DATA_HOME");
    }

    void si_sceglie_una_copia() {
        DiscoMemoria fuori;
        for (const char* n : {"007-20240315-101502-riordino.copia", "007-20240316-101502-indice.copia"})
            fuori.contenuto(std::string("\\") + n) = "x";
        rispondi("Ripristina", 1);
        QCOMPARE(scegli_copia(nullptr, fuori, "007").value_or(""),
                 std::string("007-20240315-101502-riordino.copia"));
        rispondi("Annulla", 1);
        QVERIFY(!scegli_copia(nullptr, fuori, "007"));
        rispondi("Annulla", -1);
        QVERIFY2(!scegli_copia(nullptr, fuori, "008"), "a building without copies");
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaCopie prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_copie.moc"
