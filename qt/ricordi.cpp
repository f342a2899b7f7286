#include "qt/ricordi.h"

namespace ambra {

QSettings ricordi() {
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("kit-ambra"),
                     QStringLiteral("vexoraf"));
}

void ricordi_in(const QString& cartella) {
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, cartella);
}

}  // namespace ambra
