// What a user does: each action in two parts, so that what was refused can be commanded again.
#include <stdexcept>

#include "invoices/lumftea.h"
#include "ledger/luminca.h"
#include "ledger/lumincx.h"
#include "ledger/lumpgr.h"
#include "maintenance/mrvaazz.h"
#include "maintenance/mrvaind.h"
#include "suppliers/lumfor.h"
#include "tests/insieme/posto.h"
#include "worklist/vexoraf.h"

namespace ambra {

namespace {

using enum Risposta;

// ---- a document ----

void nuova(Posto& p) {
    p.prog.tornada = -99;
    p.prog.modofattura = p.prog.recfattura = p.prog.statofattura = 0;
    p.prog.recfornitore = 1;
    p.fai([&] { p.prog.schermi.apri("lumftea"); });
    auto& s = p.schermo<Lumftea>("lumftea");
    p.digita(s.Text2[0], p.sigla);
    p.digita(s.impon[0], p.primo() ? "1000" : "2000");
}
void conferma(Posto& p, Risposta addebito) {
    if (!p.aperto("lumftea")) return;
    p.rispondi({addebito});
    if (addebito == si) p.memorizza_l_addebito();
    p.premi(p.schermo<Lumftea>("lumftea").command3d1[0]);
}
template <class F>
void cambia(Posto& p, F f) {
    p.clic("CAMBIA", 7);
    if (p.aperto("lumftea")) f(p.schermo<Lumftea>("lumftea"));
}

// ---- a payment ----

void apri_pagamento(Posto& p, const std::string& numero) {
    p.clic(numero, 9);
    if (!p.aperto("luminca")) return;
    auto& s = p.schermo<Luminca>("luminca");
    p.digita(s.dver[0], p.primo() ? "01/02/2024" : "02/02/2024");
    p.digita(s.ver[0], p.primo() ? "50" : "30");
}
void conferma_pagamento(Posto& p, Risposta addebito) {
    if (!p.aperto("luminca")) return;
    p.rispondi({addebito});
    if (addebito == si) p.memorizza_l_addebito();
    p.premi(p.schermo<Luminca>("luminca").conferma);
}
void azzera(Posto& p) {
    p.rispondi({si});
    p.clic("SALDATA", 9);
    if (p.aperto("luminca")) p.premi(p.schermo<Luminca>("luminca").indice);
}

// ---- withheld tax ----

void apri_versamento(Posto& p) {
    p.fai([&] { p.prog.schermi.apri_foglia("lumpgr"); });
    Griglia& elenco = p.schermo<Lumpgr>("lumpgr").elenco;
    for (int r = 1; r < elenco.righe(); ++r)
        if (elenco.vista(r, 0).starts_with("VERSA")) p.fai([&] { elenco.scegli(r, 0); });
}
void versa(Posto& p, Risposta addebito) {
    p.rispondi({si, addebito});
    if (addebito == si) p.memorizza_l_addebito();
    p.premi(p.schermo<Lumpgr>("lumpgr").stampante);
}

// ---- the archive ----

void apri_azzeramento(Posto& p) {
    p.fai([&] { p.prog.schermi.apri_foglia("mrvaazz"); });
    auto& s = p.schermo<Mrvaazz>("mrvaazz");
    p.fai([&] { s.azz8.clicca(); });
    p.digita(s.text1_6, "01/01/2024");
}
void azzera_archivio(Posto& p) {
    if (!p.aperto("mrvaazz")) return;
    p.rispondi({si, si, ok});
    p.premi(p.schermo<Mrvaazz>("mrvaazz").command3d4[1]);
}
void memorizza_limiti(Posto& p) {
    if (p.aperto("mrvaind")) p.premi(p.schermo<Mrvaind>("mrvaind").command3d4[1]);
}
void riordina(Posto& p) {
    p.rispondi({si});
    p.fai([&] { p.schermo<Vexoraf>("vexoraf").riordino(); });
}

// ---- a supplier ----

// The register on the supplier of that record.
Lumfor& registro(Posto& p, int record) {
    p.fai([&] { p.prog.schermi.apri_foglia("lumfor"); });
    auto& s = p.schermo<Lumfor>("lumfor");
    // The other may sort the index between the search and the look, and a disc that fails shows nobody.
    p.fai([&] {
        for (int prove = 0; prove < 3 && s.dati.moverec != record; ++prove) {
            s.dati.movepos = posto_nell_indice(p.prog.arc, s.dati.quanti(), record);
            s.dati.mostra();
        }
    });
    return s;
}
void nuova_ditta(Posto& p) {
    p.fai([&] { p.prog.schermi.apri_foglia("lumfor"); });
    auto& s = p.schermo<Lumfor>("lumfor");
    p.premi(s.b_ins);
    p.digita(s.dati.scheda.Text2[0], p.sigla);
}
void conferma_ditta(Posto& p) {
    p.premi(p.schermo<Lumfor>("lumfor").b_conferma);
}
void elimina_ditta(Posto& p) {
    p.rispondi({si});
    p.premi(p.schermo<Lumfor>("lumfor").b_eli);
}
void ordina_ditte(Posto& p) {
    p.premi(p.schermo<Lumfor>("lumfor").b_srt);
}

void niente(Posto&) {}

}  // namespace

const std::vector<Azione> kAzioni = {
    {"registra", nuova, [](Posto& p) { conferma(p, no); }},
    {"registra e addebita", nuova, [](Posto& p) { conferma(p, si); }},
    {"cambia gli importi",
     [](Posto& p) { cambia(p, [&](Lumftea& s) { p.digita(s.impon[0], p.primo() ? "150" : "160"); }); },
     [](Posto& p) { conferma(p, no); }, "CAMBIA"},
    {"cambia il pdf", [](Posto& p) { cambia(p, [&](Lumftea& s) { p.digita(s.pdf, p.sigla + ".pdf"); }); },
     [](Posto& p) { conferma(p, no); }, "CAMBIA"},
    {"elimina dallo schermo", [](Posto& p) { p.clic("TOGLI", 7); },
     [](Posto& p) {
         if (!p.aperto("lumftea")) return;
         p.rispondi({si});
         p.premi(p.schermo<Lumftea>("lumftea").command3d1[2]);
     },
     "TOGLI"},
    {"elimina dalla riga", niente,
     [](Posto& p) {
         p.rispondi({si});
         p.clic("TOGLI2", 8);
     },
     "TOGLI2"},
    {"paga", [](Posto& p) { apri_pagamento(p, "PAGA"); }, [](Posto& p) { conferma_pagamento(p, no); },
     "PAGA"},
    {"paga e addebita", [](Posto& p) { apri_pagamento(p, "PAGA"); },
     [](Posto& p) { conferma_pagamento(p, si); }, "PAGA"},
    {"paga quello che si cambia", [](Posto& p) { apri_pagamento(p, "CAMBIA"); },
     [](Posto& p) { conferma_pagamento(p, no); }, "CAMBIA"},
    {"azzera il saldo", niente, azzera, "SALDATA"},
    {"versa la ritenuta", apri_versamento, [](Posto& p) { versa(p, no); }, "VERSA"},
    {"versa e addebita", apri_versamento, [](Posto& p) { versa(p, si); }, "VERSA"},
    {"riordina", niente, riordina, "*"},
    {"azzera l'archivio", apri_azzeramento, azzera_archivio, "*"},
    {"limiti", [](Posto& p) { p.fai([&] { p.prog.schermi.apri_foglia("mrvaind"); }); }, memorizza_limiti,
     "*"},
    {"inserisce un fornitore", nuova_ditta, conferma_ditta},
    {"rinomina un fornitore",
     [](Posto& p) { p.digita(registro(p, 2).dati.scheda.Text2[0], "Nuova " + p.sigla); }, conferma_ditta},
    {"elimina il fornitore dei documenti", [](Posto& p) { registro(p, 1); }, elimina_ditta},
    {"riordina i fornitori", [](Posto& p) { registro(p, 3); }, ordina_ditte},
};

const Azione& azione(std::string_view nome) {
    for (const Azione& a : kAzioni)
        if (nome == a.nome) return a;
    throw std::logic_error("no such action");
}

}  // namespace ambra
