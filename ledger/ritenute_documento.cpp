#include "ledger/ritenute_documento.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

#include "core/decimale.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr double kEuroMassimi = 1e9;
constexpr Centesimi kFattoreSicuro = 1'000'000'000;  // twice the product of two of these is still whole
constexpr std::size_t kCodiceFiscale = 16;

// `quanto` × `parte` / `tutto`, half up.
Centesimi porzione(Centesimi quanto, Centesimi parte, Centesimi tutto) {
    if (parte == tutto) return quanto;
    if (tutto <= 0) return 0;
    if (std::abs(quanto) < kFattoreSicuro && std::abs(parte) < kFattoreSicuro) {
        const Centesimi doppio = 2 * quanto * parte;
        return (doppio < 0 ? doppio - tutto : doppio + tutto) / (2 * tutto);
    }
    const auto di = [](Centesimi c) { return Decimale::di_centesimi(c); };
    return per_su(di(quanto), di(parte), di(tutto)).centesimi();
}

// Letters of Windows-1252 with an accent stand from 0xC0 on.
bool lettera(char c) {
    const auto u = static_cast<unsigned char>(c);
    return (u >= '0' && u <= '9') || (u >= 'A' && u <= 'Z') || u >= 0xC0;
}

// A word that ends in a point or begins with a sign is bounded by that.
bool contiene_parola(std::string_view nome, std::string_view parola) {
    for (std::size_t p = nome.find(parola); p != nome.npos; p = nome.find(parola, p + 1)) {
        const std::size_t dopo = p + parola.size();
        const bool inizia = p == 0 || !lettera(parola.front()) || !lettera(nome[p - 1]);
        const bool finisce = dopo == nome.size() || !lettera(parola.back()) || !lettera(nome[dopo]);
        if (inizia && finisce) return true;
    }
    return false;
}

bool societa_di_persone(const RecFornitore& f) {
    const std::string nome = maiuscolo(unisci(f.inte1.rifilato(), " ", f.inte2.rifilato()));
    constexpr std::string_view kParole[] = {"SNC", "S.N.C.", "SAS", "S.A.S.", "& C."};
    return std::any_of(std::begin(kParole), std::end(kParole),
                       [&](std::string_view p) { return contiene_parola(nome, p); });
}

}  // namespace

Centesimi centesimi(double euro) {
    return std::abs(euro) < kEuroMassimi ? std::llround(euro * 100) : 0;
}

std::optional<Data> data_memorizzata(const Testo<8>& d) {
    const auto cifre = [&](std::size_t da, std::size_t a) {
        int n = 0;
        for (std::size_t i = da; i < a; ++i) n = n * 10 + (d.b[i] - '0');
        return n;
    };
    if (!std::all_of(d.b, d.b + 8, cifra)) return {};
    const Data r{cifre(0, 2), cifre(2, 4), cifre(4, 8)};
    if (r.anno < 1 || r.mese < 1 || r.mese > 12) return {};
    if (r.giorno < 1 || r.giorno > giorni_del_mese(r.mese, r.anno)) return {};
    return r;
}

PagamentiDocumento pagamenti(const RecFattura& f) {
    const auto giorno = [](const PagamentoRata& p) {
        return p.data ? (p.data->anno * 100 + p.data->mese) * 100 + p.data->giorno : 0;
    };
    PagamentiDocumento esito;
    esito.dovuto = centesimi(somma(f.sca));
    esito.pagato = centesimi(somma(f.ver));
    for (std::size_t k = 0; k < std::size(f.ver); ++k) {
        const double pagato = f.ver[k];
        if (pagato != 0 && centesimi(pagato) != 0)
            esito.rata[esito.quanti++] = {data_memorizzata(f.dver[k]), centesimi(pagato)};
    }
    if (esito.quanti > 1)
        std::ranges::stable_sort(esito.rata.begin(), esito.rata.begin() + static_cast<long>(esito.quanti), {},
                                 giorno);
    return esito;
}

std::array<Centesimi, 4> quote(const PagamentiDocumento& p, Centesimi quanto) {
    std::array<Centesimi, 4> esito{};
    Centesimi resto = quanto;
    for (std::size_t k = 0; k < p.quanti; ++k) {
        const bool ultima = k + 1 == p.quanti && p.saldato();
        const Centesimi parte = ultima ? resto : porzione(quanto, p.rata[k].pagato, p.dovuto);
        esito[k] = quanto >= 0 ? std::min(parte, resto) : std::max(parte, resto);
        resto -= esito[k];
    }
    return esito;
}

Famiglia famiglia(const RecFattura& f) {
    Centesimi imponibile = 0;
    for (std::size_t k = 0; k < std::size(f.rac); ++k)
        if (f.rac[k] != 0) imponibile += centesimi(f.impon[k]);
    // In hundredths of a cent, so that 4 % of the taxable amount is whole.
    const Centesimi differenza = centesimi(somma(f.rac)) * 100 - imponibile * 4;
    return std::abs(differenza) <= 5'00 ? Famiglia::lavori : Famiglia::compensi;
}

Percettore percettore(const RecFornitore& f) {
    if (f.fisica == 1 || f.codfis.rifilato().size() == kCodiceFiscale) return {true, false};
    const bool di_persone = societa_di_persone(f);
    return {di_persone, di_persone};
}

CodiceTributo codice_tributo(Famiglia f, const Percettore& p) {
    if (f == Famiglia::compensi) return CodiceTributo::compensi;
    return p.persona ? CodiceTributo::persone : CodiceTributo::societa;
}

}  // namespace ambra
