#include "invoices/mrvtiva.h"

#include "core/testo.h"
#include "records/tabelle.h"

namespace ambra {

namespace {

// f(number of the field, text of the table) for all 32, in the order of the screen.
template <class F>
void per_ogni_valore(TabellaIva& t, F f) {
    for (std::size_t i = 1; i <= 8; ++i) {
        const std::size_t primo = (i - 1) * 4;
        f(primo, t.codice[i].aliquota);
        f(primo + 1, t.codice[i].detr);
        f(primo + 2, t.codice[i].ritenuta);
        f(primo + 3, t.esenzione[i]);
    }
}

}  // namespace

Mrvtiva::Mrvtiva(Programma& p) : Schermo(p, "mrvtiva", "Tabella codici iva") {
    aggiungi("frame", frame,
             "Aliquote iva e codici di esenzione da utilizzare nelle procedure di registrazione di fatture "
             "ricevute");
    aggiungi("Text1", Text1);
    aggiungi("indice", indice);
    indice[0].caption("Conferma");
    indice[1].caption("Annulla");
    for (std::size_t i = 0; i < Text1.size(); ++i) {
        const std::string codice = std::to_string(i / 4 + 1);
        const std::string captions[] = {"Codice iva " + codice, "%Detr", "%Rit.Acc.",
                                        "Codice esente " + codice};
        Text1[i].caption(captions[i % 4]);
        if (i < 31) Text1[i].invio = [this, i] { fuoco(Text1[i + 1]); };
    }
    indice[0].premuto = [this] {
        conferma();
        prog.schermi.chiudi("mrvtiva");
    };
    indice[1].premuto = [this] { prog.schermi.chiudi("mrvtiva"); };
    carica();
    fuoco(Text1[0]);
}

void Mrvtiva::carica() {
    prog.err.azzera();
    TabellaIva t;
    carica_iva(prog.disco, prog.err, t);
    per_ogni_valore(
        t, [this](std::size_t i, std::string& valore) { Text1[i].testo(std::string(rifila(valore))); });
}

void Mrvtiva::conferma() {
    prog.err.azzera();
    TabellaIva t;
    per_ogni_valore(t, [this](std::size_t i, std::string& valore) { valore = Text1[i].testo(); });
    salva_iva(prog.disco, prog.err, t);
}

}  // namespace ambra
