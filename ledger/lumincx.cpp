#include "ledger/lumincx.h"

#include "core/lettura.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/conti.h"
#include "ledger/registrazione.h"
#include "records/nome.h"
#include "screen/attesa.h"
#include "screen/colori.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 18, kRighePiene = 19;
constexpr std::size_t kNomeCondomino = 100, kNumeroCondomino = 4;
constexpr std::size_t kImporto = 4;

}  // namespace

Lumincx::Lumincx(Programma& p) : Schermo(p, "lumincx", "Movimenti in uscita") {
    aggiungi("newconto", newconto, "Estremi del movimento");
    aggiungi("text", text);
    for (std::size_t i = 1; i < text1.size(); ++i) aggiungi("text1(" + std::to_string(i) + ")", text1[i]);
    aggiungi("etichetta_condom", etichetta_condom, "Condomino");
    aggiungi("condom", condom);
    aggiungi("Combo1", Combo1);
    aggiungi("conto", conto, "Nessun conto selezionato");
    aggiungi("dove", dove);
    aggiungi("elenco", elenco);
    aggiungi("b_fine(1)", b_fine[1], "Memorizza");
    aggiungi("b_fine(0)", b_fine[0], "Annulla");

    text1[kImporto].importo = true;
    for (std::size_t i = 1; i < kImporto; ++i) text1[i].invio = [this, i] { fuoco(text1[i + 1]); };
    text1[kImporto].invio = [] {};
    elenco.scelto = [this](int r, int) {
        if (r > 0) scegli_riga(r);
    };
    b_fine[0].premuto = [this] { annulla(); };
    b_fine[1].premuto = [this] { memorizza(); };
    attivata = [this](Attivazione) { apertura(); };
    via_d_uscita = [this] { annulla(); };

    elenco.colonne({{"Voce di bilancio", 5000}, {"Conto", kResto}, {"", 0}, {"", 0}, {"", 0}}, 11340);
    text.testo(prog.oggi());  // a picker always holds a date
    caricaconti();
    for (Controllo* c : {static_cast<Controllo*>(&text1[kImporto]), static_cast<Controllo*>(&Combo1),
                         static_cast<Controllo*>(&condom)})
        c->cambiato = [this] { mostra_percorso(); };
}

// ---- opening ----

std::shared_ptr<const std::optional<int>> Lumincx::prepara(const MovimentoUscita& u) {
    proposto_ = u.contodefault;
    singolo_ = u.singolo;
    if (!u.data.empty()) text.testo(u.data);
    for (std::size_t i = 0; i < 3; ++i) text1[i + 1].testo(u.descrizione[i]);
    text1[kImporto].testo(testo_numero(u.importo));
    return esito_;
}

void Lumincx::caricaconti() {
    carica_voci(prog.disco, prog.err, prog.nnn(), voci_);
    leggi_o_resta(prog.arc.tot, 1, buffer_.totali);
    Passata<RecNome> indice(prog.arc.cns);
    Schedario<RecCondomino> condomini(prog.arc.cnd);
    RecNome nome{};
    for (int i = 1; i <= buffer_.totali.tcondomini; ++i) {
        leggi_o_resta(indice, i, nome);
        leggi_o_resta(condomini, nome.numero, buffer_.condomino);
        if (buffer_.condomino.dstato != 0) continue;
        condom.aggiungi(riempi(buffer_.condomino.dnome.testo(), kNomeCondomino) +
                        riempi(std::to_string(int(nome.numero)), kNumeroCondomino));
    }
    condom.scelta(0);

    Passata<RecConto> piano(prog.arc.pia);
    for (int n = 1; n <= kContiPerVoce; ++n) {
        leggi_o_resta(piano, kBaseContropartite + n, buffer_.conto);
        Combo1.aggiungi(nome_pulito(buffer_.conto.cnome.testo()));
    }
    Combo1.scelta(0);
}

void Lumincx::apertura() {
    caption(singolo_ ? "Uscite in addebito di un singolo condomino"
                     : "Uscite in addebito di tutto lo stabile");
    condom.visible(singolo_);
    etichetta_condom.visible(singolo_);
    listaconti();
    preseleziona();
    fuoco(text);
}

void Lumincx::listaconti() {
    Clessidra attesa(prog);
    elenco.ridisegna(false);
    elenco.righe(1);
    const auto conti = singolo_ ? elenca_conti(prog.arc, voci_, kVoceAddebiti, kVoceAddebiti, &buffer_.conto)
                                : elenca_conti(prog.arc, voci_, 1, kVociSpesa, &buffer_.conto);
    for (const RigaConto& c : conti) {
        const int r =
            elenco.aggiungi({c.voce, c.conto, std::to_string(c.numero_voce), std::to_string(c.numero_conto)});
        elenco.chiave(r, idconto(c.numero_voce, c.numero_conto));
        if (c.numero_voce == kVoceAddebiti) elenco.colora_testo_riga(r, colore::rosso_scritto);
    }
    if (conti.size() < kRigheMinime) elenco.righe(1 + kRighePiene);
    elenco.ridisegna(true);
}

