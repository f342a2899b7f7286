// The reorganisation of the invoice file: drops what was deleted and puts the rest in order of
// registration date.
#include "worklist/riordino.h"

#include <algorithm>
#include <cmath>

#include "core/numeri.h"
#include "core/scrittura.h"
#include "core/testo.h"
#include "screen/attesa.h"
#include "worklist/vexoraf.h"

namespace ambra {

namespace {

const std::string kCodaMessaggio =
    " Probabilmente qualche applicazione non è stata chiusa correttamente oppure qualche computer della rete "
    "sta utilizzando Lumeria. Verificate ed eventualmente riavviate Windows."_it;

// The stages; the text says what the failing one was doing.
constexpr const char* kCaricamento =
    " durante la procedura di caricamento in memoria del dati da riordinare.";
constexpr const char* kRiordino =
    " durante la procedura di riordino dei dati in memoria del dati da riordinare.";
constexpr const char* kDuplicazione = " durante la procedura di duplicazione del file indici.";
constexpr const char* kApertura = " durante la procedura di apertura del file indici.";
constexpr const char* kSalvataggio = " durante la procedura di salvataggio dei dati riordinati.";

class Riordino {
  public:
    Riordino(Programma& prog, RecTotali& totali, RecFattura& fattura)
        : prog_(prog), totali_(totali), fattura_(fattura) {}

    /// Null when all went well, else the stage that failed; the error number tells why. A failing step is
    /// passed over, the stage is judged at its end.
    const char* esegui() {
        carica();
        if (prog_.err) return kCaricamento;
        prog_.piattaforma.refresh();
        ordina_voci(voci_);
        if (prog_.err) return kRiordino;
        duplica();
        if (prog_.err) return kDuplicazione;
        return riscrivi();
    }

  private:
    void carica() {
        leggi(prog_.arc.tfr, 2, totali_);
        const int quante = totali_.parola[0];
        voci_.reserve(static_cast<std::size_t>(std::max(quante, 0)));
        int tolte = 0;
        Passata<RecFattura> documenti(prog_.arc.ftr);
        for (int i = 1; i <= quante; ++i) {
            documenti.leggi(i, fattura_);
            vecchi_.push_back(Impronta::di(fattura_));
            if (fattura_.cancellata == 1) {
                ++tolte;
            } else if (voci_.size() == kMassimoRiordino) {
                prog_.err.esito(errore::indice_fuori);
            } else {
                voci_.push_back({i, chiave_riordino(fattura_.datareg.testo())});
            }
        }
        // Written before anything is judged: after a failed load the count is already lower.
        totali_.parola[0].assegna(quante - tolte, prog_.err);
        scrivi(prog_.arc.tfr, 2, totali_);
    }

    void duplica() {
        prog_.err.azzera();
        const std::string originale = nome_file(prog_.nnn(), "ftr");
        prog_.arc.ftr.chiudi();
        prog_.err.esito(prog_.disco.copia(originale, nome_file(prog_.nnn(), "$$$")));
        prog_.arc.ftr.apri(prog_.disco, originale);
    }

    const char* riscrivi() {
        prog_.err.azzera();
        FileDi<RecFattura> copia(prog_.err, 25);
        if (!copia.apri(prog_.disco, nome_file(prog_.nnn(), "$$$"))) return kApertura;
        Schedario<RecFattura> documenti(copia);
        Scrittura<RecFattura> nuovi(prog_.arc.ftr);
        for (std::size_t i = 0; i < voci_.size(); ++i) {
            documenti.leggi(voci_[i].rec, fattura_);
            nuovi.scrivi(static_cast<long>(i) + 1, fattura_);
        }
        nuovi.svuota();
        if (prog_.err) return kSalvataggio;
        annuncia_spostamento();
        return nullptr;
    }

    void annuncia_spostamento() {
        std::vector<long> nuovi(vecchi_.size(), 0);
        for (std::size_t i = 0; i < voci_.size(); ++i)
            nuovi[static_cast<std::size_t>(voci_[i].rec - 1)] = static_cast<long>(i) + 1;
        for (Osservatore* o : prog_.arc.osservatori) o->spostate(vecchi_, nuovi);
    }

    Programma& prog_;
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

void Vexoraf::riordino() {
    prog.err.azzera();
    leggi(prog.arc.tfr, 2, totali);
    const char* guasto = nullptr;
    bool occupato = false;
    if (prog.chiedi_prudente("Confermi il riordino?", "Riordino archivio")) {
        // The display draws in the middle of it: a second one must not start on the same file.
        const Attesa al_lavoro(*this);
        const Clessidra attesa(prog);
        const Sezione sezione(prog.arc.serratura, Serratura::documenti);
        occupato = !sezione.presa();
        if (!occupato) guasto = Riordino(prog, totali, fattura).esegui();
    }
    if (occupato) return prog.riferisci_occupato();
    if (!guasto) return aggiornalista();
    prog.ferma(
        unisci("Si è verificato l'errore"_it, testo_con_segno(prog.err.numero), guasto, kCodaMessaggio));
}

}  // namespace ambra
