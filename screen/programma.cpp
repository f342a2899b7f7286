#include "screen/programma.h"

#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

Programma::Programma(Disco& d, Platform& p, std::string c)
    : disco(d), piattaforma(p), comando(std::move(c)), arc(err), schermi(*this) {}

Programma::~Programma() = default;

bool Programma::ha_stabile() const {
    return leggi_numero(comando) != 0;
}

void Programma::apriarchivi() {
    const std::string nnn = nnn_di(comando);
    ambra::apriarchivi(disco, arc, nnn, stabile, stabile2);
    stabili = nnn + " " + stabile.nome.testo();
}

int Programma::numero_stabile() const {
    return static_cast<int>(leggi_numero(nnn()));
}

std::string Programma::nome_stabile() const {
    return std::string(rifila(medio(stabili, 5)));
}

std::string Programma::anno_corrente() {
    return con_zeri(piattaforma.today().anno, 4);
}

bool Programma::chiedi(const std::string& testo, const std::string& titolo, Risposta prescelta) {
    return piattaforma.message_box(testo, titolo, Icona::domanda, Bottoni::si_no, prescelta) == Risposta::si;
}

void Programma::ferma(const std::string& testo, const std::string& titolo) {
    piattaforma.message_box(testo, titolo, Icona::stop, Bottoni::ok, Risposta::ok);
}

bool Programma::riferisci(DocumentoInMano::Esito esito) {
    using enum DocumentoInMano::Esito;
    if (esito == sparito) ferma("Il documento è cambiato in archivio: aggiornare l'elenco"_it);
    if (esito == occupato) riferisci_occupato();
    return esito == scritto;
}

bool Programma::riferisci(FornitoreInMano::Esito esito) {
    using enum FornitoreInMano::Esito;
    if (esito == un_altro) ferma("L'anagrafica è cambiata in archivio: ripetere la ricerca"_it);
    if (esito == occupato) riferisci_occupato();
    return esito == scritto;
}

void Programma::riferisci_occupato() {
    ferma("L'archivio è occupato da un altro programma: riprovare"_it);
}

void Programma::informa(const std::string& testo, const std::string& titolo) {
    piattaforma.message_box(testo, titolo, Icona::informazione, Bottoni::ok, Risposta::ok);
}

}  // namespace ambra
