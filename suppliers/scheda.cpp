#include "suppliers/scheda.h"

#include "core/testo.h"
#include "records/tabelle.h"
#include "screen/programma.h"

namespace ambra {

namespace {

struct Campo {
    std::string caption;
    std::size_t massimo;
};

const std::array<Campo, 24>& campi() {
    static const std::array<Campo, 24> kCampi = {{{"Intestazione", 40},
                                                  {"", 40},
                                                  {"Indirizzo", 40},
                                                  {"CAP Città"_it, 5},
                                                  {"", 40},
                                                  {"Prov", 2},
                                                  {"Codice fiscale", 16},
                                                  {"Partita iva", 11},
                                                  {"Intestazione", 40},
                                                  {"", 40},
                                                  {"Indirizzo", 40},
                                                  {"CAP Città"_it, 5},
                                                  {"", 40},
                                                  {"Prov", 2},
                                                  {"Recapiti telefonici", 15},
                                                  {"", 15},
                                                  {"", 15},
                                                  {"E mail", 50},
                                                  {"Luogo nascita", 40},
                                                  {"Prov", 2},
                                                  {"Data", 10},
                                                  {"Stato estero", 40},
                                                  {"Sigla", 5},
                                                  {"Cod.Fisc.", 20}}};
    return kCampi;
}

// f(number of the field, text of the record): the mail address, over two of them, stands apart.
template <class R, class F>
void per_ogni_testo(R& r, F f) {
    f(0, r.inte1);
    f(1, r.inte2);
    f(2, r.indir);
    f(3, r.cap);
    f(4, r.citta);
    f(5, r.prov);
    f(6, r.codfis);
    f(7, r.piva);
    f(8, r.ainte1);
    f(9, r.ainte2);
    f(10, r.aindir);
    f(11, r.acap);
    f(12, r.acitta);
    f(13, r.aprov);
    for (std::size_t i = 0; i < 3; ++i) f(14 + i, r.tel[i]);
    f(18, r.luogonas);
    f(19, r.provnas);
    f(20, r.datanas);
    f(21, r.statoest);
    f(22, r.sigla);
    f(23, r.codest);
}

constexpr std::size_t kMail = 17, kMailPrima = 38, kMailTutta = 50;

}  // namespace

std::string email(const RecFornitore& f) {
    return f.email1.rifilato() + f.email2.rifilato();
}

void email(RecFornitore& f, std::string_view indirizzo) {
    const std::string tutta = riempi(indirizzo, kMailTutta);
    f.email1 = sinistra(tutta, kMailPrima);
    f.email2 = medio(tutta, kMailPrima + 1);
}

SchedaFornitore::SchedaFornitore() {
    for (std::size_t i = 0; i < Text2.size(); ++i) {
        Text2[i].caption(campi()[i].caption);
        Text2[i].massimo = campi()[i].massimo;
    }
    Sesso[0].caption("M");
    Sesso[1].caption("F");
    Opzione::gruppo({&Sesso[0], &Sesso[1]});
    Sesso[0].scelta(true);
    indeti[0].caption("Persona fisica");
    indeti[1].caption("Non residente");
    indeti[2].caption(
        "Il fornitore non deve essere riportato negli elenchi (fornitore di acqua - gas - energia)");
    Combo1.caption("Forma pagamento");
    Label2.caption("Attenzione:questo fornitore è stato eliminato!"_it);
    Label2.visible(false);
    frame[0].caption("Sede legale e dati fiscali");
    frame[1].caption("Sede ammistrativa e altri dati");
    frame[2].caption("Dati contabili");
}

void SchedaFornitore::registra_sede_legale(Schermo& s) {
    const auto testo = [&](std::size_t i) { s.aggiungi("Text2(" + std::to_string(i) + ")", Text2[i]); };
    s.aggiungi("Label2", Label2);
    s.aggiungi("frame(0)", frame[0]);
    for (std::size_t i = 0; i <= 7; ++i) testo(i);
    s.aggiungi("indeti(0)", indeti[0]);
    s.aggiungi("Sesso", Sesso);
    for (std::size_t i = 18; i <= 20; ++i) testo(i);
    s.aggiungi("indeti(1)", indeti[1]);
    for (std::size_t i = 21; i <= 23; ++i) testo(i);
}

void SchedaFornitore::registra_sede_amministrativa(Schermo& s) {
    s.aggiungi("frame(1)", frame[1]);
    for (std::size_t i = 8; i <= 17; ++i) s.aggiungi("Text2(" + std::to_string(i) + ")", Text2[i]);
}

void SchedaFornitore::registra_contabili(Schermo& s) {
    s.aggiungi("frame(2)", frame[2]);
    s.aggiungi("Combo1", Combo1);
    s.aggiungi("indeti(2)", indeti[2]);
}

void SchedaFornitore::per_ogni_campo(const std::function<void(Controllo&)>& f) {
    for (auto& c : Text2) f(c);
    for (auto& c : Sesso) f(c);
    for (auto& c : indeti) f(c);
    f(Combo1);
}

void SchedaFornitore::toccato(const std::function<void()>& f) {
    per_ogni_campo([&f](Controllo& c) { c.digitato = c.premuto = f; });
}

void SchedaFornitore::carica_termini(Programma& prog) {
    TabellaPagamenti t;
    carica_pagamenti(prog.disco, prog.err, t);
    Combo1.svuota();
    for (std::size_t i = 1; i <= kTermini; ++i) Combo1.aggiungi(t.termine[i].nome);
    Combo1.scelta(0);
    mostrati_.termine = 0;
}

void SchedaFornitore::mostra(const RecFornitore& f) {
    per_ogni_testo(f, [this](std::size_t i, const auto& t) { Text2[i].testo(t.rifilato()); });
    if (!vivo(f)) Text2[0].testo(std::string(medio(Text2[0].testo(), 2)));
    Text2[kMail].testo(email(f));
    Sesso[f.sesso.grezzo() == "F" ? 1 : 0].scelta(true);
    indeti[0].spuntata(f.fisica == 1);
    indeti[1].spuntata(f.nonres == 1);
    indeti[2].spuntata(f.nofelenco == 1);
    Combo1.scelta(f.formapag >= 0 && f.formapag < kTermini ? int(f.formapag) : 0);
    Label2.visible(!vivo(f));
    ricorda();
}

void SchedaFornitore::svuota() {
    for (std::size_t i = 0; i <= 22; ++i) Text2[i].testo("");
    for (auto& c : indeti) c.spuntata(false);
    Sesso[0].scelta(true);
    Label2.visible(false);
    ricorda();
}

void SchedaFornitore::ricorda() {
    for (std::size_t i = 0; i < Text2.size(); ++i) mostrati_.testi[i] = Text2[i].testo();
    for (std::size_t i = 0; i < indeti.size(); ++i) mostrati_.caselle[i] = indeti[i].spuntata();
    mostrati_.sesso = Sesso[1].scelta() ? 1 : 0;
    mostrati_.termine = Combo1.scelta();
}

void SchedaFornitore::ripristina() {
    for (std::size_t i = 0; i < Text2.size(); ++i) Text2[i].testo(mostrati_.testi[i]);
    for (std::size_t i = 0; i < indeti.size(); ++i) indeti[i].spuntata(mostrati_.caselle[i]);
    Sesso[static_cast<std::size_t>(mostrati_.sesso)].scelta(true);
    Combo1.scelta(mostrati_.termine);
}

void SchedaFornitore::in_record(RecFornitore& f) const {
    per_ogni_testo(f, [this](std::size_t i, auto& t) { t = Text2[i].testo(); });
    email(f, Text2[kMail].testo());
    f.formapag = Combo1.scelta();
    f.sesso = Sesso[0].scelta() ? "M" : "F";
    f.fisica = indeti[0].spuntata() ? 1 : 0;
    f.nonres = indeti[1].spuntata() ? 1 : 0;
    f.nofelenco = indeti[2].spuntata() ? 1 : 0;
    f.cancellata = 0;
}

}  // namespace ambra
