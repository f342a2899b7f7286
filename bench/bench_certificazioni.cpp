// 500 certificates to PDF files through their screen, from a letter of one page with a table (at least 800 a
// second), beside a word processor without windows on the same filled letters: run for each letter (at least
// 20 times slower), and, for itself, run once for many. The floor is the window library's own PDF: one file
// for each letter, with one text in each of the letter's two faces.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <fstream>

#include "bench/cantiere.h"
#include "bench/rapporti.h"
#include "core/testo.h"
#include "ledger/lumcer.h"
#include "qt/stampante_qt.h"
#include "records/fattura.h"
#include "records/prospetto.h"
#include "screen/programma.h"
#include "tests/supporto/disco_memoria.h"
#include "tests/supporto/piattaforma_prova.h"

using namespace ambra;

namespace {

constexpr int kCertificazioni = 500;

constexpr const char* kLettera =
    R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\fswiss\fcharset0 Arial;}}{\colortbl ;\red0\green0\blue128;}
\paperw11906\paperh16838\margl1134\margr1134\margt1134\margb1134\pard\f0\fs20
\b $$$265$$$\b0\par $$$266$$$\par $$$267$$$\par Codice fiscale $$$268$$$\par\par
\pard\li5103 Spett.le\par \b $$$251$$$\b0\par $$$252$$$\par $$$253$$$\par $$$254$$$ $$$255$$$\par\pard\par
\pard\qc\cf1\b\fs28 CERTIFICAZIONE DEI COMPENSI N. $$$260$$$\cf0\b0\fs20\par\pard\par
\pard\qj Si certifica che, nel periodo d'imposta, sono stati corrisposti i compensi sotto indicati, assoggettati a ritenuta d'acconto ai sensi di legge; la ritenuta \'e8 stata regolarmente versata all'Erario.\par\par
\pard Partita iva: $$$256$$$\par Codice fiscale: $$$257$$$\par Nato a: $$$258$$$ il $$$259$$$\par\par
\trowd\trgaph70\clbrdrt\brdrs\brdrw10\clbrdrl\brdrs\brdrw10\clbrdrb\brdrs\brdrw10\clbrdrr\brdrs\brdrw10\cellx6000\clbrdrt\brdrs\brdrw10\clbrdrl\brdrs\brdrw10\clbrdrb\brdrs\brdrw10\clbrdrr\brdrs\brdrw10\cellx9600
\pard\intbl Totale dei documenti\cell\pard\intbl\qr $$$261$$$\cell\row
\pard\intbl\ql Imponibile\cell\pard\intbl\qr $$$262$$$\cell\row
\pard\intbl\ql Importi esenti\cell\pard\intbl\qr $$$263$$$\cell\row
\pard\intbl\ql\b Ritenuta d'acconto\b0\cell\pard\intbl\qr\b $$$264$$$\b0\cell\row
\pard\par\pard\par L'amministratore\par})";

struct PiattaformaPdf : PiattaformaProva {
    StampanteQt pdf;
    Printer& printer() override { return pdf; }
};

struct Studio {
    QTemporaryDir cartella;
    DiscoMemoria disco;
    PiattaformaPdf piattaforma;
    Programma prog{disco, piattaforma, "1"};

    Studio() {
        cantiere::stabile(disco, 0);
        std::vector<RecFornitore> fornitori(kCertificazioni);
        std::vector<RecNome> indice(kCertificazioni);
        std::vector<RecFattura> fatture(kCertificazioni);
        for (std::size_t i = 0; i < kCertificazioni; ++i) {
            const int numero = static_cast<int>(i) + 1;
            RecFornitore& f = fornitori[i];
            f.inte1 = "IMPRESA ROSSI " + con_zeri(numero, 3);
            f.inte2 = "di Rossi Mario";
            f.indir = "Via Garibaldi, " + std::to_string(numero);
            f.cap = "10100";
            f.citta = "Torino";
            f.piva = "01234567890";
            f.codfis = "RSSMRA60A01L219X";
            f.luogonas = "Asti";
            f.datanas = "01011960";
            indice[i].nome = f.inte1.testo();
            indice[i].numero = numero;
            fatture[i].numfor = numero;
            fatture[i].impon[0] = 1000 + numero;
            fatture[i].ivai[0] = 220;
            fatture[i].rac[0] = 200;
            fatture[i].dverrit = "15062024";
        }
        std::vector<RecTotali> contatori(5);
        contatori[0].parola[0] = contatori[1].parola[0] = kCertificazioni;
        std::vector<RecProspetto> prospetti(1);
        prospetti[0].numprosp = "001";
        prospetti[0].nomeprosp = "Certificazione";
        const auto metti = [&](const char* ext, const std::string& s) {
            disco.scrivi_tutto(nome_file("001", ext), s);
        };
        metti("for", cantiere::byte_di(fornitori));
        metti("srf", cantiere::byte_di(indice));
        metti("ftr", cantiere::byte_di(fatture));
        metti("tfr", cantiere::byte_di(contatori));
        disco.scrivi_tutto(kCartella + "lumoral.tot", cantiere::byte_di(prospetti));
        disco.scrivi_tutto(kCartella + "vexoral.001", kLettera);
        piattaforma.pdf.scelta.cartella_pdf = cartella.path();
        prog.apriarchivi();
    }
};

