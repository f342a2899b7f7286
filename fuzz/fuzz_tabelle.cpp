// Any bytes as the text tables of an archive: what is read is written and read again as it was, the numbers
// and the terms in it are worked with.
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/filetesto.h"
#include "core/nomi_file.h"
#include "fuzz/pretendi.h"
#include "invoices/calcolo.h"
#include "invoices/mrvtpag.h"
#include "records/tabelle.h"
#include "tests/supporto/disco_memoria.h"

namespace {

using namespace ambra;

const std::string kIva = kCartella + "lumora.iva", kPag = kCartella + "lumora.pag";

void iva(DiscoMemoria& disco) {
    Errore err;
    TabellaIva t;
    const bool bene = carica_iva(disco, err, t);
    pretendi(bene == !err);
    for (const auto& c : t.codice)
        for (const auto* s : {&c.aliquota, &c.detr, &c.ritenuta}) leggi_numero(*s);
    pretendi(salva_iva(disco, err, t));
    const std::string una = disco.contenuto(kIva);
    err.azzera();
    pretendi(carica_iva(disco, err, t) && salva_iva(disco, err, t) && disco.contenuto(kIva) == una);
}

void pagamenti(DiscoMemoria& disco) {
    Errore err;
    TabellaPagamenti t;
    const bool bene = carica_pagamenti(disco, err, t);
    pretendi(bene == !err);
    for (int i = -1; i <= 61; ++i) nome_termine(t, i);
    for (const auto& riga : t.termine) {
        const Termine termine = termine_di(riga.codice);
        pretendi(termine.rate() >= 1 && termine.rate() <= static_cast<int>(kRate));
        calcrate(Cambio{}, termine, 100.01);
        calcscad(termine, {29, 2, 2024});
        pretendi(componi_codice(leggi_codice(riga.codice)).size() == 16);
    }
    pretendi(salva_pagamenti(disco, err, t));
    const std::string una = disco.contenuto(kPag);
    err.azzera();
    pretendi(carica_pagamenti(disco, err, t) && salva_pagamenti(disco, err, t) &&
             disco.contenuto(kPag) == una);
}

void voci(DiscoMemoria& disco) {
    Errore err;
    TabellaVoci t;
    pretendi(carica_voci(disco, err, "001", t) == !err);
    for (int v = 1; v <= 42; ++v) t.totale(v);
    pretendi(t.nome(41) == "Addebiti" && t.nome(42) == "Accrediti");
}

// Fields and lines in turns: each reading moves on or is refused.
void campi(DiscoMemoria& disco) {
    Errore err;
    LettoreTesto f(err);
    f.apri(disco, kIva);
    std::string s;
    for (std::size_t i = 0; !f.fine(); ++i) {
        int n = 0;
        if (i % 3 == 0) f.campo_intero(n);
        if (i % 3 == 1) pretendi(f.campo_testo(s));
        if (i % 3 == 2) pretendi(f.riga(s) && s.find_first_of("\r\n") == s.npos);
        pretendi(i < 100000);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
    const std::string testo(reinterpret_cast<const char*>(dati), n);
    DiscoMemoria disco;
    for (const std::string& nome : {kIva, kPag, nome_file("001", "tab")}) disco.contenuto(nome) = testo;
    campi(disco);
    iva(disco);
    pagamenti(disco);
    voci(disco);
    return 0;
}
