#include "fatturapa/indice_zip.h"

#include <libdeflate.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "fatturapa/lettore.h"

namespace ambra::fatturapa {

namespace {

constexpr std::string_view kVoce("PK\x03\x04"), kCentrale("PK\x01\x02"), kFine("PK\x05\x06"),
    kFine64("PK\x06\x07");
constexpr std::size_t kLungaVoce = 30, kLungaCentrale = 46, kLungaFine = 22, kLungaFine64 = 20;
constexpr unsigned kLunghezzeInFondo = 8, kLivello = 6, kNomeUtf8 = 0x800;
constexpr unsigned kMetodoDeflate = 8;

std::uint32_t due(std::string_view s, std::size_t i) {
    const auto byte = [&](std::size_t k) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(s[k]));
    };
    return byte(i) | byte(i + 1) << 8;
}

std::uint32_t quattro(std::string_view s, std::size_t i) {
    return due(s, i) | due(s, i + 2) << 16;
}

// What index and heading of an entry both tell, one after the other.
struct Testa {
    Testa(std::string_view s, std::size_t da)
        : bandiere(due(s, da)),
          metodo(due(s, da + 2)),
          crc(quattro(s, da + 8)),
          compressa(quattro(s, da + 12)),
          lunghezza(quattro(s, da + 16)),
          nome(due(s, da + 20)),
          extra(due(s, da + 22)) {}
    std::uint32_t bandiere, metodo, crc, compressa, lunghezza, nome, extra;
};

// Times and owners alone: other fields may change the name, the sizes, the kind of the entry.
bool extra_ordinari(std::string_view s) {
    while (s.size() >= 4) {
        const std::uint32_t quale = due(s, 0), lungo = due(s, 2);
        const auto noti = {0x000AU, 0x5455U, 0x5855U, 0x7855U, 0x7875U, 0xCAFEU};
        if (std::ranges::find(noti, quale) == noti.end() || lungo > s.size() - 4) return false;
        if (quale == 0x5455U && lungo == 0) return false;
        s.remove_prefix(4 + lungo);
    }
    return s.empty();
}

bool nome_ordinario(std::string_view nome) {
    return !nome.empty() &&
           std::ranges::all_of(nome, [](char c) { return c >= ' ' && c <= '~' && c != '\\'; });
}

bool testa_ordinaria(const Testa& t) {
    if ((t.bandiere & ~(kLunghezzeInFondo | kLivello | kNomeUtf8)) != 0 || t.lunghezza > kMassimaVoce)
        return false;
    if (t.compressa == 0) return t.metodo == 0 && t.lunghezza == 0 && t.crc == 0;
    return t.metodo == kMetodoDeflate || (t.metodo == 0 && t.compressa == t.lunghezza);
}

// A heading may leave open what is known only after the data.
bool concordano(const Testa& indice, const Testa& voce) {
    const auto detto = [](std::uint32_t qui, std::uint32_t la) { return qui == 0 || qui == la; };
    return voce.bandiere == indice.bandiere && voce.metodo == indice.metodo && voce.nome == indice.nome &&
           detto(voce.crc, indice.crc) && detto(voce.compressa, indice.compressa) &&
           detto(voce.lunghezza, indice.lunghezza);
}

// A plain file, or a folder as its name tells too.
bool genere_ordinario(std::string_view centrale, bool barra) {
    constexpr unsigned kDos = 0, kUnix = 3, kCartellaDos = 0x10;
    const unsigned sistema = due(centrale, 4) >> 8;
    const std::uint32_t attributi = quattro(centrale, 38);
    if (sistema == kDos) return barra || (attributi & kCartellaDos) == 0;
    const unsigned genere = attributi >> 28;  // 4 folder, 8 plain file, 0 not said
    return sistema == kUnix && (genere == 0 || genere == 8 || (genere == 4 && barra));
}

