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

// While the posting is awaited the user may do anything else, with this screen too. The document confirmed is
// therefore kept apart, with its number: should the screen be given another document meanwhile, that one is
// left alone; deleted meanwhile, it stays deleted; confirmed once more, it is still one record.
void Lumftea::conferma() {
    prog.err.azzera();
    if (!date_valide() || !frazionamento_accettato()) return;
    leggi(prog.arc.tfr, 2, totali_);
    leggi(prog.arc.fornitori, prog.recfornitore, fornitore_);
    riempi_documento();

    RecFattura documento = fattura_;
    int record = prog.recfattura;
    const int apertura = apertura_;
    if (addebitata_ora()) documento.addebita = "1";
    if (apertura == apertura_) {
        documento.cancellata = int(fattura_.cancellata);
        if (registrata_ > 0) record = registrata_;
    }
    Clessidra attesa(prog);
    record = scrivi_documento(documento, record);
    if (apertura != apertura_) return;
    registrata_ = record;
    chiudi();
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
    if (prog.recfornitore != 0) return true;
    if (prog.arrotonda(somma_campi(sca)) == prog.arrotonda(totale_ - ritenuta_)) return true;
    return prog.chiedi(
        "Il frazionamento in scadenze non coincide con il totale della fattura al netto dell'eventuale "
        "ritenuta d'acconto. Continuare?",
        "Attenzione");
}

void Lumftea::riempi_documento() {
    RecFattura& f = fattura_;
    f.numfor = prog.recfornitore;
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
    if (nuova()) riempi_pagamenti();
    f.tipodc = tipodc[0].scelta() ? 0 : 1;
    f.pdf = rifila(pdf.testo());
    f.modpag = Combo1.scelta();
    f.addebita = addebita.spuntata() ? "1" : "0";
    f.riporta = riporta[0].scelta() ? "0" : "1";
    f.cancellata = 0;
}

void Lumftea::riempi_pagamenti() {
    RecFattura& f = fattura_;
    const bool saldata = pagato.spuntata();
    for (std::size_t k = 0; k < kRate; ++k) {
        f.dver[k] = saldata ? f.dsca[k].grezzo() : "";
        f.ver[k] = saldata ? double(f.sca[k]) : 0;
    }
    f.pagata = saldata ? 1 : 0;
}

// Asks for the charge, and on yes waits for the posting screen. What is charged is the sum of the
// instalments, the net of withholding.
bool Lumftea::addebitata_ora() {
    if (addebita.spuntata() && !pagato.spuntata()) return false;
    if (!prog.chiedi("Addebitare immediatamente la fattura nella contabilità del condominio?"_it,
                     "Registrazione nuova fattura"))
        return false;
    const bool nota = fattura_.tipodc == 1;
    MovimentoUscita u;
    u.data = text1[1].testo();
    u.descrizione[0] = fornitore_.inte1.testo();
    u.descrizione[1] = descrizione_documento(nota, fattura_.numdoc.testo(), text1[0].testo());
    u.importo = somma_campi(sca) * (nota ? -1 : 1);
    u.contodefault = fornitore_.conto;
    u.singolo = !riporta[0].scelta();
    return ambra::addebita(prog, u) == 1;
}

// `record` 0 is a new document; gives the record it went to. The counters are read again: another program may
// have written meanwhile. A counter at its end stays there.
int Lumftea::scrivi_documento(const RecFattura& documento, int record) {
    leggi(prog.arc.tfr, 2, totali_);
    const bool nuovo = record == 0;
    if (nuovo) record = totali_.parola[0] + 1;
    scrivi(prog.arc.ftr, record, documento);
    totali_.parola[1] = 1;
    if (nuovo) incrementa(totali_.parola[0], prog.err);
    scrivi(prog.arc.tfr, 2, totali_);
    return record;
}

void Lumftea::elimina() {
    prog.err.azzera();
    if (!prog.chiedi_prudente("Sei proprio sicuro?", "Eliminazione fattura")) return;
    prog.clessidra();
    fattura_.cancellata = 1;
    leggi(prog.arc.tfr, 2, totali_);
    totali_.parola[1] = 1;
    totali_.parola[2] = 1;
    scrivi(prog.arc.tfr, 2, totali_);
    scrivi(prog.arc.ftr, prog.recfattura, fattura_);
    chiudi();
}

// The new supplier is taken up at the next "Conferma".
void Lumftea::cambia_fornitore() {
    prog.statofattura = 1;
    prog.nuovafattura = 1;
    prog.schermi.apri("lumftem");
}

void Lumftea::chiudi() {
    prog.freccia();
    // Closed already while the posting was awaited; one of the same name may be open by now.
    if (prog.schermi.caricato(nome()) == this) prog.schermi.chiudi(nome());
}

}  // namespace ambra
