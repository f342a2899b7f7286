#include "invoices/lumftea.h"

#include "core/date.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "invoices/registrate.h"
#include "ledger/scadenza_ritenuta.h"
#include "screen/colori.h"

namespace ambra {

namespace {

constexpr std::size_t kDataTesto = 10;

double importo(const CampoTesto& c) {
    return leggi_numero(c.testo());
}

}  // namespace

Lumftea::Lumftea(Programma& p) : Schermo(p, "lumftea", "Memorizzazione fattura ricevuta") {
    registra_campi();
    registra_dettaglio();
    registra_scadenze();
    registra_comandi();
    carica_tabelle();
    collega();
    collega_invio();
    collega_comandi();
    attivata = [this](Attivazione come) { apertura(come); };
    via_d_uscita = [this] { annulla(); };
}

// ---- fields, in the order in which a person fills them ----

void Lumftea::registra_campi() {
    aggiungi("vispag", vispag, "  Attenzione: questa fattura è già stata pagata"_it);
    aggiungi("fornitore", fornitore);
    aggiungi("doppia", doppia);
    aggiungi("tipodc(0)", tipodc[0], "Fattura");
    aggiungi("tipodc(1)", tipodc[1], "Nota credito");
    aggiungi("Text2(0)", Text2[0], "Numero del documento");
    aggiungi("text1(0)", text1[0], "Data documento");
    aggiungi("text1(1)", text1[1], "Data di registrazione");
    aggiungi("Combo1", Combo1, "Modalità di pagamento"_it);
    Opzione::gruppo({&tipodc[0], &tipodc[1]});
    Text2[0].massimo = sizeof(RecFattura::numdoc);
    for (auto& d : text1) d.altro(CampoData::Altro::lascia);
    vispag.visible(false);
    doppia.visible(false);
    vispag.colore_sfondo(colore::giallo);
}

void Lumftea::registra_dettaglio() {
    for (std::size_t i = 0; i < kCodiciIva; ++i) {
        aggiungi(nome_elemento("iv", i), iv[i]);
        aggiungi(nome_elemento("impon", i), impon[i], "Imponibile");
        aggiungi(nome_elemento("ivai", i), ivai[i], "Imposta");
        aggiungi(nome_elemento("iv", kCodiciIva + i), iv[kCodiciIva + i]);
        aggiungi(nome_elemento("rac", i), rac[i], "Ritenuta acconto");
        aggiungi(nome_elemento("es", i), es[i]);
        aggiungi(nome_elemento("esent", i), esent[i], "Importi in esenzione iva");
        for (auto* c : {&impon[i], &ivai[i], &rac[i], &esent[i]}) c->importo = true;
    }
    aggiungi("total", total);
    for (auto& t : total) t.importo = t.sola_lettura = true;
    total[0].caption("Totale ");
    total[4].caption("Totale documento");
}

void Lumftea::registra_scadenze() {
    for (std::size_t k = 0; k < dsca.size(); ++k) {
        aggiungi(nome_elemento("dsca", k), dsca[k], "Data scadenza");
        aggiungi(nome_elemento("dsc", k), dsc[k]);
        dsca[k].massimo = kDataTesto;
        if (k == 0) aggiungi("Command1", Command1, "Oggi");
        if (k >= kRate) continue;
        aggiungi(nome_elemento("sca", k), sca[k], "Importo");
        sca[k].importo = true;
    }
    dsca[4].caption("Scadenza versamento rit.acc.");
    dsca[5].caption("Data versamento rit.acconto");
    aggiungi("pagato", pagato, "Considera pagata la fattura");
    aggiungi("addebita", addebita, "Spesa già contabilizzata"_it);
    aggiungi("riporta(0)", riporta[0], "Spesa da addebitare a tutto lo stabile");
    aggiungi("riporta(1)", riporta[1], "Spesa da addebitare ad un singolo condomino");
    Opzione::gruppo({&riporta[0], &riporta[1]});
}

void Lumftea::registra_comandi() {
    aggiungi("Label2", Label2, "Documento in formato PDF");
    aggiungi("pdf", pdf);
    aggiungi("Command3(0)", Command3[0], "Seleziona PDF");
    aggiungi("Command3(1)", Command3[1], "Visualizza PDF");
    aggiungi("command3d1(5)", command3d1[5], "PDF");
    aggiungi("command3d1(3)", command3d1[3], "Fornitore");
    aggiungi("command3d1(2)", command3d1[2], "Elimina fattura");
    aggiungi("command3d1(0)", command3d1[0], "Conferma");
    aggiungi("command3d1(1)", command3d1[1], "Annulla");
    Label2.visible(false);
    pdf.visible(false);
    for (auto& b : Command3) {
        b.visible(false);
        b.enabled(false);
    }
}

void Lumftea::carica_tabelle() {
    carica_iva(prog.disco, prog.err, iva_);
    carica_pagamenti(prog.disco, prog.err, pagamenti_);
    for (std::size_t i = 0; i < kCodiciIva; ++i) {
        const auto& codice = iva_.codice[i + 1];
        iv[i].caption(unisci(" Aliquota ", codice.aliquota, "%"));
        iv[kCodiciIva + i].caption(leggi_numero(codice.ritenuta) == 0 ? "" : unisci(codice.ritenuta, "%"));
        es[i].caption(unisci(" ", iva_.esenzione[i + 1]));
    }
    for (int k = 0; k < kTermini; ++k) Combo1.aggiungi(nome_termine(pagamenti_, k));
}

void Lumftea::collega() {
    for (std::size_t i = 0; i < kCodiciIva; ++i) {
        impon[i].cambiato = [this, i] { cambia_imponibile(i); };
        for (auto* c : {&ivai[i], &rac[i], &esent[i]}) c->cambiato = [this] { calctot(); };
    }
    Combo1.cambiato = [this] {
        calcscad();
        calcrate();
    };
    for (std::size_t i = 0; i < text1.size(); ++i)
        text1[i].cambiato = [this, i] {
            calcscad();
            if (i == 0) cerca_doppia();
        };
    Text2[0].cambiato = [this] { cerca_doppia(); };
    for (auto& t : tipodc) t.cambiato = [this] { cerca_doppia(); };
    doppia.premuto = [this] {
        if (prog.mostra_documento) prog.mostra_documento(doppia_);
    };
    for (std::size_t k = 0; k < dsca.size(); ++k) {
        dsca[k].lasciato = [this, k] { return riordina_data(dsca[k]); };
        dsc[k].digitato = [this, k] { dsca[k].testo(dsc[k].testo()); };
    }
    Command1.premuto = [this] { dsca[0].testo(prog.oggi()); };
    pagato.premuto = [this] { clic_pagato(); };
}

// Enter walks along each row of the detail, then date and amount of each instalment; it ends there. A date is
// tidied on the way, or keeps the focus.
void Lumftea::collega_invio() {
    const auto poi = [this](Controllo& da, Controllo& a) {
        da.invio = [this, &da, &a] {
            if (da.lascia()) fuoco(a);
        };
    };
    poi(Text2[0], text1[0]);
    poi(text1[0], text1[1]);
    poi(text1[1], impon[0]);
    for (std::size_t i = 0; i < kCodiciIva; ++i) {
        poi(impon[i], ivai[i]);
        poi(ivai[i], rac[i]);
        poi(rac[i], esent[i]);
        poi(esent[i], i + 1 < kCodiciIva ? impon[i + 1] : dsca[0]);
    }
    for (std::size_t k = 0; k < kRate; ++k) {
        poi(dsca[k], sca[k]);
        if (k + 1 < kRate) poi(sca[k], dsca[k + 1]);
    }
}

void Lumftea::collega_comandi() {
    command3d1[0].premuto = [this] { conferma(); };
    command3d1[1].premuto = [this] { annulla(); };
    command3d1[2].premuto = [this] { elimina(); };
    command3d1[3].premuto = [this] { cambia_fornitore(); };
    command3d1[5].premuto = [this] { vista_pdf(true); };
    Command3[0].premuto = [this] { seleziona_pdf(); };
    Command3[1].premuto = [this] { apri_pdf(); };
}

// ---- reactions ----

void Lumftea::cambia_imponibile(std::size_t i) {
    const auto& codice = iva_.codice[i + 1];
    const RigaIva r = riga_iva(prog.imp.cambio, leggi_numero(codice.aliquota), leggi_numero(codice.ritenuta),
                               importo(impon[i]));
    ivai[i].testo(testo_numero(r.iva));
    if (r.ritenuta) rac[i].testo(testo_numero(*r.ritenuta));
    calctot();
}

void Lumftea::calctot() {
    Dettaglio d;
    for (std::size_t i = 0; i < kCodiciIva; ++i) {
        d.impon[i] = importo(impon[i]);
        d.ivai[i] = importo(ivai[i]);
        d.esent[i] = importo(esent[i]);
        d.rac[i] = importo(rac[i]);
    }
    const Somme s = ambra::calctot(d);
    total[0].testo(unisci(" ", prog.fmtimporto(s.impon)));
    total[1].testo(unisci(" ", prog.fmtimporto(s.ivai)));
    total[2].testo(unisci(" ", prog.fmtimporto(s.rac)));
    total[3].testo(" ");  // the exempt amounts count in the document and have no visible sum of their own
    total[4].testo(unisci(" ", prog.fmtimporto(s.totale)));
    totale_ = s.totale;
    ritenuta_ = s.rac;
    calcrate();
    if (nuova()) scadenza_ritenuta_proposta();
}

void Lumftea::scadenza_ritenuta_proposta() {
    const bool dovuta = pagato.spuntata() && ritenuta_ != 0 && data_valida(dsca[0].testo());
    dsca[4].testo(dovuta ? scadenza_ritenuta(dsca[0].testo()) : "");
}

Termine Lumftea::termine() const {
    const int quale = Combo1.scelta();
    return quale < 0 ? Termine{} : termine_di(pagamenti_.termine[static_cast<std::size_t>(quale) + 1].codice);
}

void Lumftea::calcrate() {
    if (sospeso_) return;
    const Importi rate = ambra::calcrate(prog.imp.cambio, termine(), totale_ - ritenuta_);
    for (std::size_t k = kRate; k-- > 0;)
        if (rate[k]) sca[k].testo(testo_numero(*rate[k]));
}

void Lumftea::calcscad() {
    if (sospeso_) return;
    if (pagato.spuntata() && nuova()) return scade_oggi();
    const auto base = data_valida(text1[0].testo());
    const Scadenze scadenze = ambra::calcscad(termine(), base ? *base : prog.piattaforma.today());
    for (std::size_t k = kRate; k-- > 0;) {
        dsca[k].testo(scadenze[k].value_or(""));
        if (!scadenze[k]) sca[k].testo("");
    }
}

void Lumftea::scade_oggi() {
    for (std::size_t k = 0; k < kRate; ++k)
        if (importo(sca[k]) > 0) dsca[k].testo(prog.oggi());
}

void Lumftea::clic_pagato() {
    if (!pagato.spuntata() || !nuova()) return;
    scade_oggi();
    calctot();
}

// Says so and no more: a document may be entered twice on purpose.
void Lumftea::cerca_doppia() {
    RecFattura f{};
    const auto data = data_valida(text1[0].testo());
    doppia_ = data && aperta_ ? Registrate::di(prog).cerca({fornitore_.record(), Text2[0].testo(),
                                                            con_zeri(data->anno, 4), tipodc[1].scelta()},
                                                           documento_.record(), f)
                              : 0;
    if (doppia_ > 0)
        doppia.caption(unisci("Già registrata: n. "_it, std::to_string(doppia_), " del ",
                              mostra_aaaammgg(f.datadoc.testo()), ", ",
                              prog.fmtimporto(somma(f.impon) + somma(f.ivai) + somma(f.esent))));
    doppia.visible(doppia_ > 0);
}

}  // namespace ambra
