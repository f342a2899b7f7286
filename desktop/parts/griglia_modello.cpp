#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "desktop/parts/colori.h"
#include "desktop/parts/griglia_vista.h"
#include "desktop/parts/suggerimenti.h"
#include "desktop/parts/testo_qt.h"
#include "screen/colori.h"

namespace ambra {

namespace {

// The name of a deleted supplier begins with a mark, for the sort; nobody needs to read it.
bool segnata(std::string_view t) {
    return t.starts_with('\xFF');
}

std::string_view senza_segno(std::string_view t) {
    return segnata(t) ? t.substr(1) : t;
}

QVariant allineamento(const Colonna& c) {
    const Qt::Alignment a = c.verso == Allineamento::destra   ? Qt::AlignRight
                            : c.verso == Allineamento::centro ? Qt::AlignHCenter
                                                              : Qt::AlignLeft;
    return QVariant::fromValue(a | Qt::AlignVCenter);
}

}  // namespace

ModelloGriglia::ModelloGriglia(Griglia& g, const QFont& font, QObject* padre)
    : QAbstractTableModel(padre), g_(&g), cifre_(cifre_pari(font)) {}

void ModelloGriglia::filtra(std::function<bool(int)> passa) {
    passa_ = std::move(passa);
    rileggi();
}

int ModelloGriglia::riga_modello(int riga) const {
    if (!passa_) return riga - 1;
    const auto it = std::find(mostrate_.begin(), mostrate_.end(), riga);
    return it == mostrate_.end() ? -1 : static_cast<int>(it - mostrate_.begin());
}

bool ModelloGriglia::rileggi() {
    mostrate_.clear();
    for (int r = 1; passa_ && r < g_->righe(); ++r)
        if (g_->chiave(r) != 0 && passa_(r)) mostrate_.push_back(r);
    const int righe = passa_ ? static_cast<int>(mostrate_.size()) : g_->righe() - 1;
    const int colonne = g_->quante_colonne();
    bool altre = colonne != colonne_;
    for (int c = 0; c < colonne && !altre; ++c) {
        const Colonna& ora = g_->colonna(c);
        const Colonna& prima = note_[static_cast<std::size_t>(c)];
        altre = ora.larghezza != prima.larghezza || ora.verso != prima.verso;
    }
    note_.clear();
    for (int c = 0; c < colonne; ++c) note_.push_back(g_->colonna(c));
    if (altre) {
        beginResetModel();
        righe_ = righe;
        colonne_ = colonne;
        endResetModel();
        return true;
    }
    if (righe > righe_) {
        beginInsertRows({}, righe_, righe - 1);
        righe_ = righe;
        endInsertRows();
    } else if (righe < righe_) {
        beginRemoveRows({}, righe, righe_ - 1);
        righe_ = righe;
        endRemoveRows();
    }
    if (righe_ > 0) emit dataChanged(index(0, 0), index(righe_ - 1, colonne_ - 1));
    emit headerDataChanged(Qt::Horizontal, 0, colonne_ - 1);
    return false;
}

QVariant ModelloGriglia::data(const QModelIndex& i, int ruolo) const {
    if (!g_ || !i.isValid()) return {};
    const int r = riga_griglia(i.row()), c = i.column();
    if (ritocco)
        if (const QVariant v = ritocco(r, c, ruolo); v.isValid()) return v;
    switch (ruolo) {
        case Qt::DisplayRole:
            return qs(rifila_destra(senza_segno(g_->vista(r, c))));
        case Qt::TextAlignmentRole:
            return c < g_->quante_colonne() ? allineamento(g_->colonna(c)) : QVariant();
        case Qt::BackgroundRole: {
            const long rgb = g_->colore(r, c);
            // White is the paper of the list, whatever that is in the theme.
            return rgb < 0 || rgb == colore::bianco ? QVariant() : QVariant(colore_di(rgb));
        }
        case Qt::ForegroundRole: {
            if (segnata(g_->vista(r, c))) return QColor(Qt::gray);
            const long rgb = g_->colore_testo_riga(r);
            return rgb < 0 ? QVariant() : QVariant(colore_di(rgb));
        }
        case Qt::FontRole:
            return cifre_;
        case kRigaVuota:
            return vuota(r);
        case Qt::ToolTipRole: {
            const QString detto = suggerimento_di(qs(g_->vista(r, c)));
            return detto.isEmpty() ? QVariant() : QVariant(detto);
        }
        default:
            return {};
    }
}

bool ModelloGriglia::vuota(int r) const {
    for (int c = 0; c < colonne_; ++c)
        if (!note_[static_cast<std::size_t>(c)].titolo.empty() && !rifila(g_->vista(r, c)).empty())
            return false;
    return true;
}

QVariant ModelloGriglia::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
    if (!g_ || verso != Qt::Horizontal || sezione >= g_->quante_colonne()) return {};
    if (ruolo == Qt::DisplayRole) return qs(g_->colonna(sezione).titolo);
    if (ruolo == Qt::TextAlignmentRole) return allineamento(g_->colonna(sezione));
    return {};
}

void PittoreCelle::paint(QPainter* p, const QStyleOptionViewItem& opzione, const QModelIndex& i) const {
    QStyleOptionViewItem o = opzione;
    initStyleOption(&o, i);
    o.decorationPosition = QStyleOptionViewItem::Right;  // texts stand under each other
    const QVariant sfondo = i.data(Qt::BackgroundRole);
    const QVariant testo = i.data(Qt::ForegroundRole);
    const bool corrente = o.state & QStyle::State_HasFocus;
    // A filler row is no document: it takes no part in the selection.
    if (i.data(kRigaVuota).toBool()) o.state &= ~QStyle::State_Selected;
    if (sfondo.isValid()) {
        // The colour is the state of the document: a selected row keeps it.
        o.state &= ~QStyle::State_Selected;
        const QColor dietro = sfondo.value<QColor>();
        const QColor davanti = testo.isValid() ? leggibile(testo.value<QColor>(), dietro) : testo_su(dietro);
        o.palette.setColor(QPalette::Text, davanti);
    } else if (testo.isValid() && !(o.state & QStyle::State_Selected)) {
        o.palette.setColor(QPalette::Text, leggibile(testo.value<QColor>(), o.palette.color(QPalette::Base)));
    }
    o.state &= ~QStyle::State_HasFocus;
    const QStyle* stile = o.widget ? o.widget->style() : QApplication::style();
    stile->drawControl(QStyle::CE_ItemViewItem, &o, p, o.widget);
    if (!corrente) return;
    // The cell that Enter would pick.
    p->save();
    p->setPen(QPen(
        sfondo.isValid() ? testo_su(sfondo.value<QColor>()) : o.palette.color(QPalette::HighlightedText), 2));
    p->drawRect(QRectF(o.rect).adjusted(2, 2, -2, -2));
    p->restore();
}

bool PittoreCelle::helpEvent(QHelpEvent* e, QAbstractItemView* v, const QStyleOptionViewItem& opzione,
                             const QModelIndex& i) {
    if (e->type() != QEvent::ToolTip || !i.isValid() || i.data(Qt::ToolTipRole).isValid())
        return QStyledItemDelegate::helpEvent(e, v, opzione, i);
    const QString testo = i.data().toString();
    const bool tagliato = sizeHint(opzione, i).width() > opzione.rect.width();
    QToolTip::showText(e->globalPos(), tagliato ? testo : QString(), v);
    return true;
}

}  // namespace ambra
