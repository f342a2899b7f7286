#include "print/operazioni.h"

#include <utility>

namespace ambra {

OperazioneStampa StampanteAOperazioni::nuova(OperazioneStampa::Tipo t, double x1, double y1, double x2,
                                             double y2, long colore) const {
    OperazioneStampa o;
    o.tipo = t;
    o.unita = scale_mode();
    o.x1 = x1;
    o.y1 = y1;
    o.x2 = x2;
    o.y2 = y2;
    o.colore = colore;
    o.stile = draw_style;
    o.spessore = draw_width;
    return o;
}

void StampanteAOperazioni::scrivi(std::string_view testo) {
    OperazioneStampa o = nuova(OperazioneStampa::Tipo::testo, current_x, current_y, 0, 0, fore_color);
    o.testo = std::string(testo);
    o.font = font;
    operazione(std::move(o));
}

void StampanteAOperazioni::print(std::string_view testo) {
    if (!testo.empty()) scrivi(testo);
    current_x = 0;
    current_y += altezza_riga() / twip_per_unita();
}

void StampanteAOperazioni::line(double x1, double y1, double x2, double y2, long colore) {
    operazione(nuova(OperazioneStampa::Tipo::linea, x1, y1, x2, y2, colore));
}

void StampanteAOperazioni::box(double x1, double y1, double x2, double y2, long colore) {
    operazione(nuova(OperazioneStampa::Tipo::riquadro, x1, y1, x2, y2, colore));
}

void StampanteAOperazioni::filled_box(double x1, double y1, double x2, double y2, long colore) {
    operazione(nuova(OperazioneStampa::Tipo::pieno, x1, y1, x2, y2, colore));
}

}  // namespace ambra
