// The control words of text, paragraphs and destinations, and all of them together.
#include <algorithm>
#include <iterator>

#include "core/testo.h"
#include "print/rtf_codici.h"
#include "print/rtf_parole.h"
#include "print/rtf_stato.h"

namespace ambra::rtf {

/// The actions, by the folder of the language they belong to.
struct Parole {
    using S = StatoLettura;
    using Tavola = TavolaParole;

    static const Tavola& tavola() {
        static const Tavola kTutte = [] {
            Tavola t;
            for (auto f :
                 {&destinazioni, &disegni, &caratteri, &simboli, &paragrafi, &tabulazioni, &tabelle_del_file})
                f(t);
            parole_di_tabelle(t);
            return t;
        }();
        return kTutte;
    }

    // ---- destinations ----

    static void destinazioni(Tavola& t) {
        for (const char* n : {"info",
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
                              "do",
                              "ud"})
            t[n] = [](S& s, Numero) { s.entra(Dove::salta); };
        t["fonttbl"] = [](S& s, Numero) { s.entra(Dove::facce); };
        t["colortbl"] = [](S& s, Numero) { s.entra(Dove::colori); };
        t["fldinst"] = [](S& s, Numero) { s.entra(Dove::istruzione_campo); };
        t["stylesheet"] = [](S& s, Numero) {
            s.entra(Dove::stili);
            s.g().carattere.font = s.g().carattere.mezzi_punti = s.g().carattere.colore = -1;
        };
        t["field"] = [](S& s, Numero) {
            s.g().campo = Campo::nessuno;
            s.g().campo_qui = true;
            s.campo_mostrato_ = false;
        };
        t["fldrslt"] = [](S& s, Numero) { s.g().carattere.campo = s.g().campo; };
        t["pict"] = [](S& s, Numero) {
            s.entra(Dove::immagine);
            s.immagine_ = {};
        };
        t["pn"] = [](S& s, Numero) {
            s.entra(Dove::muta);
            s.numerazione_ = {};
        };
        t["pnlvlblt"] = [](S& s, Numero) { s.numerazione_.tipo = '-'; };
        t["pndec"] = [](S& s, Numero) { s.numerazione_.tipo = '1'; };
        t["pnlcltr"] = [](S& s, Numero) { s.numerazione_.tipo = 'a'; };
        t["pnucltr"] = [](S& s, Numero) { s.numerazione_.tipo = 'A'; };
        t["pnstart"] = [](S& s, Numero n) { s.numerazione_.inizio = std::clamp(n.value_or(1), 0, 30000); };
        t["pntxtb"] = [](S& s, Numero) { s.entra(Dove::prima_del_numero); };
        t["pntxta"] = [](S& s, Numero) { s.entra(Dove::dopo_il_numero); };
        for (const char* n : {"listtext", "pntext"})
            t[n] = [](S& s, Numero) {
                s.g().etichetta = true;
                s.g().suo_carattere = s.g().suo_corpo = false;
                s.etichetta_.clear();
            };
        for (const char* n : {"header", "headerr", "headerl"})
            t[n] = [](S& s, Numero) { s.entra_parte(TipoParte::testata); };
        for (const char* n : {"footer", "footerr", "footerl"})
            t[n] = [](S& s, Numero) { s.entra_parte(TipoParte::piede); };
        t["headerf"] = [](S& s, Numero) { s.entra_parte(TipoParte::testata_prima); };
        t["footerf"] = [](S& s, Numero) { s.entra_parte(TipoParte::piede_prima); };
    }

    // ---- drawings: their texts and the picture that fills one are shown ----

    template <std::size_t I>
    static void lato_forma(S& s, Numero n) {
        s.forma_[I] = twip(n);
    }

