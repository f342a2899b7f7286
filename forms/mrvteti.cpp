#include "forms/mrvteti.h"

#include <algorithm>

#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

// Where each of the thirteen fields of the geometry lives in the table.
struct Cella {
    int riga, valore;
};
constexpr Cella cella_di(std::size_t i) {
    const int n = static_cast<int>(i);
    if (n < 6) return {Etic::kFoglio, n + 1};
    if (n < 8) return {Etic::kDisposizione, n - 5};
    return {Etic::kTestiFissi, n - 7};
}

std::string nome_carattere(const Etic& e, int riga) {
    return unisci(e(riga, Etic::kNome), " (", e(riga, Etic::kPunti), ")");
}

}  // namespace

const std::array<std::string, 13>& Mrvteti::didascalie() {
    static const std::array<std::string, 13> kNomi = {"Larghezza (in millimetri)",
                                                      "Altezza (in millimetri)",
                                                      "Bordo sinistro (in millimetri)",
                                                      "Bordo destro (in millimetri)",
                                                      "Bordo superiore (in millimetri)",
                                                      "Bordo inferiore (in millimetri)",
                                                      "Numero di colonne",
                                                      "Numero etichette per colonna",
                                                      "Campo numero 1",
                                                      "Campo numero 2",
                                                      "Campo numero 3",
                                                      "Campo numero 4",
                                                      "Campo numero 5"};
    return kNomi;
}

Mrvteti::Mrvteti(Programma& p)
    : Schermo(p, "mrvteti", "Impostazione marginatura etichetta"), tipo_(p.tipomodulo) {
    aggiungi(
        "guida", guida,
        "Selezionare i diversi campi utilizzando il cursore verticale posto alla destra; per cambiare il "
        "tipo di carattere (font) oppure il colore clic sul campo che evidenzia il nome del carattere "
        "oppure il colore del carattere. Lo spostamento orizzontale o verticale deve essere introdotto "
        "in millimetri e misurato dal bordo superiore sinistro dell'etichetta campione");
    static constexpr const char* kGruppi[] = {
        "Dimensioni del foglio", "Dimensioni dei bordi", "Disposizione delle etichette sul foglio",
        "Campi di testo fissi", "Disposizione dei campi sull'etichetta"};
    for (std::size_t i = 0; i < frame.size(); ++i) frame[i].caption(kGruppi[i]);
    aggiungi("frame", frame);
    aggiungi("text", text);
    for (std::size_t i = 0; i < kVisibili; ++i) {
        aggiungi(nome_elemento("campo", i), campo[i]);
        aggiungi(nome_elemento("Text1", i), Text1[i]);
        aggiungi(nome_elemento("Text2", i), Text2[i]);
        aggiungi(nome_elemento("carattere", i), carattere[i]);
        aggiungi(nome_elemento("colore", i), colore[i], "Colore");
    }
    aggiungi("VScroll1", VScroll1);
    aggiungi("indice(0)", indice[0], "Conferma");
    aggiungi("indice(1)", indice[1], "Annulla");

    carica();

    for (std::size_t i = 0; i < text.size(); ++i)
        text[i].cambiato = [this, i] {
            const Cella c = cella_di(i);
            etic_(c.riga, c.valore) = std::string(rifila(text[i].testo()));
            avvisa();
        };
    for (std::size_t i = 0; i < kVisibili; ++i) {
        Text1[i].cambiato = [this, i] { riprendi(i); };
        Text2[i].cambiato = [this, i] { riprendi(i); };
        carattere[i].premuto = [this, i] { scegli_carattere(i); };
        colore[i].premuto = [this, i] { scegli_colore(i); };
    }
    VScroll1.cambiato = [this] { scorri(); };
    indice[0].premuto = [this] { conferma(); };
    indice[1].premuto = [this] { prog.schermi.chiudi(nome()); };
}

void Mrvteti::carica() {
    if (!leggi_etichette(prog.disco, prog.err, tipo_, etic_)) etic_ = etichette_predefinite(tipo_);
    const int quanti = static_cast<int>(campi().size());
    etic_(0, 1) = testo_numero(quanti);
    for (std::size_t i = 0; i < text.size(); ++i) text[i].testo(etic_(cella_di(i).riga, cella_di(i).valore));
    VScroll1.limiti(0, std::max(quanti - kVisibili, 0));
    mostra_righe();
}

void Mrvteti::mostra_righe() {
    for (std::size_t i = 0; i < kVisibili; ++i) {
        const int riga = riga_di(i);
        const auto n = static_cast<std::size_t>(riga) - 1;
        campo[i].caption(n < campi().size() ? campi()[n] : "");
        // Both values are taken before the first is shown: showing one stores the pair.
        const std::string x = etic_(riga, Etic::kX), y = etic_(riga, Etic::kY);
        Text1[i].testo(x);
        Text2[i].testo(y);
        carattere[i].caption(nome_carattere(etic_, riga));
        colore[i].colore_sfondo(etic_.colore(riga));
    }
}

void Mrvteti::riprendi(std::size_t i) {
    etic_(riga_di(i), Etic::kX) = std::string(rifila(Text1[i].testo()));
    etic_(riga_di(i), Etic::kY) = std::string(rifila(Text2[i].testo()));
    avvisa();
}

void Mrvteti::scorri() {
    for (std::size_t i = 0; i < kVisibili; ++i) riprendi(i);
    primo_ = VScroll1.valore();
    mostra_righe();
    avvisa();
}

void Mrvteti::scegli_carattere(std::size_t i) {
    const int riga = riga_di(i);
    const auto c = prog.piattaforma.choose_font("Seleziona il tipo di carattere", etic_.carattere(riga));
    if (!c) return;
    etic_.carattere(riga, *c);
    carattere[i].caption(nome_carattere(etic_, riga));
    avvisa();
}

void Mrvteti::scegli_colore(std::size_t i) {
    const int riga = riga_di(i);
    const auto c = prog.piattaforma.choose_colour("Seleziona il colore", etic_.colore(riga));
    if (!c) return;
    etic_.colore(riga, *c);
    colore[i].colore_sfondo(*c);
    avvisa();
}

void Mrvteti::conferma() {
    salva_etichette(prog.disco, prog.err, tipo_, etic_);
    prog.schermi.chiudi(nome());
}

}  // namespace ambra
