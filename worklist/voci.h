// What the worklist knows of a document beside the texts of its row.
#pragma once

#include <string_view>

#include "records/fattura.h"

namespace ambra {

/// Amounts bear the sign of the document.
struct VoceElenco {
    double totale = 0;
    double scoperto = 0;  ///< instalments not paid
    double scaduto = 0;   ///< those of them that fell due before the day the list was made
    bool eliminata = false;
    bool pdf = false;  ///< a PDF is linked
};

/// `oggi` is yyyymmdd. An instalment due on the day is not overdue, one without a date never is.
VoceElenco voce_di(const RecFattura& f, std::string_view oggi);

}  // namespace ambra
