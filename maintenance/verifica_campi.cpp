// What is wrong with a record by its format alone: control characters, numbers that are none; dates and texts
// as people read them.
#include <algorithm>
#include <bit>
#include <cmath>

#include "core/campi.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "maintenance/verifica_cartella.h"

namespace ambra {

namespace {

bool sporco(const std::byte* p, std::size_t n) {
    unsigned male = 0;
    for (std::size_t i = 0; i < n; ++i) {
        const auto c = static_cast<unsigned char>(p[i]);
        // Zero bytes stand where nothing was ever written and read as blanks.
        male |=
            static_cast<unsigned>(static_cast<unsigned char>(c - 1) < 31) | static_cast<unsigned>(c == 255);
    }
    return male != 0;
}

// A format as one look needs it: its texts, its Doubles, joined where they touch.
class Sguardo {
  public:
    explicit Sguardo(const FormatoRecord& forma) {
        for (const CampoRecord& c : forma.campi) {
            const std::size_t lungo = c.lungo * static_cast<std::size_t>(c.quanti);
            if (c.tipo == CampoRecord::Tipo::testo) unisci_pezzi(testi_, c.posto, lungo);
            if (c.tipo == CampoRecord::Tipo::doppio) unisci_pezzi(doppi_, c.posto, lungo);
        }
    }
    bool sospetto(std::span<const std::byte> r) const {
        for (const Pezzo& t : testi_)
            if (testo_sospetto(r.data() + t.posto, t.lungo)) return true;
        for (const Pezzo& d : doppi_)
            if (doppi_sospetti(r.data() + d.posto, d.lungo)) return true;
        return false;
    }

  private:
    struct Pezzo {
        std::size_t posto = 0, lungo = 0;
    };
    static void unisci_pezzi(std::vector<Pezzo>& pezzi, std::size_t posto, std::size_t lungo) {
        if (!pezzi.empty() && pezzi.back().posto + pezzi.back().lungo == posto)
            pezzi.back().lungo += lungo;
        else
            pezzi.push_back({posto, lungo});
    }
    // The high bit of each byte that is below 32 or 255, of eight; a zero byte is a false alarm.
    static std::uint64_t fuori_dai_testi(const std::byte* p) {
        constexpr std::uint64_t kUni = 0x0101010101010101, kAlti = 0x8080808080808080;
        std::uint64_t w;
        std::memcpy(&w, p, sizeof w);
        return (((w - kUni * 32) & ~w) | ((~w - kUni) & w)) & kAlti;
    }
    static bool testo_sospetto(const std::byte* p, std::size_t n) {
        if (n < 8) return sporco(p, n);
        std::uint64_t male = fuori_dai_testi(p + n - 8);
        for (std::size_t i = 0; i + 8 <= n; i += 8) male |= fuori_dai_testi(p + i);
        return male != 0;
    }
    // Without their sign they stand in the order of their bits: a high bit is left by what lies above the
    // largest, and by what lies below the smallest and is no zero.
    static bool doppi_sospetti(const std::byte* p, std::size_t n) {
        constexpr auto kMinimo = std::bit_cast<std::uint64_t>(1e-9);
        constexpr auto kMassimo = std::bit_cast<std::uint64_t>(1e12) - 1;
        std::uint64_t male = 0;
        for (std::size_t i = 0; i < n; i += sizeof(Doppio)) {
            Doppio d;
            std::memcpy(&d, p + i, sizeof d);
            const std::uint64_t x = std::bit_cast<std::uint64_t>(static_cast<double>(d)) << 1 >> 1;
            male |= ((x - kMinimo) & ~(x - 1)) | (kMassimo - x);
        }
        return male >> 63 != 0;
    }

    std::vector<Pezzo> testi_, doppi_;
};

const Sguardo& sguardo_di(const FormatoRecord& forma) {
    static const std::vector<Sguardo> kTutti(formati_record().begin(), formati_record().end());
    return kTutti[static_cast<std::size_t>(&forma - formati_record().data())];
}

}  // namespace

std::string campo_n(std::string_view campo, std::size_t n) {
    return unisci(campo, "(", std::to_string(n), ")");
}

std::string leggibile(std::string_view s) {
    std::string r(s);
    for (char& c : r) {
        const auto u = static_cast<unsigned char>(c);
        if (u == 0) c = ' ';
        if ((u > 0 && u < 32) || u == 127) c = '.';
    }
    return std::string(rifila_destra(r));
}

bool data_vuota(std::string_view s) {
    if (s == "        ") return true;
    return std::all_of(s.begin(), s.end(), [](char c) { return c == ' ' || c == '\0' || c == '0'; });
}

std::optional<Data> data_registrata(std::string_view s, bool giorno_prima) {
    if (s.size() != 8) return {};
    for (const char c : s)
        if (!cifra(c)) return {};
    const auto n = [&](std::size_t da, std::size_t quante) {
        int v = 0;
        for (std::size_t i = da; i < da + quante; ++i) v = v * 10 + (s[i] - '0');
        return v;
    };
    const Data d = giorno_prima ? Data{n(0, 2), n(2, 2), n(4, 4)} : Data{n(6, 2), n(4, 2), n(0, 4)};
    if (d.anno < 100 || d.mese < 1 || d.mese > 12 || d.giorno < 1) return {};
    if (d.giorno > 28 && d.giorno > giorni_del_mese(d.mese, d.anno)) return {};
    return d;
}

void Cartella::campo_per_campo(std::string_view file, long n, std::span<const std::byte> record,
                               const FormatoRecord& forma, std::size_t marca) {
    for (const CampoRecord& c : forma.campi) {
        for (int k = 0; k < c.quanti; ++k) {
            const std::byte* p = record.data() + c.posto + static_cast<std::size_t>(k) * c.lungo;
            const auto nome_campo = [&] {
                return c.quanti == 1 ? std::string(c.nome)
                                     : campo_n(c.nome, static_cast<std::size_t>(k + c.primo));
            };
            if (c.tipo == CampoRecord::Tipo::testo) {
                const bool segnato =
                    static_cast<std::size_t>(p - record.data()) == marca && p[0] == std::byte{255};
                // An index that was rebuilt bears the mark of a deleted supplier twice.
                const std::size_t salta = !segnato ? 0 : p[1] == std::byte{255} ? 2 : 1;
                if (sporco(p + salta, c.lungo - salta))
                    avviso(file, n, nome_campo(), leggibile({reinterpret_cast<const char*>(p), c.lungo}),
                           "nessun carattere di controllo");
            } else if (c.tipo == CampoRecord::Tipo::doppio) {
                Doppio d;
                std::memcpy(&d, p, sizeof d);
                const double x = d;
                if (!(std::fabs(x) < 1e12))
                    errore(file, n, nome_campo(), testo_numero(x), "un importo possibile");
                else if (x != 0 && std::fabs(x) < 1e-9)
                    avviso(file, n, nome_campo(), "quasi zero", "0");
            }
        }
    }
}

void Cartella::generali(std::string_view file, long n, std::span<const std::byte> record,
                        const FormatoRecord& forma, std::size_t marca) {
    // One record in a million has something to tell: the fields are walked only then.
    if (sguardo_di(forma).sospetto(record)) campo_per_campo(file, n, record, forma, marca);
}

}  // namespace ambra
