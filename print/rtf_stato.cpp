#include "print/rtf_stato.h"

#include <algorithm>
#include <utility>

#include "core/testo.h"
#include "print/rtf_codici.h"

namespace ambra::rtf {

namespace {

constexpr std::size_t kIstruzioneMassima = 64, kNomeMassimo = 100, kEtichettaMassima = 64;
constexpr int kStiliInFila = 10;

// As much of `s` as a name may hold.
void accoda(std::string& a, std::string_view s) {
    a.append(s.substr(0, kNomeMassimo - std::min(kNomeMassimo, a.size())));
}

bool immagine_nota(const std::string& b) {
    return b.starts_with("\x89PNG") || b.starts_with("\xFF\xD8\xFF");
}

}  // namespace

StatoLettura::StatoLettura() : gruppi_(1) {
    costruttore_.colori = {};
}

void StatoLettura::apri() {
    bordo_ = nullptr;  // it may lie in a group, and those move
    gruppi_.push_back(g());
    asterisco_ = false;
    da_saltare_ = 0;
    primo_di_due_ = false;
}

void StatoLettura::chiudi() {
    bordo_ = nullptr;
    const Gruppo chiuso = std::move(g());
    gruppi_.pop_back();
    if (gruppi_.empty()) gruppi_.emplace_back();
    asterisco_ = false;
    da_saltare_ = 0;
    if (chiuso.dove != g().dove) {
        if (chiuso.dove == Dove::immagine) fine_immagine();
        if (chiuso.dove == Dove::istruzione_campo) fine_istruzione();
        if (chiuso.dove == Dove::facce) nome_faccia(";");
    }
    if (chiuso.campo_qui && chiuso.campo != Campo::nessuno && !campo_mostrato_ &&
        chiuso.dove == Dove::testo) {
        // A field that shows nothing yet: the number comes with the page.
        StatoCarattere f = chiuso.carattere;
        f.campo = chiuso.campo;
        scrivi('1', f);
    }
    if (chiuso.dove == Dove::testo) {
        costruttore_.ultimo_paragrafo = chiuso.paragrafo;
        if (chiuso.parte != g().parte) {
            if (!etichetta_.empty()) versa_etichetta();
            costruttore_.fine_parte(chiuso.paragrafo, chiuso.carattere);
            costruttore_.parte(g().parte);
        }
    }
}

void StatoLettura::parola(std::string_view nome, std::optional<int> numero) {
    const bool asterisco = std::exchange(asterisco_, false);
    if (g().dove == Dove::salta) return;
    if (!esegui_parola(*this, nome, numero) && asterisco) entra(Dove::salta);
}

void StatoLettura::simbolo(char c) {
    switch (c) {
        case '*':
            asterisco_ = true;
            break;
        case '~':
            emetti('\xA0');
            break;
        case '_':
            emetti('-');
            break;
        case '\r':
        case '\n':
            parola("par", {});
            break;
        case '\t':
            emetti('\t');
            break;
        case '\\':
        case '{':
        case '}':
            testo({&c, 1});
            break;
        default:
            break;  // optional hyphens and index marks
    }
}

void StatoLettura::testo(std::string_view s) {
    switch (g().dove) {
        case Dove::testo:
            for (const char c : s) decodifica(static_cast<unsigned char>(c));
            break;
        case Dove::facce:
            nome_faccia(s);
            break;
        case Dove::colori:
            separa_colori(s);
            break;
        case Dove::stili:
            if (s.find(';') != std::string_view::npos) fine_stile();
            break;
        case Dove::nome_proprieta:
            accoda(proprieta_, s);
            break;
        case Dove::prima_del_numero:
            accoda(numerazione_.prima, s);
            break;
        case Dove::dopo_il_numero:
            accoda(numerazione_.dopo, s);
            break;
        case Dove::istruzione_campo:
            istruzione_.append(
                s.substr(0, kIstruzioneMassima - std::min(kIstruzioneMassima, istruzione_.size())));
            break;
        case Dove::immagine:
            dati_immagine(s);
            break;
        case Dove::salta:
        case Dove::muta:
            break;
    }
}

void StatoLettura::byte(unsigned char b) {
    if (g().dove == Dove::testo) {
        decodifica(b);
    } else if (g().dove == Dove::facce) {
        const auto insieme = insiemi_.find(faccia_);
        const char c = da_pagina(insieme == insiemi_.end() ? pagina_ : insieme->second, b);
        nome_faccia({&c, 1});
    }
}

void StatoLettura::binario(std::string_view b) {
    if (g().dove == Dove::immagine) immagine_.byte.append(b);
    if (da_saltare_ > 0) --da_saltare_;
}

void StatoLettura::decodifica(unsigned char b) {
    if (da_saltare_ > 0) {
        --da_saltare_;
        return;
    }
    if (b == '\t') return emetti('\t');
    if (b < 32) return;
    const auto insieme = insiemi_.find(g().carattere.font);
    const int pagina = insieme == insiemi_.end() ? pagina_ : insieme->second;
    if (primo_di_due_) {
        primo_di_due_ = false;
        return emetti('?');
    }
    if (pagina == kPaginaSimboli) return emetti(da_simbolo(b));
    if (b >= 0x80 && a_due_byte(pagina)) {
        primo_di_due_ = true;
        return;
    }
    emetti(da_pagina(pagina, b));
}

void StatoLettura::unicode(int n) {
    const auto punto = static_cast<char32_t>(n < 0 ? n + 0x10000 : n);
    // Of a pair only the first half is shown, as one character that is lacking.
    if (punto < 0xDC00 || punto > 0xDFFF) {
        if (punto >= 32 || punto == '\t') emetti(da_unicode(punto));
    }
    da_saltare_ = std::max(g().salta_dopo_unicode, 0);
}

void StatoLettura::emetti(char c) {
    if (g().dove == Dove::facce) {
        nome_faccia({&c, 1});
    } else if (g().dove == Dove::istruzione_campo || g().dove == Dove::prima_del_numero ||
               g().dove == Dove::dopo_il_numero) {
        testo({&c, 1});
    } else if (g().dove == Dove::testo && !g().carattere.nascosto) {
        if (g().etichetta) {
            if (etichetta_.size() < kEtichettaMassima)
                etichetta_.push_back({c, g().carattere, g().suo_carattere, g().suo_corpo});
        } else {
            scrivi(c, g().carattere);
        }
    }
}

// What a symbol face shows is an ordinary character by now.
void StatoLettura::carattere(char c, StatoCarattere f) {
    const auto insieme = insiemi_.find(f.font);
    if (insieme != insiemi_.end() && insieme->second == kPaginaSimboli) f.font = predefinita_;
    costruttore_.carattere(c, f);
}

void StatoLettura::scrivi(char c, const StatoCarattere& f) {
    if (!etichetta_.empty()) versa_etichetta();
    campo_mostrato_ = campo_mostrato_ || f.campo != Campo::nessuno;
    carattere(c, f);
    costruttore_.ultimo_paragrafo = g().paragrafo;
}

// A label that was left to be counted.
void StatoLettura::numera() {
    const Numerazione& n = numerazione_;
    if (etichetta_.empty() || n.tipo == 0) return;
    std::string numero;
    if (n.tipo != '-') {
        const int conto = n.inizio + contati_[g().elenco]++ % 10000;
        numero = n.tipo == '1' ? std::to_string(conto)
                               : std::string(1, static_cast<char>(n.tipo + (conto + 25) % 26));
    }
    const CarattereEtichetta come = etichetta_.front();
    etichetta_.clear();
    for (const char c : n.prima + numero + n.dopo + '\t')
        etichetta_.push_back({c, come.formato, come.suo_carattere, come.suo_corpo});
}

// Blanks and tabs alone are the label of a paragraph that has none.
void StatoLettura::versa_etichetta() {
    const StatoCarattere& testo = g().carattere;
    const auto visibile = [](const CarattereEtichetta& e) { return e.c != ' ' && e.c != '\t'; };
    if (std::none_of(etichetta_.begin(), etichetta_.end(), visibile)) numera();
    const auto fine = etichetta_.end();
    for (auto e = std::find_if(etichetta_.begin(), fine, visibile); e != fine; ++e) {
        StatoCarattere f = e->formato;
        if (!e->suo_carattere) f.font = testo.font;
        if (!e->suo_corpo) f.mezzi_punti = testo.mezzi_punti;
        if (f.colore == 0) f.colore = testo.colore;
        carattere(e->c, f);
    }
    etichetta_.clear();
}

// A header or footer; those of later sections are not shown.
void StatoLettura::entra_parte(TipoParte t) {
    if (sezione_ > 0 || costruttore_.ha(t) || g().parte != TipoParte::corpo) return entra(Dove::salta);
    entra(Dove::testo);
    Gruppo& gruppo = g();
    gruppo.parte = t;
    gruppo.paragrafo = {};
    gruppo.in_tabella = false;
    costruttore_.parte(t);
}

// ---- tables of the file ----

void StatoLettura::nome_faccia(std::string_view s) {
    for (const char c : s) {
        if (c == ';') {
            // A name closes its font; what a group's end finds empty was closed already.
            if (!nome_.empty()) costruttore_.facce[faccia_] = std::string(rifila(nome_));
            nome_.clear();
        } else if (nome_.size() < kNomeMassimo && static_cast<unsigned char>(c) >= 32) {
            nome_.push_back(c);
        }
    }
}

void StatoLettura::fine_stile() {
    const StatoCarattere& c = g().carattere;
    if (stile_ >= 0) stili_[stile_] = {c.font, c.mezzi_punti, c.colore, base_};
    stile_ = 0;
    base_ = -1;
}

// What a style tells itself is told again with the text, or undone there in silence. What it has from the
// styles it rests on is not always told again.
void StatoLettura::applica_stile(int n) {
    const auto suo = stili_.find(n);
    if (suo == stili_.end()) return;
    Stile trovato = suo->second;
    StatoCarattere& c = g().carattere;
    const bool font = trovato.font < 0 && c.font == predefinita_;
    const bool corpo = trovato.mezzi_punti < 0 && c.mezzi_punti == StatoCarattere{}.mezzi_punti;
    const bool colore = trovato.colore < 0 && c.colore == 0;
    for (int i = 0; i < kStiliInFila; ++i) {
        const auto it = stili_.find(trovato.base);
        if (it == stili_.end()) break;
        const Stile& s = it->second;
        if (trovato.font < 0) trovato.font = s.font;
        if (trovato.mezzi_punti < 0) trovato.mezzi_punti = s.mezzi_punti;
        if (trovato.colore < 0) trovato.colore = s.colore;
        trovato.base = s.base;
    }
    if (font && trovato.font >= 0) c.font = trovato.font;
    if (corpo && trovato.mezzi_punti > 0) c.mezzi_punti = trovato.mezzi_punti;
    if (colore && trovato.colore >= 0) c.colore = trovato.colore;
}

void StatoLettura::separa_colori(std::string_view s) {
    for (const char c : s) {
        if (c != ';') continue;
        costruttore_.colori.push_back(rgb_ < 0 ? kColoreAutomatico : rgb_);
        rgb_ = -1;
    }
}

// ---- pictures and fields ----

void StatoLettura::dati_immagine(std::string_view s) {
    for (const char c : s) {
        const int n = cifra_esadecimale(c);
        if (n < 0) continue;
        if (immagine_.mezzo < 0) {
            immagine_.mezzo = n;
        } else {
            immagine_.byte.push_back(static_cast<char>(immagine_.mezzo * 16 + n));
            immagine_.mezzo = -1;
        }
    }
}

void StatoLettura::fine_immagine() {
    ImmagineInArrivo arrivata = std::exchange(immagine_, {});
    if (!immagine_nota(arrivata.byte) || g().dove == Dove::salta || g().carattere.nascosto) return;
    Immagine im;
    im.byte = std::move(arrivata.byte);
    im.larghezza = arrivata.larga * (arrivata.scala_x / 100.0);
    im.altezza = arrivata.alta * (arrivata.scala_y / 100.0);
    if (im.larghezza <= 0 && im.altezza <= 0) {
        im.larghezza = std::max(0, forma_[2] - forma_[0]);
        im.altezza = std::max(0, forma_[3] - forma_[1]);
    }
    if (!etichetta_.empty()) versa_etichetta();
    costruttore_.immagine(std::move(im), g().carattere);
}

void StatoLettura::fine_istruzione() {
    const std::string i = maiuscolo(rifila(istruzione_));
    const std::string_view parola = std::string_view(i).substr(0, i.find(' '));
    if (parola == "PAGE") g().campo = Campo::pagina;
    if (parola == "NUMPAGES") g().campo = Campo::pagine;
    istruzione_.clear();
}

// ---- rows ----

void StatoLettura::nuova_riga() {
    costruttore_.riga = {};
    cella_ = {};
    cella_con_bordi_ = cella_fusa_ = false;
    bordo_ = nullptr;
}

void StatoLettura::chiudi_definizione_cella(int destra) {
    constexpr std::size_t kCelleMassime = 128;
    StatoRiga& r = costruttore_.riga;
    if (r.riga.celle.size() < kCelleMassime) {
        const int prima = r.riga.celle.empty() ? r.riga.sinistra : r.riga.celle.back().destra;
        cella_.destra = std::max(destra, prima + 1);
        r.riga.celle.push_back(cella_);
        r.con_bordi.push_back(cella_con_bordi_);
        r.fuse.push_back(cella_fusa_);
    }
    cella_ = {};
    cella_con_bordi_ = cella_fusa_ = false;
    bordo_ = nullptr;
}

Documento StatoLettura::termina() {
    while (gruppi_.size() > 1) chiudi();
    return costruttore_.termina(foglio_, passo_);
}

}  // namespace ambra::rtf
