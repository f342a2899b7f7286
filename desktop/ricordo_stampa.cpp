#include "desktop/ricordo_stampa.h"

#include <QPrinterInfo>

#include "qt/ricordi.h"
#include "qt/stampante_qt.h"

namespace ambra {

namespace {
const QString kGruppo = QStringLiteral("stampa");
}

void ricorda_stampa(const StampanteQt& stampante) {
    QSettings m = ricordi();
    m.beginGroup(kGruppo);
    m.setValue("stampante", stampante.scelta.stampante);
    m.setValue("cartella", stampante.scelta.cartella_pdf);
    m.setValue("carta", int(stampante.scelta.carta.id()));
    m.setValue("anteprima", stampante.scelta.anteprima);
    m.setValue("orizzontale", stampante.orientation() == Orientamento::orizzontale);
}

void riprendi_stampa(StampanteQt& stampante) {
    QSettings m = ricordi();
    m.beginGroup(kGruppo);
    SceltaStampa& s = stampante.scelta;
    const QString nome = m.value("stampante").toString();
    if (!nome.isEmpty() && QPrinterInfo::availablePrinterNames().contains(nome)) s.stampante = nome;
    s.cartella_pdf = m.value("cartella").toString();
    const QPageSize carta(static_cast<QPageSize::PageSizeId>(m.value("carta", int(s.carta.id())).toInt()));
    if (carta.isValid()) s.carta = carta;
    s.anteprima = m.value("anteprima").toBool();
    if (m.value("orizzontale").toBool()) stampante.orientation(Orientamento::orizzontale);
}

}  // namespace ambra