    static void disegni(Tavola& t) {
        for (const char* n : {"shppict", "object", "result"}) t[n] = [](S&, Numero) {};
        for (const char* n : {"shp", "shpgrp"})
            t[n] = [](S& s, Numero) { std::fill(std::begin(s.forma_), std::end(s.forma_), 0); };
        t["shpleft"] = lato_forma<0>;
        t["shptop"] = lato_forma<1>;
        t["shpright"] = lato_forma<2>;
        t["shpbottom"] = lato_forma<3>;
        for (const char* n : {"shpinst", "picprop", "sp"}) t[n] = [](S& s, Numero) { s.entra(Dove::muta); };
        t["sn"] = [](S& s, Numero) {
            s.entra(Dove::nome_proprieta);
            s.proprieta_.clear();
        };
        t["sv"] = [](S& s, Numero) { s.entra(rifila(s.proprieta_) == "pib" ? Dove::muta : Dove::salta); };
        t["shptxt"] = [](S& s, Numero) { s.entra(Dove::testo); };
    }

    // ---- characters ----

    static void caratteri(Tavola& t) {
        t["plain"] = [](S& s, Numero) {
            const Campo campo = s.g().carattere.campo;
            s.g().carattere = {};
            s.g().carattere.font = s.predefinita_;
            s.g().carattere.campo = campo;
            s.g().suo_carattere = s.g().suo_corpo = false;
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
        t["fs"] = [](S& s, Numero n) {
            s.g().carattere.mezzi_punti = std::clamp(n.value_or(24), 2, 800);
            s.g().suo_corpo = true;
        };
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
                s.g().suo_carattere = true;
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
            if (s.g().dove == Dove::testo) s.scrivi('1', f);
        };
        t["par"] = [](S& s, Numero) {
            if (s.g().dove != Dove::testo) return;
            s.versa_etichetta();
            s.costruttore_.fine_paragrafo(s.g().paragrafo, s.g().carattere, s.g().in_tabella);
        };
        t["cell"] = [](S& s, Numero) {
            if (s.g().dove != Dove::testo) return;
            s.versa_etichetta();
            s.costruttore_.fine_cella(s.g().paragrafo, s.g().carattere);
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
            if (s.g().dove == Dove::testo) s.costruttore_.nuova_sezione(s.g().paragrafo, s.g().carattere);
        };
        for (const char* n : {"sbknone", "sbkcol"}) t[n] = [](S& s, Numero) { s.costruttore_.di_seguito(); };
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
            if (!s.g().etichetta) s.numerazione_ = {};
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
        t["keepn"] = [](S& s, Numero n) { s.g().paragrafo.con_il_prossimo = acceso(n); };
        t["keep"] = [](S& s, Numero n) { s.g().paragrafo.insieme = acceso(n); };
        t["widctlpar"] = [](S& s, Numero n) { s.g().paragrafo.senza_vedove = acceso(n); };
        t["nowidctlpar"] = [](S& s, Numero) { s.g().paragrafo.senza_vedove = false; };
        t["s"] = [](S& s, Numero n) {
            if (s.g().dove == Dove::stili) s.stile_ = n.value_or(0);
            if (s.g().dove == Dove::testo) s.applica_stile(n.value_or(0));
        };
        // Styles of other kinds have numbers of their own.
        for (const char* n : {"cs", "ds", "ts"})
            t[n] = [](S& s, Numero) {
                if (s.g().dove == Dove::stili) s.stile_ = -1;
            };
        t["sbasedon"] = [](S& s, Numero n) { s.base_ = n.value_or(-1); };
        t["ls"] = [](S& s, Numero n) { s.g().elenco = n.value_or(0); };
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

    template <char Guida>
    static void guida(S& s, Numero) {
        s.tabulazione_.guida = Guida;
    }

    static void tabulazioni(Tavola& t) {
        t["tldot"] = guida<'.'>;
        t["tlmdot"] = guida<'\xB7'>;
        t["tlhyph"] = guida<'-'>;
        t["tlul"] = t["tlth"] = guida<'_'>;
        t["tleq"] = guida<'='>;
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
};

bool esegui_parola(StatoLettura& s, std::string_view nome, std::optional<int> numero) {
    const auto& t = Parole::tavola();
    const auto it = t.find(nome);
    if (it == t.end()) return false;
    it->second(s, numero);
    return true;
}

}  // namespace ambra::rtf
