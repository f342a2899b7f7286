// What all windows share: style, translations, locale.
#pragma once

class QApplication;

namespace ambra {

void prepara_aspetto(QApplication& app);

}  // namespace ambra
