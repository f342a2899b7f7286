// The accounts of a building: counters, chart, journal, and the balances that the journal gives.
#include <algorithm>
#include <array>
#include <cmath>

#include "core/numeri.h"
#include "core/testo.h"
#include "maintenance/verifica_cartella.h"
#include "records/condomino.h"
#include "records/conto.h"
#include "records/movimento.h"
#include "records/nome.h"
#include "records/totali.h"

namespace ambra {

namespace {

// Balances are rounded to the cent at every step.
constexpr double kRumore = 1e-6;
constexpr int kAddebiti = idconto(kVoceAddebiti, 1), kUltimoConto = kBaseContropartite;

std::string euro(double x) {
    return formatta(x, Formato::due_decimali);
}

class Conti {
  public:
    Conti(Cartella& c, Saputo& s) : c_(c), s_(s) { cambio_[1] = "1"; }

    void verifica() {
        s_.saldo.assign(kConti + 1, 0);
        s_.dai_movimenti.assign(kConti + 1, 0);
        const bool ha_totali = c_.apri(tot_, "tot", !c_.manca("pia") || !c_.manca("mov"));
        // Files made empty by the opening of the archive are a ledger that the suite has not begun.
        s_.vuoto = tot_.quanti() == 0;
        const bool ha_piano = c_.apri(pia_, "pia", !s_.vuoto), ha_giornale = c_.apri(mov_, "mov", !s_.vuoto);
        if (ha_totali && s_.vuoto && mov_.quanti() + pia_.quanti() > 0)
            c_.errore("tot", 0, "", "0 record", "1 record");
        if (!s_.vuoto) contatori();
        if (ha_piano && (!s_.vuoto || pia_.quanti() > 0)) piano();
        if (ha_giornale) giornale();
        if (!s_.vuoto && ha_giornale && ha_piano) saldi();
    }

  private:
    static constexpr long kNessuno = 1L << 30;
    // A count that is wrong is told once: what follows goes by the records that are there.
    void contatori() {
        if (tot_.quanti() != 1)
            c_.avviso("tot", 0, "", unisci(std::to_string(tot_.quanti()), " record"), "1 record");
        RecTotaliLedger t{};
        if (!leggi(tot_, 1, t)) return c_.illeggibile("tot", 1);
        long meno = kNessuno;
        for (const char* e : {"cnd", "cn2", "cns"}) {
            const long quanti = quanti_di(e);
            if (quanti < 0) continue;
            meno = std::min(meno, quanti);
            if (quanti != t.tcondomini)
                c_.errore("tot", 1, "tcondomini", std::to_string(int(t.tcondomini)),
                          unisci(std::to_string(quanti), " record di: ", c_.nome(e)));
        }
        if (mov_.aperto() && mov_.quanti() != t.tmovimenti)
            c_.errore("tot", 1, "tmovimenti", std::to_string(int(t.tmovimenti)),
                      unisci(std::to_string(mov_.quanti()), " record di: ", c_.nome("mov")));
        s_.condomini = meno == kNessuno ? 0 : meno;
    }

    // Records of a file of the condomini; -1 where there is none to count.
    long quanti_di(const char* estensione) {
        FileRecord f(c_.err, 0, formato_di_file(estensione)->lunghezza);
        return c_.apri(f, estensione, true) ? f.quanti() : -1;
    }

    void piano() {
        static const FormatoRecord& kForma = *formato_di_file("pia");
        if (pia_.quanti() != kConti)
            c_.errore("pia", 0, "", unisci(std::to_string(pia_.quanti()), " record"),
                      unisci(std::to_string(kConti), " record"));
        s_.conti = std::min<long>(pia_.quanti(), kConti);
        s_.conto_senza_nome.assign(static_cast<std::size_t>(s_.conti) + 1, 0);
        per_record<RecConto>(c_, pia_, "pia", s_.conti, [&](long n, const RecConto& r) {
            c_.generali("pia", n, std::as_bytes(std::span(&r, 1)), kForma);
            const auto i = static_cast<std::size_t>(n);
            s_.conto_senza_nome[i] = r.cnome.rifilato().empty();
            s_.saldo[i] = r.csaldo;
        });
    }