// The entry that its record in the index and the bytes up to the next entry tell, if it is ordinary.
std::optional<VoceZip> voce(std::string_view centrale, std::string_view qui) {
    if (qui.size() < kLungaVoce || !qui.starts_with(kVoce)) return {};
    const Testa indice(centrale, 8), testa(qui, 6);
    const std::size_t dati = kLungaVoce + testa.nome + testa.extra;
    if (!testa_ordinaria(indice) || !concordano(indice, testa) || qui.size() < dati + indice.compressa)
        return {};
    VoceZip v;
    v.nome = centrale.substr(kLungaCentrale, indice.nome);
    if (!nome_ordinario(v.nome) || qui.substr(kLungaVoce, testa.nome) != v.nome) return {};
    if (!extra_ordinari(qui.substr(kLungaVoce + testa.nome, testa.extra))) return {};
    v.cartella = v.nome.ends_with('/');
    if (!genere_ordinario(centrale, v.cartella)) return {};
    v.dati = qui.substr(dati, indice.compressa);
    v.lunghezza = indice.lunghezza;
    v.crc = indice.crc;
    v.compressa = indice.metodo == kMetodoDeflate;
    return v;
}

// Where the index begins; nothing unless it ends where the archive's last record begins, which ends the
// bytes.
std::optional<std::size_t> inizio_indice(std::string_view byte) {
    if (byte.size() < kLungaFine + kLungaFine64) return {};
    const std::size_t fine = byte.size() - kLungaFine;
    const std::string_view ultimo = byte.substr(fine);
    const bool un_disco = quattro(ultimo, 4) == 0 && due(ultimo, 8) == due(ultimo, 10);
    if (!ultimo.starts_with(kFine) || !un_disco || due(ultimo, 20) != 0) return {};
    if (byte.substr(fine - kLungaFine64).starts_with(kFine64)) return {};
    const std::size_t lungo = quattro(ultimo, 12), inizio = quattro(ultimo, 16);
    if (inizio + lungo != fine) return {};
    return inizio;
}

// Where each entry begins, with its record in the index; none if the records do not fill the index.
using Posti = std::vector<std::pair<std::size_t, std::string_view>>;
Posti posti(std::string_view indice, std::size_t quanti) {
    Posti r;
    while (!indice.empty()) {
        if (indice.size() < kLungaCentrale || !indice.starts_with(kCentrale)) return {};
        const Testa t(indice, 8);
        const std::size_t extra = kLungaCentrale + t.nome, commento = extra + t.extra,
                          fine = commento + due(indice, 32);
        if (indice.size() < fine || !extra_ordinari(indice.substr(extra, t.extra))) return {};
        r.emplace_back(quattro(indice, 42), indice.substr(0, fine));
        indice.remove_prefix(fine);
    }
    if (r.size() != quanti) return {};
    return r;
}

}  // namespace

IndiceZip indice_zip(std::string_view byte) {
    const auto inizio = inizio_indice(byte);
    if (!inizio) return {};
    const std::size_t fine = byte.size() - kLungaFine;
    Posti tutti = posti(byte.substr(*inizio, fine - *inizio), due(byte, fine + 10));
    const auto dove = [](const auto& p) { return p.first; };
    std::ranges::sort(tutti, {}, dove);
    if (std::ranges::adjacent_find(tutti, {}, dove) != tutti.end()) return {};
    IndiceZip r;
    r.voci.reserve(tutti.size());
    for (std::size_t i = 0; i < tutti.size(); ++i) {
        const std::size_t da = tutti[i].first, a = i + 1 < tutti.size() ? tutti[i + 1].first : *inizio;
        const auto v = da < a && a <= *inizio ? voce(tutti[i].second, byte.substr(da, a - da)) : std::nullopt;
        if (!v) return r;
        r.voci.push_back(*v);
    }
    r.completo = !tutti.empty();
    return r;
}

Spacchettatore::Spacchettatore() : d_(libdeflate_alloc_decompressor()) {}

void Spacchettatore::Libera::operator()(libdeflate_decompressor* d) const {
    libdeflate_free_decompressor(d);
}

// The sum settles what a decoder more lenient than the other takes for whole.
bool Spacchettatore::spacchetta(const VoceZip& voce, std::string& contenuto) const {
    if (voce.compressa) {
        contenuto.resize(voce.lunghezza);
        std::size_t letti = 0;
        if (!d_ ||
            libdeflate_deflate_decompress_ex(d_.get(), voce.dati.data(), voce.dati.size(), contenuto.data(),
                                             contenuto.size(), &letti, nullptr) != LIBDEFLATE_SUCCESS)
            return false;
        if (letti != voce.dati.size()) return false;
    } else {
        contenuto = voce.dati;
    }
    return libdeflate_crc32(0, contenuto.data(), contenuto.size()) == voce.crc;
}

}  // namespace ambra::fatturapa
