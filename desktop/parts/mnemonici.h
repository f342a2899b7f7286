// Captions and the letters that Alt reaches them by.
#pragma once

#include <QString>
#include <QWidget>

namespace ambra {

/// The property under which a widget keeps its caption without a mnemonic.
inline constexpr const char* kDidascalia = "didascalia";
/// Sets the caption of a label, a button or a box, mnemonic to follow.
void didascalia(QWidget* w, const QString& testo);
/// Gives every caption of a window that leads somewhere now a letter of its own, commands first; who had one
/// keeps it. What is hidden or out of use has none.
void assegna_mnemonici(QWidget* finestra);

}  // namespace ambra
