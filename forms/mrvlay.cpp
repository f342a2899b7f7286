#include "forms/mrvlay.h"

#include <cmath>

#include "core/numeri.h"
#include "core/testo.h"
#include "forms/esempio.h"
#include "screen/stampa.h"

namespace ambra {

namespace {

// Three digits of a position: zeros in front of the number, the last three characters of it all.
std::string tre_cifre(double v) {
    return std::string(destra("000" + testo_numero(v), 3));
}

// Half of a position that stays while the other is edited; a file's short half is filled with zeros.
std::string meta(std::string_view s) {
    return std::string(destra(unisci("000", s), 3));
}

}  // namespace

Carattere carattere_di(const CampoLayout& c) {
    return {c.carattere, leggi_numero(c.corpo), c.grassetto == "1", c.corsivo == "1"};
}

Mrvlay::Mrvlay(Programma& p) : Schermo(p, "mrvlay", "Impostazione modulistica"), tipo_(p.tipomodulo) {
    if (tipo_ < kAvviso || tipo_ > kSollecito) tipo_ = kMinisteriale;
    aggiungi("elenco", elenco);
    aggiungi("nomcam", nomcam);
    aggiungi("Text1", Text1);
    aggiungi("Command3d5", Command3d5);
    aggiungi("car", car);
    aggiungi("Text2", Text2);
    aggiungi("bianca", bianca, "Stampa anche il modulo in bianco");
    aggiungi("Command3d6", Command3d6, "Personalizza il modulo");
    aggiungi("indice", indice);
    static constexpr const char* kComandi[] = {
        "Annulla", "Conferma", "Azzera tutto", "Coordinate default", "Stampa esempio", "Stampa coordinate"};
    for (std::size_t i = 0; i < indice.size(); ++i) {
        indice[i].caption(kComandi[i]);
        indice[i].premuto = [this, i] { comando(i); };
    }
    Text1[0].caption("Spostamento orizzontale del campo dal bordo sinistro del foglio (in millimetri)");
    Text1[1].caption("Spostamento verticale del campo dal bordo superiore del foglio (in millimetri)");
    for (std::size_t i = 0; i < Text1.size(); ++i) {
        Text1[i].digitato = [this, i] { posizione(i, Text1[i].testo()); };
        Text1[i].lasciato = [this, i] { return lascia_posizione(i); };
        Command3d5[i].caption("Sfoglia");
    }
    Text1[0].invio = [this] { fuoco(Text1[1]); };
    Text2[0].caption("Oggetto");
    Text2[1].caption("Testo");
    elenco.scelto = [this](int r, int) { scegli(r); };
    Command3d5[0].premuto = [this] { scegli_carattere(); };
    Command3d5[1].premuto = [this] { scegli_colore(); };

    caption(titolo_finestra(tipo_));
    const bool ministeriale = tipo_ == kMinisteriale;
    bianca.visible(!ministeriale);
    bianca.enabled(!ministeriale);
    Command3d6.visible(!ministeriale);
    // The designer that the button opens is the suite's.
    Command3d6.enabled(false);
    for (auto& t : Text2) t.visible(!ministeriale);

    using enum Allineamento;
    elenco.colonne({{"Campo da stampare", 5500, sinistra},
                    {"Orizzontale", 1200, centro},
                    {"Verticale", 1200, centro},
                    {"Tipo di carattere", kResto, sinistra}},
                   11000);
    carica();
    riempi_elenco();
    mostra_scelta();
}

// ---- files ----

void Mrvlay::carica() {
    prog.err.azzera();
    tabella = tabella_modulo(tipo_);
    carica_layout(prog.disco, prog.err, file_coordinate(tipo_, prog.nnn()), {}, layout_);
    if (tipo_ == kMinisteriale) return;
    TestoPosta posta;
    carica_intestazione(prog.disco, prog.err, file_intestazione(tipo_, prog.nnn()), posta);
    Text2[0].testo(posta.oggetto);
    Text2[1].testo(posta.corpo);
    carica_testi(prog.disco, prog.err, file_testi(tipo_, prog.nnn()), testi_);
}

void Mrvlay::salva() {
    prog.err.azzera();
    salva_layout(prog.disco, prog.err, file_coordinate(tipo_, prog.nnn()), layout_);
    if (tipo_ != kMinisteriale)
        salva_intestazione(prog.disco, prog.err, file_intestazione(tipo_, prog.nnn()),
                           {Text2[0].testo(), Text2[1].testo()});
}

// ---- the list and the chosen field ----

void Mrvlay::riempi_elenco() {
    elenco.ridisegna(false);
    elenco.righe(1);
    for (int i = 1; i <= tabella.quanti; ++i) {
        elenco.aggiungi({tabella.riga[static_cast<std::size_t>(i)].descrizione});
        scrivi_riga(i);
    }
    elenco.ridisegna(true);
    if (mutato) mutato();
}

void Mrvlay::scrivi_riga(int r) {
    const CampoLayout& c = campo(r);
    const char genere = tabella.riga[static_cast<std::size_t>(r)].genere;
    if (genere != '2') {
        elenco.scrivi(r, 1, c.orizzontale());
        elenco.scrivi(r, 3, unisci(c.carattere, " (", c.corpo, ")"));
    }
    if (genere != '3') elenco.scrivi(r, 2, c.verticale());
}

void Mrvlay::scegli(int r) {
    if (r < 1 || r > tabella.quanti) return;
    riga_ = r;
    mostra_scelta();
    if (mutato) mutato();
}

void Mrvlay::mostra_scelta() {
    const bool scelta = riga_ > 0;
    const char genere = scelta ? tabella.riga[static_cast<std::size_t>(riga_)].genere : '0';
    const bool in_largo = genere == '1' || genere == '3', in_alto = genere == '1' || genere == '2';
    Text1[0].enabled(in_largo);
    Text1[1].enabled(in_alto);
    Command3d5[0].enabled(in_largo);
    Command3d5[1].enabled(genere == '1');
    if (!scelta) return;
    const CampoLayout& c = campo(riga_);
    nomcam.caption(tabella.riga[static_cast<std::size_t>(riga_)].descrizione);
    Text1[0].testo(std::string(c.orizzontale()));
    Text1[1].testo(std::string(c.verticale()));
    car.caption(unisci(c.carattere, " (", c.corpo, ")"));
    car.colore_testo(c.rgb());
}

void Mrvlay::posizione(std::size_t quale, const std::string& testo) {
    if (riga_ == 0) return;
    CampoLayout& c = campo(riga_);
    const std::string nuova = tre_cifre(leggi_numero(testo));
    c.posizione = quale == 0 ? nuova + meta(c.verticale()) : meta(c.orizzontale()) + nuova;
    scrivi_riga(riga_);
    if (mutato) mutato();
}

bool Mrvlay::lascia_posizione(std::size_t quale) {
    const double v = leggi_numero(Text1[quale].testo());
    if (v < 0) {
        Text1[quale].testo(testo_numero(std::fabs(v)));
        posizione(quale, Text1[quale].testo());
    }
    return true;
}

void Mrvlay::scegli_carattere() {
    if (riga_ == 0) return;
    CampoLayout& c = campo(riga_);
    const auto scelto = prog.piattaforma.choose_font("Seleziona il tipo di carattere", carattere_di(c));
    if (!scelto) return;
    c.carattere = scelto->nome;
    c.corpo = testo_numero(scelto->punti);
    c.grassetto = scelto->grassetto ? "1" : "0";
    c.corsivo = scelto->corsivo ? "1" : "0";
    scrivi_riga(riga_);
    mostra_scelta();
    if (mutato) mutato();
}

void Mrvlay::scegli_colore() {
    if (riga_ == 0) return;
    CampoLayout& c = campo(riga_);
    const auto scelto = prog.piattaforma.choose_colour("Seleziona il colore", c.rgb());
    if (!scelto) return;
    c.colore = std::to_string(*scelto);
    mostra_scelta();
    if (mutato) mutato();
}

// ---- commands ----

void Mrvlay::comando(std::size_t quale) {
    switch (quale) {
        case 0:
            return prog.schermi.chiudi(nome());
        case 1:
            salva();
            return prog.schermi.chiudi(nome());
        case 2:
            if (!prog.chiedi_prudente("Confermi?", "Azzeramento coordinate")) return;
            azzera_coordinate(tipo_, layout_);
            break;
        case 3:
            if (!prog.chiedi("Confermi?", "Calcolo automatico coordinate")) return;
            coordinate_automatiche(tipo_, layout_);
            break;
        case 4:
            return stampa_esempio();
        default:
            return stampa_coordinate();
    }
    riempi_elenco();
    mostra_scelta();
}

void Mrvlay::stampa_esempio() {
    if (!prog.chiedi("Iniziare la stampa?", "Stampa esempio")) return;
    prog.err.azzera();
    Clessidra attesa(prog);
    std::vector<VoceEsempio> voci;
    for (int i = 1; i <= tabella.quanti; ++i) voci.push_back({&campo(i), elenco.testo(i, 0)});
    ambra::stampa_esempio(prog.piattaforma.printer(), tipo_, bianca.spuntata() && tipo_ != kMinisteriale,
                          voci);
}

void Mrvlay::stampa_coordinate() {
    if (!prog.chiedi("Iniziare la stampa?", "Stampa coordinate")) return;
    Stampa lavoro(prog, titolo_coordinate(tipo_), 5,
                  {{"Campo", 7, 0},
                   {"Descrizione", 45, 0},
                   {"Orizzontale", 12, 0},
                   {"Verticale", 12, 0},
                   {"Carattere", 30, 0}});
    for (int r = 1; r <= tabella.quanti; ++r) {
        lavoro.cella(1) = std::to_string(r);
        for (int c = 0; c < 4; ++c) lavoro.cella(c + 2) = elenco.testo(r, c);
        lavoro.riga();
    }
    lavoro.fine();
}

}  // namespace ambra
