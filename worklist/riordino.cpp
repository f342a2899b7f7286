// "Riordino": what it asks and says.
#include "archivio/riordino.h"

#include "core/lettura.h"
#include "core/numeri.h"
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

const char* stadio(EsitoRiordino e) {
    switch (e) {
        case EsitoRiordino::caricamento:
            return kCaricamento;
        case EsitoRiordino::ordinamento:
            return kRiordino;
        case EsitoRiordino::duplicazione:
            return kDuplicazione;
        case EsitoRiordino::apertura:
            return kApertura;
        case EsitoRiordino::salvataggio:
            return kSalvataggio;
        case EsitoRiordino::fatto:
        case EsitoRiordino::occupato:
            break;
    }
    return "";
}

}  // namespace

void Vexoraf::riordino() {
    prog.err.azzera();
    leggi_o_resta(prog.arc.tfr, 2, totali);
    auto esito = EsitoRiordino::fatto;
    if (prog.chiedi_prudente("Confermi il riordino?", "Riordino archivio")) {
        // The display draws in the middle of it: a second one must not start on the same file.
        const Attesa al_lavoro(*this);
        const Clessidra attesa(prog);
        esito = riordina(prog.arc, totali, fattura, [this] { prog.piattaforma.refresh(); });
    }
    if (esito == EsitoRiordino::fatto) return aggiornalista();
    if (esito == EsitoRiordino::occupato) return prog.riferisci_occupato();
    prog.ferma(unisci("Si è verificato l'errore"_it, testo_con_segno(prog.err.numero), stadio(esito),
                      kCodaMessaggio));
}

}  // namespace ambra
