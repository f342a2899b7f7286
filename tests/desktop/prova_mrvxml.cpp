// "Fatture elettroniche" as a window: files dropped and picked, the document beside the list, its PDF, keys.
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBrowser>
#include <QUrl>

#include "invoices/mrvxml.h"
#include "parti/parti.h"
#include "tests/fatturapa/fatture_prova.h"
#include "tests/supporto/finestra_prova.h"

using namespace ambra;

namespace {

// An invoice of its own number; `in_fondo` stands before its end.
QByteArray numero(const QString& n, const std::string& in_fondo = "") {
    prova::Pezzi p;
    p.generali = "<TipoDocumento>TD01</TipoDocumento><Divisa>EUR</Divisa><Data>2026-10-05</Data><Numero>" +
                 n.toStdString() + "</Numero>";
    p.in_fondo = in_fondo;
    return QByteArray::fromStdString(prova::fattura(p));
}

const char* const kPdf = "%PDF-1.4 prova";

std::string allegato() {
    return "<Allegati><NomeAttachment>../a.pdf</NomeAttachment><Attachment>" +
           QByteArray(kPdf).toBase64().toStdString() + "</Attachment></Allegati>";
}

struct Tavolo : BancoFinestre {
    std::unique_ptr<LettoreFatture> lettore = lettore_a_richiesta();
    QTemporaryDir cartella;

    explicit Tavolo(const char* partita_iva = "") {
        RecFornitore f = fornitore_vuoto("ROSSI");
        f.piva = partita_iva;
        fornitori({f});
        testo("lumora.iva", {"22", "100", "0"});
        testo("lumora.pag", {"Contanti", "000000000000N000"});
        prog.lettore = lettore.get();
        avvia();
    }
    QString metti(const QString& nome, const QByteArray& byte) {
        const QString file = cartella.filePath(nome);
        QDir().mkpath(QFileInfo(file).absolutePath());
        QFile f(file);
        if (!f.open(QIODevice::WriteOnly) || f.write(byte) != byte.size()) qFatal("no %s", qPrintable(file));
        return file;
    }
    void lascia(const std::string& schermo, const QStringList& file) {
        QMimeData dati;
        QList<QUrl> url;
        for (const QString& f : file) url += QUrl::fromLocalFile(f);
        dati.setUrls(url);
        QDragEnterEvent entra(QPoint(50, 50), Qt::CopyAction, &dati, Qt::LeftButton, {});
        QApplication::sendEvent(&finestra(schermo), &entra);
        QVERIFY(entra.isAccepted());
        QDropEvent e(QPointF(50, 50), Qt::CopyAction, &dati, Qt::LeftButton, {});
        QApplication::sendEvent(&finestra(schermo), &e);
        quieta();
    }
    Mrvxml& elenco() { return *static_cast<Mrvxml*>(prog.schermi.caricato("mrvxml")); }
    int righe() { return elenco().elenco.righe() - 1; }
    QString originale() { return widget<QTextBrowser>("mrvxml", "originale")->toPlainText(); }
    void tasto(Qt::Key k, Qt::KeyboardModifiers m = {}) {
        QWidget* dove = finestra("mrvxml").focusWidget();
        QTest::keyClick(dove ? dove : &finestra("mrvxml"), k, m);
        quieta();
    }
    QTableView* tabella() { return widget<VistaGriglia>("mrvxml", "elenco")->tabella(); }
};

}  // namespace

class ProvaMrvxml : public QObject {
    Q_OBJECT
  private slots:
    void file_e_cartelle_lasciati_sulla_lista() {
        Tavolo b;
        b.apri("mrvxml");
        QVERIFY(b.originale().contains("Trascinare"));
        const QString a = b.metti("a.xml", numero("1"));
        b.metti("molte/b.xml", numero("2"));
        b.metti("molte/c.xml", numero("3"));
        b.metti("molte/sotto/d.xml", numero("4"));
        b.lascia("mrvxml", {a, b.cartella.filePath("molte")});
        QCOMPARE(b.righe(), 3);
        QCOMPARE(b.elenco().riga_scelta(), 1);
        b.lascia("mrvxml", {a});
        QCOMPARE(b.righe(), 3);
    }

