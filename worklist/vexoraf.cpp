#include "worklist/vexoraf.h"

#include "core/date.h"
#include "core/lettura.h"
#include "core/testo.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 26;
constexpr int kChiaveData = 10;

}  // namespace

Vexoraf::Vexoraf(Programma& p) : Schermo(p, "vexoraf", "Kit Ambra e acquisti per condominio") {
    aggiungi("stabili", stabili, p.stabili);
    aggiungi("xx_versione", xx_versione, "Ver. 12.3.1");
    aggiungi("srx", srx);
    aggiungi("elenco", elenco);
    for (const std::size_t i : {3u, 2u, 1u, 0u})
        aggiungi("command3d2(" + std::to_string(i) + ")", command3d2[i]);
    aggiungi("command3d1", command3d1);
    aggiungi("stampante", stampante);
    aggiungi("Label2", Label2);
    aggiungi("indice", indice, "Fine");

    stabili.ricevuto = [this] { fuoco(elenco); };
    for (int i = 0; i < 10; ++i) srx[static_cast<std::size_t>(i)].premuto = [this, i] { ordina(i); };
    for (const std::size_t i : {0u, 1u, 4u}) srx[i].caption("Riordina");
    elenco.scelto = [this](int r, int c) { clic(r, c); };
    for (auto* b :
         {&command3d2[0], &command3d2[1], &command3d2[2], &command3d2[3], &command3d1, &stampante, &Label2})
        b->premuto = [this, b] { comando(std::string(b->caption())); };
    indice.premuto = [this] { fine(); };
    via_d_uscita = [this] { prog.piattaforma.end(); };
    prog.mostra_documento = [this](long record) { mostra_documento(record); };

    prog.apriarchivi();
    stabili.caption(prog.stabili);
    prog.caricatabelle();
    radice();
    prepara_colonne(elenco);
    aggiornalista();
}

// ---- the list ----

// What was read ahead is taken if it is what would be read now.
bool Vexoraf::prendi_anticipata(const std::string& oggi) {
    if (!prog.lista_in_arrivo.valid()) return false;
    const auto l = prog.lista_in_arrivo.get();
    if (!l || !l->vale_per(prog.nnn(), oggi, totali)) return false;
    elenco.scambia_righe(l->elenco);
    sotto_.visti.scambia(l->sotto.visti);
    sotto_.voci.swap(l->sotto.voci);
    sotto_.ultima = l->sotto.ultima;
    return true;
}

void Vexoraf::aggiornalista() {
    Clessidra attesa(prog);
    elenco.visible(false);
    elenco.ridisegna(false);
    elenco.righe(1);
    leggi_o_resta(prog.arc.tfr, 2, totali);
    ++volta_;
    const std::string oggi = in_aaaammgg(prog.oggi());
    if (!prendi_anticipata(oggi))
        leggi_lista(prog.arc, totali.parola[0], prog.imp.cambio, oggi, elenco, sotto_);
    righe = elenco.righe();
    fattura = sotto_.ultima;
    if (righe < kRigheMinime) elenco.righe(kRigheMinime);
    elenco.ridisegna(true);
    elenco.visible(true);
}

int Vexoraf::riga_di(long record) const {
    for (int r = 1; r < elenco.righe(); ++r)
        if (const long k = elenco.chiave(r); k != 0 && sotto_.visti.posto(static_cast<int>(k)) == record)
            return r;
    return 0;
}

// Another screen points to a document; one stored since the list was made needs a new list.
void Vexoraf::mostra_documento(long record) {
    if (riga_di(record) == 0) aggiornalista();
    const int r = riga_di(record);
    if (r > 0) elenco.prima_visibile(r);
    prog.schermi.porta_davanti(*this);
    fuoco(elenco);
}

void Vexoraf::ordina(int etichetta) {
    const int prima = elenco.righe();
    elenco.righe(righe);
    if (etichetta == 0 || etichetta == 4) elenco.ordina(etichetta, Ordine::generico);
    if (etichetta == 1) elenco.ordina(kChiaveData, Ordine::generico);
    prog.piattaforma.refresh();
    elenco.righe(prima);
    fuoco(elenco);
}

void Vexoraf::clic(int riga, int colonna) {
    const std::string testo = maiuscolo(elenco.vista(riga, colonna));
    if ((testo != "AZZERA" && testo != "CLIC QUI") || colonna <= 6) return;
    const int chiave = static_cast<int>(elenco.chiave(riga));
    if (chiave == 0) return;
    if (sotto_.visti.ritrova(chiave, fattura) == 0) {
        prog.riferisci(DocumentoInMano::Esito::sparito);
        return;
    }
    if (colonna == 7) {
        prog.modofattura = 1;
        prog.statofattura = 0;
        apri(chiave, "lumftea");
    }
    if (colonna == 8) elimina(chiave);
    if (colonna == 9) salda(chiave, testo == "AZZERA");
}

void Vexoraf::apri(int chiave, const char* schermo) {
    using enum DocumentoInMano::Esito;
    auto esito = occupato;
    {
        const Clessidra attesa(prog);
        // Nobody moves it before the screen has it: another document would open in its place.
        const Sezione sezione(prog.arc.serratura, Serratura::documenti);
        if (sezione.presa()) esito = sotto_.visti.ritrova(chiave, fattura) == 0 ? sparito : scritto;
        if (esito == scritto) {
            prog.recfattura = static_cast<int>(sotto_.visti.posto(chiave));
            prog.recfornitore = fattura.numfor;
            prog.tornada = -99;
            prog.schermi.apri(schermo);
        }
    }
    prog.riferisci(esito);
}

void Vexoraf::elimina(int chiave) {
    if (!prog.chiedi_prudente("Confermi l'eliminazione della fattura?", "Attenzione")) return;
    prog.riferisci(cambia(chiave, segna_eliminata, DocumentoInMano::Contatori::eliminazione));
}

DocumentoInMano::Esito Vexoraf::cambia(int chiave, const DocumentoInMano::Campi& c,
                                       DocumentoInMano::Contatori quali) {
    const Clessidra attesa(prog);
    return cambia_documento(prog.arc, sotto_.visti, chiave, c, quali);
}

void Vexoraf::salda(int chiave, bool azzera) {
    if (azzera) {
        if (!prog.chiedi_prudente("Confermi l'azzeramento del precedente saldo della fattura?", "Attenzione"))
            return;
        RecFattura prima{};
        const auto esito = cambia(chiave, [&](RecFattura& f) {
            prima = f;
            azzera_saldo(f);
        });
        if (esito == DocumentoInMano::Esito::scritto) azzerati_.ricorda(sotto_.visti.posto(chiave), prima);
        using enum DocumentoInMano::Esito;
        if (!prog.riferisci(esito) && esito != guasto) return;
    }
    apri(chiave, "luminca");
}

}  // namespace ambra