void certificazioni(benchmark::State& stato) {
    for (auto _ : stato) {
        stato.PauseTiming();
        Studio s;
        Lumcer schermo(s.prog);
        schermo.attivata(Attivazione::aperta);
        int stampate = 0;
        s.piattaforma.pdf.stampato = [&](const std::string&, const QString&, bool bene) { stampate += bene; };
        s.piattaforma.risposte = {Risposta::si};
        stato.ResumeTiming();
        schermo.certif.premi();
        if (stampate != kCertificazioni) stato.SkipWithError("not all certificates were printed");
    }
    stato.SetItemsProcessed(stato.iterations() * kCertificazioni);
}

void qt_nudo(benchmark::State& stato) {
    const QTemporaryDir cartella;
    int n = 0;
    for (auto _ : stato) {
        for (int i = 0; i < kCertificazioni; ++i) {
            QPdfWriter pdf(cartella.filePath(QStringLiteral("%1.pdf").arg(++n)));
            pdf.setResolution(1440);
            QPainter p(&pdf);
            QFont font(QStringLiteral("Liberation Sans"), 10);
            p.setFont(font);
            p.drawText(QPointF(1000, 1000),
                       QStringLiteral("Si certifica che sono stati corrisposti i compensi"));
            font.setBold(true);
            p.setFont(font);
            p.drawText(QPointF(1000, 2000), QStringLiteral("CERTIFICAZIONE DEI COMPENSI"));
        }
    }
    stato.SetItemsProcessed(stato.iterations() * kCertificazioni);
}

/// The letter, filled, as `quante` files of `cartella`; returns their paths.
QStringList lettere(const QTemporaryDir& cartella, int quante) {
    QStringList percorsi;
    for (int i = 1; i <= quante; ++i) {
        QString testo = QString::fromLatin1(kLettera);
        for (int codice = 250; codice <= 270; ++codice)
            testo.replace(QStringLiteral("$$$%1$$$").arg(codice),
                          QStringLiteral("Valore %1").arg(i * codice));
        percorsi << cartella.filePath(QStringLiteral("lettera%1.rtf").arg(i));
        std::ofstream(percorsi.back().toStdString()) << testo.toStdString();
    }
    return percorsi;
}

// All of `quante` letters, `insieme` of them in each run of the program.
void videoscrittura(benchmark::State& stato, int quante, int insieme) {
    const QString programma = QStandardPaths::findExecutable(QStringLiteral("soffice"));
    if (programma.isEmpty()) return stato.SkipWithError("no word processor on this machine");
    const QTemporaryDir cartella, profilo;  // its own: another one that runs would take the letters
    const QStringList tutte = lettere(cartella, quante);
    for (auto _ : stato) {
        for (int da = 0; da < quante; da += insieme) {
            QStringList argomenti{QStringLiteral("-env:UserInstallation=file://") + profilo.path(),
                                  QStringLiteral("--headless"),
                                  QStringLiteral("--convert-to"),
                                  QStringLiteral("pdf"),
                                  QStringLiteral("--outdir"),
                                  cartella.path()};
            QProcess p;
            p.start(programma, argomenti + tutte.mid(da, insieme));
            p.waitForFinished(-1);
        }
        for (int i = 1; i <= quante; ++i)
            if (!QFile::remove(cartella.filePath(QStringLiteral("lettera%1.pdf").arg(i))))
                stato.SkipWithError("the word processor left a letter out");
    }
    stato.SetItemsProcessed(stato.iterations() * quante);
}

// Wall-clock time throughout, as the word processor works in processes of its own.
BENCHMARK(certificazioni)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(qt_nudo)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(videoscrittura, una_alla_volta, 5, 1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(videoscrittura, insieme, 200, 200)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return misura(argc, argv,
                  {{"certificazioni", "qt_nudo", 0.5},
                   {"certificazioni", "videoscrittura/una_alla_volta", 0.05},
                   {"certificazioni", "videoscrittura/insieme"}});
}
