// What the invoice screen stores: the checks, the record, the charge into the accounts, the deletion.
#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "invoices/lumftea.h"
#include "ledger/lumincx.h"

namespace ambra {

namespace {

template <std::size_t N, std::size_t M>
void copia_importi(Doppio (&dove)[N], const std::array<CampoTesto, M>& campi) {
    static_assert(N == M);
    for (std::size_t i = 0; i < N; ++i) dove[i] = leggi_numero(campi[i].testo());
}

double somma_campi(const std::array<CampoTesto, kRate>& sca) {
    double s = 0;
    for (const auto& c : sca) s += leggi_numero(c.testo());
    return s;
}

std::string aaaammgg(const CampoTesto& c) {
    return in_aaaammgg(rifila(c.testo()));
}

}  // namespace

// What is stored is what the fields held before the posting was shown.
void Lumftea::conferma() {
    prog.err.azzera();
    if (!date_valide()) return;
    RecFattura mia = documento_.visto(), fusa{};
    riempi_documento(mia);
    const auto campi = [&mia](RecFattura& f) { f = mia; };
    if (!prog.riferisci(documento_.anteprima(campi, fusa)) || !fornitore_ancora_lui()) return;
    if (!frazionamento_accettato()) return;
    if (!addebitata_ && da_addebitare(fusa)) {
        const EsitoAddebito esito = addebita_documento();
        if (esito == EsitoAddebito::non_iniziato) return;
        addebitata_ = esito == EsitoAddebito::memorizzato;
        if (!fornitore_ancora_lui()) return;  // the posting may have stood open for long
    }
    if (addebitata_) mia.addebita = "1";
    const Clessidra attesa(prog);
    const auto esito = documento_.scrivi(campi);
    if (!prog.riferisci(esito)) return;
    if (dopo_) dopo_(mia);
    chiudi();
}

// The supplier is read again. One who took the place of the supplier shown gets no document of his.
bool Lumftea::fornitore_ancora_lui() {
    RecFornitore ora = fornitore_.visto();
    if (fornitore_.ancora_lui(ora)) {
        fornitore_.vedi(fornitore_.record(), ora);
        return true;
    }
    if (!nuova() && fornitore_.record() == documento_.visto().numfor) return true;
    prog.ferma("L'anagrafica è cambiata in archivio: ripetere la ricerca"_it);
    return false;
}

bool Lumftea::rifiuta(const std::string& testo, Controllo& campo) {
    prog.ferma(testo);
    fuoco(campo);
    return false;
}

bool Lumftea::date_valide() {
    if (!data_valida(text1[0].testo())) return rifiuta("La data del documento non è valida"_it, text1[0]);
    if (!data_valida(text1[1].testo()))
        return rifiuta("La data di registrazione del documento non è valida"_it, text1[1]);
    for (std::size_t k = 0; k < kRate; ++k)
        if (!data_valida(dsca[k].testo()) && leggi_numero(sca[k].testo()) != 0)
            return rifiuta("Una o più date di scadenza non sono valide"_it, dsca[k]);
    return true;
}

// A document of a supplier is stored with the instalments as they stand, whatever their sum.
bool Lumftea::frazionamento_accettato() {
    if (fornitore_.record() != 0) return true;
    if (prog.arrotonda(somma_campi(sca)) == prog.arrotonda(totale_ - ritenuta_)) return true;
    return prog.chiedi(
        "Il frazionamento in scadenze non coincide con il totale della fattura al netto dell'eventuale "
        "ritenuta d'acconto. Continuare?",
        "Attenzione");
}

void Lumftea::riempi_documento(RecFattura& f) const {
    f.numfor = static_cast<int>(fornitore_.record());
    f.numdoc = Text2[0].testo();
    f.datadoc = aaaammgg(text1[0]);
    f.datareg = aaaammgg(text1[1]);
    for (std::size_t k = 0; k < kRate; ++k) f.dsca[k] = in_ggmmaaaa(dsca[k].testo());
    f.dscarit = in_ggmmaaaa(dsca[4].testo());
    f.dverrit = in_ggmmaaaa(dsca[5].testo());
    copia_importi(f.impon, impon);
    copia_importi(f.ivai, ivai);
    copia_importi(f.esent, esent);
    copia_importi(f.rac, rac);
    copia_importi(f.sca, sca);
    if (nuova()) riempi_pagamenti(f);
    f.tipodc = tipodc[0].scelta() ? 0 : 1;
    f.pdf = rifila(pdf.testo());
    f.modpag = Combo1.scelta();
    f.addebita = addebita.spuntata() ? "1" : "0";
    f.riporta = riporta[0].scelta() ? "0" : "1";
    f.cancellata = 0;
}

void Lumftea::riempi_pagamenti(RecFattura& f) const {
    const bool saldata = pagato.spuntata();
    for (std::size_t k = 0; k < kRate; ++k) {
        f.dver[k] = saldata ? f.dsca[k].grezzo() : "";
        f.ver[k] = saldata ? double(f.sca[k]) : 0;
    }
    f.pagata = saldata ? 1 : 0;
}

// Decided on the box as it would be stored, so that a charge made elsewhere meanwhile is not made again.
bool Lumftea::da_addebitare(const RecFattura& f) {
    if (f.addebita.grezzo() == "1" && !pagato.spuntata()) return false;
    return prog.chiedi("Addebitare immediatamente la fattura nella contabilità del condominio?"_it,
                       "Registrazione nuova fattura");
}

// Waits for the posting screen. What is charged is the sum of the instalments, the net of withholding.
EsitoAddebito Lumftea::addebita_documento() {
    const bool nota = !tipodc[0].scelta();
    const RecFornitore& f = fornitore_.visto();
    MovimentoUscita u;
    u.data = text1[1].testo();
    u.descrizione[0] = f.inte1.testo();
    u.descrizione[1] =
        descrizione_documento(nota, sinistra(Text2[0].testo(), sizeof(RecFattura::numdoc)), text1[0].testo());
    u.importo = somma_campi(sca) * (nota ? -1 : 1);
    u.contodefault = f.conto;
    u.singolo = !riporta[0].scelta();
    return ambra::addebita(*this, u);
}

void Lumftea::elimina() {
    prog.err.azzera();
    if (!prog.riferisci(documento_.ritrova())) return;
    if (!prog.chiedi_prudente("Sei proprio sicuro?", "Eliminazione fattura")) return;
    const Clessidra attesa(prog);
    if (prog.riferisci(documento_.elimina(DocumentoInMano::Contatori::prima_eliminazione))) chiudi();
}

// The new supplier is taken up at the next "Conferma".
void Lumftea::cambia_fornitore() {
    prog.statofattura = 1;
    prog.nuovafattura = 1;
    prog.recfornitore = static_cast<int>(fornitore_.record());
    prog.schermi.apri("lumftem");
}

void Lumftea::chiudi() {
    prog.freccia();
    prog.statofattura = 0;  // a picker that it opened has nobody to choose for any more
    prog.schermi.chiudi(nome());
}

}  // namespace ambra
