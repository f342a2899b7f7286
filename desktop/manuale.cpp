#include "desktop/manuale.h"

#include <QFile>
#include <QPointer>

#include "qt/accanto.h"

namespace ambra {

namespace {

struct Voce {
    const char* schermo;
    const char* capitolo;
};
constexpr Voce kVoci[] = {
    {"vexoraf", "La finestra principale"},
    {"lumfor", "Fornitori"},
    {"lumftem", "Registrare una fattura"},
    {"lumftea", "Registrare una fattura"},
    {"lumincx", "Registrare una fattura"},
    {"mrvsel", "Registrare una fattura"},
    {"luminca", "Pagare"},
    {"lumpgr", "Ritenute d'acconto"},
    {"lumcer", "Ritenute d'acconto"},
    {"lumstca", "Ritenute d'acconto"},
    {"lumstcr", "Ritenute d'acconto"},
    {"mrvcal", "Scadenze delle ritenute"},
    {"mrvcau", "Scadenze delle ritenute"},
    {"mrvanz", "Scoperto per anzianità"},
    {"lumstct", "Stampe"},
    {"lumstcs", "Stampe"},
    {"lumstcf", "Stampe"},
    {"lumstcd", "Stampe"},
    {"lumstcy", "Stampe"},
    {"lumstcx", "Stampe"},
    {"lumstce", "Stampe"},
    {"mrvtiva", "Tabelle"},
    {"mrvtpag", "Tabelle"},
    {"mrvlay", "Tabelle"},
    {"mrvteti", "Tabelle"},
    {"mrvaazz", "Archivi"},
    {"mrvaind", "Archivi"},
};

}  // namespace

QString capitolo_di(const std::string& schermo) {
    for (const Voce& v : kVoci)
        if (schermo == v.schermo) return QString::fromUtf8(v.capitolo);
    return QString::fromUtf8(kVoci[0].capitolo);
}

Manuale* apri_manuale(const std::string& schermo) {
    static QPointer<Manuale> aperto;
    if (!QFile::exists(QStringLiteral(":/manuale.md"))) return nullptr;
    if (!aperto) {
        aperto = new Manuale;
        aperto->setAttribute(Qt::WA_DeleteOnClose);
    }
    if (!aperto->isVisible()) metti_accanto(*aperto);
    aperto->show();
    aperto->raise();
    aperto->activateWindow();
    aperto->vai_al_capitolo(capitolo_di(schermo));
    return aperto;
}

}  // namespace ambra
