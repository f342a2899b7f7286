// The letters of a run are drawn into one PDF, as the window library works out a face anew for each file and
// that is most of a letter's time; here that PDF becomes one for each letter.
#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

namespace ambra {

/// A letter: so many pages of the whole, in its order.
struct LetteraPdf {
    QString titolo;
    int pagine = 0;
};

/// The files, one a letter, each with what its pages need. Empty when the whole is not as the window library
/// writes it, or has other pages than the letters.
std::vector<QByteArray> dividi_pdf(const QByteArray& tutto, const std::vector<LetteraPdf>& lettere);

}  // namespace ambra
