#include "maintenance/verifica_insieme.h"

#include <algorithm>

#include "core/numeri.h"
#include "core/testo.h"
#include "records/movimento.h"

namespace ambra {

namespace {

class Sigla {
  public:
    Sigla& operator<<(char c) {
        valore_ = (valore_ ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
        return *this;
    }
    Sigla& operator<<(std::string_view s) {
        for (const char c : s) *this << c;
        return *this << '\0';
    }
    Sigla& operator<<(int n) { return *this << static_cast<char>(n) << static_cast<char>(n >> 8); }
    std::uint64_t valore() const { return valore_; }

  private:
    std::uint64_t valore_ = 14695981039346656037ULL;
};

// A number as two hands may have typed it alike: without blanks, without zeros in front of its figures.
std::string numero_nudo(std::string_view numero) {
    std::string r;
    const std::string grande = maiuscolo(numero);
    for (std::size_t i = 0; i < grande.size(); ++i) {
        if (grande[i] == ' ' || grande[i] == '\0') continue;
        const bool zero_davanti = grande[i] == '0' && (r.empty() || !cifra(r.back())) &&
                                  i + 1 < grande.size() && cifra(grande[i + 1]);
        if (!zero_davanti) r += grande[i];
    }
    return r;
}

// The same document, whatever is paid of it meanwhile.
std::uint64_t identita(const RecFattura& f) {
    return (Sigla() << int(f.numfor) << int(f.tipodc) << f.numdoc.grezzo() << f.datadoc.grezzo()).valore();
}

// A stored date as the descriptions of movements tell it.
std::string data_scritta(std::string_view aaaammgg) {
    return unisci(aaaammgg.substr(6, 2), "/", aaaammgg.substr(4, 2), "/", aaaammgg.substr(0, 4));
}

bool vera(const RecFattura& f, const Saputo& s) {
    return f.cancellata == 0 && f.numfor >= 1 && f.numfor <= s.fornitori &&
           data_registrata(f.datareg.grezzo(), false) && data_registrata(f.datadoc.grezzo(), false);
}

}  // namespace

void Insieme::documento(long n, const RecFattura& f) {
    if (f.cancellata != 0) return;
    const std::string numero = numero_nudo(f.numdoc.grezzo());
    if (!numero.empty())
        vive_.push_back(
            {(Sigla() << int(f.numfor) << int(f.tipodc) << numero << f.datadoc.grezzo().substr(0, 4))
                 .valore(),
             n});
    // The journal of a year that was closed knows nothing of what was charged before.
    if (f.addebita.b[0] != '1' || s_.primo_giorno.empty() || f.datareg.grezzo() < s_.primo_giorno) return;
    const double segno = f.tipodc == 1 ? -1 : 1;
    if (ha_movimento(segno * somma(f.sca))) return;
    // Charged with its last payment: any payments that make it up may have been that one.
    for (unsigned quali = 1; quali < 16; ++quali) {
        double x = 0;
        for (unsigned k = 0; k < 4; ++k)
            if ((quali >> k & 1) != 0) x += f.ver[k];
        if (x != 0 && ha_movimento(segno * x)) return;
    }
    senza_movimento_.push_back({n, segno * somma(f.sca),
                                unisci(" ", f.numdoc.rifilato(), " del ", data_scritta(f.datadoc.grezzo()))});
}

// Each movement stands for one document.
bool Insieme::ha_movimento(double importo) {
    long* quanti = s_.movimenti.cerca(in_centesimi(importo));
    return quanti && (*quanti)-- > 0;
}

void Insieme::confronta() {
    doppie();
    if (!senza_movimento_.empty()) cerca_nelle_descrizioni();
    for (const auto& a : senza_movimento_)
        c_.avviso("ftr", a.record, "addebita", "1",
                  unisci("un movimento nel giornale: ", formatta(a.importo, Formato::due_decimali)));
}

void Insieme::doppie() {
    std::sort(vive_.begin(), vive_.end());
    for (std::size_t i = 1; i < vive_.size(); ++i)
        if (vive_[i].first == vive_[i - 1].first)
            c_.avviso("ftr", vive_[i].second, "numdoc",
                      unisci("come il record ", std::to_string(vive_[i - 1].second)),
                      "un documento registrato una volta sola");
}

// Whoever charged a document may have changed the amount: the description still names it.
void Insieme::cerca_nelle_descrizioni() {
    FileDi<RecMovimento> mov(c_.err, 4);
    if (!mov.apri(c_.disco(), c_.percorso("mov"), Apertura::lettura)) return;
    per_record<RecMovimento>(c_, mov, "mov", mov.quanti(), [&](long, const RecMovimento& m) {
        std::erase_if(senza_movimento_, [&](const Addebitata& a) {
            return std::any_of(std::begin(m.mdesc), std::end(m.mdesc), [&](const auto& riga) {
                return riga.grezzo().find(a.nome) != std::string_view::npos;
            });
        });
    });
}

void cerca_perduti(Cartella& c, const Saputo& s, FileDi<RecFattura>& ftr, FileDi<RecFattura>& copia,
                   long contati) {
    std::vector<std::uint64_t> davanti;
    std::string prima = "99999999";
    Passata<RecFattura> passata(ftr), di_prima(copia);
    for (long n = 1; n <= contati; ++n) {
        const RecFattura* f = passata.vista(n);
        if (!f) return;
        davanti.push_back(identita(*f));
        if (f->cancellata == 0 && f->datareg.grezzo() < prima) prima = f->datareg.grezzo();
    }
    std::sort(davanti.begin(), davanti.end());
    long perduti = 0;
    for (long n = contati + 1; n <= ftr.quanti(); ++n) {
        const RecFattura* f = passata.vista(n);
        if (!f || !vera(*f, s)) continue;
        // The reorganisation leaves its copy: what lies there alike was behind the count then.
        const RecFattura* c_era = copia.aperto() && n <= copia.quanti() ? di_prima.vista(n) : nullptr;
        if (c_era && std::memcmp(c_era, f, sizeof *f) == 0) continue;
        // One that has moved forward: a reset was here, and what it took away lies behind it.
        if (std::binary_search(davanti.begin(), davanti.end(), identita(*f))) return;
        if (contati == 0 || f->datareg.grezzo() >= prima) ++perduti;
    }
    if (perduti > 0)
        c.avviso(
            "tfr", 2, "parola(0)", std::to_string(contati),
            unisci(std::to_string(contati + perduti), " o più: ci sono altre fatture in "_it, c.nome("ftr")));
}

}  // namespace ambra
