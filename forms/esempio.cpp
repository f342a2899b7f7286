#include "forms/esempio.h"

#include "core/numeri.h"
#include "forms/moduli.h"
#include "forms/mrvlay.h"
#include "print/lavoro.h"

namespace ambra {

namespace {

// What keeps the pen going when the printer does not.
template <class F>
void passando(F f) {
    try {
        f();
    } catch (const PrinterFault&) {
        // the sheet lacks this one
    }
}

void scrivi(Printer& p, double x_mm, double y_mm, std::string_view testo) {
    p.current_x = x_mm;
    p.current_y = y_mm;
    p.print(testo);
}

void cornice(Printer& p, double x_mm, double y_mm, double larga_mm, double alta_mm, std::string_view titolo) {
    p.box(x_mm, y_mm, x_mm + larga_mm, y_mm + alta_mm, 0);
    scrivi(p, x_mm + 1, y_mm + 0.5, titolo);
}

// The blank form of kinds 1, 2 and 4, laid out around their automatic positions.
void modulo(Printer& p, int tipo) {
    p.font = {"arial", 12, true, false};
    scrivi(p, 86, 6,
           tipo == kAvviso     ? "Avviso di pagamento"
           : tipo == kRicevuta ? "Ricevuta di versamento"
                               : "Sollecito di pagamento");
    p.font = {"arial", 7, false, false};
    cornice(p, 160, 3, 45, 11, "Data");
    cornice(p, 84, 21, 121, 24, "Egr.Sig./Spett.");
    cornice(p, 4, 47, 201, 10, "Condominio");
    if (tipo == kRicevuta) {
        cornice(p, 4, 58, 201, 18, "Causale");
        cornice(p, 160, 77, 45, 12, "Importo");
        cornice(p, 4, 92, 201, 32, "Note");
    } else {
        cornice(p, 4, 58, 201, 9, "Banca");
        cornice(p, 4, 68, 201, 18, "Rata");
        cornice(p, 4, 86, 201, 17, "Conguaglio");
        cornice(p, 4, 103, 201, 20, "Totale");
        cornice(p, 4, 123, 201, 9, "Scadenza");
    }
    p.font = {"arial", 5, false, false};
    scrivi(p, 4, 140, "Lumeria per Windows - Norvel");
}

}  // namespace

void stampa_esempio(Printer& p, int tipo, bool modulo_bianco, const std::vector<VoceEsempio>& voci) {
    const Lavoro lavoro(p);
    p.document_title = "Stampa esempio";
    p.scale_mode(Scala::millimetri);
    p.font = {"arial", 9, false, false};
    p.fore_color = 0;
    if (modulo_bianco) passando([&] { modulo(p, tipo); });
    for (const VoceEsempio& v : voci) {
        if (leggi_numero(v.campo->posizione) == 0) continue;
        const double punti_prima = p.font.punti;
        p.font = carattere_di(*v.campo);
        // A size that is no size leaves the one before.
        if (p.font.punti <= 0) p.font.punti = punti_prima;
        passando([&] { scrivi(p, v.campo->x_mm(), v.campo->y_mm(), v.nome); });
    }
}

}  // namespace ambra
