#include "worklist/lista.h"

#include <algorithm>
#include <cstring>

#include "core/date.h"
#include "core/lettura.h"
#include "core/testo.h"
#include "screen/colori.h"

namespace ambra {

namespace {

constexpr std::string_view kClic = "clic qui";
// Whoever asks the user something meanwhile opens another archive than was read: others work on it.
constexpr std::chrono::milliseconds kFresca{500};

// The texts that rows repeat, each put into the grid once.
struct Ripetuti {
    explicit Ripetuti(Griglia& g)
        : clic(g.deposita(kClic)), azzera(g.deposita("azzera")), via(g.deposita("Fattura eliminata")) {}
    Griglia::Cella nome(Griglia& g, std::size_t numero, const RecFornitore& f) {
        if (numero >= nomi.size()) nomi.resize(numero + 1);
        if (nomi[numero].n == 0) nomi[numero] = g.deposita(f.inte1.testo());
        return nomi[numero];
    }

    Griglia::Cella clic, azzera, via;
    std::vector<Griglia::Cella> nomi;  // of suppliers, by their record
};

void aggiungi_riga(const RecFattura& f, Griglia::Cella nome, const VoceElenco& voce, const Ripetuti& testi,
                   const Cambio& cambio, int n, long chiave, Griglia& elenco) {
    const bool via = voce.eliminata;
    const Griglia::Cella clic = via ? Griglia::Cella{} : testi.clic;
    const Griglia::Cella saldo = !via && voce.scoperto == 0 ? testi.azzera : clic;
    const std::string datareg = f.datareg.testo();
    const int r = elenco.aggiungi({std::to_string(n), mostra_aaaammgg(datareg), f.numdoc.rifilato(),
                                   mostra_aaaammgg(f.datadoc.testo()), via ? testi.via : nome,
                                   fmtimporto(cambio, voce.totale), fmtimporto(cambio, voce.scoperto), clic,
                                   clic, saldo, datareg});
    elenco.chiave(r, chiave);
    elenco.colora(r, 7, via ? colore::grigio : colore::giallo);
    elenco.colora(r, 8, via ? colore::grigio : colore::rosso);
    elenco.colora(r, 9, via || voce.scoperto == 0 ? colore::grigio : colore::verde);
}

}  // namespace

void prepara_colonne(Griglia& elenco) {
    using enum Allineamento;
    elenco.colonne({{"Registr.", 800, destra},
                    {"Data", 1000, sinistra},
                    {"Fattura", 1000, sinistra},
                    {"Data", 1000, sinistra},
                    {"Fornitore", 6245, sinistra},
                    {"Importo", 1000, destra},
                    {"Scoperto", 1000, destra},
                    {"Modifica", 700, centro},
                    {"Elimina", 700, centro},
                    {"Saldo", kResto, centro},
                    {"", 0, sinistra}},
                   14935);
}

void leggi_lista(Archivio& arc, int quante, const Cambio& cambio, const std::string& oggi, Griglia& elenco,
                 SottoLista& sotto) {
    sotto.visti.svuota();
    sotto.visti.riserva(quante);
    sotto.voci.clear();
    sotto.voci.reserve(static_cast<std::size_t>(std::max(quante, 0)));
    elenco.riserva(quante);
    Passata<RecFattura> documenti(arc.ftr);
    Schedario<RecFornitore> schede(arc.fornitori);
    const RecFattura nessuna{}, *letta = &nessuna;
    const RecFornitore nessuno{}, *fornitore = &nessuno;
    Ripetuti testi(elenco);
    Griglia::Cella nome = testi.nome(elenco, 0, nessuno);
    for (int i = 1; i <= quante; ++i) {
        vedi_o_resta(documenti, i, letta);
        const RecFornitore* prima = fornitore;
        vedi_o_resta(schede, letta->numfor, fornitore);
        if (fornitore != prima)
            nome = testi.nome(elenco, static_cast<std::size_t>(int{letta->numfor}), *fornitore);
        const VoceElenco& voce = sotto.voci.emplace_back(voce_di(*letta, oggi));
        aggiungi_riga(*letta, nome, voce, testi, cambio, i, sotto.visti.aggiungi(i, *letta), elenco);
    }
    sotto.ultima = *letta;
}

bool ListaAnticipata::vale_per(std::string_view n, std::string_view giorno,
                               const RecTotali& contatori) const {
    return n == nnn && giorno == oggi && Orologio::now() - letta < kFresca &&
           std::memcmp(&contatori, &totali, sizeof totali) == 0;
}

std::shared_ptr<ListaAnticipata> anticipa_lista(std::unique_ptr<Disco> disco, std::string_view nnn,
                                                const std::string& oggi) {
    const auto l = std::make_shared<ListaAnticipata>(std::move(disco));
    const auto apri = [&](auto& file, const char* estensione) {
        return file.apri(*l->disco, nome_file(nnn, estensione), Apertura::lettura);
    };
    if (!apri(l->arc.tfr, "tfr") || !apri(l->arc.fornitori, "for") || !apri(l->arc.ftr, "ftr"))
        return nullptr;
    if (!leggi(l->arc.tfr, 2, l->totali)) return nullptr;
    l->nnn = nnn;
    l->oggi = oggi;
    prepara_colonne(l->elenco);
    leggi_lista(l->arc, l->totali.parola[0], l->cambio, oggi, l->elenco, l->sotto);
    l->letta = ListaAnticipata::Orologio::now();
    return l->err ? nullptr : l;
}

}  // namespace ambra
