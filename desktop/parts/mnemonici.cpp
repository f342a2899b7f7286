#include "desktop/parts/mnemonici.h"

#include <QAbstractButton>
#include <QLabel>

#include "desktop/parts/testo_qt.h"

namespace ambra {

namespace {

constexpr const char* kLettera = "lettera";

void scrivi_caption(QWidget* w, const QString& testo) {
    if (auto* b = qobject_cast<QAbstractButton*>(w)) {
        if (b->text() != testo) b->setText(testo);
    } else if (auto* l = qobject_cast<QLabel*>(w)) {
        if (l->text() != testo) l->setText(testo);
    }
}

bool buona(QChar c, const QString& prese) {
    return c.isLetter() && c.unicode() <= 0x7F && !prese.contains(c);
}

// Where the ampersand goes: at the letter it had, the first letter of a word, any free letter; -1 for none.
qsizetype posto_mnemonico(const QString& testo, const QString& prese, QChar aveva) {
    const QString t = testo.toLower();
    if (!aveva.isNull() && buona(aveva, prese)) {
        for (qsizetype i = 0; i < t.size(); ++i)
            if (t[i] == aveva && (i == 0 || !t[i - 1].isLetterOrNumber())) return i;
        if (t.contains(aveva)) return t.indexOf(aveva);
    }
    for (const bool inizio : {true, false})
        for (qsizetype i = 0; i < t.size(); ++i)
            if (buona(t[i], prese) && (!inizio || i == 0 || !t[i - 1].isLetterOrNumber())) return i;
    return -1;
}

bool raggiungibile(const QWidget* w) {
    return w->isVisibleTo(w->window()) && w->isEnabledTo(w->window());
}

bool ha_caption(const QWidget* w) {
    if (w->property(kDidascalia).toString().isEmpty()) return false;
    const auto* l = qobject_cast<const QLabel*>(w);
    return l ? l->buddy() != nullptr : qobject_cast<const QAbstractButton*>(w) != nullptr;
}

// A caption of a field that is only shown leads nowhere.
bool porta_da_qualche_parte(const QWidget* w) {
    if (!raggiungibile(w)) return false;
    const auto* l = qobject_cast<const QLabel*>(w);
    return !l || (raggiungibile(l->buddy()) && l->buddy()->focusPolicy() & Qt::TabFocus);
}

// True if the widget got a letter, which is then taken.
bool assegna(QWidget* w, QString& prese, bool solo_la_sua) {
    const QString testo = w->property(kDidascalia).toString();
    const QChar aveva = w->property(kLettera).toChar();
    if (solo_la_sua && (aveva.isNull() || !buona(aveva, prese))) return false;
    const qsizetype posto = posto_mnemonico(testo, prese, aveva);
    if (posto < 0 || (solo_la_sua && testo[posto].toLower() != aveva)) return false;
    const QChar lettera = testo[posto].toLower();
    prese += lettera;
    w->setProperty(kLettera, lettera);
    scrivi_caption(w, senza_mnemonico(testo.left(posto)) + '&' + senza_mnemonico(testo.mid(posto)));
    return true;
}

}  // namespace

void didascalia(QWidget* w, const QString& testo) {
    w->setProperty(kDidascalia, testo);
    const auto* l = qobject_cast<QLabel*>(w);
    scrivi_caption(w, l && !l->buddy() ? testo : senza_mnemonico(testo));
}

void assegna_mnemonici(QWidget* finestra) {
    // Commands first: they are what a hand reaches for blindly.
    QList<QWidget*> comandi, campi;
    for (QWidget* w : finestra->findChildren<QWidget*>()) {
        if (!ha_caption(w)) continue;
        if (porta_da_qualche_parte(w)) {
            (w->inherits("QPushButton") ? comandi : campi) += w;
        } else {
            scrivi_caption(w, senza_mnemonico(w->property(kDidascalia).toString()));
        }
    }
    QString prese;
    for (const QList<QWidget*>& tutti : {comandi, campi}) {
        QList<QWidget*> senza;
        for (QWidget* w : tutti)
            if (!assegna(w, prese, true)) senza += w;
        for (QWidget* w : senza)
            if (!assegna(w, prese, false))
                scrivi_caption(w, senza_mnemonico(w->property(kDidascalia).toString()));
    }
}

}  // namespace ambra
