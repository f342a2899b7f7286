// The control words of tables, borders, the sheet and pictures.
#include <algorithm>

#include "print/rtf_parole.h"
#include "print/rtf_stato.h"

namespace ambra::rtf {

struct ParoleTabelle {
    using S = StatoLettura;

    // ---- tables ----

    static void righe(TavolaParole& t) {
        t["trowd"] = [](S& s, Numero) { s.nuova_riga(); };
        t["trleft"] = [](S& s, Numero n) { s.costruttore_.riga.riga.sinistra = twip(n); };
        t["trgaph"] = [](S& s, Numero n) { s.costruttore_.riga.riga.spazio = std::clamp(twip(n), 0, 2000); };
        t["trrh"] = [](S& s, Numero n) { s.costruttore_.riga.riga.altezza = std::abs(twip(n)); };
        t["trkeep"] = [](S& s, Numero n) { s.costruttore_.riga.riga.insieme = acceso(n); };
        t["trql"] = [](S& s, Numero) { s.costruttore_.riga.riga.verso = Verso::sinistra; };
        t["trqc"] = [](S& s, Numero) { s.costruttore_.riga.riga.verso = Verso::centro; };
        t["trqr"] = [](S& s, Numero) { s.costruttore_.riga.riga.verso = Verso::destra; };
        t["cellx"] = [](S& s, Numero n) { s.chiudi_definizione_cella(twip(n)); };
    }

    template <std::size_t I>
    static void spazio_cella(S& s, Numero n) {
        s.cella_.spazio[I] = std::clamp(twip(n), 0, 2000);
    }
    template <std::size_t I>
    static void spazio_riga(S& s, Numero n) {
        s.costruttore_.riga.spazio[I] = std::clamp(twip(n), 0, 2000);
    }

    static void spazi(TavolaParole& t) {
        t["trpaddt"] = spazio_riga<0>;
        t["trpaddl"] = spazio_riga<1>;
        t["trpaddb"] = spazio_riga<2>;
        t["trpaddr"] = spazio_riga<3>;
        // Of a single cell the words for top and left have always been exchanged.
        t["clpadl"] = spazio_cella<0>;
        t["clpadt"] = spazio_cella<1>;
        t["clpadb"] = spazio_cella<2>;
        t["clpadr"] = spazio_cella<3>;
    }

    template <Verso V>
    static void verticale(S& s, Numero) {
        s.cella_.verticale = V;
    }

    static void celle(TavolaParole& t) {
        t["clvmrg"] = [](S& s, Numero) { s.cella_.continua = true; };
        t["clmrg"] = [](S& s, Numero) { s.cella_fusa_ = true; };
        t["clvertalt"] = verticale<Verso::sinistra>;
        t["clvertalc"] = verticale<Verso::centro>;
        t["clvertalb"] = verticale<Verso::destra>;
        t["clcbpat"] = [](S& s, Numero n) {
            const auto& c = s.costruttore_.colori;
            const int k = n.value_or(0);
            if (k > 0 && k < static_cast<int>(c.size())) s.cella_.sfondo = c[static_cast<std::size_t>(k)];
        };
    }

    template <Bordo Cella::*B>
    static void bordo_cella(S& s, Numero) {
        s.cella_con_bordi_ = true;
        s.bordo_ = &(s.cella_.*B);
    }
    template <Bordo FormatoParagrafo::*B>
    static void bordo_paragrafo(S& s, Numero) {
        s.bordo_ = &(s.g().paragrafo.*B);
        s.riquadro_ = false;
    }
    template <std::size_t I>
    static void bordo_riga(S& s, Numero) {
        s.bordo_ = &s.costruttore_.riga.bordi[I];
    }
    // The border in hand was changed; that of a box has three others like it.
    static void bordo_cambiato(S& s) {
        FormatoParagrafo& p = s.g().paragrafo;
        if (s.riquadro_ && s.bordo_ == &p.bordo_sopra)
            p.bordo_sotto = p.bordo_sinistra = p.bordo_destra = p.bordo_sopra;
    }
    static void scrivi_bordo(S& s, int spessore) {
        if (!s.bordo_) return;
        s.bordo_->spessore = spessore;
        bordo_cambiato(s);
    }

