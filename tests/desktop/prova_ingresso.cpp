// The way in, and the strip of what was not written.
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

#include "core/disco_attento.h"
#include "core/nomi_file.h"
#include "desktop/avvio.h"
#include "desktop/cartella_archivio.h"
#include "desktop/ingresso.h"
#include "desktop/parts/striscia.h"
#include "records/stabile.h"
#include "tests/supporto/disco_guasto.h"
#include "tests/supporto/drive_prova.h"
#include "tests/supporto/finestra_prova.h"
#include "worklist/lista.h"

using namespace ambra;

namespace {

// Buildings 1 and 3; record 2 has no name.
struct Drive : ArchivioProva {
    Drive() {
        for (const char* nome : {"CONDOMINIO ALFA", "", "CONDOMINIO GAMMA"}) {
            RecStabile s{};
            s.nome = nome;
            memoria.contenuto(kCartella + "lumora.tot") += byte_di(s);
        }
    }
    Ostacolo guarda(const std::string& nnn) {
        return ostacolo(memoria, nnn, [](const QString&) { return true; });
    }
};

QStringList righe(const SceltaStabile& s) {
    QStringList r;
    const auto* l = s.findChild<QListWidget*>();
    for (int i = 0; i < l->count(); ++i)
        if (!l->item(i)->isHidden()) r += l->item(i)->text();
    return r;
}

}  // namespace

class ProvaIngresso : public QObject {
    Q_OBJECT
  private slots:
    void gli_stabili_sono_quelli_con_un_nome() {
        Drive d;
        const auto tutti = stabili_in_archivio(d.memoria);
        QCOMPARE(tutti.size(), std::size_t(2));
        QCOMPARE(tutti[1].numero, 3);
        QCOMPARE(tutti[1].nome, QString("CONDOMINIO GAMMA"));
    }

    void uno_stabile_che_c_e_si_apre() {
        Drive d;
        QCOMPARE(d.guarda("003").che, Ostacolo::Che::niente);
    }

    void uno_stabile_che_non_c_e_lo_si_dice() {
        Drive d;
        for (const char* nnn : {"002", "009"}) {
            const Ostacolo o = d.guarda(nnn);
            QCOMPARE(o.che, Ostacolo::Che::senza_stabile);
            QVERIFY(o.parole.contains(nnn));
        }
        QVERIFY(!d.memoria.esiste(nome_file("009", "ftr")));
    }

    void un_drive_senza_archivio_lo_si_dice() {
        DiscoMemoria vuoto;
        const Ostacolo o = ostacolo(vuoto, "001", [](const QString&) { return true; });
        QCOMPARE(o.che, Ostacolo::Che::senza_archivio);
        QVERIFY(o.parole.contains("lumora.tot"));
    }

    void un_file_che_non_si_apre_si_dice_quale_e_perche() {
        Drive d;
        d.file("ftr") = "x";
        DiscoGuasto guasto(d.memoria);
        guasto.guasto = [](Operazione op, std::string_view file) {
            return op == Operazione::apri && file.ends_with("lum001.ftr") ? errore::permesso_negato : 0;
        };
        const Ostacolo o = ostacolo(guasto, "001", [](const QString&) { return true; });
        QCOMPARE(o.che, Ostacolo::Che::chiuso);
        QVERIFY2(o.parole.contains("lum001.ftr") && o.parole.contains("permesso negato (errore 70)"),
                 qPrintable(o.parole));
        QCOMPARE(ostacolo(guasto, "003", [](const QString&) { return true; }).che, Ostacolo::Che::niente);
    }

    void la_sola_lettura_si_dice() {
        QTemporaryDir cartella;
        QDir(cartella.path()).mkpath("lumdir/lumora");
        QFile f(cartella.filePath("lumdir/lumora/lumora.tot"));
        QVERIFY(f.open(QIODevice::WriteOnly));
        RecStabile s{};
        s.nome = "ALFA";
        f.write(QByteArray::fromStdString(byte_di(s)));
        f.close();
        const auto disco = disco_vero(cartella.path().toStdString());
        QCOMPARE(ostacolo(*disco, "001", [](const QString&) { return true; }).che, Ostacolo::Che::niente);
        const Ostacolo o = ostacolo(*disco, "001", [](const QString&) { return false; });
        QCOMPARE(o.che, Ostacolo::Che::sola_lettura);
        QVERIFY(o.parole.contains("lumora.tot"));
    }

    void la_scelta_comincia_dagli_ultimi() {
        BancoFinestre b;
        const std::vector<StabileInArchivio> tutti = {{1, "ALFA"}, {2, "BETA"}, {3, "GAMMA"}};
        QCOMPARE(righe(SceltaStabile(tutti, {})), QStringList({"001  ALFA", "002  BETA", "003  GAMMA"}));
        ricorda_stabile(3);
        ricorda_stabile(2);
        SceltaStabile s(tutti, "Lo stabile 009 non è in archivio.");
        QCOMPARE(righe(s), QStringList({"002  BETA", "003  GAMMA", "001  ALFA"}));
        QCOMPARE(s.scelto(), 2);
        QVERIFY(s.findChild<QLabel*>("avviso")->text().contains("009"));
    }