void Lumincx::preseleziona() {
    if (singolo_) return scegli_riga(1);
    for (int r = 1; r < elenco.righe(); ++r) {
        if (elenco.chiave(r) == 0 || elenco.chiave(r) != proposto_) continue;
        elenco.prima_visibile(r);
        return scegli_riga(r);
    }
}

void Lumincx::scegli_riga(int r) {
    const int record = static_cast<int>(elenco.chiave(r));
    voce_ = record > 0 ? 1 + (record - 1) / kContiPerVoce : 0;
    conto_ = record > 0 ? 1 + (record - 1) % kContiPerVoce : 0;
    conto.caption(elenco.testo(r, 1));
    mostra_percorso();
    fuoco(text);
}

// Each balance that a posting would move, before and after, as the files stand now.
void Lumincx::mostra_percorso() {
    const double importo = leggi_numero(text1[kImporto].testo());
    const auto passaggio = [this](std::string_view nome, double prima, double dopo) {
        return unisci(nome, ": da ", formatta(prima, Formato::due_decimali), " a ",
                      formatta(dopo, Formato::due_decimali));
    };
    const bool pronto = importo != 0 && voce_ != 0 && conto_ != 0;
    for (auto& d : dove) d.caption("");
    if (!pronto) return;
    RecConto c{};
    if (leggi(prog.arc.pia, idconto(voce_, conto_), c))
        dove[0].caption(passaggio(conto.caption(), c.csaldo, prog.arrotonda(c.csaldo + importo)));
    if (leggi(prog.arc.pia, kBaseContropartite + contropartita(), c))
        dove[1].caption(passaggio(Combo1.testo(), c.csaldo, prog.arrotonda(c.csaldo - importo)));
    RecCondomino d{};
    if (voce_ >= kVoceAddebiti && leggi(prog.arc.cnd, condomino_scelto(), d))
        dove[2].caption(passaggio(d.dnome.rifilato(), d.daddebiti, prog.arrotonda(d.daddebiti + importo)));
}

// ---- the two commands ----

int Lumincx::condomino_scelto() const {
    return static_cast<int>(leggi_numero(destra(condom.testo(), kNumeroCondomino)));
}

void Lumincx::memorizza() {
    const double importo = leggi_numero(text1[kImporto].testo());
    if (importo == 0) return prog.ferma("Non è stato impostato l'importo dell'operazione"_it);
    if (voce_ == 0 || conto_ == 0) return prog.ferma("Non è stato selezionato il conto"_it);
    if (!registra(importo)) return prog.riferisci_occupato();
    concludi(1);
}

// While the shares are worked out the interface draws: a second click stores nothing twice.
bool Lumincx::registra(double importo) {
    const Attesa al_lavoro(*this);
    const Clessidra attesa(prog);
    prog.err.azzera();
    return registra_movimento(prog.arc, prog.imp.cambio, voci_, voce_, condomino_scelto(), movimento(importo),
                              buffer_, [this] { prog.piattaforma.refresh(); });
}

void Lumincx::concludi(int esito) {
    *esito_ = esito;
    prog.tornada = esito;
    prog.schermi.chiudi(nome());
}

RecMovimento Lumincx::movimento(double importo) const {
    RecMovimento m{};
    const std::string& d = text.testo();
    m.mdata = unisci(destra(d, 2), medio(d, 4, 2), sinistra(d, 2));
    for (std::size_t i = 0; i < 3; ++i) m.mdesc[i] = text1[i + 1].testo();
    m.mconto = idconto(voce_, conto_);
    m.mcondomino = voce_ < kVoceAddebiti ? 0 : condomino_scelto();
    m.mimporto = importo;
    m.mtipo = voce_ >= kVoceAddebiti ? 2 : 0;
    m.mcontrop = contropartita();
    return m;
}

void Lumincx::annulla() {
    concludi(-1);
}

// ---- the callers' road ----

EsitoAddebito addebita(Schermo& chi, const MovimentoUscita& u) {
    Programma& prog = chi.prog;
    if (Schermo* aperta = prog.schermi.caricato("lumincx")) {
        prog.schermi.porta_davanti(*aperta);
        return EsitoAddebito::non_iniziato;
    }
    prog.tornada = 0;
    prog.contodefault = u.contodefault;
    prog.modoaddebito = u.singolo ? 1 : 0;
    const Attesa attesa(chi);
    const auto esito = prog.schermi.carica<Lumincx>("lumincx").prepara(u);
    prog.schermi.apri("lumincx");
    return Attesa::attendi(prog, *esito) == 1 ? EsitoAddebito::memorizzato : EsitoAddebito::annullato;
}

std::string descrizione_documento(bool nota_credito, std::string_view numero, std::string_view data) {
    return unisci(nota_credito ? "Nota credito " : "Fattura ", rifila(numero), " del ", rifila(data));
}

}  // namespace ambra
