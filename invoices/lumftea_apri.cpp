// The opening of the invoice screen: a new document, an existing one, or the return from the picker.
#include <utility>

#include "core/date.h"
#include "core/lettura.h"
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

// Only its own "Fornitore" brings it another supplier, and only by being opened again.
void Lumftea::apertura(Attivazione come) {
    const bool dal_fornitore = prog.statofattura != 0 && aperta_;
    if (come == Attivazione::scoperta && !dal_fornitore) return;
    if (come == Attivazione::aperta && dal_fornitore) {
        prendi_fornitore(prog.recfornitore);
        mostra_fornitore();
    }
    if (prog.tornada != kApertura) return;
    prog.err.azzera();
    sospeso_ = false;
    for (auto& d : dsc) d.testo(prog.oggi());
    if (!dal_fornitore) apri_documento();
    mostra_fornitore();
    cerca_doppia();
    fuoco(Text2[0]);
}

void Lumftea::apri_documento() {
    aperta_ = true;
    addebitata_ = false;
    dopo_ = std::exchange(prog.dopo_memorizzata, nullptr);
    if (pdf.visible()) vista_pdf(false);
    // What is not the document's must not come from the one before.
    dsca[4].testo("");
    dsca[5].testo("");
    pagato.spuntata(false);
    for (auto* colonna : {&impon, &ivai, &esent, &rac})
        for (auto& c : *colonna) c.testo("");
    if (prog.recfattura == 0) {
        prepara_nuova();
    } else {
        documento_.prendi(prog.recfattura);
        apri_esistente();
        documento_.base([this](RecFattura& f) { riempi_documento(f); });
    }
}

void Lumftea::prendi_fornitore(int record) {
    RecFornitore f = fornitore_.visto();
    leggi_o_resta(prog.arc.fornitori, record, f);
    fornitore_.vedi(record, f);
}

void Lumftea::mostra_fornitore() {
    fornitore.caption(puliscitesto(fornitore_.visto().inte1.rifilato()));
}

void Lumftea::termine_del_fornitore(int posizione) {
    Combo1.scelta(posizione >= 0 && posizione < kTermini ? posizione : 0);
}

void Lumftea::prepara_nuova() {
    documento_.nuovo();
    prendi_fornitore(prog.recfornitore);
    termine_del_fornitore(fornitore_.visto().formapag);
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
    prog.recfornitore = documento_.visto().numfor;
    prendi_fornitore(prog.recfornitore);
    caption("Modifica dati fattura ricevuta");
    tipodc[0].scelta(documento_.visto().tipodc == 0);
    tipodc[1].scelta(documento_.visto().tipodc == 1);
    pagato.visible(false);
    sospeso_ = true;
    carica_documento();
    sospeso_ = false;
    command3d1[2].visible(true);
    command3d1[3].visible(true);
}

// The amounts first and what follows from them after: the stored VAT and withholding win over the proposed.
void Lumftea::carica_documento() {
    const RecFattura& f = documento_.visto();
    Text2[0].testo(f.numdoc.rifilato());
    text1[0].testo(mostra_aaaammgg(f.datadoc.testo()));
    text1[1].testo(mostra_aaaammgg(f.datareg.testo()));
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
    const RecFattura& f = documento_.visto();
    mostra_data(0, f.dsca[0]);
    const Testo<8>* altre[] = {&f.dsca[1], &f.dsca[2], &f.dsca[3], &f.dscarit, &f.dverrit};
    for (std::size_t k = 1; k < dsca.size(); ++k)
        if (leggi_numero(altre[k - 1]->testo()) > 0) mostra_data(k, *altre[k - 1]);
}

void Lumftea::mostra_data(std::size_t k, const Testo<8>& data) {
    dsca[k].testo(mostra_ggmmaaaa(data.testo()));
    dsc[k].testo(dsca[k].testo());
}

}  // namespace ambra
