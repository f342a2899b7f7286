#include "ledger/scadenze_ritenute.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <tuple>
#include <unordered_map>

#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

class Lettura {
  public:
    explicit Lettura(Archivio& arc) : arc_(arc), schede_(arc.fornitori) {}

    ScadenzeRitenute tutto() {
        const int quante = quante_fatture(arc_);
        // Room at once: thirty thousand documents are not moved from room to room.
        s_.documenti.reserve(static_cast<std::size_t>(std::max(quante, 0)));
        s_.pagamenti.reserve(static_cast<std::size_t>(std::max(quante, 0)));
        Passata<RecFattura> passata(arc_.ftr);
        for (int n = 1; n <= quante; ++n)
            if (const RecFattura* f = passata.vista(n)) documento(n, *f);
        in_termini();
        segna_interi();
        in_righe();
        return std::move(s_);
    }

  private:
    void documento(long record, const RecFattura& f) {
        const Centesimi ritenuta = centesimi(somma(f.rac));
        if (ritenuta == 0) return;
        const PagamentiDocumento p = pagamenti(f);
        if (p.quanti == 0) return;
        const auto tasse = quote(p, ritenuta * segno(f));
        if (leggi_numero(f.dverrit.grezzo()) != 0)
            versato(f, p, tasse);
        else
            dovuto(record, f, p, tasse);
    }

    // In no list, but it counted until then; paid over on a day that nobody knows it never did.
    void versato(const RecFattura& f, const PagamentiDocumento& p, const std::array<Centesimi, 4>& tasse) {
        const std::optional<Data> quando = data_memorizzata(f.dverrit);
        if (!quando) return;
        for (std::size_t k = 0; k < p.quanti; ++k)
            if (p.rata[k].data && numero_mese(*quando) > numero_mese(*p.rata[k].data))
                versate_.push_back({*p.rata[k].data, famiglia(f), tasse[k], quando});
    }

    void dovuto(long record, const RecFattura& f, const PagamentiDocumento& p,
                const std::array<Centesimi, 4>& tasse) {
        DocumentoRitenuta d{record,      fornitore(f.numfor), f.numdoc,   f.datadoc,
                            famiglia(f), f.cancellata == 1,   p.saldato()};
        for (std::size_t k = 0; k < p.quanti; ++k) {
            const PagamentoRitenuta q{s_.documenti.size(), p.rata[k].data, p.rata[k].pagato * segno(f),
                                      tasse[k]};
            if (!q.data) {
                d.intero = false;
                s_.senza_data.push_back(q);
            } else if (q.ritenuta != 0) {
                s_.pagamenti.push_back(q);
            }
        }
        s_.documenti.push_back(d);
    }

    std::size_t fornitore(int numero) {
        const auto [posto, nuovo] = posti_.try_emplace(numero, s_.fornitori.size());
        if (nuovo) {
            const RecFornitore* f = schede_.vista(numero);
            s_.fornitori.push_back(f ? FornitoreRitenuta{nome_fornitore(*f), percettore(*f)}
                                     : FornitoreRitenuta{});
        }
        return posto->second;
    }

    // What was paid over stands behind the payments, matters in their years alone, and leaves the terms
    // again.
    void in_termini() {
        std::vector<Trattenuta> tutte;
        tutte.reserve(s_.pagamenti.size());
        std::set<int> anni;
        for (const PagamentoRitenuta& p : s_.pagamenti) {
            tutte.push_back({*p.data, s_.documento_di(p).famiglia, p.ritenuta});
            anni.insert(p.data->anno);
        }
        for (const Trattenuta& v : versate_)
            if (anni.contains(v.pagata.anno)) tutte.push_back(v);
        s_.termini = termini(tutte);
        for (Termine& t : s_.termini)
            std::erase_if(t.trattenute, [&](std::size_t i) {
                const bool versata = i >= s_.pagamenti.size();
                if (versata) t.importo -= tutte[i].ritenuta;
                return versata;
            });
        std::erase_if(s_.termini, [](const Termine& t) { return t.trattenute.empty(); });
    }

    void segna_interi() {
        std::vector<std::size_t> termine_di(s_.pagamenti.size());
        for (std::size_t t = 0; t < s_.termini.size(); ++t)
            for (const std::size_t i : s_.termini[t].trattenute) termine_di[i] = t;
        for (std::size_t i = 1; i < s_.pagamenti.size(); ++i)
            if (s_.pagamenti[i].documento == s_.pagamenti[i - 1].documento &&
                termine_di[i] != termine_di[i - 1])
                s_.documenti[s_.pagamenti[i].documento].intero = false;
    }

    // Two families may fall due on one day: their codes differ, and order the rows.
    void in_righe() {
        for (std::size_t t = 0; t < s_.termini.size(); ++t) {
            std::map<std::pair<CodiceTributo, int>, RigaRitenute> del_termine;
            for (const std::size_t i : s_.termini[t].trattenute) {
                const PagamentoRitenuta& p = s_.pagamenti[i];
                const DocumentoRitenuta& d = s_.documento_di(p);
                const CodiceTributo codice = codice_tributo(d.famiglia, s_.fornitore_di(d).percettore);
                RigaRitenute& r = del_termine[{codice, numero_mese(*p.data)}];
                r.importo += p.ritenuta;
                r.pagamenti.push_back(i);
            }
            for (auto& [chiave, r] : del_termine) {
                r.termine = t;
                std::tie(r.codice, r.mese) = chiave;
                s_.righe.push_back(std::move(r));
            }
        }
    }

    Archivio& arc_;
    Schedario<RecFornitore> schede_;
    std::unordered_map<int, std::size_t> posti_;  // of the suppliers, by record number
    std::vector<Trattenuta> versate_;
    ScadenzeRitenute s_;
};

}  // namespace

std::vector<std::size_t> ScadenzeRitenute::documenti_di(const std::vector<std::size_t>& quali) const {
    std::vector<std::size_t> esito;
    for (const std::size_t i : quali)
        if (const std::size_t d = pagamenti[i].documento; esito.empty() || esito.back() != d)
            esito.push_back(d);
    return esito;
}

std::string nome_fornitore(const RecFornitore& f) {
    return std::string(rifila(puliscitesto(f.inte1.testo())));
}

ScadenzeRitenute scadenze_ritenute(Archivio& arc) {
    return Lettura(arc).tutto();
}

}  // namespace ambra
