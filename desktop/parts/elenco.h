// What the windows of the list screens share: the range of names and the period at the top, the four
// commands at the bottom.
#pragma once

#include "desktop/parts/contesto.h"
#include "desktop/parts/griglia_vista.h"

namespace ambra {

/// The range of supplier names, `t_inizio` and `t_fine`, one over the other.
QFormLayout* filtro_nomi(Contesto& c);
/// The period, `text1(0)` and `text1(1)`, one over the other.
QFormLayout* filtro_periodo(Contesto& c, const QString& dalla = QStringLiteral("Dalla data"),
                            const QString& alla = QStringLiteral("Alla data"));
/// Groups of filters side by side, each as wide as it needs, the last before the room that is left.
QHBoxLayout* filtri(Contesto& c, std::initializer_list<Parte> gruppi);
/// The list, as high as a page of it, with its sort labels if it has any.
VistaGriglia* elenco_con(Contesto& c, std::string_view etichette, const QString& accessibile);
/// "Imposta", "Aggiorna lista", "Stampa"; "Fine" at the right. F5 and Ctrl+P.
QLayout* comandi_elenco(Contesto& c);
/// The whole page of a list that goes supplier by supplier.
QWidget* pagina_per_fornitore(Contesto& c, const QString& accessibile);

}  // namespace ambra
