// The accounts of a building: chart, journal, condomini; balances, thousandths and shares worked out anew.
#include <algorithm>
#include <array>
#include <cmath>

#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/quote.h"
#include "maintenance/verifica_cartella.h"
#include "records/condomino.h"
#include "records/conto.h"
#include "records/movimento.h"
#include "records/nome.h"
#include "records/totali.h"

namespace ambra {

namespace {

// Balances are rounded to the cent at every step, thousandths typed with few decimals.
constexpr double kRumore = 1e-6;
constexpr int kAddebiti = idconto(kVoceAddebiti, 1), kUltimoConto = kBaseContropartite;

bool diverso(double a, double b) {
    return !(std::fabs(a - b) < kRumore);
}
std::string euro(double x) {
    return formatta(x, Formato::due_decimali);
}

class Conti {
  public:
    Conti(Cartella& c, QuantiRecord& q) : c_(c), q_(q) { cambio_[1] = "1"; }

    void verifica() {
        const bool ha_piano = c_.apri(pia_, "pia", false), ha_giornale = c_.apri(mov_, "mov", false);
        const bool ha_totali = c_.apri(tot_, "tot", ha_piano || ha_giornale);
        const bool ha_condomini = c_.apri(cnd_, "cnd", ha_totali);
        c_.apri(cn2_, "cn2", ha_totali);
        c_.apri(cns_, "cns", ha_totali);
        // Files made empty by the opening of the archive are a ledger that the suite has not begun.
        const bool vuoto = tot_.quanti() == 0;
        if (ha_totali && vuoto && cnd_.quanti() + mov_.quanti() + pia_.quanti() > 0)
            c_.errore("tot", 0, "", "0 record", "1 record");
        if (!vuoto) contatori();
        if (ha_piano && (!vuoto || pia_.quanti() > 0)) piano();
        if (ha_giornale) giornale();
        if (!vuoto && ha_giornale && ha_piano) saldi();
        if (!vuoto && ha_condomini) condomini();
    }

  private:
    void contatori() {
        if (tot_.quanti() != 1)
            c_.avviso("tot", 0, "", unisci(std::to_string(tot_.quanti()), " record"), "1 record");
        RecTotaliLedger t{};
        if (!leggi(tot_, 1, t)) return c_.illeggibile("tot", 1);
        quanti_ = std::max<int>(t.tcondomini, 0);
        movimenti_ = std::max<int>(t.tmovimenti, 0);
        for (FileRecord* f : std::initializer_list<FileRecord*>{&cnd_, &cn2_, &cns_})
            if (f->quanti() != t.tcondomini)
                c_.errore("tot", 1, "tcondomini", std::to_string(int(t.tcondomini)),
                          unisci(std::to_string(f->quanti()), " record di ",
                                 c_.nome(f == &cnd_   ? "cnd"
                                         : f == &cn2_ ? "cn2"
                                                      : "cns")));
        if (mov_.quanti() != t.tmovimenti)
            c_.errore("tot", 1, "tmovimenti", std::to_string(int(t.tmovimenti)),
                      unisci(std::to_string(mov_.quanti()), " record di ", c_.nome("mov")));
        quanti_ = std::min({quanti_, cnd_.quanti(), cn2_.quanti()});
        movimenti_ = std::min(movimenti_, mov_.quanti());
    }

    void piano() {
        static const FormatoRecord& kForma = *formato_di_file("pia");
        if (pia_.quanti() != kConti)
            c_.errore("pia", 0, "", unisci(std::to_string(pia_.quanti()), " record"),
                      unisci(std::to_string(kConti), " record"));
        q_.conti = std::min<long>(pia_.quanti(), kConti);
        q_.conto_senza_nome.assign(static_cast<std::size_t>(q_.conti) + 1, 0);
        per_record<RecConto>(c_, pia_, "pia", q_.conti, [&](long n, const RecConto& r) {
            c_.generali("pia", n, std::as_bytes(std::span(&r, 1)), kForma);
            const auto i = static_cast<std::size_t>(n);
            q_.conto_senza_nome[i] = r.cnome.rifilato().empty();
            saldo_[i] = r.csaldo;
        });
    }