    void giornale() {
        static const FormatoRecord& kForma = *formato_di_file("mov");
        s_.addebiti.assign(static_cast<std::size_t>(s_.condomini) + 1, 0);
        const long quanti = mov_.quanti();
        s_.movimenti = Tavola(quanti);
        per_record<RecMovimento>(c_, mov_, "mov", quanti, [&](long n, const RecMovimento& m) {
            // A payment to a deleted supplier carries his name as it stands.
            c_.generali("mov", n, std::as_bytes(std::span(&m, 1)), kForma, offsetof(RecMovimento, mdesc));
            movimento(n, m);
        });
    }

    void movimento(long n, const RecMovimento& m) {
        const auto giorno = m.mdata.grezzo();
        char data[8] = {'2', '0'};
        std::memcpy(data + 2, giorno.data(), 6);
        const std::string_view quando(data, 8);
        if (!data_registrata(quando, false))
            c_.errore("mov", n, "mdata", leggibile(giorno), "una data aammgg");
        else if (s_.primo_giorno.empty() || quando < s_.primo_giorno)
            s_.primo_giorno = quando;
        ++s_.movimenti[in_centesimi(m.mimporto)];
        if (m.mimporto == 0) c_.avviso("mov", n, "mimporto", "0", "un importo");
        for (const auto& [campo, v] :
             {std::pair("zero1", &m.zero1), std::pair("zero2", &m.zero2), std::pair("zero3", &m.zero3)})
            if (*v != 0) c_.errore("mov", n, campo, std::to_string(int(*v)), "0");
        const int conto = m.mconto, contro = m.mcontrop;
        const bool singolo = conto >= kAddebiti;
        const bool conto_buono = conto >= 1 && conto <= kUltimoConto;
        if (!conto_buono)
            c_.errore("mov", n, "mconto", std::to_string(conto), "un conto del piano");
        else if (senza_nome(conto))
            c_.avviso("mov", n, "mconto", std::to_string(conto), "un conto con un nome");
        if (conto_buono && m.mtipo != (singolo ? 2 : 0))
            c_.errore("mov", n, "mtipo", std::to_string(int(m.mtipo)), singolo ? "2" : "0");
        if (contro < 1 || contro > kContiPerVoce)
            return c_.errore("mov", n, "mcontrop", std::to_string(contro), "da 1 a 99");
        const int chi = m.mcondomino;
        // How many they are is not known without the counters.
        if (chi < 0 || (!s_.vuoto && chi > s_.condomini) || (conto_buono && !singolo && chi != 0))
            c_.errore("mov", n, "mcondomino", std::to_string(chi),
                      singolo ? unisci("un condomino da 0 a ", std::to_string(s_.condomini)) : "0");
        if (!conto_buono) return;
        somma_in(s_.dai_movimenti[static_cast<std::size_t>(conto)], m.mimporto);
        somma_in(s_.dai_movimenti[static_cast<std::size_t>(kBaseContropartite + contro)], -m.mimporto);
        mosso_[static_cast<std::size_t>(kBaseContropartite + contro)] = true;
        if (singolo && chi > 0 && chi <= s_.condomini)
            somma_in(s_.addebiti[static_cast<std::size_t>(chi)], m.mimporto);
    }

    bool senza_nome(int conto) const {
        const auto i = static_cast<std::size_t>(conto);
        return i < s_.conto_senza_nome.size() && s_.conto_senza_nome[i];
    }
    void somma_in(double& saldo, double x) const { saldo = arrotonda(cambio_, saldo + x); }

    // An expense account starts the year at 0, so the journal tells its balance. A counter-account may have
    // been opened with a balance of its own: without a movement nothing is known of it.
    void saldi() {
        for (int conto = 1; conto <= s_.conti; ++conto) {
            const auto i = static_cast<std::size_t>(conto);
            if (conto > kBaseContropartite && !mosso_[i]) continue;
            if (std::fabs(s_.saldo[i] - s_.dai_movimenti[i]) < kRumore) continue;
            s_.saldi_diversi = true;
            c_.avviso("pia", conto, "csaldo", euro(s_.saldo[i]),
                      unisci(euro(s_.dai_movimenti[i]), " dalla somma dei movimenti"));
        }
    }

    Cartella& c_;
    Saputo& s_;
    Cambio cambio_;
    FileDi<RecConto> pia_{c_.err, 3};
    FileDi<RecMovimento> mov_{c_.err, 4};
    FileDi<RecTotaliLedger> tot_{c_.err, 15};
    std::array<bool, kConti + 1> mosso_{};  // by record number of the chart
};

}  // namespace

void verifica_conti(Cartella& c, Saputo& s) {
    Conti(c, s).verifica();
}

}  // namespace ambra
