// Texts between the program (Windows-1252) and the windows (Unicode).
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "core/testo.h"

namespace ambra {

inline QString qs(std::string_view testo) {
    return QString::fromStdString(a_utf8(testo));
}
inline std::string da_qs(const QString& testo) {
    return da_utf8(testo.toStdString());
}
/// A caption as Qt wants it: an ampersand of the text is no mnemonic.
inline QString senza_mnemonico(QString testo) {
    return testo.replace('&', "&&");
}

}  // namespace ambra