    void sulla_finestra_principale_la_lista_si_apre() {
        Tavolo b;
        b.lascia("vexoraf", {b.metti("a.xml", numero("1"))});
        QVERIFY(b.finestra("mrvxml").isVisible());
        QCOMPARE(b.righe(), 1);
        QCOMPARE(QString::fromStdString(b.elenco().elenco.testo(1, 3)), QString("1"));
    }

    void di_molti_file_si_vede_a_che_punto_si_e() {
        Tavolo b;
        b.apri("mrvxml");
        auto* barra = b.finestra("mrvxml").findChild<QProgressBar*>();
        QVERIFY(barra && !barra->isVisible());
        QList<int> visti;
        QObject::connect(barra, &QProgressBar::valueChanged, barra, [&visti, barra](int n) {
            if (barra->isVisible()) visti += n;
        });
        QStringList file;
        for (int i = 1; i <= 3; ++i) file += b.metti(QString::number(i), numero(QString::number(i)));
        b.lascia("mrvxml", file);
        QVERIFY2(visti.contains(2), "the line has not moved");
        QVERIFY(!barra->isVisible());
    }

    void il_documento_scelto_sta_accanto() {
        Tavolo b;
        b.apri("mrvxml");
        b.lascia("mrvxml", {b.metti("a.xml", numero("17/A")), b.metti("b.xml", "<!DOCTYPE x><x/>")});
        for (const char* parola : {"17/A", "05/10/2026", "IDRAULICA BRUNI SRL", "CONDOMINIO", "Riparazione",
                                   "22%", "122,00", "30/11/2026", "IT60X0542811101000000123456"})
            QVERIFY2(b.originale().contains(parola), parola);
        QCOMPARE(b.tabella()->currentIndex().row(), 0);  // the chosen row is lit
        b.clic_cella("mrvxml", "elenco", 2, 0);
        QCOMPARE(b.originale().trimmed(), QString("Non leggibile: DOCTYPE rifiutato"));
        QVERIFY(!b.widget<QPushButton>("mrvxml", "stampa")->isEnabled());
        QVERIFY(!b.widget<QPushButton>("mrvxml", "registra")->isEnabled());
    }

    // Warnings wrap, and the document takes the width there is.
    void niente_da_scorrere_di_lato() {
        Tavolo b;
        b.apri("mrvxml");
        b.lascia("mrvxml", {b.metti("a.xml", numero("FATT-2024/0000123456"))});
        QVERIFY(b.elenco().avvisi.righe() > 2);
        QTableView* avvisi = b.widget<VistaGriglia>("mrvxml", "avvisi")->tabella();
        auto* originale = b.widget<QTextBrowser>("mrvxml", "originale");
        for (int larga = 1000; larga <= 1400; larga += 20) {
            b.finestra("mrvxml").resize(larga, 640);
            b.quieta();
            b.quieta();
            QVERIFY2(avvisi->columnWidth(0) <= avvisi->viewport()->width(),
                     qPrintable(QString::number(larga)));
            QVERIFY2(originale->horizontalScrollBar()->maximum() == 0, qPrintable(QString::number(larga)));
        }
    }

