// What a hand does to a row of the worklist, and what a row shows beside its texts.
#pragma once

namespace ambra {

class Contesto;
class Vexoraf;
class VistaGriglia;

/// Keys, context menu, the colour of what is overdue, the paper clip; the newest document in sight.
void lavora_sulle_righe(Contesto& c, Vexoraf& s, VistaGriglia& elenco);

}  // namespace ambra
