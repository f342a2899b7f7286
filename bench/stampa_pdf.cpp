// Print jobs to PDF files: a list of 30,000 rows and 9 columns beside a loop that draws the same texts with
// bare Qt (at most 1.3 times), and 500 certificates from a letter of one page with a table (20 a second).
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

#include "core/testo.h"
#include "print/motore.h"
#include "print/testoricco.h"
#include "qt/stampante_qt.h"

using namespace ambra;

namespace {

constexpr int kRighe = 30000, kColonne = 9, kCertificazioni = 500;

void stampa_elenco(Printer& p) {
    std::array<RecStampa, 81> tab;
    tab[0].paginasx = tab[0].paginasu = 30;
    tab[0].paginadx = tab[0].paginagiu = 950;
    tab[0].testata = 2;
    tab[0].rigaalt = 340;
    for (auto& v : tab) {
        v.fontnome = "Arial";
        v.fontsize = 8;
    }
    tab[0].coltitolo = "Elenco";
    tab[0].colx = kColonne;
    tab[0].colall = 1;
    for (std::size_t i = 1; i <= kColonne; ++i) {
        tab[i].collarg = 11;
        tab[i].coltipo = i % 3 == 0 ? 1 : 0;
        tab[i].coltitolo = "Colonna " + std::to_string(i);
    }
    Cambio cambio;
    cambio[1] = "1";
    std::array<std::string, 21> intestazione;
    int rigacorr = 0, npagina = -1;
    ContestoStampa c{p, tab, cambio, intestazione, "Condominio", "15/03/2024", rigacorr, npagina};
    p.document_title = "Elenco";
    for (int r = 1; r <= kRighe; ++r) {
        for (std::size_t i = 1; i <= kColonne; ++i)
            tab[i].coltesto =
                i % 3 == 0 ? std::to_string(r * static_cast<int>(i)) + ",50" : "Testo " + std::to_string(r);
        xstampago(c, rigacorr);
    }
    if (rigacorr > 0) {
        rigacorr = xstampainit(c);
        p.new_page();
    }
    p.end_doc();
}

LavoroStampa registra() {
    RecordingPrinter r;
    LavoroStampa lavoro;
    r.finito = [&](LavoroStampa&& l) { lavoro = std::move(l); };
    stampa_elenco(r);
    return lavoro;
}

void elenco(benchmark::State& stato) {
    QTemporaryDir cartella;
    StampanteQt s;
    s.scelta.cartella_pdf = cartella.path();
    for (auto _ : stato) stampa_elenco(s);
}

// The texts alone, converted and placed beforehand: no lines, no widths, no breaking into pages.
void elenco_qt_nudo(benchmark::State& stato) {
    const LavoroStampa lavoro = registra();
    std::vector<std::vector<std::pair<QPointF, QString>>> testi;
    for (const auto& p : lavoro.pagine) {
        testi.emplace_back();
        for (const auto& o : p.operazioni)
            if (o.tipo == OperazioneStampa::Tipo::testo)
                testi.back().push_back({{o.x1, o.y1 + 150}, QString::fromStdString(a_utf8(o.testo))});
    }
    QTemporaryDir cartella;
    for (auto _ : stato) {
        QPdfWriter pdf(cartella.filePath("nudo.pdf"));
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF());
        pdf.setResolution(1440);
        QPainter p(&pdf);
        p.setFont(QFont(QStringLiteral("Arial"), 8));
        for (std::size_t n = 0; n < testi.size(); ++n) {
            if (n > 0) pdf.newPage();
            for (const auto& [dove, testo] : testi[n]) p.drawText(dove, testo);
        }
        p.end();
    }
    stato.counters["pagine"] = static_cast<double>(testi.size());
}

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

void certificazioni(benchmark::State& stato) {
    StampanteQt s;
    for (auto _ : stato) {
        QTemporaryDir cartella;
        s.scelta.cartella_pdf = cartella.path();
        TestoRicco t;
        for (int i = 1; i <= kCertificazioni; ++i) {
            t.carica(kLettera);
            for (int k = 250; k <= 270; ++k)
                t.sostituisci("$$$" + std::to_string(k) + "$$$", "Valore " + std::to_string(i * k));
            s.document_title = "Certificazione " + std::to_string(i);
            t.sel_print(s);
            s.end_doc();
        }
    }
    stato.counters["al_secondo"] = benchmark::Counter(
        static_cast<double>(stato.iterations()) * kCertificazioni, benchmark::Counter::kIsRate);
}

BENCHMARK(elenco)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(elenco_qt_nudo)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
BENCHMARK(certificazioni)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
