#include "tests/insieme/passeggiata.h"

#include "bench/cantiere.h"
#include "core/numeri.h"
#include "ledger/documenti.h"
#include "ledger/lumincx.h"
#include "records/descrizione.h"

namespace ambra {

namespace {

using enum Risposta;

constexpr int kVatRate = 22, kRitenuta = 20;

// Amounts of 400 and its multiples: no cent is ever rounded.
void metti_importi(RecFattura& f, int imponibile) {
    f.impon[0] = imponibile;
    f.ivai[0] = imponibile * kVatRate / 100.0;
    f.rac[0] = imponibile * kRitenuta / 100.0;
    for (auto& s : f.sca) s = imponibile * (100.0 + kVatRate - kRitenuta) / 100 / kRate;
}

std::string numero_di(const RecFattura& f) {
    return std::string(f.numdoc.rifilato());
}

}  // namespace

PasseggiataSchermi::PasseggiataSchermi() {
    cantiere::stabile(archivio.memoria, 2);
    RecFornitore primo = fornitore_vuoto("IMPRESA ROSSI");
    primo.conto = 1;
    archivio.file("for") = byte_di(primo);
    ditte_.push_back({primo});
    nomi_[std::string(primo.inte1.rifilato())] = {1, 0};
    registra_tutte(prog.schermi);
    prog.schermi.apri("vexoraf");
    piattaforma.intanto = [this] { attesa(); };
}

RecFattura* PasseggiataSchermi::trova(const std::string& numero) {
    const auto it = modello_.find(numero);
    return it == modello_.end() ? nullptr : &it->second;
}

void PasseggiataSchermi::comanda(std::initializer_list<Risposta> risposte, Detto atteso,
                                 const std::function<void()>& f) {
    piattaforma.messaggi.clear();
    piattaforma.risposte.assign(risposte);
    fai(f);
    Detto detto = Detto::niente;
    for (const auto& m : piattaforma.messaggi) {
        if (m.testo.find("cambiato in archivio") != std::string::npos) detto = Detto::documento;
        if (m.testo.find("cambiata in archivio") != std::string::npos) detto = Detto::anagrafica;
    }
    EXPECT_EQ(int(detto), int(atteso)) << ultimo;
    EXPECT_TRUE(piattaforma.risposte.empty()) << ultimo << ": a question was not asked";
    piattaforma.risposte.clear();
    piattaforma.messaggi.clear();
}

std::map<std::string, RecFattura> PasseggiataSchermi::sul_disco() {
    std::map<std::string, RecFattura> r;
    for (int n = 1; n <= quante_fatture(prog.arc); ++n) {
        RecFattura f{};
        leggi(prog.arc.ftr, n, f);
        EXPECT_TRUE(r.emplace(numero_di(f), f).second) << ultimo << ": twice " << numero_di(f);
    }
    return r;
}

void PasseggiataSchermi::confronta() {
    const auto disco = sul_disco();
    ASSERT_EQ(disco.size(), modello_.size()) << ultimo;
    for (const auto& [numero, f] : modello_) {
        const auto it = disco.find(numero);
        ASSERT_NE(it, disco.end()) << ultimo << ": lost " << numero;
        for (const CampoRecord& c : formato_di_file("ftr")->campi)
            ASSERT_EQ(byte_di(it->second).substr(c.posto, c.lungo * static_cast<std::size_t>(c.quanti)),
                      byte_di(f).substr(c.posto, c.lungo * static_cast<std::size_t>(c.quanti)))
                << ultimo << ": " << c.nome << " of " << numero;
    }
    RecTotaliLedger t{};
    leggi(prog.arc.tot, 1, t);
    ASSERT_EQ(t.tmovimenti, movimenti_) << ultimo;
    RecConto conto{};
    leggi(prog.arc.pia, 1, conto);
    ASSERT_NEAR(conto.csaldo, saldo_, 1e-6) << ultimo;
    leggi(prog.arc.pia, kBaseContropartite + 1, conto);
    ASSERT_NEAR(conto.csaldo, -saldo_, 1e-6) << ultimo;
    confronta_fornitori();
}

// ---- the invoice ----

void PasseggiataSchermi::nuova() {
    if (modello_.size() >= kTanti || in_attesa("lumftea")) return;
    const Ditta di = una_viva();
    if (di.record == 0) return;
    prog.tornada = -99;
    prog.modofattura = prog.recfattura = prog.statofattura = 0;
    prog.recfornitore = di.record;
    comanda({}, false, [&] { prog.schermi.apri("lumftea"); });
    comincia_nuova(di);
}

void PasseggiataSchermi::comincia_nuova(Ditta di) {
    fattura_ = InMano("D" + std::to_string(++nati_), true);
    fattura_.ditta = di;
    fattura_.apertura = ++aperture_;
    auto& s = *aperto<Lumftea>("lumftea");
    fai([&] {
        s.Text2[0].digita(fattura_.numero);
        s.text1[1].digita(dado(2) == 0 ? "10/05/2023" : "20/02/2024");
    });
    fattura_.imponibile = 0;
}

void PasseggiataSchermi::digita_fattura() {
    auto* s = aperto<Lumftea>("lumftea");
    if (!s) return;
    if (dado(2) == 0) {
        fattura_.imponibile = 400 * (1 + dado(50));
        fai([&] { s->impon[0].digita(std::to_string(*fattura_.imponibile)); });
    } else {
        fattura_.pdf = "p" + std::to_string(dado(1000));
        fai([&] { s->pdf.digita(*fattura_.pdf); });
    }
}

void PasseggiataSchermi::conferma_fattura() {
    auto* s = aperto<Lumftea>("lumftea");
    if (!s) return;
    const InMano m = fattura_;  // what the fields hold now is stored, whatever happens in the wait
    const RecFattura* prima = trova(m.numero);
    const bool sparito = !m.nuovo && !prima;
    if (sparito) return comanda({}, true, [&] { s->command3d1[0].premi(); });
    // Whoever is no longer there gets no new document; one that is his already may be changed.
    const int numfor_prima = prima ? prima->numfor : 0;
    if (m.ditta && !e_lei(*m.ditta) && (m.nuovo || m.ditta->record != numfor_prima))
        return comanda({}, Detto::anagrafica, [&] { s->command3d1[0].premi(); });
    const bool chiede = !m.addebitata && (m.nuovo || prima->addebita.grezzo() != "1");
    const bool si_addebita = chiede && dado(2) == 0;
    const bool comincia = si_addebita && addebito_possibile();
    // What is charged is what the fields hold; a posting of nothing cannot be stored.
    const double per_rata = m.imponibile ? *m.imponibile * 1.02 / kRate : prima ? double(prima->sca[0]) : 0;
    atteso_ = comincia ? per_rata * kRate : atteso_;
    piattaforma.messaggi.clear();
    piattaforma.risposte.clear();
    if (chiede) piattaforma.risposte.push_back(si_addebita ? si : no);
    fai([&] { s->command3d1[0].premi(); });
    EXPECT_TRUE(piattaforma.risposte.empty()) << ultimo;
    if (si_addebita && !comincia) return;
    const bool addebitata = m.addebitata || (comincia && memorizzato_);
    // Another firm took the supplier's place while the posting was open.
    if (m.ditta && !e_lei(*m.ditta) && (m.nuovo || m.ditta->record != numfor_prima)) {
        fattura_.addebitata = addebitata;
        return;
    }
    if (m.nuovo) {
        InMano nato = m;
        nato.addebitata = addebitata;
        return registra_nuova(nato);
    }
    RecFattura* ora = trova(m.numero);
    if (!ora) {  // it went while the posting was open: the screen stays, and remembers the charge
        fattura_.addebitata = addebitata;
        return;
    }
    if (m.imponibile) metti_importi(*ora, *m.imponibile);
    if (m.pdf) ora->pdf = *m.pdf;
    if (addebitata) ora->addebita = "1";
    if (m.ditta) ora->numfor = m.ditta->record;
    if (m.tolta == (ora->cancellata == 1)) ora->cancellata = 0;
    EXPECT_FALSE(aperto<Lumftea>("lumftea")) << ultimo;
    ++fatti[1];
}

// A new one is looked at field by field, then taken into the model as it is.
void PasseggiataSchermi::registra_nuova(const InMano& m) {
    const auto disco = sul_disco();
    const auto it = disco.find(m.numero);
    ASSERT_NE(it, disco.end()) << ultimo << ": not stored " << m.numero;
    RecFattura atteso = it->second;
    metti_importi(atteso, *m.imponibile);
    atteso.numfor = m.ditta->record;
    atteso.addebita = m.addebitata ? "1" : "0";
    if (m.pdf) atteso.pdf = *m.pdf;
    atteso.pagata = atteso.cancellata = 0;
    for (auto& v : atteso.ver) v = 0;
    ASSERT_EQ(byte_di(it->second), byte_di(atteso)) << ultimo;
    modello_[m.numero] = atteso;
    EXPECT_FALSE(aperto<Lumftea>("lumftea")) << ultimo;
    ++fatti[0];
}

void PasseggiataSchermi::elimina_fattura() {
    auto* s = aperto<Lumftea>("lumftea");
    if (!s || fattura_.nuovo) return;
    RecFattura* f = trova(fattura_.numero);
    if (!f) return comanda({}, true, [&] { s->command3d1[2].premi(); });
    comanda({si}, false, [&] { s->command3d1[2].premi(); });
    f->cancellata = 1;
    ++fatti[2];
}

// ---- the worklist ----

void PasseggiataSchermi::riga(int colonna) {
    Griglia& elenco = lista().elenco;
    if (lista().righe < 2) return;
    const int r = 1 + dado(lista().righe - 1);
    const std::string testo(elenco.vista(r, colonna)), numero(elenco.vista(r, 2));
    if (testo != "clic qui" && testo != "azzera") return;
    RecFattura* f = trova(numero);
    const auto clic = [&] { elenco.scegli(r, colonna); };
    if (!f) return comanda({}, true, clic);
    const InMano in_mano(numero, false, f->cancellata == 1);
    if (colonna == 7) {
        if (!in_attesa("lumftea")) fattura_ = in_mano, fattura_.apertura = ++aperture_;
        comanda({}, false, clic);
    } else if (colonna == 8) {
        const bool si_o_no = dado(2) == 0;
        comanda({si_o_no ? si : no}, false, clic);
        if (si_o_no) f->cancellata = 1;
        fatti[2] += si_o_no;
    } else if (testo == "azzera") {
        const bool si_o_no = dado(2) == 0;
        comanda({si_o_no ? si : no}, false, clic);
        if (!si_o_no) return;
        for (auto& d : f->dver) d = "";
        for (auto& v : f->ver) v = 0;
        f->pagata = 0;
        if (!in_attesa("luminca")) pagamento_ = in_mano;
        ++fatti[3];
    } else {
        comanda({}, false, clic);
        if (!in_attesa("luminca")) pagamento_ = in_mano;
    }
}

void PasseggiataSchermi::riordina() {
    const bool si_o_no = dado(2) == 0;
    comanda({si_o_no ? si : no}, false, [&] { lista().riordino(); });
    if (!si_o_no) return;
    std::erase_if(modello_, [](const auto& v) { return v.second.cancellata == 1; });
    ++fatti[4];
}

}  // namespace ambra