    void giornale() {
        static const FormatoRecord& kForma = *formato_di_file("mov");
        addebiti_.assign(static_cast<std::size_t>(quanti_) + 1, 0);
        per_record<RecMovimento>(c_, mov_, "mov", movimenti_, [&](long n, const RecMovimento& m) {
            // A payment to a deleted supplier carries his name as it stands.
            c_.generali("mov", n, std::as_bytes(std::span(&m, 1)), kForma, offsetof(RecMovimento, mdesc));
            movimento(n, m);
        });
    }

    void movimento(long n, const RecMovimento& m) {
        const auto giorno = m.mdata.grezzo();
        char data[8] = {'2', '0'};
        std::memcpy(data + 2, giorno.data(), 6);
        if (!data_registrata({data, 8}, false))
            c_.errore("mov", n, "mdata", leggibile(giorno), "una data aammgg");
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
        if (chi < 0 || chi > quanti_ || (conto_buono && !singolo && chi != 0))
            c_.errore("mov", n, "mcondomino", std::to_string(chi),
                      singolo ? unisci("da 0 a ", std::to_string(quanti_)) : "0");
        if (!conto_buono) return;
        somma_in(dai_movimenti_[static_cast<std::size_t>(conto)], m.mimporto);
        somma_in(dai_movimenti_[static_cast<std::size_t>(kBaseContropartite + contro)], -m.mimporto);
        mosso_[static_cast<std::size_t>(kBaseContropartite + contro)] = true;
        if (singolo && chi > 0 && chi <= quanti_)
            somma_in(addebiti_[static_cast<std::size_t>(chi)], m.mimporto);
    }

    bool senza_nome(int conto) const {
        const auto i = static_cast<std::size_t>(conto);
        return i < q_.conto_senza_nome.size() && q_.conto_senza_nome[i];
    }
    void somma_in(double& saldo, double x) const { saldo = arrotonda(cambio_, saldo + x); }

    // An expense account starts the year at 0, so the journal tells its balance. A counter-account may have
    // been opened with a balance of its own: without a movement nothing is known of it.
    void saldi() {
        for (int conto = 1; conto <= q_.conti; ++conto) {
            const auto i = static_cast<std::size_t>(conto);
            if (conto > kBaseContropartite && !mosso_[i]) continue;
            if (diverso(saldo_[i], dai_movimenti_[i]))
                c_.avviso("pia", conto, "csaldo", euro(saldo_[i]),
                          unisci(euro(dai_movimenti_[i]), " dalla somma dei movimenti"));
        }
    }

    void condomini() {
        SaldiVoci voci;
        const bool tabella = leggi_tabella(voci);
        for (int j = 1; j <= kVociSpesa; ++j)
            for (int k = 1; k <= kContiPerVoce; ++k)
                voci.saldo[static_cast<std::size_t>(j)] += saldo_[static_cast<std::size_t>(idconto(j, k))];
        std::array<double, kVociSpesa + 1> millesimi{};
        static const FormatoRecord& kForma = *formato_di_file("cnd");
        static const FormatoRecord& kForma2 = *formato_di_file("cn2");
        Passata<RecCondomino2> seconde(cn2_);
        per_record<RecCondomino>(c_, cnd_, "cnd", quanti_, [&](long n, const RecCondomino& r) {
            const RecCondomino2* r2 = seconde.vista(n);
            if (!r2) return c_.illeggibile("cn2", n);
            c_.generali("cnd", n, std::as_bytes(std::span(&r, 1)), kForma);
            c_.generali("cn2", n, std::as_bytes(std::span(r2, 1)), kForma2);
            for (std::size_t j = 1; j <= kVociSpesa; ++j)
                millesimi[j] += j <= 20 ? r.dmill[j - 1] : r2->dmill[j - 21];
            condomino(n, r, *r2, tabella ? &voci : nullptr);
        });
        if (tabella) totali_millesimi(voci, millesimi);
        ordine();
    }

