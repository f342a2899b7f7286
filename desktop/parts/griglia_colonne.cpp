// The widths that a user gave the columns of a list, kept from one day to the next.
#include <QHeaderView>

#include "desktop/finestra.h"
#include "desktop/parts/griglia_vista.h"
#include "qt/ricordi.h"

namespace ambra {

QString VistaGriglia::nome_dei_ricordi() const {
    return QStringLiteral("colonne/%1.%2").arg(f_.objectName(), QString::fromStdString(g_.nome()));
}

void VistaGriglia::ricorda_colonne() const {
    QStringList larghe;
    const QHeaderView* testa = tabella_->horizontalHeader();
    for (int c = 0; c < testa->count(); ++c) larghe += QString::number(testa->sectionSize(c));
    ricordi().setValue(nome_dei_ricordi(), larghe);
}

// False if there are none, or they are of a list with other columns.
bool VistaGriglia::riprendi_colonne() {
    const QStringList larghe = ricordi().value(nome_dei_ricordi()).toStringList();
    if (larghe.size() != tabella_->horizontalHeader()->count()) return false;
    dell_utente_ = true;
    for (int c = 0; c < larghe.size(); ++c)
        if (!tabella_->isColumnHidden(c)) tabella_->setColumnWidth(c, larghe[c].toInt());
    tabella_->horizontalHeader()->setStretchLastSection(true);
    disponi_etichette();
    return true;
}

}  // namespace ambra
