// The opening of the invoice screen: a new document, an existing one, or the return from the picker.
#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "invoices/lumftea.h"

namespace ambra {

namespace {

constexpr int kApertura = -99;

// A value of zero is an empty field.
std::string testo_o_vuoto(double x) {
    return x == 0 ? std::string{} : testo_numero(x);
}

}  // namespace

void Lumftea::apertura(Attivazione come) {
    if (come == Attivazione::scoperta && prog.statofattura == 0) return;
    if (prog.tornada != kApertura) return;
    prog.err.azzera();
    sospeso_ = false;
    for (auto& d : dsc) d.testo(prog.oggi());
    if (prog.statofattura == 0) {
        ++apertura_;
        registrata_ = 0;
        if (pdf.visible()) vista_pdf(false);
        for (auto* colonna : {&impon, &ivai, &esent, &rac})
            for (auto& c : *colonna) c.testo("");
        leggi(prog.arc.tfr, 1, fornitori_);
        leggi(prog.arc.tfr, 2, totali_);
        if (nuova()) {
            prepara_nuova();
        } else {
            apri_esistente();
        }
    }
    mostra_fornitore();
    fuoco(Text2[0]);
}

// The record in hand is not read anew: the supplier picked is taken up at "Conferma".
void Lumftea::mostra_fornitore() {
    RecFornitore f = fornitore_;
    if (prog.statofattura != 0) leggi(prog.arc.fornitori, prog.recfornitore, f);
    fornitore.caption(puliscitesto(f.inte1.rifilato()));
}

void Lumftea::termine_del_fornitore(int posizione) {
    Combo1.scelta(posizione >= 0 && posizione < kTermini ? posizione : 0);
}

void Lumftea::prepara_nuova() {
    fattura_ = {};
    leggi(prog.arc.fornitori, prog.recfornitore, fornitore_);
    termine_del_fornitore(fornitore_.formapag);
    caption("Memorizzazione fattura ricevuta");
    Text2[0].testo("");
    for (auto& d : text1) d.testo(prog.oggi());
    calcscad();
    pdf.testo("");
    vispag.visible(false);
    addebita.visible(false);
    addebita.spuntata(false);
    pagato.visible(true);
    pagato.spuntata(false);
    riporta[0].scelta(true);
    tipodc[0].scelta(true);
    calctot();
    command3d1[2].visible(false);
    command3d1[3].visible(false);
}

void Lumftea::apri_esistente() {
    leggi(prog.arc.ftr, prog.recfattura, fattura_);
    prog.recfornitore = fattura_.numfor;
    leggi(prog.arc.fornitori, prog.recfornitore, fornitore_);
    caption("Modifica dati fattura ricevuta");
    tipodc[0].scelta(fattura_.tipodc == 0);
    tipodc[1].scelta(fattura_.tipodc == 1);
    pagato.visible(false);
    sospeso_ = true;
    carica_documento();
    sospeso_ = false;
    command3d1[2].visible(true);
    command3d1[3].visible(true);
}

// The amounts first and what follows from them after: the stored VAT and withholding win over the proposed.
void Lumftea::carica_documento() {
    const RecFattura& f = fattura_;
    Text2[0].testo(f.numdoc.rifilato());
    text1[0].testo(mostra_aaaammgg(f.datadoc.testo()));
    text1[1].testo(mostra_aaaammgg(f.datareg.testo()));
    leggi(prog.arc.fornitori, f.numfor, fornitore_);
    termine_del_fornitore(f.modpag);
    carica_scadenze();
    for (std::size_t i = 0; i < kCodiciIva; ++i)
        if (f.impon[i] != 0) impon[i].testo(testo_numero(f.impon[i]));
    for (std::size_t i = 0; i < kCodiciIva; ++i) {
        ivai[i].testo(testo_o_vuoto(f.ivai[i]));
        if (f.esent[i] != 0) esent[i].testo(testo_numero(f.esent[i]));
        rac[i].testo(testo_o_vuoto(f.rac[i]));
    }
    for (std::size_t k = 0; k < kRate; ++k)
        if (f.sca[k] != 0) sca[k].testo(testo_numero(f.sca[k]));
    pdf.testo(f.pdf.rifilato());
    addebita.visible(true);
    addebita.spuntata(f.addebita.grezzo() == "1");
    riporta[f.riporta.grezzo() == "1" ? 1 : 0].scelta(true);
    vispag.visible(f.pagata != 0);
}

void Lumftea::carica_scadenze() {
    for (std::size_t k = 0; k < kRate; ++k) {
        dsca[k].testo("");
        sca[k].testo("");
    }
    mostra_data(0, fattura_.dsca[0]);
    const Testo<8>* altre[] = {&fattura_.dsca[1], &fattura_.dsca[2], &fattura_.dsca[3], &fattura_.dscarit,
                               &fattura_.dverrit};
    for (std::size_t k = 1; k < dsca.size(); ++k)
        if (leggi_numero(altre[k - 1]->testo()) > 0) mostra_data(k, *altre[k - 1]);
}

void Lumftea::mostra_data(std::size_t k, const Testo<8>& data) {
    dsca[k].testo(mostra_ggmmaaaa(data.testo()));
    // The picker can show nothing but a date.
    if (data_valida(dsca[k].testo())) dsc[k].testo(dsca[k].testo());
}

}  // namespace ambra
