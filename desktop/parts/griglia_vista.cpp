#include "desktop/parts/griglia_vista.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <numeric>

#include "desktop/finestra.h"
#include "desktop/parts/contesto.h"
#include "desktop/parts/legame.h"
#include "desktop/parts/porta_via.h"

namespace ambra {

namespace {

constexpr double kTwipPixel = 15;
constexpr int kTwipImporto = 900;         // a right-aligned column from this width on holds amounts
constexpr int kTwipData[] = {950, 1200};  // any other between these holds dates or numbers of documents
constexpr double kCifraDiUnTempo = 6;     // pixels of a digit in the font that the twips were made for

}  // namespace

VistaGriglia::VistaGriglia(Contesto& c, Griglia& g)
    : QWidget(&c.finestra()), f_(c.finestra()), g_(g), tabella_(new QTableView(this)) {
    auto* l = new QVBoxLayout(this);
    l->setContentsMargins(0, 0, 0, 0);
    l->setSpacing(0);
    l->addWidget(tabella_);
    setFocusProxy(tabella_);

    modello_ = new ModelloGriglia(g, tabella_->font(), this);
    tabella_->setModel(modello_);
    tabella_->setItemDelegate(new PittoreCelle(tabella_));
    tabella_->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabella_->setSelectionMode(QAbstractItemView::SingleSelection);
    tabella_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabella_->setTabKeyNavigation(false);
    tabella_->setWordWrap(false);
    tabella_->setCornerButtonEnabled(false);
    tabella_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    tabella_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    tabella_->setMinimumSize(tabella_->fontMetrics().averageCharWidth() * 40,
                             tabella_->fontMetrics().height() * 8);

    QHeaderView* righe = tabella_->verticalHeader();
    righe->hide();
    righe->setSectionResizeMode(QHeaderView::Fixed);
    righe->setMinimumSectionSize(1);
    righe->setDefaultSectionSize(tabella_->fontMetrics().height() * 3 / 2);
    QHeaderView* testa = tabella_->horizontalHeader();
    testa->setHighlightSections(false);
    testa->setSectionsClickable(true);
    testa->setMinimumSectionSize(tabella_->fontMetrics().averageCharWidth() * 3);
    testa->viewport()->installEventFilter(this);

    // The size policy keeps the place while the logic hides the grid to fill it.
    QSizePolicy p(QSizePolicy::Expanding, QSizePolicy::Expanding);
    p.setRetainSizeWhenHidden(true);
    setSizePolicy(p);

    f_.lega(g, this, [this] { mostra(); }).fuoco_su(tabella_);
    connect(tabella_, &QTableView::clicked, this,
            [this](const QModelIndex& i) { scegli(modello_->riga_griglia(i.row()), i.column()); });
    connect(tabella_, &QTableView::doubleClicked, this, [this](const QModelIndex& i) {
        if (i.column() < apre_) scegli(modello_->riga_griglia(i.row()), apre_);
    });
    connect(tabella_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (!mia_) prendi_nota();
    });
    // Ctrl with a key or a click would take the colour from the row that commands go to.
    connect(tabella_->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const QModelIndex i = tabella_->currentIndex();
        if (i.isValid() && !tabella_->selectionModel()->hasSelection()) tabella_->selectRow(i.row());
    });
    connect(testa, &QHeaderView::sectionClicked, this, &VistaGriglia::ordina_da);
    tabella_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(tabella_, &QTableView::customContextMenuRequested, this, &VistaGriglia::menu);
    connect(testa, &QHeaderView::sectionResized, this, [this] {
        if (trascina_) dell_utente_ = true;
        disponi_etichette();
    });
    connect(tabella_->horizontalScrollBar(), &QScrollBar::valueChanged, this,
            [this] { disponi_etichette(); });
    connect(tabella_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        // The logic knows where the user stands, so that going back there is a change.
        if (mia_ || !f_.schermo()) return;
        if (tabella_->rowAt(0) < 0) return;
        prima_nota_ = modello_->riga_griglia(tabella_->rowAt(0));
        in_mano_.scarto = tabella_->currentIndex().row() - tabella_->rowAt(0);
        g_.prima_visibile(prima_nota_);
    });
    porta_via_ = new PortaVia(tabella_, g, [this](int riga) { return modello_->riga_griglia(riga); });
    tabella_->installEventFilter(this);
    tabella_->viewport()->installEventFilter(this);
}

