// What a hand writes, as the program reads it: Italian amounts and numbers with the decimal point, dates
// as dd/mm/yyyy. Texts in, texts out.
#pragma once

#include <QString>

namespace ambra {

/// How the figures of a field are meant.
enum class Cifre {
    testo,   ///< not figures: the text stands
    numero,  ///< millimetres, percentages: a comma is a decimal point
    importo  ///< euro: besides, points may stand between the thousands
};

/// The text of a field while it is being written. "1.000,50" and "1000,50" become "1000.50"; a comma after
/// the decimal point is dropped, or the cents would turn into thousands.
QString cifre_scritte(const QString& testo, Cifre c);
/// The same once the field is left: "1.000", which cannot be an amount with cents, becomes "1000".
QString cifre_finite(const QString& testo, Cifre c);
/// A date once its field is left: "05032026", "050326", "5/3/26", "5.3.2026" become "05/03/2026"; years of
/// two figures are 1980 to 2079. What is no date stands as it is.
QString data_finita(const QString& testo);
/// True if there are figures in it and they are no date.
bool data_sbagliata(const QString& testo);

}  // namespace ambra