    static void bordi(TavolaParole& t) {
        constexpr int kSottile = 10;
        t["clbrdrt"] = bordo_cella<&Cella::sopra>;
        t["clbrdrl"] = bordo_cella<&Cella::sinistra>;
        t["clbrdrb"] = bordo_cella<&Cella::sotto>;
        t["clbrdrr"] = bordo_cella<&Cella::bordo_destro>;
        t["trbrdrt"] = bordo_riga<0>;
        t["trbrdrl"] = bordo_riga<1>;
        t["trbrdrb"] = bordo_riga<2>;
        t["trbrdrr"] = bordo_riga<3>;
        t["trbrdrh"] = bordo_riga<4>;
        t["trbrdrv"] = bordo_riga<5>;
        t["brdrt"] = bordo_paragrafo<&FormatoParagrafo::bordo_sopra>;
        t["brdrb"] = bordo_paragrafo<&FormatoParagrafo::bordo_sotto>;
        t["brdrl"] = bordo_paragrafo<&FormatoParagrafo::bordo_sinistra>;
        t["brdrr"] = bordo_paragrafo<&FormatoParagrafo::bordo_destra>;
        t["box"] = [](S& s, Numero) {
            s.bordo_ = &s.g().paragrafo.bordo_sopra;
            s.riquadro_ = true;
        };
        for (const char* n : {"brdrbtw", "brdrbar", "chbrdr"})
            t[n] = [](S& s, Numero) { s.bordo_ = nullptr; };
        for (const char* n : {"brdrs", "brdrdot", "brdrdash", "brdrhair", "brdrdb", "brdrtriple", "brdrsh"})
            t[n] = [](S& s, Numero) { scrivi_bordo(s, kSottile); };
        t["brdrth"] = [](S& s, Numero) { scrivi_bordo(s, 2 * kSottile); };
        for (const char* n : {"brdrnone", "brdrnil"}) t[n] = [](S& s, Numero) { scrivi_bordo(s, 0); };
        t["brdrw"] = [](S& s, Numero n) {
            if (s.bordo_ && s.bordo_->spessore > 0) scrivi_bordo(s, std::clamp(n.value_or(0), 1, 255));
        };
        t["brsp"] = [](S& s, Numero n) {
            if (!s.bordo_) return;
            s.bordo_->spazio = std::clamp(n.value_or(0), 0, 620);
            bordo_cambiato(s);
        };
        t["brdrcf"] = [](S& s, Numero n) {
            const auto& c = s.costruttore_.colori;
            const int k = n.value_or(0);
            if (s.bordo_ && k > 0 && k < static_cast<int>(c.size()))
                s.bordo_->colore = std::max(0L, c[static_cast<std::size_t>(k)]);
            if (s.bordo_) bordo_cambiato(s);
        };
    }

    // ---- the sheet ----

    template <int Foglio::*M>
    static void foglio(S& s, Numero n) {
        if (s.sezione_ == 0 && n) s.foglio_.*M = std::max(0, twip(n));
    }

    static void fogli(TavolaParole& t) {
        for (const char* n : {"paperw", "pgwsxn"}) t[n] = foglio<&Foglio::larghezza>;
        for (const char* n : {"paperh", "pghsxn"}) t[n] = foglio<&Foglio::altezza>;
        for (const char* n : {"margl", "marglsxn"}) t[n] = foglio<&Foglio::sinistra>;
        for (const char* n : {"margr", "margrsxn"}) t[n] = foglio<&Foglio::destra>;
        for (const char* n : {"margt", "margtsxn"}) t[n] = foglio<&Foglio::sopra>;
        for (const char* n : {"margb", "margbsxn"}) t[n] = foglio<&Foglio::sotto>;
        t["headery"] = foglio<&Foglio::testata>;
        t["footery"] = foglio<&Foglio::piede>;
        t["titlepg"] = [](S& s, Numero n) {
            if (s.sezione_ == 0) s.foglio_.prima_diversa = acceso(n);
        };
    }

    // ---- pictures ----

    template <int ImmagineInArrivo::*M>
    static void misura_immagine(S& s, Numero n) {
        s.immagine_.*M = std::max(0, twip(n));
    }

    static void immagini(TavolaParole& t) {
        t["picwgoal"] = misura_immagine<&ImmagineInArrivo::larga>;
        t["pichgoal"] = misura_immagine<&ImmagineInArrivo::alta>;
        t["picscalex"] = misura_immagine<&ImmagineInArrivo::scala_x>;
        t["picscaley"] = misura_immagine<&ImmagineInArrivo::scala_y>;
        for (const char* n : {"blipuid", "blipupi"}) t[n] = [](S& s, Numero) { s.entra(Dove::salta); };
    }
};

void parole_di_tabelle(TavolaParole& t) {
    for (auto f : {&ParoleTabelle::righe, &ParoleTabelle::celle, &ParoleTabelle::spazi, &ParoleTabelle::bordi,
                   &ParoleTabelle::fogli, &ParoleTabelle::immagini})
        f(t);
}

}  // namespace ambra::rtf
