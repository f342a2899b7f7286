// The walk beyond the invoice and the worklist: payments, withheld tax, the reset, and what is done in a
// wait.
#include "core/numeri.h"
#include "ledger/documenti.h"
#include "ledger/lumincx.h"
#include "tests/insieme/passeggiata.h"

namespace ambra {

namespace {

using enum Risposta;

const std::string kDataPagamento = "01/03/2024";

}  // namespace

// ---- the payment ----

void PasseggiataSchermi::digita_pagamento() {
    auto* s = aperto<Luminca>("luminca");
    if (!s) return;
    pagamento_.pagamento = dado(3) == 0 ? 0 : 1 + dado(100);
    fai([&] {
        s->dver[0].digita(kDataPagamento);
        s->ver[0].digita(*pagamento_.pagamento == 0 ? "" : std::to_string(*pagamento_.pagamento));
        if (*pagamento_.pagamento == 0) s->tutta.premi();
    });
    // The shortcut pays what the screen showed at its opening, each instalment today.
    if (*pagamento_.pagamento == 0) pagamento_.pagamento = -1;
}

void PasseggiataSchermi::conferma_pagamento() {
    auto* s = aperto<Luminca>("luminca");
    if (!s) return;
    const InMano m = pagamento_;
    const RecFattura* prima = trova(m.numero);
    if (!prima) return comanda({}, true, [&] { s->conferma.premi(); });
    double quanto[kRate], tutto = 0;
    std::string quando[kRate];
    for (std::size_t k = 0; k < kRate; ++k) {
        quanto[k] = leggi_numero(s->ver[k].testo());
        quando[k] = in_ggmmaaaa(s->dver[k].testo());
        if (leggi_numero(s->dver[k].testo()) <= 0) quando[k].clear();
        tutto += quanto[k];
    }
    const bool tocca_ritenuta = m.pagamento.has_value();
    const std::string ritenuta = in_ggmmaaaa(s->dver[4].testo());
    const bool chiede = !m.addebitata && leggi_numero(prima->addebita.testo()) == 0;
    const bool si_addebita = chiede && dado(2) == 0;
    const bool comincia = si_addebita && addebito_possibile();
    if (comincia) atteso_ = tutto;
    piattaforma.messaggi.clear();
    piattaforma.risposte.clear();
    if (chiede) piattaforma.risposte.push_back(si_addebita ? si : no);
    fai([&] { s->conferma.premi(); });
    EXPECT_TRUE(piattaforma.risposte.empty()) << ultimo;
    if (si_addebita && !comincia) return;
    const bool addebitata = m.addebitata || (comincia && memorizzato_);
    RecFattura* ora = trova(m.numero);
    if (!ora) {
        pagamento_.addebitata = addebitata;
        return;
    }
    for (std::size_t k = 0; k < kRate; ++k) {
        ora->ver[k] = ora->ver[k] + quanto[k];
        ora->dver[k] = quando[k];
    }
    if (tocca_ritenuta) ora->dscarit = ritenuta;
    if (somma(ora->sca) == somma(ora->ver)) {
        ora->pagata = 1;
        if (addebitata) ora->addebita = "1";
    }
    EXPECT_FALSE(aperto<Luminca>("luminca")) << ultimo;
    ++fatti[5];
}

// ---- withheld tax ----

void PasseggiataSchermi::apri_versamento() {
    if (in_attesa("lumpgr")) return;
    fai([&] { prog.schermi.apri_foglia("lumpgr"); });
}

void PasseggiataSchermi::segna_versamento() {
    auto* s = aperto<Lumpgr>("lumpgr");
    if (s && s->elenco.righe() > 1) fai([&] { s->elenco.scegli(1 + dado(s->elenco.righe() - 1), 0); });
}

void PasseggiataSchermi::conferma_versamento() {
    auto* s = aperto<Lumpgr>("lumpgr");
    if (!s) return;
    std::vector<RecFattura*> segnati;
    bool sparito = false;
    for (int r = 1; r < s->elenco.righe(); ++r) {
        if (!s->segnata(r)) continue;
        segnati.push_back(trova(std::string(rifila(s->elenco.vista(r, 0)))));
        sparito = sparito || !segnati.back();
    }
    if (sparito) return comanda({}, true, [&] { s->stampante.premi(); });
    const bool versa = dado(4) != 0, si_addebita = versa && dado(2) == 0;
    const bool comincia = si_addebita && addebito_possibile();
    if (comincia) atteso_ = leggi_numero(testo_numero(valimporto_di(s->txt.testo())));
    if (versa)
        for (RecFattura* f : segnati) f->dverrit = "15032024";
    if (!versa) return comanda({no}, false, [&] { s->stampante.premi(); });
    comanda({si, si_addebita ? si : no}, false, [&] { s->stampante.premi(); });
    EXPECT_EQ(aperto<Lumpgr>("lumpgr") != nullptr, si_addebita && !comincia) << ultimo;
    fatti[6] += !segnati.empty();
}

// ---- the reset ----

void PasseggiataSchermi::azzera_archivio() {
    fai([&] { prog.schermi.apri_foglia("mrvaazz"); });
    auto& s = *aperto<Mrvaazz>("mrvaazz");
    const bool spunta = dado(2) == 0, si_o_no = dado(2) == 0;
    fai([&] {
        if (s.azz8.spuntata() != spunta) s.azz8.clicca();
        s.text1_6.digita("01/01/2024");
    });
    if (dado(3) == 0) return;  // left half done
    if (si_o_no)
        comanda({si, si, ok}, false, [&] { s.command3d4[1].premi(); });
    else
        comanda({no}, false, [&] { s.command3d4[1].premi(); });
    if (!si_o_no || !spunta) return;
    std::erase_if(modello_, [](const auto& v) { return v.second.datareg.testo() < "20240101"; });
    ++fatti[7];
}

// ---- the wait ----

// One step of the user while his posting is open, or its end.
void PasseggiataSchermi::attesa() {
    if (dado(3) != 0) return un_passo();
    auto& s = *static_cast<Lumincx*>(prog.schermi.caricato("lumincx"));
    const double importo = leggi_numero(s.text1[4].testo());
    EXPECT_NEAR(importo, atteso_, 1e-6) << ultimo;
    memorizzato_ = importo != 0 && dado(3) != 0;
    fai([&] { s.b_fine[memorizzato_ ? 1 : 0].premi(); });
    if (!memorizzato_) return;
    ++movimenti_;
    saldo_ += importo;
    ++fatti[8];
}

void PasseggiataSchermi::un_passo() {
    const int che = dado(60);
    ultimo += " " + std::to_string(che);
    if (ultimo.size() > 300) ultimo.erase(0, 100);
    if (che < 4)
        nuova();
    else if (che < 8)
        riga(7);
    else if (che < 10)
        riga(8);
    else if (che < 14)
        riga(9);
    else if (che < 19)
        digita_fattura();
    else if (che < 23)
        conferma_fattura();
    else if (che == 23)
        elimina_fattura();
    else if (che < 27)
        digita_pagamento();
    else if (che < 30)
        conferma_pagamento();
    else if (che == 30)
        apri_versamento();
    else if (che < 33)
        segna_versamento();
    else if (che == 33)
        conferma_versamento();
    else if (che < 36)
        fai([&] { lista().aggiornalista(); });
    else if (che == 36)
        fai([&] { lista().srx[static_cast<std::size_t>(dado(3) == 0 ? 4 : dado(2))].premi(); });
    else if (che == 37 && dado(4) == 0)
        riordina();
    else if (che == 38 && dado(3) == 0)
        azzera_archivio();
    else if (che == 39) {
        static constexpr const char* kNomi[] = {"lumftea", "luminca", "lumpgr"};
        const char* nome = kNomi[dado(3)];
        if (Schermo* s = prog.schermi.caricato(nome); s && s->visible())
            fai([&] { prog.schermi.chiudi_dal_bordo(*s); });
    }
    if (che >= 40) un_passo_fra_i_fornitori(che);
    EXPECT_EQ(prog.arc.sezioni_prese(), 0);
    confronta();
}

}  // namespace ambra