    void si_stampa_con_control_p() {
        Tavolo b;
        b.apri("mrvxml");
        b.lascia("mrvxml", {b.metti("a.xml", numero("1"))});
        b.piattaforma.risposte = {Risposta::si};
        b.tasto(Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(b.piattaforma.lavori.size(), std::size_t(1));
        QCOMPARE(QString::fromStdString(b.piattaforma.lavori[0].titolo),
                 QString("Fattura 1 di IDRAULICA BRUNI SRL"));
    }

    void il_pdf_allegato_si_apre_e_non_tocca_il_disco() {
        Tavolo b;
        b.apri("mrvxml");
        auto* pdf = b.widget<QPushButton>("mrvxml", "apri_pdf");
        QVERIFY(!pdf->isEnabled());
        b.lascia("mrvxml", {b.metti("a.xml", numero("1", allegato())), b.metti("b.xml", numero("2"))});
        int scritture = 0;
        b.memoria.prima_di = [&scritture](Operazione op, std::string_view) {
            scritture +=
                op == Operazione::scrivi || op == Operazione::scrivi_tutto || op == Operazione::scrivi_nuovo;
        };
        QVERIFY(pdf->isEnabled());
        b.clic(pdf);
        QCOMPARE(b.piattaforma.documenti.size(), std::size_t(1));
        QFile copia(QString::fromStdString(b.piattaforma.documenti[0]));
        QVERIFY(copia.open(QIODevice::ReadOnly));
        QCOMPARE(copia.readAll(), QByteArray(kPdf));
        copia.remove();
        b.memoria.prima_di = nullptr;
        QCOMPARE(scritture, 0);
        b.clic_cella("mrvxml", "elenco", 2, 0);
        QVERIFY(!pdf->isEnabled());
    }

    void un_file_cambiato_non_da_il_pdf() {
        Tavolo b("01234567897");
        b.apri("mrvxml");
        const QString a = b.metti("a.xml", numero("1", allegato()));
        b.lascia("mrvxml", {a});
        b.metti("a.xml", numero("2", allegato()));
        auto* pdf = b.widget<QPushButton>("mrvxml", "apri_pdf");
        b.clic(pdf);
        QVERIFY(b.piattaforma.documenti.empty());
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t(1));
        QVERIFY(b.piattaforma.messaggi[0].testo.starts_with("Il file a.xml non c'"));
        QFile::remove(a);
        b.piattaforma.risposte = {Risposta::no};
        b.clic(b.widget<QPushButton>("mrvxml", "registra"));
        QCOMPARE(b.piattaforma.messaggi.size(), std::size_t(2));
        QVERIFY(!b.prog.schermi.caricato("lumftea"));
        // Handed in from elsewhere it is whole again.
        b.lascia("mrvxml", {b.metti("b.xml", numero("1", allegato()))});
        QCOMPARE(b.righe(), 1);
        b.clic(pdf);
        QCOMPARE(b.piattaforma.documenti.size(), std::size_t(1));
        QFile::remove(QString::fromStdString(b.piattaforma.documenti[0]));
    }

    void control_o_chiede_piu_file() {
        Tavolo b;
        b.apri("mrvxml");
        const QString uno = b.metti("a.xml", numero("1")), due = b.metti("b.xml", numero("2"));
        b.elenco().chiedi_file = [&] { return std::vector{uno.toStdString(), due.toStdString()}; };
        b.tasto(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(b.righe(), 2);
        b.elenco().chiedi_file = [] { return std::vector<std::string>(); };
        b.tasto(Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(b.righe(), 2);
    }

    void le_frecce_scelgono_e_un_tasto_registra() {
        Tavolo b;
        b.apri("mrvxml");
        b.lascia("mrvxml", {b.metti("a.xml", numero("1")), b.metti("b.xml", numero("2"))});
        b.tabella()->setFocus();
        b.tasto(Qt::Key_Down);
        QCOMPARE(b.elenco().riga_scelta(), 2);
        QVERIFY(b.originale().contains("Numero"));
        b.tasto(Qt::Key_Up);
        QCOMPARE(b.elenco().riga_scelta(), 1);
        for (const char* nome : {"apri", "cartella", "registra", "stampa", "indice"}) {
            const QString testo = b.widget<QPushButton>("mrvxml", nome)->text();
            QVERIFY2(QString(testo).remove("&&").contains('&'), qPrintable(testo));
        }
        auto* registra = b.widget<QPushButton>("mrvxml", "registra");
        registra->setFocus();
        b.tasto(Qt::Key_Return);
        QVERIFY(b.prog.schermi.caricato("lumfor"));  // he is not in the register
    }

    void esc_esce() {
        Tavolo b;
        b.apri("mrvxml");
        b.tasto(Qt::Key_Escape);
        QVERIFY(!b.prog.schermi.caricato("mrvxml") || !b.finestra("mrvxml").isVisible());
    }
};

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    prepara_aspetto(app);
    ProvaMrvxml prova;
    return QTest::qExec(&prova, argc, argv);
}

#include "prova_mrvxml.moc"
