#include "desktop/parts/porta_via.h"

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
#include <QMouseEvent>
#include <QStandardPaths>
#include <QTableView>
#include <vector>

#include "core/disco.h"
#include "core/errori.h"
#include "desktop/parts/testo_qt.h"
#include "parti/parti.h"
#include "qt/replica.h"
#include "qt/ricordi.h"

namespace ambra {

namespace {

const QString kTitolo = QStringLiteral("Esporta in un foglio di calcolo");
const QString kCartella = QStringLiteral("cartelle/fogli");
const QString kXlsx = QStringLiteral("Foglio di calcolo (*.xlsx)");
const QString kCsv = QStringLiteral("Testo separato da punto e virgola (*.csv)");

QAction* comando(QTableView* t, const QString& caption, const QKeySequence& tasto) {
    auto* a = new QAction(caption, t);
    a->setShortcut(tasto);
    a->setShortcutContext(Qt::WidgetShortcut);
    t->addAction(a);
    return a;
}

// A cell on the clipboard: its own tabs and line ends would make other cells of it.
QString di_una_riga(const std::string& testo) {
    QString s = qs(testo);
    for (const QChar c : {u'\t', u'\r', u'\n'}) s.replace(c, u' ');
    return s;
}

QString riga_copiata(const Foglio& f, std::size_t r) {
    QStringList celle;
    for (std::size_t c = 0; c < f.colonne.size(); ++c) celle << di_una_riga(f.cella(r, c).testo);
    return celle.join(u'\t');
}

// The name with the extension of the kind, unless it bears that of one of the two already.
QString con_estensione(const QString& nome, const QString& filtro) {
    for (const char* sua : {".xlsx", ".csv"})
        if (nome.endsWith(QLatin1String(sua), Qt::CaseInsensitive)) return nome;
    return nome + (filtro == kCsv ? QStringLiteral(".csv") : QStringLiteral(".xlsx"));
}

bool sostituire(QWidget* sopra, const QString& file) {
    return !QFileInfo::exists(file) ||
           QMessageBox::question(
               sopra, kTitolo,
               QStringLiteral("%1 esiste già. Sostituirlo?").arg(QDir::toNativeSeparators(file))) ==
               QMessageBox::Yes;
}

// The file that the user wants; empty when he thought better of it. The dialog's own question about a file
// that is there would come before its name is whole.
QString chiedi_file(QWidget* sopra) {
    const QString casa = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QFileDialog d(sopra, kTitolo, ricordi().value(kCartella, casa).toString());
    d.setAcceptMode(QFileDialog::AcceptSave);
    d.setOption(QFileDialog::DontConfirmOverwrite);
    d.setNameFilters({kXlsx, kCsv});
    const QString nome = nome_di_file(da_qs(sopra->window()->windowTitle()));
    d.selectFile(nome.isEmpty() ? QStringLiteral("Lista") : nome);
    while (d.exec() == QDialog::Accepted && !d.selectedFiles().isEmpty()) {
        const QString file = con_estensione(d.selectedFiles().first(), d.selectedNameFilter());
        if (!sostituire(&d, file)) continue;
        ricordi().setValue(kCartella, QFileInfo(file).absolutePath());
        return file;
    }
    return {};
}

}  // namespace

PortaVia::PortaVia(QTableView* tabella, const Griglia& g, std::function<int(int riga)> riga_griglia)
    : QObject(tabella), tabella_(tabella), g_(&g), riga_griglia_(std::move(riga_griglia)) {
    connect(comando(tabella, kTitolo + u'…', QKeySequence(QStringLiteral("Ctrl+E"))), &QAction::triggered,
            this, &PortaVia::esporta);
    connect(comando(tabella, QStringLiteral("Copia"), QKeySequence::Copy), &QAction::triggered, this,
            &PortaVia::copia);
    connect(comando(tabella, QStringLiteral("Scegli tutte le righe"), QKeySequence::SelectAll),
            &QAction::triggered, this, [this] { tutte(true); });
    connect(tabella, &QTableView::clicked, this, [this] { tutte(false); });
    connect(tabella->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { tutte(false); });
    tabella->viewport()->installEventFilter(this);
}

// The context menu comes to all the rows that are chosen: its click takes none of them in hand.
bool PortaVia::eventFilter(QObject* o, QEvent* e) {
    const bool premuto = e->type() == QEvent::MouseButtonPress;
    if (premuto && tutte_ && static_cast<QMouseEvent*>(e)->button() == Qt::RightButton) return true;
    return QObject::eventFilter(o, e);
}

// A list has one chosen row but for the moment in which all are to be copied.
void PortaVia::tutte(bool si) {
    if (si == tutte_) return;
    tutte_ = si;
    tabella_->setSelectionMode(si ? QAbstractItemView::MultiSelection : QAbstractItemView::SingleSelection);
    if (si) return tabella_->selectAll();
    tabella_->clearSelection();
    if (tabella_->currentIndex().isValid()) tabella_->selectRow(tabella_->currentIndex().row());
}

Foglio PortaVia::in_vista() const {
    std::vector<bool> mostrata(static_cast<std::size_t>(g_->righe()));
    // The table may still show rows that the list has lost since.
    for (int i = 0; i < tabella_->model()->rowCount(); ++i)
        if (const auto r = static_cast<std::size_t>(riga_griglia_(i)); r < mostrata.size())
            mostrata[r] = !tabella_->isRowHidden(i);
    return foglio_di(*g_, [&](int r) { return mostrata[static_cast<std::size_t>(r)]; });
}

void PortaVia::copia() {
    if (!g_) return;
    QString testo;
    if (tutte_) {
        const Foglio f = in_vista();
        for (std::size_t r = 0; r < f.righe(); ++r) testo += riga_copiata(f, r) + u'\n';
    } else if (const QModelIndex i = tabella_->currentIndex(); i.isValid()) {
        const Foglio f = foglio_di(*g_, [scelta = riga_griglia_(i.row())](int r) { return r == scelta; });
        if (f.righe() == 2) testo = riga_copiata(f, 1);
    }
    if (!testo.isEmpty()) QGuiApplication::clipboard()->setText(testo);
}

void PortaVia::esporta() {
    if (!g_) return;
    const QString f = chiedi_file(tabella_);
    if (!f.isEmpty()) esporta_in(f);
}

void PortaVia::esporta_in(const QString& percorso) {
    if (!g_) return;  // the screen went while the user chose
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const Foglio f = in_vista();
    const std::string dove = percorso.toStdString();
    std::string perche;
    if (!percorso.endsWith(QStringLiteral(".csv"), Qt::CaseInsensitive)) {
        perche = scrivi_xlsx(f, dove);
    } else if (const int errore = scrivi_fuori(dove, csv_di(f)); errore != 0) {
        perche = in_parole(errore);
    }
    QGuiApplication::restoreOverrideCursor();
    if (perche.empty()) return;
    QMessageBox::warning(tabella_, kTitolo,
                         QStringLiteral("La lista non si può scrivere in %1: %2.")
                             .arg(QDir::toNativeSeparators(percorso), qs(perche)));
}

}  // namespace ambra
