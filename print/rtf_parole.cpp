// The control words of rich text that the reader understands, each with what it does.
#include <algorithm>
#include <unordered_map>

#include "print/rtf_codici.h"
#include "print/rtf_stato.h"

namespace ambra::rtf {

namespace {

constexpr int kTwipMassimi = 100000;

int twip(std::optional<int> n, int altrimenti = 0) {
    return std::clamp(n.value_or(altrimenti), -kTwipMassimi, kTwipMassimi);
}

bool acceso(std::optional<int> n) {
    return n.value_or(1) != 0;
}

}  // namespace

using Numero = std::optional<int>;

/// The actions, by the folder of the language they belong to.
struct Parole {
    using S = StatoLettura;
    using Azione = void (*)(S&, Numero);
    using Tavola = std::unordered_map<std::string_view, Azione>;

    static const Tavola& tavola() {
        static const Tavola kTutte = [] {
            Tavola t;
            for (auto f : {&destinazioni, &caratteri, &simboli, &paragrafi, &tabulazioni, &righe, &celle,
                           &bordi, &fogli, &tabelle_del_file, &immagini})
                f(t);
            return t;
        }();
        return kTutte;
    }

    // ---- destinations ----

    static void destinazioni(Tavola& t) {
        for (const char* n : {"stylesheet",
                              "info",
                              "listtable",
                              "listoverridetable",
                              "revtbl",
                              "rsidtbl",
                              "generator",
                              "footnote",
                              "annotation",
                              "pnseclvl",
                              "filetbl",
                              "template",
                              "xmlnstbl",
                              "themedata",
                              "colorschememapping",
                              "latentstyles",
                              "datastore",
                              "nonshppict",
                              "nonesttables",
                              "shprslt",
                              "background",
                              "tc",
                              "xe",
                              "rxe",
                              "ftnsep",
                              "ftnsepc",
                              "aftnsep",
                              "aftnsepc",
                              "fontemb",
                              "fontfile",
                              "falt",
                              "panose",
                              "objdata",
                              "objclass",
                              "comment",
                              "private",
                              "bkmkstart",
                              "bkmkend",
                              "pntxta",
                              "pntxtb",
                              "do",
                              "ud"})
            t[n] = [](S& s, Numero) { s.entra(Dove::salta); };
        t["fonttbl"] = [](S& s, Numero) { s.entra(Dove::facce); };
        t["colortbl"] = [](S& s, Numero) { s.entra(Dove::colori); };
        t["fldinst"] = [](S& s, Numero) { s.entra(Dove::istruzione_campo); };
        t["field"] = [](S& s, Numero) { s.g().campo = Campo::nessuno; };
        t["fldrslt"] = [](S& s, Numero) { s.g().carattere.campo = s.g().campo; };
        t["pict"] = [](S& s, Numero) {
            s.entra(Dove::immagine);
            s.immagine_ = {};
        };
        for (const char* n : {"shppict", "listtext", "pntext", "shp", "shpgrp", "object", "result"})
            t[n] = [](S&, Numero) {};
        // A drawing shows its texts and pictures and nothing else.
        for (const char* n : {"shpinst", "sn", "sv", "picprop", "sp"})
            t[n] = [](S& s, Numero) { s.entra(Dove::muta); };
        t["shptxt"] = [](S& s, Numero) { s.entra(Dove::testo); };
        for (const char* n : {"header", "headerr", "headerl"})
            t[n] = [](S& s, Numero) { s.entra_parte(TipoParte::testata); };
        for (const char* n : {"footer", "footerr", "footerl"})
            t[n] = [](S& s, Numero) { s.entra_parte(TipoParte::piede); };
        t["headerf"] = [](S& s, Numero) { s.entra_parte(TipoParte::testata_prima); };
        t["footerf"] = [](S& s, Numero) { s.entra_parte(TipoParte::piede_prima); };
    }

    // ---- characters ----

