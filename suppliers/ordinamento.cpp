#include "suppliers/ordinamento.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <vector>

#include "archivio/fornitore.h"
#include "core/lettura.h"
#include "core/testo.h"

namespace ambra {

namespace {

int confronta(const RecNome& a, const RecNome& b) {
    return std::memcmp(a.nome.b, b.nome.b, sizeof a.nome.b);
}

// Each name as the rank of its text among all (equal texts, equal rank) above its present place: what the
// many comparisons of the shell sort then need is one number.
std::vector<std::uint64_t> gradi(std::span<const RecNome> nomi) {
    struct Voce {
        std::uint64_t inizio;
        std::uint32_t posto;
    };
    std::vector<Voce> voci(nomi.size());
    for (std::size_t i = 0; i < nomi.size(); ++i) {
        std::uint64_t k = 0;
        for (std::size_t b = 0; b < 8; ++b) k = k << 8 | static_cast<unsigned char>(nomi[i].nome.b[b]);
        voci[i] = {k, static_cast<std::uint32_t>(i)};
    }
    std::sort(voci.begin(), voci.end(), [&](const Voce& a, const Voce& b) {
        return a.inizio != b.inizio ? a.inizio < b.inizio : confronta(nomi[a.posto], nomi[b.posto]) < 0;
    });
    std::vector<std::uint64_t> r(nomi.size());
    std::uint64_t grado = 0;
    for (std::size_t i = 0; i < voci.size(); ++i) {
        if (i > 0 && confronta(nomi[voci[i - 1].posto], nomi[voci[i].posto]) != 0) ++grado;
        r[voci[i].posto] = grado << 32 | voci[i].posto;
    }
    return r;
}

// The exchanges of one gap. To let a name sink below all that are above it is what exchanging it step by
// step does.
void passata_di(std::vector<std::uint64_t>& v, std::size_t passo) {
    for (std::size_t i = passo; i < v.size(); ++i) {
        const std::uint64_t qui = v[i];
        std::size_t j = i;
        for (; j >= passo && (v[j - passo] >> 32) > (qui >> 32); j -= passo) v[j] = v[j - passo];
        v[j] = qui;
    }
}

}  // namespace

int passate(int n) {
    return n < 1 ? 0 : static_cast<int>(std::bit_width(static_cast<unsigned>(n))) - 1;
}

void ordina_nomi(std::span<RecNome> nomi, const std::function<void(int)>& passata) {
    std::vector<std::uint64_t> v = gradi(nomi);
    std::size_t passo = nomi.size();
    const int quante = passate(static_cast<int>(nomi.size()));
    for (int p = 1; p <= quante; ++p) {
        if (passata) passata(p);
        passo /= 2;
        passata_di(v, passo);
    }
    const std::vector<RecNome> prima(nomi.begin(), nomi.end());
    for (std::size_t i = 0; i < v.size(); ++i) nomi[i] = prima[v[i] & 0xFFFFFFFF];
}

bool ordina_indice(FileDi<RecNome>& srf, int n, const std::function<void(int)>& passata) {
    if (n < 2) return true;
    std::vector<RecNome> nomi(static_cast<std::size_t>(n));
    if (!srf.leggi_blocco(1, std::as_writable_bytes(std::span(nomi)))) return false;
    const std::vector<RecNome> prima = nomi;
    ordina_nomi(nomi, passata);

    const auto uguali = [&](std::size_t i) { return std::memcmp(&nomi[i], &prima[i], sizeof(RecNome)) == 0; };
    std::size_t da = 0, a = nomi.size();
    while (da < a && uguali(da)) ++da;
    while (a > da && uguali(a - 1)) --a;
    if (da == a) return true;
    return srf.scrivi_blocco(static_cast<long>(da) + 1, std::as_bytes(std::span(nomi).subspan(da, a - da)));
}

void ordina_indice(Archivio& arc, int n, const std::function<void(int)>& passata) {
    segna_disordine(arc, !ordina_indice(arc.srf, n, passata));
}

void rifai_indice(Archivio& arc, int n, RecFornitore fornitore, const std::function<void(int)>& scritto) {
    Passata<RecFornitore> schede(arc.fornitori);
    std::vector<RecNome> nomi(n < 1 ? 0 : static_cast<std::size_t>(n));
    for (int i = 1; i <= n; ++i) {
        if (scritto) scritto(i);
        leggi_o_resta(schede, i, fornitore);
        RecNome& r = nomi[static_cast<std::size_t>(i - 1)];
        r.nome = maiuscolo(fornitore.cancellata == 1 ? nome_marcato(fornitore) : fornitore.inte1.testo());
        r.numero = i;
    }
    if (!nomi.empty()) arc.srf.scrivi_blocco(1, std::as_bytes(std::span(nomi)));
}

}  // namespace ambra
