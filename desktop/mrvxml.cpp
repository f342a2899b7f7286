// "Fatture elettroniche": the list, beneath it what there is to say of the chosen document, and beside that
// the document itself.
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QTextBrowser>

#include "desktop/fatture_trascinate.h"
#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/mnemonici.h"
#include "desktop/parts/testo_qt.h"
#include "desktop/viste.h"
#include "invoices/leggibile.h"
#include "invoices/mrvxml.h"
#include "qt/ricordi.h"

namespace ambra {

namespace {

QString html(const std::string& t) {
    return qs(t).toHtmlEscaped();
}

QString riga_di(const QString& marca, const std::vector<std::string>& celle) {
    QString h;
    for (const std::string& c : celle) {
        const bool importo = !c.empty() && c.find_first_not_of("0123456789.,-") == std::string::npos;
        h += QStringLiteral("<%1 align=\"%2\">%3</%1>")
                 .arg(marca, importo ? QStringLiteral("right") : QStringLiteral("left"), html(c));
    }
    return QStringLiteral("<tr>%1</tr>").arg(h);
}

// Caption and value: the captions stand in a narrow column of their own.
QString voce_di(const std::vector<std::string>& celle) {
    return QStringLiteral("<tr><td width=\"25%\">%1</td><td>%2</td></tr>")
        .arg(html(celle[0]), html(celle[1]));
}

QString parte(const ParteLeggibile& p) {
    QString h = QStringLiteral("<h3>%1</h3><table width=\"99%\" cellpadding=\"3\">").arg(html(p.titolo));
    if (!p.colonne.empty()) h += riga_di(QStringLiteral("th"), p.colonne);
    for (const auto& r : p.righe) h += p.colonne.empty() ? voce_di(r) : riga_di(QStringLiteral("td"), r);
    return h + QStringLiteral("</table>");
}

QString pagina_di(const RigaFattura* r) {
    if (!r)
        return QStringLiteral(
            "<p>Trascinare qui file o cartelle di fatture elettroniche: XML, p7m, zip.</p>");
    if (!r->motivo.empty()) return QStringLiteral("<p>%1</p>").arg(qs(r->testo_stato).toHtmlEscaped());
    QString h;
    for (const ParteLeggibile& p : leggibile(r->fattura)) h += parte(p);
    return h;
}

Mrvxml* schermo_di(Finestra& f) {
    return static_cast<Mrvxml*>(f.schermo());
}

// A copy among the machine's passing files: the one of the archive is written only with its document.
void apri_pdf(Finestra& f) {
    const auto a = schermo_di(f)->pdf_della_scelta();
    if (!a) return;
    const QString dove = QDir::temp().filePath(
        QStringLiteral("ambra-%1.pdf").arg(QString::fromStdString(a->impronta.substr(0, 16))));
    if (scrivi_fuori(dove.toStdString(), a->contenuto) == 0)
        f.schermo()->prog.piattaforma.open_document(da_qs(QDir::toNativeSeparators(dove)));
}

QPushButton* bottone(Finestra& f, const char* nome, const QString& caption, const QString& suggerimento) {
    auto* b = new QPushButton(&f);
    b->setObjectName(QString::fromLatin1(nome));
    b->setAutoDefault(false);
    b->setToolTip(suggerimento);
    didascalia(b, caption);
    return b;
}

QWidget* sotto(Contesto& c, QTextBrowser* vista) {
    auto* lato = new QWidget(&c.finestra());
    auto* colonna = new QVBoxLayout(lato);
    colonna->setContentsMargins(0, 0, 0, 0);
    VistaGriglia* avvisi = c.griglia("avvisi", {}, QStringLiteral("Avvisi del documento scelto"));
    avvisi->righe_volute(6);
    // A warning is read whole.
    avvisi->tabella()->setWordWrap(true);
    avvisi->tabella()->setTextElideMode(Qt::ElideNone);
    avvisi->tabella()->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    QComboBox* esenzione = c.combo("esenzione", QStringLiteral("Codice di esenzione"));
    colonna->addWidget(avvisi, 1);
    colonna->addWidget(c.casella("ritenuta"));
    colonna->addWidget(c.accanto(QStringLiteral("Codice di esenzione"), esenzione));
    colonna->addWidget(esenzione);
    auto* due = new QSplitter(Qt::Horizontal, &c.finestra());
    due->addWidget(lato);
    due->addWidget(vista);
    due->setSizes({400, 600});
    due->setStretchFactor(0, 2);
    due->setStretchFactor(1, 3);
    return due;
}

// Where the user was last time.
std::vector<std::string> chiedi_file(Finestra& f) {
    QSettings ricordo = ricordi();
    const QString chiave = QStringLiteral("cartelle/fatture");
    const QStringList scelti =
        QFileDialog::getOpenFileNames(&f, QStringLiteral("Apri file"), ricordo.value(chiave).toString(),
                                      QStringLiteral("Fatture elettroniche (%1);;Tutti i file (*)")
                                          .arg(QString::fromLatin1(kModelloFatture)));
    if (!scelti.isEmpty()) ricordo.setValue(chiave, QFileInfo(scelti.first()).absolutePath());
    std::vector<std::string> r;
    for (const QString& s : scelti) r.push_back(s.toStdString());
    return r;
}

// The row in hand is the chosen one: what stands beneath the list is always of the row that is lit.
void scegli_con_le_frecce(Finestra& f, VistaGriglia* elenco) {
    QObject::connect(elenco->tabella()->selectionModel(), &QItemSelectionModel::currentRowChanged, elenco,
                     [&f, elenco](const QModelIndex& ora) {
                         if (!ora.isValid() || !elenco->tabella()->hasFocus() || !schermo_di(f)) return;
                         const int riga = elenco->riga_mostrata(ora.row());
                         if (schermo_di(f)->riga_scelta() != riga) elenco->clicca(riga, 0);
                     });
}

QProgressBar* avanzamento(Contesto& c, Mrvxml& s) {
    auto* barra = new QProgressBar(&c.finestra());
    barra->setFormat(QStringLiteral("%v file di %m"));
    c.finestra().lega(s.letti, barra, [barra, &s] {
        barra->setMaximum(s.letti.massimo());
        barra->setValue(s.letti.valore());
    });
    return barra;
}

}  // namespace

QWidget* vista_mrvxml(Contesto& c, Schermo& schermo) {
    auto& s = static_cast<Mrvxml&>(schermo);
    Finestra& f = c.finestra();
    accetta_fatture(f);
    QPushButton* apri = c.bottone("apri", QStringLiteral("Aggiunge file: XML, p7m o zip (Ctrl+O)"));
    auto* alto = c.fila({apri, c.bottone("cartella", QStringLiteral("Aggiunge i file di una cartella"))});
    alto->addWidget(avanzamento(c, s));
    VistaGriglia* elenco = c.griglia("elenco", {}, QStringLiteral("Fatture elettroniche"));
    scegli_con_le_frecce(f, elenco);
    s.chiedi_file = [&f] { return chiedi_file(f); };
    elenco->setMinimumSize(f.fontMetrics().averageCharWidth() * 140, f.fontMetrics().height() * 9);

    auto* vista = new QTextBrowser(&f);
    vista->setObjectName(QStringLiteral("originale"));
    vista->setAccessibleName(QStringLiteral("Il documento scelto"));
    vista->setOpenLinks(false);
    auto* pdf = bottone(f, "apri_pdf", QStringLiteral("Apri il PDF allegato"),
                        QStringLiteral("Il PDF che sta nel file"));
    auto* stampa =
        bottone(f, "stampa", QStringLiteral("Stampa"), QStringLiteral("Stampa il documento scelto (Ctrl+P)"));
    QObject::connect(pdf, &QPushButton::clicked, pdf, [&f] { f.utente([&f] { apri_pdf(f); }); });
    QObject::connect(stampa, &QPushButton::clicked, stampa, [&f] {
        f.utente([&f] {
            if (const RigaFattura* r = schermo_di(f)->scelta(); r && r->motivo.empty())
                stampa_leggibile(f.schermo()->prog, r->fattura);
        });
    });
    f.a_ogni_giro([&f, elenco, vista, pdf, stampa, vista_ora = QString()]() mutable {
        if (!schermo_di(f)) return;
        const RigaFattura* r = schermo_di(f)->scelta();
        if (r && elenco->riga_in_mano() != schermo_di(f)->riga_scelta())
            elenco->prendi_riga(schermo_di(f)->riga_scelta());
        pdf->setEnabled(r && r->proposta.con_pdf);
        stampa->setEnabled(r && r->motivo.empty());
        if (const QString h = pagina_di(r); h != vista_ora) vista->setHtml(vista_ora = h);
    });
    QPushButton* registra =
        c.bottone("registra", QStringLiteral("Porta il documento scelto nella registrazione, da confermare"));
    c.tasto("Ctrl+O", apri);
    c.tasto("Ctrl+P", stampa);
    QLayout* comandi = c.comandi({registra, pdf, stampa}, {}, {c.bottone("indice")});
    return c.pagina({alto, elenco, sotto(c, vista), comandi}, 2);
}

}  // namespace ambra
