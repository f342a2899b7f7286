#include "print/registratore.h"

#include <utility>

#include "print/metriche.h"
#include "print/rtf.h"

namespace ambra {

namespace {
constexpr double kLatoCorto = 11906, kLatoLungo = 16838;
}

double RecordingPrinter::width() const {
    return orientation() == Orientamento::verticale ? kLatoCorto : kLatoLungo;
}

double RecordingPrinter::height() const {
    return orientation() == Orientamento::verticale ? kLatoLungo : kLatoCorto;
}

PaginaStampa& RecordingPrinter::pagina() {
    if (!in_pagina_) {
        if (lavoro_.pagine.empty()) lavoro_.orientamento = orientation();
        lavoro_.pagine.push_back({width(), height(), {}});
        in_pagina_ = true;
    }
    return lavoro_.pagine.back();
}

OperazioneStampa& RecordingPrinter::aggiungi(OperazioneStampa::Tipo t, double x1, double y1, double x2,
                                             double y2, long colore) {
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
    auto& ops = pagina().operazioni;
    ops.push_back(std::move(o));
    return ops.back();
}

double RecordingPrinter::text_width(std::string_view testo) {
    return static_cast<double>(larghezza_millesimi(testo, font.grassetto)) * font.punti * 20 / 1000 /
           twip_per_unita();
}

void RecordingPrinter::print(std::string_view testo) {
    if (!testo.empty()) {
        auto& o = aggiungi(OperazioneStampa::Tipo::testo, current_x, current_y, 0, 0, fore_color);
        o.testo = std::string(testo);
        o.font = font;
    }
    current_x = 0;
    current_y += kAltezzaRiga * font.punti * 20 / twip_per_unita();
}

void RecordingPrinter::line(double x1, double y1, double x2, double y2, long colore) {
    aggiungi(OperazioneStampa::Tipo::linea, x1, y1, x2, y2, colore);
}

void RecordingPrinter::box(double x1, double y1, double x2, double y2, long colore) {
    aggiungi(OperazioneStampa::Tipo::riquadro, x1, y1, x2, y2, colore);
}

void RecordingPrinter::filled_box(double x1, double y1, double x2, double y2, long colore) {
    aggiungi(OperazioneStampa::Tipo::pieno, x1, y1, x2, y2, colore);
}

void RecordingPrinter::rich_text(const rtf::Documento& documento) {
    auto& o = aggiungi(OperazioneStampa::Tipo::testo_ricco, 0, 0, 0, 0, 0);
    o.testo = rtf::testo_piano(documento);
    o.documento = std::make_shared<const rtf::Documento>(documento);
}

void RecordingPrinter::new_page() {
    pagina();
    in_pagina_ = false;
    current_x = current_y = 0;
}

void RecordingPrinter::end_doc() {
    if (in_pagina_ && lavoro_.pagine.back().operazioni.empty()) lavoro_.pagine.pop_back();
    in_pagina_ = false;
    current_x = current_y = 0;
    LavoroStampa fatto = std::exchange(lavoro_, {});
    fatto.titolo = std::exchange(document_title, {});
    if (!fatto.pagine.empty() && finito) finito(std::move(fatto));
}

}  // namespace ambra