    void condomino(long n, const RecCondomino& r, const RecCondomino2& r2, const SaldiVoci* voci) {
        if (r.dnome.rifilato().empty()) c_.avviso("cnd", n, "dnome", "", "un nome");
        if ((r2.dperiodo == 1 || r2.dperiodo == 2) && (r2.dgiorni < 0 || r2.dgiorni > 366))
            c_.errore("cn2", n, "dgiorni", std::to_string(int(r2.dgiorni)), "da 0 a 366");
        const auto i = static_cast<std::size_t>(n);
        if (i < addebiti_.size() && diverso(r.daddebiti, addebiti_[i]))
            c_.avviso("cnd", n, "daddebiti", euro(r.daddebiti),
                      unisci(euro(addebiti_[i]), " dalla somma dei movimenti"));
        if (!voci) return;
        const double quota = quota_condomino(cambio_, *voci, r, r2);
        if (r.dquota != quota) c_.errore("cnd", n, "dquota", testo_numero(r.dquota), testo_numero(quota));
    }

    bool leggi_tabella(SaldiVoci& voci) {
        TabellaVoci t;
        c_.err.azzera();
        if (!carica_voci(c_.disco(), c_.err, c_.nnn(), t)) {
            const bool corta = c_.err.numero == errore::oltre_la_fine;
            c_.errore("tab", 0, "", corta ? "meno di 654 righe" : "non si legge", "654 righe");
            return false;
        }
        for (int j = 1; j <= kVociSpesa; ++j) {
            const auto i = static_cast<std::size_t>(j);
            voci.totale[i] = t.totale(j);
            if (puliscitesto(t.nome(j)).size() != t.nome(j).size())
                c_.avviso("tab", (j - 1) * 15 + 1, "", leggibile(t.nome(j)), "nessun carattere di controllo");
            double v;
            std::size_t fine;
            const auto s = rifila(t.riga[i][2]);
            if (!s.empty() && (!inizia_numero(s, v, fine) || fine != s.size()))
                c_.avviso("tab", (j - 1) * 15 + 3, "", leggibile(s), "un numero");
        }
        return true;
    }

    void totali_millesimi(const SaldiVoci& voci, const std::array<double, kVociSpesa + 1>& somme) {
        if (quanti_ == 0) return;
        for (std::size_t j = 1; j <= kVociSpesa; ++j)
            if (diverso(voci.totale[j], somme[j]))
                c_.avviso("tab", (static_cast<long>(j) - 1) * 15 + 3, "", testo_numero(voci.totale[j]),
                          unisci(testo_numero(somme[j]), ", la somma dei millesimi dei condomini"));
    }

    void ordine() {
        static const FormatoRecord& kForma = *formato_di_file("cns");
        std::vector<char> visto(static_cast<std::size_t>(quanti_) + 1);
        per_record<RecNome>(c_, cns_, "cns", std::min(quanti_, cns_.quanti()), [&](long i, const RecNome& r) {
            c_.generali("cns", i, std::as_bytes(std::span(&r, 1)), kForma);
            const int n = r.numero;
            if (n < 1 || n > quanti_)
                c_.errore("cns", i, "numero", std::to_string(n), unisci("da 1 a ", std::to_string(quanti_)));
            else if (visto[static_cast<std::size_t>(n)]++)
                c_.errore("cns", i, "numero", std::to_string(n), "un condomino non ancora elencato");
        });
    }

    Cartella& c_;
    QuantiRecord& q_;
    Cambio cambio_;
    FileDi<RecCondomino> cnd_{c_.err, 1};
    FileDi<RecNome> cns_{c_.err, 2};
    FileDi<RecConto> pia_{c_.err, 3};
    FileDi<RecMovimento> mov_{c_.err, 4};
    FileDi<RecCondomino2> cn2_{c_.err, 5};
    FileDi<RecTotaliLedger> tot_{c_.err, 15};
    long quanti_ = 0, movimenti_ = 0;
    // By record number of the chart.
    std::array<double, kConti + 1> saldo_{}, dai_movimenti_{};
    std::array<bool, kConti + 1> mosso_{};
    std::vector<double> addebiti_;
};

}  // namespace

void verifica_conti(Cartella& c, QuantiRecord& q) {
    Conti(c, q).verifica();
}

}  // namespace ambra