    static void caratteri(Tavola& t) {
        t["plain"] = [](S& s, Numero) {
            const Campo campo = s.g().carattere.campo;
            s.g().carattere = {};
            s.g().carattere.font = s.predefinita_;
            s.g().carattere.campo = campo;
        };
        t["b"] = [](S& s, Numero n) { s.g().carattere.grassetto = acceso(n); };
        t["i"] = [](S& s, Numero n) { s.g().carattere.corsivo = acceso(n); };
        for (const char* n : {"ul", "uld", "uldb", "ulw", "uldash", "uldashd", "uldashdd", "ulth", "ulwave"})
            t[n] = [](S& s, Numero v) { s.g().carattere.sottolineato = acceso(v); };
        t["ulnone"] = [](S& s, Numero) { s.g().carattere.sottolineato = false; };
        for (const char* n : {"strike", "striked"})
            t[n] = [](S& s, Numero v) { s.g().carattere.barrato = acceso(v); };
        t["caps"] = [](S& s, Numero n) { s.g().carattere.maiuscole = acceso(n); };
        t["scaps"] = [](S& s, Numero n) { s.g().carattere.maiuscoletto = acceso(n); };
        t["v"] = [](S& s, Numero n) { s.g().carattere.nascosto = acceso(n); };
        t["super"] = [](S& s, Numero n) { s.g().carattere.rialzo = acceso(n) ? 1 : 0; };
        t["sub"] = [](S& s, Numero n) { s.g().carattere.rialzo = acceso(n) ? -1 : 0; };
        t["nosupersub"] = [](S& s, Numero) { s.g().carattere.rialzo = 0; };
        t["fs"] = [](S& s, Numero n) { s.g().carattere.mezzi_punti = std::clamp(n.value_or(24), 2, 800); };
        t["cf"] = [](S& s, Numero n) { s.g().carattere.colore = n.value_or(0); };
        for (const char* n : {"cb", "highlight", "chcbpat"})
            t[n] = [](S& s, Numero v) { s.g().carattere.sfondo = v.value_or(0); };
        t["uc"] = [](S& s, Numero n) { s.g().salta_dopo_unicode = std::clamp(n.value_or(1), 0, 100); };
        t["u"] = [](S& s, Numero n) { s.unicode(n.value_or(0)); };
        t["f"] = [](S& s, Numero n) {
            if (s.g().dove == Dove::facce) {
                s.nome_faccia(";");
                s.faccia_ = n.value_or(0);
            } else {
                s.g().carattere.font = n.value_or(0);
                s.primo_di_due_ = false;
            }
        };
    }

    template <char C>
    static void scrivi(S& s, Numero) {
        s.emetti(C);
    }

    static void simboli(Tavola& t) {
        t["tab"] = scrivi<'\t'>;
        t["line"] = scrivi<kACapo>;
        t["lquote"] = scrivi<'\x91'>;
        t["rquote"] = scrivi<'\x92'>;
        t["ldblquote"] = scrivi<'\x93'>;
        t["rdblquote"] = scrivi<'\x94'>;
        t["bullet"] = scrivi<kPallino>;
        t["endash"] = scrivi<'\x96'>;
        t["emdash"] = scrivi<'\x97'>;
        for (const char* n : {"enspace", "emspace", "qmspace"}) t[n] = scrivi<' '>;
        t["nestcell"] = scrivi<'\t'>;
        t["nestrow"] = scrivi<kACapo>;
        t["chpgn"] = [](S& s, Numero) {
            StatoCarattere f = s.g().carattere;
            f.campo = Campo::pagina;
            if (s.g().dove == Dove::testo) s.costruttore_.carattere('1', f);
        };
        t["par"] = [](S& s, Numero) {
            if (s.g().dove == Dove::testo)
                s.costruttore_.fine_paragrafo(s.g().paragrafo, s.g().carattere, s.g().in_tabella);
        };
        t["cell"] = [](S& s, Numero) {
            if (s.g().dove == Dove::testo) s.costruttore_.fine_cella(s.g().paragrafo, s.g().carattere);
        };
        t["row"] = [](S& s, Numero) {
            if (s.g().dove == Dove::testo) s.costruttore_.fine_riga();
        };
        t["page"] = [](S& s, Numero) {
            if (s.g().dove == Dove::testo && !s.costruttore_.celle_aperte())
                s.costruttore_.salto_pagina(s.g().paragrafo, s.g().carattere);
        };
        t["sect"] = [](S& s, Numero) {
            ++s.sezione_;
            if (s.g().dove == Dove::testo) s.costruttore_.salto_pagina(s.g().paragrafo, s.g().carattere);
        };
    }

    // ---- paragraphs ----

