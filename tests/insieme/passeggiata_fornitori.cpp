// The walk among the suppliers: the register, the picker and the list, half done like all the rest.
#include <cstring>
#include <set>

#include "core/testo.h"
#include "records/descrizione.h"
#include "tests/insieme/passeggiata.h"

namespace ambra {

namespace {

using enum Risposta;

constexpr std::size_t kTante = 12;

}  // namespace

// ---- what the model knows ----

bool PasseggiataSchermi::e_lei(Ditta d) const {
    return ditte_[static_cast<std::size_t>(d.record - 1)].vita == d.vita;
}

bool PasseggiataSchermi::viva(Ditta d) const {
    return e_lei(d) && ditte_[static_cast<std::size_t>(d.record - 1)].scheda.cancellata == 0;
}

std::string PasseggiataSchermi::battezza(Ditta d) {
    std::string nome = "DITTA " + std::to_string(caso() % 1000) + " " + std::to_string(nomi_.size());
    nomi_[nome] = d;
    return nome;
}

PasseggiataSchermi::Ditta PasseggiataSchermi::mostrata(const Consultazione& dati) const {
    const auto it = nomi_.find(dati.scheda.Text2[0].testo());
    return it == nomi_.end() ? Ditta{} : it->second;
}

// Record 0 where nobody is left.
PasseggiataSchermi::Ditta PasseggiataSchermi::una_viva() {
    std::vector<Ditta> vive{};
    for (std::size_t i = 0; i < ditte_.size(); ++i)
        if (const Ditta d{static_cast<int>(i) + 1, ditte_[i].vita}; viva(d)) vive.push_back(d);
    if (vive.empty()) return {};
    return vive[static_cast<std::size_t>(dado(static_cast<int>(vive.size())))];
}

// The records byte for byte; the index holds each once under his name, in order where the counters say so.
void PasseggiataSchermi::confronta_fornitori() {
    const std::string &schede = archivio.file("for"), &indice = archivio.file("srf");
    const std::size_t n = ditte_.size();
    ASSERT_EQ(schede.size(), n * sizeof(RecFornitore)) << ultimo;
    ASSERT_EQ(indice.size(), n * sizeof(RecNome)) << ultimo;
    for (std::size_t i = 0; i < n; ++i)
        for (const CampoRecord& c : formato_di_file("for")->campi) {
            const auto lungo = c.lungo * static_cast<std::size_t>(c.quanti);
            ASSERT_EQ(schede.substr(i * sizeof(RecFornitore) + c.posto, lungo),
                      byte_di(ditte_[i].scheda).substr(c.posto, lungo))
                << ultimo << ": " << c.nome << " of supplier " << i + 1;
        }
    RecTotali t{};
    std::memcpy(&t, archivio.file("tfr").data(), sizeof t);
    ASSERT_EQ(t.parola[0], static_cast<int>(n)) << ultimo;
    std::set<int> visti;
    std::string precedente;
    for (std::size_t i = 0; i < n; ++i) {
        RecNome r{};
        std::memcpy(&r, indice.data() + i * sizeof r, sizeof r);
        ASSERT_TRUE(r.numero >= 1 && r.numero <= static_cast<int>(n) && visti.insert(r.numero).second)
            << ultimo;
        const std::string nome = r.nome.testo(),
                          suo = ditte_[static_cast<std::size_t>(r.numero - 1)].scheda.inte1.testo();
        // A rebuild of the index gives a deleted one a second mark.
        ASSERT_TRUE(nome == maiuscolo(suo) || (suo[0] == '\xFF' && nome == ("\xFF" + suo).substr(0, 40)))
            << ultimo << ": " << nome << " for " << suo;
        if (t.parola[1] == 0) {
            ASSERT_LE(precedente, nome) << ultimo;
        }
        precedente = nome;
    }
}

// ---- the register ----

void PasseggiataSchermi::inserisci_ditta() {
    auto* s = aperto<Lumfor>("lumfor");
    if (!s || s->stato != Lumfor::kSfoglia || scheda_ || ditte_.size() >= kTante) return;
    fai([&] { s->b_ins.premi(); });
    scheda_ = SchedaInMano{true, {}, {}, {}};
    scheda_->nome = battezza({});
    fai([&] { s->dati.scheda.Text2[0].digita(*scheda_->nome); });
}

void PasseggiataSchermi::digita_ditta() {
    auto* s = aperto<Lumfor>("lumfor");
    if (!s) return;
    if (!scheda_) {
        const Ditta d = mostrata(s->dati);
        ASSERT_GT(d.record, 0) << ultimo;
        const std::string telefono = "0" + std::to_string(dado(1000));
        if (!viva(d)) {
            fai([&] { s->dati.scheda.Text2[14].digita(telefono); });
            EXPECT_EQ(s->stato, Lumfor::kSfoglia) << ultimo;
            return;
        }
        scheda_ = SchedaInMano{false, d, {}, {}};
        if (dado(2) == 0) fai([&] { s->b_mod.premi(); });
    }
    if (dado(3) == 0) {
        scheda_->nome = battezza(scheda_->ditta);
        fai([&] { s->dati.scheda.Text2[0].digita(*scheda_->nome); });
    } else {
        scheda_->telefono = "1" + std::to_string(aperture_++);
        fai([&] { s->dati.scheda.Text2[14].digita(*scheda_->telefono); });
    }
    EXPECT_NE(s->stato, Lumfor::kSfoglia) << ultimo;
}

void PasseggiataSchermi::conferma_ditta() {
    auto* s = aperto<Lumfor>("lumfor");
    if (!s || !scheda_) return;
    const std::string indice = archivio.file("srf");
    comanda({}, false, [&] { s->b_conferma.premi(); });
    EXPECT_EQ(s->stato, Lumfor::kSfoglia) << ultimo;
    if (scheda_->nuova) {
        registra_ditta(indice);
    } else {
        RecFornitore& f = scheda(scheda_->ditta);
        if (scheda_->nome) f.inte1 = *scheda_->nome;
        if (scheda_->telefono) f.tel[0] = *scheda_->telefono;
        ++fatti[10];
    }
    scheda_.reset();
}

// A new one lies over the first deleted one of the index, or at the end.
void PasseggiataSchermi::registra_ditta(const std::string& indice) {
    Ditta d{};
    for (std::size_t i = 0; i < ditte_.size() && d.record == 0; ++i) {
        RecNome r{};
        std::memcpy(&r, indice.data() + i * sizeof r, sizeof r);
        if (ditte_[static_cast<std::size_t>(r.numero - 1)].scheda.cancellata == 1) d.record = r.numero;
    }
    if (d.record == 0) {
        ditte_.emplace_back();
        d.record = static_cast<int>(ditte_.size());
    }
    Anagrafica& a = ditte_[static_cast<std::size_t>(d.record - 1)];
    d.vita = ++a.vita;
    a.scheda = fornitore_vuoto(*scheda_->nome);
    a.scheda.conto = 1;  // no account was chosen: that of the one shown before
    a.scheda.tel[0] = scheda_->telefono.value_or("");
    for (auto& [nome, chi] : nomi_)
        if (nome == *scheda_->nome) chi = d;
    ++fatti[9];
}

void PasseggiataSchermi::annulla_ditta() {
    auto* s = aperto<Lumfor>("lumfor");
    if (!s || !scheda_) return;
    fai([&] { s->b_annulla.premi(); });
    EXPECT_EQ(s->stato, Lumfor::kSfoglia) << ultimo;
    scheda_.reset();
}

void PasseggiataSchermi::elimina_ditta() {
    auto* s = aperto<Lumfor>("lumfor");
    if (!s || (scheda_ && scheda_->nuova)) return;
    const Ditta d = scheda_ ? scheda_->ditta : mostrata(s->dati);
    if (!viva(d)) return comanda({}, false, [&] { s->b_eli.premi(); });
    const bool si_o_no = dado(3) != 0;
    comanda({si_o_no ? si : no}, false, [&] { s->b_eli.premi(); });
    if (!si_o_no) return;
    RecFornitore& f = scheda(d);
    f.inte1 = "\xFF" + f.inte1.testo();
    f.cancellata = 1;
    scheda_.reset();
    ++fatti[11];
}

void PasseggiataSchermi::riordina_ditte() {
    auto* s = aperto<Lumfor>("lumfor");
    if (!s) return;
    const bool lavora = !scheda_ && ditte_.size() >= 2;
    piattaforma.messaggi.clear();
    fai([&] { s->b_srt.premi(); });
    EXPECT_EQ(piattaforma.messaggi.size(), lavora ? 1u : 0u) << ultimo;
    fatti[12] += lavora;
}

void PasseggiataSchermi::scorri_ditte() {
    Consultazione* dati = nullptr;
    if (auto* s = aperto<Lumfor>("lumfor"); s && dado(2) == 0 && !scheda_)
        dati = &s->dati;
    else if (auto* p = aperto<Lumftem>("lumftem"))
        dati = &p->dati;
    if (dati && dati->HScroll1.massimo() > 1)
        fai([&] { dati->HScroll1.scorri(1 + dado(dati->HScroll1.massimo())); });
}

// ---- the picker ----

void PasseggiataSchermi::apri_scelta() {
    fai([&] { prog.schermi.apri_foglia("lumftem"); });
    scelta_ = {};
}

void PasseggiataSchermi::scelta_dalla_fattura() {
    auto* s = aperto<Lumftea>("lumftea");
    if (!s || fattura_.nuovo) return;
    fai([&] { s->command3d1[3].premi(); });
    scelta_ = {false, fattura_.apertura};
    if (dado(2) == 0) return;
    scorri_ditte();
    continua();
}

void PasseggiataSchermi::continua() {
    auto* s = aperto<Lumftem>("lumftem");
    if (!s || (scelta_.nuova && modello_.size() >= kTanti)) return;
    const Ditta d = mostrata(s->dati);
    const bool tolta = s->dati.scheda.Label2.visible();
    const auto premi = [&] { s->b_ins.premi(); };
    if (tolta) return comanda({}, false, premi);
    if (!e_lei(d)) return comanda({}, Detto::anagrafica, premi);
    if (!viva(d)) return comanda({}, false, premi);
    const bool attende = in_attesa("lumftea"), c_era = aperto<Lumftea>("lumftea");
    comanda({}, false, premi);
    EXPECT_FALSE(aperto<Lumftem>("lumftem")) << ultimo;
    if (attende) return;
    if (scelta_.nuova) return comincia_nuova(d);
    if (!c_era || scelta_.apertura != fattura_.apertura) return;
    fattura_.ditta = d;
    ++fatti[13];
}

// ---- the list ----

void PasseggiataSchermi::apri_elenco_ditte() {
    if (auto* s = aperto<Lumfor>("lumfor"); s && dado(2) == 0 && !scheda_) {
        fai([&] { s->dati.b_lista.premi(); });
        chi_elenca_ = "lumfor";
    } else if (auto* p = aperto<Lumftem>("lumftem")) {
        fai([&] { p->dati.b_lista.premi(); });
        chi_elenca_ = "lumftem";
    }
}

// Who is chosen is the one that the caller shows, at once where it does not hold something half typed.
void PasseggiataSchermi::scegli_ditta() {
    auto* s = aperto<Mrvsel>("mrvsel");
    if (!s || s->righe < 2) return;
    const int riga = 1 + dado(s->righe - 1);
    const auto it = nomi_.find(std::string(rifila(s->elenco.vista(riga, 0))));
    ASSERT_NE(it, nomi_.end()) << ultimo;
    fai([&] { s->elenco.scegli(riga, 0); });
    if (!viva(it->second)) return;
    const std::string nome(scheda(it->second).inte1.rifilato());
    if (auto* r = aperto<Lumfor>("lumfor"); r && chi_elenca_ == "lumfor" && !scheda_) {
        EXPECT_EQ(r->dati.scheda.Text2[0].testo(), nome) << ultimo;
    } else if (auto* p = aperto<Lumftem>("lumftem"); p && chi_elenca_ == "lumftem") {
        EXPECT_EQ(p->dati.scheda.Text2[0].testo(), nome) << ultimo;
    }
    ++fatti[14];
}

void PasseggiataSchermi::un_passo_fra_i_fornitori(int che) {
    if (che == 40) {
        fai([&] { prog.schermi.apri_foglia("lumfor"); });
    } else if (che < 43) {
        inserisci_ditta();
    } else if (che < 45) {
        digita_ditta();
    } else if (che < 47) {
        conferma_ditta();
    } else if (che == 47) {
        dado(2) == 0 ? annulla_ditta() : elimina_ditta();
    } else if (che == 48) {
        elimina_ditta();
    } else if (che == 49) {
        scorri_ditte();
    } else if (che == 50 && dado(3) == 0) {
        riordina_ditte();
    } else if (che == 51) {
        apri_scelta();
    } else if (che == 52 || che == 58) {
        continua();
    } else if (che == 56 || che == 57) {
        scelta_dalla_fattura();
    } else if (che == 53) {
        apri_elenco_ditte();
    } else if (che == 54) {
        scegli_ditta();
    } else if (che == 55 && dado(3) == 0) {
        static constexpr const char* kNomi[] = {"lumfor", "lumftem", "mrvsel"};
        const std::string nome = kNomi[dado(3)];
        Schermo* s = prog.schermi.caricato(nome);
        if (!s || !s->visible()) return;
        fai([&] { prog.schermi.chiudi_dal_bordo(*s); });
        if (nome == "lumfor") scheda_.reset();
        if (nome == chi_elenca_) chi_elenca_.clear();
    }
}

}  // namespace ambra
