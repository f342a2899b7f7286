// The condomini of a building: their charges, thousandths and shares worked out anew, the order of their
// names.
#include <algorithm>
#include <array>
#include <cmath>

#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/quote.h"
#include "maintenance/verifica_cartella.h"
#include "records/condomino.h"
#include "records/conto.h"
#include "records/nome.h"

namespace ambra {

namespace {

// Thousandths are typed with few decimals.
constexpr double kRumore = 1e-6;

bool diverso(double a, double b) {
    return !(std::fabs(a - b) < kRumore);
}
std::string euro(double x) {
    return formatta(x, Formato::due_decimali);
}

class Condomini {
  public:
    Condomini(Cartella& c, Saputo& s) : c_(c), s_(s) { cambio_[1] = "1"; }

    void verifica() {
        // Whether they are there has been told with the counters.
        for (const auto& [f, e] : std::initializer_list<std::pair<FileRecord*, const char*>>{
                 {&cnd_, "cnd"}, {&cn2_, "cn2"}, {&cns_, "cns"}})
            f->apri(c_.disco(), c_.percorso(e), Apertura::lettura);
        if (!cnd_.aperto() || !cn2_.aperto()) return;
        const bool tabella = leggi_tabella(voci_);
        dai_movimenti_ = voci_;
        somma_voci(voci_, s_.saldo);
        somma_voci(dai_movimenti_, s_.dai_movimenti);
        std::array<double, kVociSpesa + 1> millesimi{};
        static const FormatoRecord& kForma = *formato_di_file("cnd");
        static const FormatoRecord& kForma2 = *formato_di_file("cn2");
        Passata<RecCondomino2> seconde(cn2_);
        per_record<RecCondomino>(c_, cnd_, "cnd", s_.condomini, [&](long n, const RecCondomino& r) {
            const RecCondomino2* r2 = seconde.vista(n);
            if (!r2) return c_.illeggibile("cn2", n);
            c_.generali("cnd", n, std::as_bytes(std::span(&r, 1)), kForma);
            c_.generali("cn2", n, std::as_bytes(std::span(r2, 1)), kForma2);
            for (std::size_t j = 1; j <= kVociSpesa; ++j)
                millesimi[j] += j <= 20 ? r.dmill[j - 1] : r2->dmill[j - 21];
            condomino(n, r, *r2);
            if (tabella && s_.conti > 0) quota(n, r, *r2);
        });
        if (tabella) totali_millesimi(voci_, millesimi);
        if (cns_.aperto()) ordine();
    }

  private:
    static void somma_voci(SaldiVoci& voci, const std::vector<double>& saldo) {
        for (int j = 1; j <= kVociSpesa; ++j)
            for (int k = 1; k <= kContiPerVoce; ++k)
                voci.saldo[static_cast<std::size_t>(j)] += saldo[static_cast<std::size_t>(idconto(j, k))];
    }

    void condomino(long n, const RecCondomino& r, const RecCondomino2& r2) {
        if (r.dnome.rifilato().empty()) c_.avviso("cnd", n, "dnome", "", "un nome");
        if ((r2.dperiodo == 1 || r2.dperiodo == 2) && (r2.dgiorni < 0 || r2.dgiorni > 366))
            c_.errore("cn2", n, "dgiorni", std::to_string(int(r2.dgiorni)), "da 0 a 366");
        const auto i = static_cast<std::size_t>(n);
        if (i < s_.addebiti.size() && diverso(r.daddebiti, s_.addebiti[i]))
            c_.avviso("cnd", n, "daddebiti", euro(r.daddebiti),
                      unisci(euro(s_.addebiti[i]), " dalla somma dei movimenti"));
    }

    // Where a balance is wrong the shares still follow the right one: that is the balance's finding alone.
    void quota(long n, const RecCondomino& r, const RecCondomino2& r2) {
        const double voluta = quota_condomino(cambio_, voci_, r, r2);
        if (r.dquota == voluta) return;
        if (s_.saldi_diversi && r.dquota == quota_condomino(cambio_, dai_movimenti_, r, r2)) return;
        c_.errore("cnd", n, "dquota", testo_numero(r.dquota),
                  unisci(testo_numero(voluta), " dai saldi dei conti"));
    }

    bool leggi_tabella(SaldiVoci& voci) {
        TabellaVoci t;
        c_.err.azzera();
        if (!carica_voci(c_.disco(), c_.err, c_.nnn(), t)) {
            const bool corta = c_.err.numero == errore::oltre_la_fine;
            const char* che = corta ? "meno di 654 righe" : c_.manca("tab") ? "manca" : "non si legge";
            c_.errore("tab", 0, "", che, "654 righe");
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
        if (s_.condomini == 0) return;
        for (std::size_t j = 1; j <= kVociSpesa; ++j)
            if (diverso(voci.totale[j], somme[j]))
                c_.avviso("tab", (static_cast<long>(j) - 1) * 15 + 3, "", testo_numero(voci.totale[j]),
                          unisci(testo_numero(somme[j]), ", la somma dei millesimi dei condomini"));
    }

    void ordine() {
        static const FormatoRecord& kForma = *formato_di_file("cns");
        std::vector<char> visto(static_cast<std::size_t>(s_.condomini) + 1);
        Schedario<RecCondomino> schede(cnd_);
        per_record<RecNome>(c_, cns_, "cns", s_.condomini, [&](long i, const RecNome& r) {
            c_.generali("cns", i, std::as_bytes(std::span(&r, 1)), kForma);
            const int n = r.numero;
            if (n < 1 || n > s_.condomini)
                return c_.errore("cns", i, "numero", std::to_string(n),
                                 unisci("da 1 a ", std::to_string(s_.condomini)));
            if (visto[static_cast<std::size_t>(n)]++)
                c_.errore("cns", i, "numero", std::to_string(n), "un condomino non ancora elencato");
            const RecCondomino* d = schede.vista(n);
            if (!d) return c_.illeggibile("cnd", n);
            if (maiuscolo(r.nome.rifilato()) != maiuscolo(d->dnome.rifilato()))
                c_.avviso("cns", i, "nome", leggibile(r.nome.grezzo()),
                          unisci("il nome del condomino: ", leggibile(d->dnome.grezzo())));
        });
    }

    Cartella& c_;
    Saputo& s_;
    Cambio cambio_;
    SaldiVoci voci_, dai_movimenti_;
    FileDi<RecCondomino> cnd_{c_.err, 1};
    FileDi<RecNome> cns_{c_.err, 2};
    FileDi<RecCondomino2> cn2_{c_.err, 5};
};

}  // namespace

void verifica_condomini(Cartella& c, Saputo& s) {
    if (!s.vuoto) Condomini(c, s).verifica();
}

}  // namespace ambra