    template <Verso V>
    static void verso(S& s, Numero) {
        s.g().paragrafo.verso = V;
    }
    template <int FormatoParagrafo::*M>
    static void misura(S& s, Numero n) {
        s.g().paragrafo.*M = twip(n);
    }

    static void paragrafi(Tavola& t) {
        t["pard"] = [](S& s, Numero) {
            s.g().paragrafo = {};
            s.g().in_tabella = false;
        };
        t["ql"] = verso<Verso::sinistra>;
        t["qc"] = verso<Verso::centro>;
        t["qr"] = verso<Verso::destra>;
        t["qj"] = verso<Verso::giustificato>;
        for (const char* n : {"li", "lin"}) t[n] = misura<&FormatoParagrafo::sinistra>;
        for (const char* n : {"ri", "rin"}) t[n] = misura<&FormatoParagrafo::destra>;
        t["fi"] = misura<&FormatoParagrafo::prima_riga>;
        t["sb"] = misura<&FormatoParagrafo::sopra>;
        t["sa"] = misura<&FormatoParagrafo::sotto>;
        t["pagebb"] = [](S& s, Numero n) { s.g().paragrafo.salto_prima = acceso(n); };
        t["intbl"] = [](S& s, Numero n) { s.g().in_tabella = acceso(n); };
        t["itap"] = [](S& s, Numero n) { s.g().in_tabella = n.value_or(1) > 0; };
        t["sl"] = [](S& s, Numero n) {
            s.g().paragrafo.interlinea = twip(n);
            s.g().paragrafo.interlinea_multipla = 0;
        };
        t["slmult"] = [](S& s, Numero n) {
            FormatoParagrafo& p = s.g().paragrafo;
            if (n.value_or(1) != 1 || p.interlinea == 0) return;
            p.interlinea_multipla = std::clamp(std::abs(p.interlinea) / 240.0, 0.1, 20.0);
            p.interlinea = 0;
        };
    }

    template <Verso V, bool Decimale = false>
    static void tipo_tabulazione(S& s, Numero) {
        s.tabulazione_.verso = V;
        s.tabulazione_.decimale = Decimale;
    }

    static void tabulazioni(Tavola& t) {
        t["tqr"] = tipo_tabulazione<Verso::destra>;
        t["tqc"] = tipo_tabulazione<Verso::centro>;
        t["tqdec"] = tipo_tabulazione<Verso::destra, true>;
        for (const char* n : {"tx", "tb"})
            t[n] = [](S& s, Numero v) {
                constexpr std::size_t kMassime = 64;
                s.tabulazione_.posto = twip(v);
                auto& tutte = s.g().paragrafo.tabulazioni;
                if (tutte.size() < kMassime) tutte.push_back(s.tabulazione_);
                s.tabulazione_ = {};
            };
        t["deftab"] = [](S& s, Numero n) { s.passo_ = std::clamp(n.value_or(720), 20, 20000); };
    }

    // ---- tables ----

    static void righe(Tavola& t) {
        t["trowd"] = [](S& s, Numero) { s.nuova_riga(); };
        t["trleft"] = [](S& s, Numero n) { s.costruttore_.riga.riga.sinistra = twip(n); };
        t["trgaph"] = [](S& s, Numero n) { s.costruttore_.riga.riga.spazio = std::clamp(twip(n), 0, 2000); };
        t["trrh"] = [](S& s, Numero n) { s.costruttore_.riga.riga.altezza = std::abs(twip(n)); };
        t["trql"] = [](S& s, Numero) { s.costruttore_.riga.riga.verso = Verso::sinistra; };
        t["trqc"] = [](S& s, Numero) { s.costruttore_.riga.riga.verso = Verso::centro; };
        t["trqr"] = [](S& s, Numero) { s.costruttore_.riga.riga.verso = Verso::destra; };
        t["cellx"] = [](S& s, Numero n) { s.chiudi_definizione_cella(twip(n)); };
    }

    template <Verso V>
    static void verticale(S& s, Numero) {
        s.cella_.verticale = V;
    }

    static void celle(Tavola& t) {
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
    }
    template <std::size_t I>
    static void bordo_riga(S& s, Numero) {
        s.bordo_ = &s.costruttore_.riga.bordi[I];
    }
    static void scrivi_bordo(S& s, int spessore) {
        if (s.bordo_) s.bordo_->spessore = spessore;
    }