void VistaGriglia::stacca() {
    modello_->stacca();
    porta_via_->stacca();
}

void VistaGriglia::esporta() {
    porta_via_->esporta();
}

void VistaGriglia::scegli(int riga, int colonna) {
    f_.agisce(
        g_, [&] { g_.scegli(riga, colonna); }, riga, colonna);
}

// ---- from the logic ----

void VistaGriglia::mostra() {
    const bool nuova = volta && volta_ != volta();
    if (nuova) volta_ = volta();
    if (nuova) ordinata_ = -1;
    if (nuova && rifatta) rifatta();
    const bool vera = tabella_->currentIndex().isValid();
    mia_ = true;
    if (modello_->rileggi()) {
        dell_utente_ = false;
        misura_colonne();
        disponi_colonne();
    }
    mia_ = false;
    mostra_freccia();
    if (const int riga = vera ? ritrova(nuova) : 0; riga > 0 && (nuova || riga != in_mano_.riga))
        return torna_a(riga, in_mano_.scarto);
    if (vera && !tabella_->currentIndex().isValid() && modello_->rowCount() > 0)
        tabella_->setCurrentIndex(modello_->index(std::min(in_mano_.riga, modello_->rowCount()) - 1, 0));
    if (prima_nota_ != g_.prima_visibile()) {
        prima_nota_ = g_.prima_visibile();
        mia_ = true;
        tabella_->doItemsLayout();  // the scroll bar must know the new rows
        tabella_->scrollTo(modello_->index(modello_->riga_modello(prima_nota_), 0),
                           QAbstractItemView::PositionAtTop);
        mia_ = false;
    }
}

void VistaGriglia::misura_colonne() {
    const QFontMetrics m = tabella_->fontMetrics();
    const double scala = std::max(logicalDpiX() / 96.0, m.horizontalAdvance('0') / kCifraDiUnTempo);
    const int margine = m.averageCharWidth() * 2, spazio = m.averageCharWidth() / 2;
    const QFontMetrics mt = tabella_->horizontalHeader()->fontMetrics();
    naturali_.clear();
    for (int c = 0; c < g_.quante_colonne(); ++c) {
        const int twip = g_.colonna(c).larghezza;
        const QString titolo = modello_->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
        int pixel = static_cast<int>(twip / kTwipPixel * scala);
        if (twip > 0) pixel = std::max(pixel, mt.horizontalAdvance(titolo) + margine);
        // An amount that is cut is a wrong amount.
        if (g_.colonna(c).verso == Allineamento::destra && twip >= kTwipImporto)
            pixel = std::max(pixel, m.horizontalAdvance(QStringLiteral("-9.999.999,99")) + margine);
        else if (twip >= kTwipData[0] && twip <= kTwipData[1])
            pixel = std::max(pixel, m.horizontalAdvance(QStringLiteral("00/00/0000")) + margine + spazio);
        naturali_.push_back(std::max(pixel, 0));
        tabella_->setColumnHidden(c, twip <= 0);
    }
    for (const auto& [colonna, testo] : parole_) {
        int& pixel = naturali_.at(static_cast<std::size_t>(colonna));
        pixel = std::max(pixel, m.horizontalAdvance(testo) + margine + m.averageCharWidth());
    }
    updateGeometry();
}

void VistaGriglia::righe_volute(int n) {
    righe_volute_ = n;
    updateGeometry();
}

void VistaGriglia::posto_per(int colonna, const QString& testo) {
    parole_.emplace_back(colonna, testo);
    misura_colonne();
    disponi_colonne();
}

