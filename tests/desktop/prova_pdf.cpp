// A PDF on its way into the record: the path that fits, the copy that fits, the drop on the window.
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QUrl>

#include "desktop/documento_pdf.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

// A drive in a folder of this machine, with a PDF whose path is long.
struct Drive {
    QTemporaryDir cartella;
    std::unique_ptr<Disco> disco = disco_vero(cartella.path().toStdString());
    QStringList domande, avvisi;
    bool si = true;

    QString metti(const QString& nome, const QByteArray& byte = "%PDF") {
        const QString file = cartella.filePath(nome);
        QDir().mkpath(QFileInfo(file).absolutePath());
        QFile f(file);
        if (!f.open(QIODevice::WriteOnly) || f.write(byte) != byte.size()) qFatal("no %s", qPrintable(file));
        return file;
    }
    std::optional<std::string> collega(const QString& file) {
        return pdf_da_collegare(*disco, file,
                                {[this](const QString& t) { return domande += t, si; },
                                 [this](const QString& t) { avvisi += t; }});
    }
    QByteArray byte(const std::string& percorso) {
        QFile f(QString::fromStdString(disco->reale(percorso)));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
};

const QString kLungo = QStringLiteral("fatture ricevute 2026/Ascensori Russo/fattura 570 del 3 marzo.pdf");

// An invoice of 100.00, of which 30.00 are paid, stands open.
void apri_fattura(BancoFinestre& b) {
    b.fornitori({fornitore_vuoto("ROSSI")});
    RecFattura f = fattura_vuota();
    f.numfor = 1;
    f.datareg = f.datadoc = "20240105";
    f.impon[0] = f.sca[0] = 100;
    f.ver[0] = 30;
    b.fatture({f});
    b.avvia();
    b.clic_cella("vexoraf", "elenco", 1, 7);
}

}  // namespace

class ProvaPdf : public QObject {
    Q_OBJECT
  private slots:
    void un_percorso_che_entra_resta_com_e() {
        Drive d;
        QCOMPARE(*d.collega(d.metti("fatture/570.pdf")), std::string("\\fatture\\570.pdf"));
        QVERIFY(d.domande.isEmpty());
    }

    void anche_dove_il_disco_e_una_radice() {
        const auto disco = disco_vero("/");
        const QString file = QDir("/").absolutePath() + "fatture/570.pdf";
        QCOMPARE(percorso_di_sistema(disco.get(), file), std::string("\\fatture\\570.pdf"));
    }

    void uno_lungo_si_copia_con_un_nome_che_entra() {
        Drive d;
        const auto percorso = d.collega(d.metti(kLungo, "%PDF lungo"));
        QCOMPARE(*percorso, std::string("\\LUMDIR\\PDF\\fattura 570 del 3 marz.pdf"));
        QVERIFY(percorso->size() <= 38);
        QCOMPARE(d.byte(*percorso), QByteArray("%PDF lungo"));
        QCOMPARE(d.domande.size(), qsizetype(1));
        QVERIFY(d.domande[0].contains("38"));
    }

    void un_altro_documento_con_quel_nome_non_si_copre() {
        Drive d;
        const auto primo = d.collega(d.metti(kLungo, "uno"));
        const auto secondo = d.collega(d.metti("altre " + kLungo, "due"));
        QVERIFY(*primo != *secondo && secondo->size() <= 38);
        QCOMPARE(d.byte(*primo), QByteArray("uno"));
        QCOMPARE(d.byte(*secondo), QByteArray("due"));
        QCOMPARE(*d.collega(d.metti("ancora " + kLungo, "due")), *secondo);
    }

    void con_un_no_non_si_collega_nulla() {
        Drive d;
        d.si = false;
        QVERIFY(!d.collega(d.metti(kLungo)));
        QVERIFY(!QFileInfo::exists(d.cartella.filePath("LUMDIR")));
    }

    void una_copia_che_non_riesce_si_dice() {
        Drive d;
        d.metti("LUMDIR/PDF");  // a file where the folder should be
        QVERIFY(!d.collega(d.metti(kLungo)));
        QCOMPARE(d.avvisi.size(), qsizetype(1));
    }

    void un_pdf_lasciato_sulla_finestra_si_collega() {
        Drive d;
        BancoFinestre b;
        apri_fattura(b);
        QMimeData dati;
        const QString file = d.metti("a.pdf");
        dati.setUrls({QUrl::fromLocalFile(file)});
        const auto lascia = [&] {
            QDragEnterEvent entra(QPoint(50, 50), Qt::CopyAction, &dati, Qt::LeftButton, {});
            QApplication::sendEvent(&b.finestra("lumftea"), &entra);
            QDropEvent e(QPointF(50, 50), Qt::CopyAction, &dati, Qt::LeftButton, {});
            QApplication::sendEvent(&b.finestra("lumftea"), &e);
            b.quieta();
        };
        for (const QLineEdit* campo : b.finestra("lumftea").findChildren<QLineEdit*>())
            QVERIFY(!campo->acceptDrops());
        const auto* pdf = dynamic_cast<CampoTesto*>(b.finestra("lumftea").schermo()->trova("pdf"));
        lascia();
        QCOMPARE(pdf->testo(), std::string());
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t(1));
        QVERIFY(b.piattaforma.messaggi.back().testo.find("a.pdf") != std::string::npos);
        b.piattaforma.risposte = {Risposta::si, Risposta::si};
        lascia();
        QVERIFY2(pdf->testo().ends_with("a.pdf"), pdf->testo().c_str());
        QVERIFY(pdf->visible());
        QVERIFY(b.finestra("lumftea").scritta());
    }

    void pagato_e_residuo_stanno_sulla_fattura() {
        BancoFinestre b;
        apri_fattura(b);
        const QString netto = b.widget<QLabel>("lumftea", "netto")->text();
        QVERIFY2(netto.endsWith("Pagato 30,00  -  residuo 70,00"), qPrintable(netto));
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaPdf prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_pdf.moc"