    static void bordi(Tavola& t) {
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
        // Of the frame of a paragraph only the lines above and below are drawn.
        t["brdrt"] = bordo_paragrafo<&FormatoParagrafo::bordo_sopra>;
        t["brdrb"] = bordo_paragrafo<&FormatoParagrafo::bordo_sotto>;
        for (const char* n : {"brdrl", "brdrr", "brdrbtw", "brdrbar", "box", "chbrdr"})
            t[n] = [](S& s, Numero) { s.bordo_ = nullptr; };
        for (const char* n : {"brdrs", "brdrdot", "brdrdash", "brdrhair", "brdrdb", "brdrtriple", "brdrsh"})
            t[n] = [](S& s, Numero) { scrivi_bordo(s, kSottile); };
        t["brdrth"] = [](S& s, Numero) { scrivi_bordo(s, 2 * kSottile); };
        for (const char* n : {"brdrnone", "brdrnil"}) t[n] = [](S& s, Numero) { scrivi_bordo(s, 0); };
        t["brdrw"] = [](S& s, Numero n) {
            if (s.bordo_ && s.bordo_->spessore > 0) s.bordo_->spessore = std::clamp(n.value_or(0), 1, 255);
        };
        t["brdrcf"] = [](S& s, Numero n) {
            const auto& c = s.costruttore_.colori;
            const int k = n.value_or(0);
            if (s.bordo_ && k > 0 && k < static_cast<int>(c.size()))
                s.bordo_->colore = std::max(0L, c[static_cast<std::size_t>(k)]);
        };
    }

    // ---- the sheet ----

    template <int Foglio::*M>
    static void foglio(S& s, Numero n) {
        if (s.sezione_ == 0 && n) s.foglio_.*M = std::max(0, twip(n));
    }

    static void fogli(Tavola& t) {
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

    // ---- font table, colour table, character sets ----

    template <int Spostamento>
    static void componente(S& s, Numero n) {
        const long v = std::clamp(n.value_or(0), 0, 255);
        s.rgb_ = (std::max(s.rgb_, 0L) & ~(0xFFL << Spostamento)) | v << Spostamento;
    }

    static void tabelle_del_file(Tavola& t) {
        t["red"] = componente<0>;
        t["green"] = componente<8>;
        t["blue"] = componente<16>;
        t["fcharset"] = [](S& s, Numero n) { s.insiemi_[s.faccia_] = pagina_di(n.value_or(0), s.pagina_); };
        t["cpg"] = [](S& s, Numero n) { s.insiemi_[s.faccia_] = n.value_or(1252); };
        t["deff"] = [](S& s, Numero n) {
            s.predefinita_ = n.value_or(0);
            s.g().carattere.font = s.predefinita_;
        };
        t["ansicpg"] = [](S& s, Numero n) { s.pagina_ = n.value_or(1252); };
        t["mac"] = [](S& s, Numero) { s.pagina_ = 10000; };
        t["pc"] = [](S& s, Numero) { s.pagina_ = 437; };
        t["pca"] = [](S& s, Numero) { s.pagina_ = 850; };
        for (const char* n : {"rtf", "ansi"}) t[n] = [](S&, Numero) {};
    }

    // ---- pictures ----

    template <int ImmagineInArrivo::*M>
    static void misura_immagine(S& s, Numero n) {
        s.immagine_.*M = std::max(0, twip(n));
    }

    static void immagini(Tavola& t) {
        t["picwgoal"] = misura_immagine<&ImmagineInArrivo::larga>;
        t["pichgoal"] = misura_immagine<&ImmagineInArrivo::alta>;
        t["picscalex"] = misura_immagine<&ImmagineInArrivo::scala_x>;
        t["picscaley"] = misura_immagine<&ImmagineInArrivo::scala_y>;
        for (const char* n : {"blipuid", "blipupi"}) t[n] = [](S& s, Numero) { s.entra(Dove::salta); };
    }
};

bool esegui_parola(StatoLettura& s, std::string_view nome, std::optional<int> numero) {
    const auto& t = Parole::tavola();
    const auto it = t.find(nome);
    if (it == t.end()) return false;
    it->second(s, numero);
    return true;
}

}  // namespace ambra::rtf
