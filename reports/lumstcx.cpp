#include "reports/lumstcx.h"

#include "core/lettura.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "reports/esporta.h"

namespace ambra {

namespace {

constexpr int kRigheMinime = 26;
constexpr std::size_t kTotale = 0, kImponibile = 1, kImposta = 2, kEsente = 3;  // kinds of the table

const std::string kQuadro = "Stampa su modello ministeriale - quadro AC";

}  // namespace

Lumstcx::Lumstcx(Programma& p)
    : Schermo(p, "lumstcx", "Riepilogo acquisti sintetico e stampa modello ministeriale") {
    campi.monta(*this);
    aggiungi("Text3", Text3);
    Text3[0].caption("Anno in esame");
    Text3[1].caption("Elimina fornitori con fatturato < di");
    Text3[2].caption("punto inizio orizzontale (mm)");
    Text3[3].caption("punto inizio verticale (mm)");
    aggiungi("elenco", elenco);
    aggiungi("Label1", Label1);
    Label1[0].caption("Esporta");
    Label1[1].caption("Quadro AC");
    comandi.monta(
        *this, [this] { aggiornalista(); }, [this] { stampa(); });
    aggiungi("dove", dove);

    campi.invio_al_prossimo(*this, {&Text3[0], &Text3[1], &Text3[2], &Text3[3], &comandi.command3d2});
    Label1[0].premuto = [this] { esportazione(); };
    Label1[1].premuto = [this] { quadro_ac(); };

    using enum Allineamento;
    elenco.colonne({{"Cedente e/o prestatore", 10555, sinistra},
                    {"Imp.totale", 1200, destra},
                    {"Sogg. ad iva", 1200, destra},
                    {"Tributo", kResto, destra},
                    {"", 0, sinistra},
                    {"", 0, sinistra},
                    {"", 0, sinistra}});
    Text3[0].testo(prog.anno_corrente());
    Text3[1].testo("250");
    loadtab();
    aggiornalista();
}

void Lumstcx::loadtab() {
    prog.err.azzera();
    dati_ = carica_quadro(prog);
    const Scostamenti s = carica_scostamenti(prog);
    Text3[2].testo(s.orizzontale);
    Text3[3].testo(s.verticale);
}

void Lumstcx::salvatab() {
    salva_scostamenti(prog, {Text3[2].testo(), Text3[3].testo()});
}

void Lumstcx::somma_documenti(const FiltroRiepilogo& filtro) {
    tabfor_.azzera();
    scorri_documenti(prog.arc, quante_fatture(prog.arc), [&](const RecFattura& f) {
        if (!filtro.prende(f)) return;
        const ImportiRiepilogo x = importi_riepilogo(f);
        tabfor_.aggiungi(f.numfor, kTotale, x.totale());
        tabfor_.aggiungi(f.numfor, kImponibile, x.impon);
        tabfor_.aggiungi(f.numfor, kImposta, x.ivai);
        tabfor_.aggiungi(f.numfor, kEsente, x.esent);
    });
}

void Lumstcx::aggiornalista() {
    const Riempimento inizio(prog, elenco);
    const FiltroRiepilogo filtro = campi.filtro();
    somma_documenti(filtro);

    const double soglia = leggi_numero(Text3[1].testo());
    double totale = 0, imponibile = 0, imposta = 0;
    per_fornitore(prog.arc, quanti_fornitori(prog.arc), [&](int numero, const RecFornitore& f) {
        const double suo = tabfor_(numero, kTotale);
        if (suo < soglia || filtro.esclude(f)) return;
        const double suo_imponibile = tabfor_(numero, kImponibile), sua_imposta = tabfor_(numero, kImposta);
        const int r = elenco.aggiungi({f.inte1.testo(), prog.fmtimporto(suo), prog.fmtimporto(suo_imponibile),
                                       prog.fmtimporto(sua_imposta), "", "", testo_con_segno(numero)});
        elenco.chiave(r, numero);
        totale += suo;
        imponibile += suo_imponibile;
        imposta += sua_imposta;
    });
    static const std::string kFiletto(80, '-');
    elenco.aggiungi({kFiletto, kFiletto, kFiletto, kFiletto});
    elenco.aggiungi(
        {"Totali", prog.fmtimporto(totale), prog.fmtimporto(imponibile), prog.fmtimporto(imposta)});
    elenco.aggiungi();

    nrighe = elenco.righe();
    completa(elenco, kRigheMinime);
}

std::vector<RigaQuadro> Lumstcx::fornitori_in_lista() const {
    std::vector<RigaQuadro> r;
    for (int i = 1; i < nrighe; ++i)
        if (const int n = static_cast<int>(elenco.chiave(i)); n > 0) r.push_back({n, elenco.testo(i, 1)});
    return r;
}

void Lumstcx::stampa() {
    if (!prog.chiedi("Iniziare la stampa?", "Stampa prospetto")) return;
    Stampa lavoro(prog, unisci("Riepilogo acquisti e prestazioni anno ", rifila(Text3[0].testo())), 5,
                  {{"Num", 5, 4},
                   {"Cedente e/o prestatore", 33, 0},
                   {"Importo totale", 15, 1},
                   {"Soggetto ad iva", 15, 1},
                   {"Tributo assolto", 15, 1}});
    // The engine writes over the cells, so each line sets all five.
    const auto riga = [&lavoro](const std::array<std::string, 5>& celle) {
        for (std::size_t i = 0; i < celle.size(); ++i) lavoro.cella(static_cast<int>(i) + 1) = celle[i];
        lavoro.riga();
    };
    Schedario<RecFornitore> schede(prog.arc.fornitori);
    RecFornitore f{};
    int progressivo = 0;
    std::array<double, 3> totali{};
    for (int r = 1; r < nrighe; ++r) {
        prog.npagina = -1;
        const long numero = elenco.chiave(r);
        if (numero <= 0) continue;
        leggi_o_resta(schede, numero, f);
        const std::vector<std::string> chi = righe_identita(f);
        std::array<std::string, 5> prima = {testo_con_segno(++progressivo), chi[0]};
        for (std::size_t c = 0; c < totali.size(); ++c) {
            const double x = valimporto_di(elenco.vista(r, static_cast<int>(c) + 1));
            prima[c + 2] = prog.fmtimporto(x);
            totali[c] += x;
        }
        riga(prima);
        for (std::size_t i = 1; i < chi.size(); ++i) riga({"", chi[i]});
        riga({"", std::string(200, '-')});
    }
    if (lavoro.pagina_aperta())
        riga({"", "Totale", prog.fmtimporto(totali[0]), prog.fmtimporto(totali[1]),
              prog.fmtimporto(totali[2])});
    lavoro.fine();
}

void Lumstcx::quadro_ac() {
    const bool proprie = prog.chiedi(
        "Se desiderate stampare secondo le coordinate personalizzate tramite la funzione 'imposta modello "
        "ministeriale' clic su 'SI'; se invece desiderate stampare su modello predefinito clic su 'NO'.",
        kQuadro);
    if (!prog.chiedi("Iniziare la stampa?", kQuadro)) return;
    prog.err.azzera();
    if (proprie)
        stampamod(prog, dati_, fornitori_in_lista());
    else
        stampamin(prog, dati_, fornitori_in_lista(), leggi_numero(Text3[2].testo()),
                  leggi_numero(Text3[3].testo()));
}

void Lumstcx::esportazione() {
    const auto risposta = prog.piattaforma.message_box(
        "Questa funzione esporta i dati del riepilogo acquisti e prestazioni per il futuro trattamento con "
        "appositi programmi (Unico, ecc.). Inserire il dischetto sul quale generale il file.",
        "Esportazione dati", Icona::domanda, Bottoni::ok_annulla, Risposta::ok);
    if (risposta != Risposta::ok) return;
    dove.caption("");
    {
        Clessidra attesa(prog);
        esporta(prog, dati_, fornitori_in_lista());
    }
    if (prog.err)
        prog.ferma(unisci("Si è verificato l'errore"_it, testo_con_segno(prog.err.numero)));
    else
        dove.caption(unisci("Dati esportati in ", prog.disco.luogo(file_esportazione(prog))));
}

}  // namespace ambra
