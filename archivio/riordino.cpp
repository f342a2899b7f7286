#include "archivio/riordino.h"

#include <algorithm>
#include <cmath>

#include "core/lettura.h"
#include "core/numeri.h"
#include "core/scrittura.h"

namespace ambra {

namespace {

class Riordino {
  public:
    Riordino(Archivio& arc, RecTotali& totali, RecFattura& fattura)
        : arc_(arc), totali_(totali), fattura_(fattura) {}

    EsitoRiordino esegui(const std::function<void()>& avanti) {
        carica();
        if (arc_.err) return EsitoRiordino::caricamento;
        avanti();
        ordina_voci(voci_);
        if (arc_.err) return EsitoRiordino::ordinamento;
        duplica();
        if (arc_.err) return EsitoRiordino::duplicazione;
        return riscrivi();
    }

  private:
    void carica() {
        leggi_o_resta(arc_.tfr, 2, totali_);
        const int quante = totali_.parola[0];
        voci_.reserve(static_cast<std::size_t>(std::max(quante, 0)));
        int tolte = 0;
        Passata<RecFattura> documenti(arc_.ftr);
        for (int i = 1; i <= quante; ++i) {
            leggi_o_resta(documenti, i, fattura_);
            vecchi_.push_back(Impronta::di(fattura_));
            if (fattura_.cancellata == 1) {
                ++tolte;
            } else if (voci_.size() == kMassimoRiordino) {
                arc_.err.esito(errore::indice_fuori);
            } else {
                voci_.push_back({i, chiave_riordino(fattura_.datareg.testo())});
            }
        }
        // Written before anything is judged: after a failed load the count is already lower.
        totali_.parola[0].assegna(quante - tolte, arc_.err);
        scrivi(arc_.tfr, 2, totali_);
    }

    void duplica() {
        arc_.err.azzera();
        const std::string originale = nome_file(arc_.nnn, "ftr");
        arc_.ftr.chiudi();
        arc_.err.esito(arc_.disco->copia(originale, nome_file(arc_.nnn, "$$$")));
        arc_.ftr.apri(*arc_.disco, originale);
    }

    EsitoRiordino riscrivi() {
        arc_.err.azzera();
        FileDi<RecFattura> copia(arc_.err, 25);
        if (!copia.apri(*arc_.disco, nome_file(arc_.nnn, "$$$"))) return EsitoRiordino::apertura;
        Schedario<RecFattura> documenti(copia);
        Scrittura<RecFattura> nuovi(arc_.ftr);
        for (std::size_t i = 0; i < voci_.size(); ++i) {
            leggi_o_resta(documenti, voci_[i].rec, fattura_);
            nuovi.scrivi(static_cast<long>(i) + 1, fattura_);
        }
        nuovi.svuota();
        if (arc_.err) return EsitoRiordino::salvataggio;
        annuncia_spostamento();
        return EsitoRiordino::fatto;
    }

    void annuncia_spostamento() {
        std::vector<long> nuovi(vecchi_.size(), 0);
        for (std::size_t i = 0; i < voci_.size(); ++i)
            nuovi[static_cast<std::size_t>(voci_[i].rec - 1)] = static_cast<long>(i) + 1;
        for (Osservatore* o : arc_.osservatori) o->spostate(vecchi_, nuovi);
    }

    Archivio& arc_;
    RecTotali& totali_;
    RecFattura& fattura_;
    std::vector<VoceRiordino> voci_;
    std::vector<Impronta> vecchi_;  ///< every document before the reorganisation, by its record
};

}  // namespace

long chiave_riordino(std::string_view datareg) {
    return std::lrint(leggi_numero(datareg));
}

void ordina_voci(std::vector<VoceRiordino>& voci) {
    std::stable_sort(voci.begin(), voci.end(),
                     [](const VoceRiordino& a, const VoceRiordino& b) { return a.chiave < b.chiave; });
}

EsitoRiordino riordina(Archivio& arc, RecTotali& totali, RecFattura& fattura,
                       const std::function<void()>& avanti) {
    const Sezione sezione(arc.serratura, Serratura::documenti);
    if (!sezione.presa()) return EsitoRiordino::occupato;
    return Riordino(arc, totali, fattura).esegui(avanti);
}

}  // namespace ambra
