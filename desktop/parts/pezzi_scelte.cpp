// Labels, buttons, boxes, lists, bars.
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>

#include "desktop/finestra.h"
#include "desktop/parts/contesto.h"
#include "desktop/parts/legame.h"
#include "desktop/parts/testo_qt.h"

namespace ambra {

namespace {

void tieni_posto(QWidget* w) {
    QSizePolicy p = w->sizePolicy();
    p.setRetainSizeWhenHidden(true);
    w->setSizePolicy(p);
}

// A command reached by its letter or key takes the focus as a click does, so that the field in hand is left
// first. False: that field keeps it, and the command is off.
bool prendi_fuoco(Finestra& f, QWidget* w) {
    if (!w->hasFocus() && f.isActiveWindow()) w->setFocus(Qt::ShortcutFocusReason);
    return !f.trattiene();
}

// Items and choice of a combo as the control holds them.
void mostra_combo(QComboBox* w, const Lista& c) {
    const QSignalBlocker muto(w);
    const auto& voci = c.voci();
    bool uguali = w->count() == static_cast<int>(voci.size());
    for (int i = 0; uguali && i < w->count(); ++i)
        uguali = w->itemText(i) == qs(voci[static_cast<std::size_t>(i)]);
    if (!uguali) {
        QStringList testi;
        for (const auto& v : voci) testi += qs(v);
        w->clear();
        w->addItems(testi);
    }
    w->setCurrentIndex(c.scelta());
    // Places without a name are not offered.
    if (auto* elenco = qobject_cast<QListView*>(w->view()))
        for (int i = 0; i < w->count(); ++i)
            elenco->setRowHidden(i, w->itemText(i).trimmed().isEmpty() && i != c.scelta());
}

void mostra_lista(QListWidget* w, const Lista& c) {
    const QSignalBlocker muto(w);
    const auto& voci = c.voci();
    bool uguali = w->count() == static_cast<int>(voci.size());
    for (int i = 0; uguali && i < w->count(); ++i)
        uguali = w->item(i)->text() == qs(voci[static_cast<std::size_t>(i)]);
    if (!uguali) {
        w->clear();
        for (const auto& v : voci) w->addItem(qs(v));
    }
    w->setCurrentRow(c.scelta());
}

}  // namespace

QLabel* Contesto::etichetta(std::string_view nome) {
    auto* l = new QLabel(&f_);
    l->setTextFormat(Qt::PlainText);
    if (Controllo* c = trova(nome)) {
        f_.lega(*c, l);
        didascalia(l, qs(c->caption()));
    } else {
        l->setText(QString::fromUtf8(nome.data(), static_cast<qsizetype>(nome.size())));
    }
    return l;
}

QLabel* Contesto::viva(const char* nome, std::function<QString()> testo) {
    auto* l = new QLabel(&f_);
    l->setObjectName(QString::fromLatin1(nome));
    l->setTextFormat(Qt::PlainText);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    tieni_posto(l);  // a page that grew under the hand would have to scroll
    f_.a_ogni_giro([l, testo = std::move(testo)] {
        const QString t = testo();
        if (l->text() != t) l->setText(t);
        l->setVisible(!t.isEmpty());
    });
    return l;
}

QLabel* Contesto::titolo(std::string_view nome) {
    QLabel* l = etichetta(nome);
    QFont f = l->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() * 1.2);
    l->setFont(f);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return l;
}

QLabel* Contesto::avviso(std::string_view nome) {
    QLabel* l = etichetta(nome);
    QFont f = l->font();
    f.setBold(true);
    l->setFont(f);
    l->setWordWrap(true);
    return l;
}

QToolButton* Contesto::cliccabile(std::string_view nome, const QString& suggerimento) {
    auto* b = new QToolButton(&f_);
    b->setAutoRaise(true);
    b->setToolButtonStyle(Qt::ToolButtonTextOnly);
    b->setFocusPolicy(Qt::TabFocus);
    b->setCursor(Qt::PointingHandCursor);
    b->setToolTip(suggerimento);
    Controllo* c = trova(nome);
    if (!c) return b;
    Finestra& f = f_;
    f_.lega(*c, b, [b, c, &f] {
          if (c->colore_testo() >= 0 || c->colore_sfondo() >= 0) return;
          QPalette p;
          p.setColor(QPalette::ButtonText, f.palette().color(QPalette::Link));
          b->setPalette(p);
      }).nascondi_vuoto();
    QObject::connect(b, &QToolButton::clicked, b, [&f, c] {
        f.completa();
        f.agisce(*c, [c] { c->premi(); });
    });
    return b;
}

QPushButton* Contesto::bottone(std::string_view nome, const QString& suggerimento) {
    auto* b = new QPushButton(&f_);
    b->setAutoDefault(false);
    b->setToolTip(suggerimento);
    Controllo* c = trova(nome);
    if (!c) return b;
    tieni_posto(b);
    Finestra& f = f_;
    f_.lega(*c, b).nascondi_vuoto();
    QObject::connect(b, &QPushButton::clicked, b, [&f, c, b] {
        if (prendi_fuoco(f, b)) f.agisce(*c, [c] { c->premi(); });
    });
    return b;
}

