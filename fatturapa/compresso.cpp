#include "fatturapa/compresso.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <atomic>
#include <exception>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "core/testo.h"
#include "fatturapa/in_parallelo.h"
#include "fatturapa/indice_zip.h"
#include "fatturapa/lettore.h"
#include "fatturapa/testo_xml.h"

namespace ambra::fatturapa {

namespace {

struct Chiudi {
    void operator()(archive* a) const { archive_read_free(a); }
};
using Lettura = std::unique_ptr<archive, Chiudi>;

constexpr std::string_view kVoceCentrale("PK\x01\x02", 4);
constexpr std::size_t kByteDiUnFilo = std::size_t{64} << 10;  // a thread for less is not worth its start

std::string nome_di(archive_entry* e) {
    const char* nome = archive_entry_pathname_utf8(e);
    if (!nome) nome = archive_entry_pathname(e);
    std::string s(nome ? nome : "");
    if (!utf8_valido(s)) s = a_utf8(s);
    senza_controlli(s, '?');
    return s;
}

std::size_t lunghezza_detta(archive_entry* e) {
    const la_int64_t n = archive_entry_size_is_set(e) ? archive_entry_size(e) : 0;
    return static_cast<std::size_t>(std::clamp<la_int64_t>(n, 0, static_cast<la_int64_t>(kMassimaVoce)));
}

// `detta` is the length that the entry claims; more or less may come.
void leggi(archive* a, std::size_t detta, Voce& v) {
    std::string& c = v.contenuto;
    c.resize(std::max<std::size_t>(detta + 1, 1 << 12));
    for (std::size_t letti = 0;;) {
        if (letti == c.size()) c.resize(std::min(kMassimaVoce + 1, 2 * c.size()));
        const la_ssize_t n = archive_read_data(a, c.data() + letti, c.size() - letti);
        if (n > 0) letti += static_cast<std::size_t>(n);
        if (n < 0) v.difetto = "voce danneggiata";
        if (letti > kMassimaVoce) v.difetto = "oltre 5 MB";
        if (n <= 0 || letti > kMassimaVoce) {
            c.resize(letti);
            v.intera = v.difetto.empty();
            return;
        }
    }
}

// The entries from number `da` on that are read at once: together no longer than one may be, so that they
// take no more memory than one.
std::span<const VoceZip> blocco_da(std::span<const VoceZip> voci, std::size_t da) {
    std::size_t fine = da, byte = 0;
    do byte += voci[fine++].lunghezza;
    while (fine < voci.size() && byte + voci[fine].lunghezza <= kMassimaVoce);
    return voci.subspan(da, fine - da);
}

// What a thread takes once for all its entries.
struct Stanza {
    Spacchettatore spacchettatore;
    std::string byte;
};

// Reads an entry before its turn.
void anticipa(const VoceZip& z, Voce& v, const Vuole& vuole, const std::function<void(Voce&)>& da_sola,
              Stanza& s) {
    v.contenuto = std::move(s.byte);
    try {
        if (!z.cartella && vuole(v.nome) && s.spacchettatore.spacchetta(z, v.contenuto)) da_sola(v);
    } catch (const std::exception&) {
        v.letta.reset();
    }
    s.byte = std::exchange(v.contenuto, {});
}

std::vector<Voce> anticipa(std::span<const VoceZip> blocco, const Vuole& vuole,
                           const std::function<void(Voce&)>& da_sola) {
    std::vector<Voce> r(blocco.size());
    std::size_t byte = 0;
    for (std::size_t i = 0; i < r.size(); ++i) {
        r[i].nome = blocco[i].nome;
        byte += blocco[i].lunghezza;
    }
    std::atomic<std::size_t> prossima = 0;
    in_parallelo(byte / kByteDiUnFilo, [&] {
        Stanza stanza;
        for (std::size_t i = prossima++; i < r.size(); i = prossima++)
            anticipa(blocco[i], r[i], vuole, da_sola, stanza);
    });
    return r;
}

}  // namespace

bool sembra_zip(std::string_view byte) {
    return byte.starts_with("PK\x03\x04") || byte.starts_with("PK\x05\x06");
}

// The library lists all entries before it gives the first: an endless list must not get there. Archives kept
// within count too, hence more than the entries that are read.
bool troppe_voci(std::string_view byte) {
    int n = 0;
    for (std::size_t i = byte.find(kVoceCentrale); i != byte.npos; i = byte.find(kVoceCentrale, i + 4))
        if (++n > 10 * kMassimeVoci) return true;
    return false;
}

bool per_ogni_voce(std::string_view byte, const Vuole& vuole, const std::function<void(Voce&)>& da_sola,
                   const Prendi& prendi) {
    const IndiceZip indice = indice_zip(byte);
    const Spacchettatore spacchettatore;
    std::size_t da = 0;
    while (da < indice.voci.size()) {
        const auto blocco = blocco_da(indice.voci, da);
        std::vector<Voce> lette = anticipa(blocco, vuole, da_sola);
        for (std::size_t i = 0; i < blocco.size(); ++i, ++da) {
            Voce& v = lette[i];
            if (blocco[i].cartella || !vuole(v.nome)) continue;
            if (!v.letta && !spacchettatore.spacchetta(blocco[i], v.contenuto))
                return per_ogni_voce_con_cura(byte, da, vuole, prendi);
            if (!prendi(v)) return true;
        }
    }
    return indice.completo || per_ogni_voce_con_cura(byte, da, vuole, prendi);
}

bool per_ogni_voce_con_cura(std::string_view byte, std::size_t da, const Vuole& vuole, const Prendi& prendi) {
    const Lettura a(archive_read_new());
    archive_read_support_format_zip_seekable(a.get());
    if (archive_read_open_memory(a.get(), byte.data(), byte.size()) != ARCHIVE_OK) return false;
    Voce v;
    for (std::size_t i = 0;; ++i) {
        archive_entry* e = nullptr;
        const int r = archive_read_next_header(a.get(), &e);
        if (r == ARCHIVE_EOF) return true;
        if (r != ARCHIVE_OK && r != ARCHIVE_WARN) return false;
        if (i < da || archive_entry_filetype(e) == AE_IFDIR) continue;
        v.nome = nome_di(e);
        if (!vuole(v.nome)) continue;
        v.difetto.clear();
        v.intera = true;
        if (archive_entry_filetype(e) != AE_IFREG)
            v.contenuto.clear();
        else
            leggi(a.get(), lunghezza_detta(e), v);
        if (!v.intera && archive_entry_is_encrypted(e)) v.difetto = "voce cifrata";
        if (!prendi(v)) return true;
    }
}

}  // namespace ambra::fatturapa