    void si_cerca_e_si_cammina_dal_campo() {
        BancoFinestre b;
        SceltaStabile s({{1, "ALFA"}, {2, "BETA"}, {12, "GAMMA"}}, {});
        s.show();
        auto* campo = s.findChild<QLineEdit*>();
        QTest::keyClick(campo, Qt::Key_Down);
        QCOMPARE(s.scelto(), 2);
        QTest::keyClicks(campo, "gam");
        QCOMPARE(righe(s), QStringList({"012  GAMMA"}));
        QCOMPARE(s.scelto(), 12);
        QTest::keyClick(campo, Qt::Key_Return);
        QCOMPARE(s.result(), int(QDialog::Accepted));
        QTest::keyClicks(campo, "x");
        QCOMPARE(s.scelto(), 0);
        QVERIFY(!s.findChild<QPushButton*>()->isEnabled());
    }

    // On the desktop no folder is current: the archive is asked for once, and then known.
    void dal_desktop_l_archivio_si_indica_una_volta() {
        const QString prima = QDir::currentPath();
        const QTemporaryDir qui;
        const QDir casa(qui.path());
        QVERIFY(casa.mkpath("vuota") && casa.mkpath("studio/lumdir/lumora"));
        QFile stabili(casa.filePath("studio/lumdir/lumora/lumora.tot"));
        QVERIFY(stabili.open(QIODevice::WriteOnly));
        RecStabile s{};
        s.nome = "CONDOMINIO ALFA";
        stabili.write(QByteArray::fromStdString(byte_di(s)));
        stabili.close();
        QVERIFY(QDir::setCurrent(casa.filePath("vuota")));

        QCOMPARE(radice_dal_desktop([](const QString&) { return QString(); }).has_value(), false);
        // A folder without an archive is asked for again; one inside the archive will do.
        QStringList motivi;
        const QStringList risposte = {casa.filePath("vuota"), casa.filePath("studio/lumdir/lumora")};
        const auto chiedi = [&](const QString& motivo) {
            motivi += motivo;
            return risposte.value(motivi.size() - 1);
        };
        const auto studio = QDir(casa.filePath("studio")).canonicalPath().toStdString();
        QCOMPARE(radice_dal_desktop(chiedi).value_or(""), studio);
        QCOMPARE(motivi.size(), 2);
        QVERIFY(motivi[0].startsWith("Nessun archivio in ") && motivi[0].contains("vuota"));

        QVERIFY(QDir::setCurrent(casa.filePath("vuota")));
        const auto mai = [](const QString&) -> QString { qFatal("asked again"); };
        QCOMPARE(radice_dal_desktop(mai).value_or(""), studio);
        QVERIFY(QDir::setCurrent(prima));
    }

    void un_guasto_sta_nella_striscia_finche_la_si_chiude() {
        BancoFinestre b;
        b.avvia();
        auto* striscia = b.finestra("vexoraf").findChild<Striscia*>();
        QVERIFY(striscia && !striscia->isVisible());
        b.finestre.guasto({"\\stampe\\fattura.pdf", errore::disco_pieno});
        QVERIFY(!striscia->isVisible());
        for (int i = 0; i < 2; ++i) b.finestre.guasto({nome_file("001", "ftr"), errore::disco_pieno});
        QVERIFY(striscia->isVisible());
        QVERIFY2(striscia->testo().startsWith(
                     "Non scritto: lum001.ftr, disco pieno (errore 61), 2 volte. Liberare spazio"),
                 qPrintable(striscia->testo()));
        b.clic(striscia->findChild<QToolButton*>());
        QVERIFY(!striscia->isVisible());
        b.finestre.guasto({nome_file("001", "for"), errore::permesso_negato});
        QVERIFY(striscia->testo().contains("lum001.for") && !striscia->testo().contains("ftr"));
    }

    void la_lista_letta_in_anticipo_e_quella_dello_stabile() {
        const DriveProva drive;
        BancoFinestre b;
        b.fornitori({fornitore_vuoto("ROSSI")});
        RecFattura f = fattura_vuota();
        f.numfor = 1;
        f.numdoc = "77";
        b.fatture({f});
        for (const char* e : {"tfr", "for", "ftr"}) drive.metti("lum007." + std::string(e), b.file(e));
        const auto lista = anticipa(drive.radice.string(), "7").get();
        QVERIFY(lista);
        QCOMPARE(lista->elenco.righe(), 2);
        QCOMPARE(lista->elenco.testo(1, 2), std::string("77"));
        QVERIFY(!anticipa(drive.radice.string(), "8").get());
    }

    void un_guasto_prima_della_finestra_non_si_perde() {
        BancoFinestre b;
        b.finestre.guasto({nome_file("001", "tfr"), errore::accesso});
        b.avvia();
        QVERIFY(b.finestra("vexoraf").findChild<Striscia*>()->testo().contains("lum001.tfr"));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaIngresso prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_ingresso.moc"
