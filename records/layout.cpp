#include "records/layout.h"

#include <cmath>
#include <vector>

#include "core/filetesto.h"
#include "core/impostazioni.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr std::string CampoLayout::*kRighe[] = {&CampoLayout::posizione, &CampoLayout::corpo,
                                                &CampoLayout::carattere, &CampoLayout::grassetto,
                                                &CampoLayout::corsivo,   &CampoLayout::colore};

}  // namespace

std::string_view CampoLayout::orizzontale() const {
    return sinistra(posizione, 3);
}
std::string_view CampoLayout::verticale() const {
    return destra(posizione, 3);
}
double CampoLayout::x_mm() const {
    return std::floor(leggi_numero(orizzontale()));
}
double CampoLayout::y_mm() const {
    return std::floor(leggi_numero(verticale()));
}

long CampoLayout::rgb() const {
    return leggi_rgb(colore);
}

long leggi_rgb(std::string_view s) {
    const double n = leggi_numero(s);
    return n > 0 && n <= 0xFFFFFF ? static_cast<long>(n) : 0;
}

std::string file_ministeriale() {
    return kCartella + "lummmi.lay";
}

bool carica_layout(Disco& disco, Errore& err, std::string_view percorso, const CampoLayout& difetto,
                   Layout& layout) {
    LettoreTesto f(err);
    bool bene = f.apri(disco, percorso);
    for (std::size_t i = 1; bene && i <= kCampiLayout; ++i)
        for (const auto riga : kRighe) bene = bene && f.riga(layout.campo[i].*riga);
    if (!bene) layout.campo.fill(difetto);
    return bene;
}

bool salva_layout(Disco& disco, Errore& err, std::string_view percorso, const Layout& layout) {
    std::vector<std::string> righe;
    righe.reserve(kCampiLayout * std::size(kRighe));
    for (std::size_t i = 1; i <= kCampiLayout; ++i)
        for (const auto riga : kRighe) righe.push_back(layout.campo[i].*riga);
    return scrivi_righe(disco, err, percorso, righe);
}

}  // namespace ambra
