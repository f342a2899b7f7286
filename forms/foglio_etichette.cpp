#include "forms/foglio_etichette.h"

#include <cmath>

#include "core/errori.h"
#include "core/numeri.h"

namespace ambra {

GeometriaFoglio geometria(const Etic& e) {
    Errore troppo;
    GeometriaFoglio g;
    g.x0 = e.numero(Etic::kFoglio, 3);
    g.x1 = e.numero(Etic::kFoglio, 1) - e.numero(Etic::kFoglio, 4);
    g.y0 = e.numero(Etic::kFoglio, 5);
    g.y1 = e.numero(Etic::kFoglio, 2) - e.numero(Etic::kFoglio, 6);
    g.colonne = leggi_intero(e(Etic::kDisposizione, 1), troppo);
    g.righe = leggi_intero(e(Etic::kDisposizione, 2), troppo);
    if (g.colonne != 0) g.larghezza = (g.x1 - g.x0) / g.colonne;
    if (g.righe != 0) g.altezza = (g.y1 - g.y0) / g.righe;
    return g;
}

Etic etichette_di_stampa() {
    Etic e = etichette_in_bianco();
    for (const int riga : {1, 3, 5}) {
        e(riga, Etic::kX) = "5";
        e(riga, Etic::kY) = riga == 1 ? "10" : riga == 3 ? "20" : "25";
    }
    return e;
}

std::string testo_libero(const Etic& e, int riga) {
    return riga >= 6 && riga <= 10 ? e(Etic::kTestiFissi, riga - 5) : "";
}

FoglioEtichette::FoglioEtichette(Printer& p, const Etic& e, bool tagli)
    : p_(p), e_(e), g_(geometria(e)), tagli_(tagli) {
    p_.scale_mode(Scala::millimetri);
}

// To the next place; true when that is on another sheet.
bool FoglioEtichette::avanti() {
    if (++c_ <= g_.colonne) return false;
    c_ = 1;
    if (++r_ <= g_.righe) return false;
    r_ = 1;
    return true;
}

void FoglioEtichette::salta_fino_a(int prima_etichetta) {
    for (int i = 1; i < prima_etichetta; ++i) avanti();
}

void FoglioEtichette::etichetta(const std::function<std::string(int)>& testo_di) {
    if (avanti()) {
        linee_di_taglio();
        p_.new_page();
    }
    for (int riga = 1; riga <= kCampiStampati; ++riga) {
        const double x = e_.numero(riga, Etic::kX), y = e_.numero(riga, Etic::kY);
        if (!(x > 0 && y > 0)) continue;
        p_.current_x = g_.x0 + x + std::floor(g_.larghezza * (c_ - 1));
        p_.current_y = g_.y0 + y + std::floor(g_.altezza * (r_ - 1));
        // A font that cannot be set leaves the one before.
        const Carattere voluto = e_.carattere(riga);
        if (!voluto.nome.empty()) p_.font.nome = voluto.nome;
        if (voluto.punti > 0) p_.font.punti = voluto.punti;
        p_.font.grassetto = voluto.grassetto;
        p_.font.corsivo = voluto.corsivo;
        p_.fore_color = e_.colore(riga);
        p_.print(testo_di(riga));
    }
}

void FoglioEtichette::linee_di_taglio() {
    if (!tagli_) return;
    p_.draw_style = 0;
    for (int i = 0; i <= g_.colonne; ++i) {
        const double x = g_.x0 + i * g_.larghezza;
        p_.line(x, g_.y0, x, g_.y1, 0);
    }
    for (int i = 0; i <= g_.righe; ++i) {
        const double y = g_.y0 + i * g_.altezza;
        p_.line(g_.x0, y, g_.x1, y, 0);
    }
}

void FoglioEtichette::fine() {
    linee_di_taglio();
    p_.end_doc();
    p_.scale_mode(Scala::twip);
}

}  // namespace ambra