QCheckBox* Contesto::casella(std::string_view nome) {
    auto* b = new QCheckBox(&f_);
    auto* c = dynamic_cast<Casella*>(trova(nome));
    if (!c) return b;
    Finestra& f = f_;
    f_.lega(*c, b, [b, c] { b->setChecked(c->spuntata()); });
    QObject::connect(b, &QCheckBox::clicked, b, [&f, b, c] {
        if (prendi_fuoco(f, b)) f.agisce(*c, [c] { c->clicca(); });
        if (f.schermo()) b->setChecked(c->spuntata());
    });
    return b;
}

QRadioButton* Contesto::opzione(std::string_view nome) {
    auto* b = new QRadioButton(&f_);
    // The logic keeps the group, and may leave all of it unchosen.
    b->setAutoExclusive(false);
    auto* c = dynamic_cast<Opzione*>(trova(nome));
    if (!c) return b;
    Finestra& f = f_;
    f_.lega(*c, b, [b, c] { b->setChecked(c->scelta()); });
    QObject::connect(b, &QRadioButton::clicked, b, [&f, b, c] {
        if (prendi_fuoco(f, b)) f.agisce(*c, [c] { c->clicca(); });
        if (f.schermo()) b->setChecked(c->scelta());
    });
    return b;
}

QWidget* Contesto::opzioni(std::initializer_list<std::string_view> nomi) {
    auto* w = new QWidget(&f_);
    auto* l = new QHBoxLayout(w);
    l->setContentsMargins(0, 0, 0, 0);
    for (const auto nome : nomi) {
        QRadioButton* b = opzione(nome);
        if (!w->focusProxy()) w->setFocusProxy(b);
        l->addWidget(b);
    }
    l->addStretch();
    return w;
}

QComboBox* Contesto::combo(std::string_view nome, const QString& accessibile) {
    auto* w = new QComboBox(&f_);
    w->setAccessibleName(accessibile);
    w->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    w->setMinimumContentsLength(12);
    w->setMinimumWidth(w->fontMetrics().averageCharWidth() * 16);
    w->setMaximumWidth(w->fontMetrics().averageCharWidth() * 60);
    w->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    w->setMaxVisibleItems(15);
    auto* c = dynamic_cast<Lista*>(trova(nome));
    if (!c) return w;
    Finestra& f = f_;
    f_.lega(*c, w, [w, c] { mostra_combo(w, *c); });
    QObject::connect(w, &QComboBox::activated, w, [&f, c](int n) { f.agisce(*c, [c, n] { c->scegli(n); }); });
    return w;
}

QListWidget* Contesto::lista(std::string_view nome, int righe, const QString& accessibile) {
    auto* w = new QListWidget(&f_);
    w->setAccessibleName(accessibile);
    w->setUniformItemSizes(true);
    w->setMinimumHeight(w->fontMetrics().height() * righe + 2 * w->frameWidth());
    auto* c = dynamic_cast<Lista*>(trova(nome));
    if (!c) return w;
    Finestra& f = f_;
    f_.lega(*c, w, [w, c] { mostra_lista(w, *c); });
    QObject::connect(w, &QListWidget::currentRowChanged, w,
                     [&f, c](int n) { f.agisce(*c, [c, n] { c->scegli(n); }); });
    return w;
}

QScrollBar* Contesto::cursore(std::string_view nome, const QString& accessibile) {
    auto* w = new QScrollBar(Qt::Horizontal, &f_);
    w->setAccessibleName(accessibile.isEmpty() ? QStringLiteral("Scorri i record") : accessibile);
    w->setFocusPolicy(Qt::StrongFocus);
    w->setMinimumWidth(w->fontMetrics().averageCharWidth() * 24);
    auto* c = dynamic_cast<Scorrimento*>(trova(nome));
    if (!c) return w;
    Finestra& f = f_;
    f_.lega(*c, w, [w, c] {
        const QSignalBlocker muto(w);
        w->setRange(c->minimo(), c->massimo());
        w->setPageStep(std::max(1, (c->massimo() - c->minimo()) / 20));
        w->setValue(c->valore());
    });
    QObject::connect(w, &QScrollBar::valueChanged, w, [&f, c](int n) { f.utente([c, n] { c->scorri(n); }); });
    return w;
}

QProgressBar* Contesto::progresso(std::string_view nome) {
    auto* w = new QProgressBar(&f_);
    auto* c = dynamic_cast<Progresso*>(trova(nome));
    if (!c) return w;
    tieni_posto(w);
    f_.lega(*c, w, [w, c] {
        // A maximum of 0 would be the endless stripe.
        w->setRange(0, std::max(1, c->massimo()));
        w->setValue(c->valore());
    });
    return w;
}

}  // namespace ambra