QSize VistaGriglia::sizeHint() const {
    const int colonne = std::accumulate(naturali_.begin(), naturali_.end(), 0);
    const int barra = tabella_->verticalScrollBar()->sizeHint().width();
    const int righe = tabella_->verticalHeader()->defaultSectionSize() * righe_volute_;
    return {colonne + barra + 2 * tabella_->frameWidth(), tabella_->horizontalHeader()->sizeHint().height() +
                                                              righe + 2 * tabella_->frameWidth() +
                                                              (striscia_ ? striscia_->height() : 0)};
}

void VistaGriglia::disponi_colonne() {
    if (dell_utente_ || naturali_.empty() || riprendi_colonne()) return;
    const std::vector<int> w = colonne_per(tabella_->viewport()->width());
    tabella_->horizontalHeader()->setStretchLastSection(false);
    for (int c = 0; c < static_cast<int>(w.size()); ++c)
        if (w[static_cast<std::size_t>(c)] > 0) tabella_->setColumnWidth(c, w[static_cast<std::size_t>(c)]);
    tabella_->horizontalHeader()->setStretchLastSection(true);
    disponi_etichette();
}

// ---- the strip of labels ----

void VistaGriglia::etichette(Contesto& c, std::string_view base) {
    striscia_ = new QWidget(this);
    for (int i = 0;; ++i) {
        const std::string nome = nome_elemento(base, i);
        const Controllo* x = c.schermo().trova(nome);
        if (!x) break;
        QToolButton* b = c.cliccabile(nome);
        b->setParent(striscia_);
        if (x->caption().empty()) b->setEnabled(false);
        connect(b, &QToolButton::clicked, this, [this, i] {
            ordinata_ = i;
            mostra_freccia();
        });
        etichette_.push_back(b);
    }
    int alta = 0;
    for (const QWidget* e : etichette_) alta = std::max(alta, e->sizeHint().height());
    striscia_->setFixedHeight(alta);
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, striscia_);
    disponi_etichette();
}

void VistaGriglia::disponi_etichette() {
    if (!striscia_) return;
    const QHeaderView* testa = tabella_->horizontalHeader();
    const int da = tabella_->viewport()->x();
    const int fine = da + tabella_->viewport()->width();
    for (int c = 0; c < static_cast<int>(etichette_.size()); ++c) {
        QWidget* e = etichette_[static_cast<std::size_t>(c)];
        if (c >= testa->count() || testa->isSectionHidden(c)) {
            e->setGeometry(0, 0, 0, 0);
            continue;
        }
        const int x = da + testa->sectionViewportPosition(c);
        e->setGeometry(x, 0, std::max(0, std::min(testa->sectionSize(c), fine - x)), striscia_->height());
    }
}

// ---- from the user ----

bool VistaGriglia::tasto(QKeyEvent* e) {
    if (e->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) return false;
    if (e->key() != Qt::Key_Return && e->key() != Qt::Key_Enter && e->key() != Qt::Key_Space) return false;
    const QModelIndex i = tabella_->currentIndex();
    const bool apre = e->key() != Qt::Key_Space && i.column() < apre_;
    if (i.isValid()) scegli(modello_->riga_griglia(i.row()), apre ? apre_ : i.column());
    return true;
}

bool VistaGriglia::eventFilter(QObject* o, QEvent* e) {
    if (e->type() == QEvent::KeyPress && o == tabella_) return tasto(static_cast<QKeyEvent*>(e));
    if (e->type() == QEvent::FocusIn && o == tabella_ && !tabella_->currentIndex().isValid() &&
        modello_->rowCount() > 0)
        tabella_->setCurrentIndex(modello_->index(0, 0));
    if (o == tabella_->horizontalHeader()->viewport()) {
        if (e->type() == QEvent::MouseButtonPress || e->type() == QEvent::MouseButtonDblClick)
            trascina_ = true;
        if (e->type() == QEvent::MouseButtonRelease) {
            trascina_ = false;
            if (dell_utente_)
                QMetaObject::invokeMethod(this, &VistaGriglia::ricorda_colonne, Qt::QueuedConnection);
        }
    }
    if (o == tabella_->viewport() && e->type() == QEvent::Resize)
        QMetaObject::invokeMethod(this, &VistaGriglia::disponi_colonne, Qt::QueuedConnection);
    return QWidget::eventFilter(o, e);
}

}  // namespace ambra
