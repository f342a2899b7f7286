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

void RecordingPrinter::operazione(OperazioneStampa&& o) {
    pagina().operazioni.push_back(std::move(o));
}

double RecordingPrinter::altezza_riga() {
    return kAltezzaRiga * font.punti * kTwipPerPunto;
}

double RecordingPrinter::text_width(std::string_view testo) {
    return static_cast<double>(larghezza_millesimi(testo, font.grassetto)) * font.punti * 20 / 1000 /
           twip_per_unita();
}

void RecordingPrinter::rich_text(const rtf::Documento& documento) {
    OperazioneStampa o;
    o.tipo = OperazioneStampa::Tipo::testo_ricco;
    o.unita = scale_mode();
    o.stile = draw_style;
    o.spessore = draw_width;
    o.testo = rtf::testo_piano(documento);
    o.documento = std::make_shared<const rtf::Documento>(documento);
    operazione(std::move(o));
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

void RecordingPrinter::begin_run() {
    if (tornata) tornata(true);
}

void RecordingPrinter::end_run() {
    if (tornata) tornata(false);
}

}  // namespace ambra
