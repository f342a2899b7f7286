// Any bytes as the files of layouts: what is read whole is written and read again as it was, and labels and
// the ministerial form come out on paper, whatever the positions.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "forms/foglio_etichette.h"
#include "forms/moduli.h"
#include "fuzz/pretendi.h"
#include "reports/quadroac.h"
#include "tests/supporto/disco_memoria.h"
#include "tests/supporto/piattaforma_prova.h"

namespace {

using namespace ambra;

void layout(DiscoMemoria& disco) {
    Errore err;
    Layout l;
    if (!carica_layout(disco, err, file_ministeriale(), {}, l)) return;
    for (int tipo = kAvviso; tipo <= kSollecito; ++tipo) {
        Layout altro = l;
        coordinate_automatiche(tipo, altro);
        azzera_coordinate(tipo, altro);
    }
    Layout ancora;
    pretendi(salva_layout(disco, err, file_ministeriale(), l));
    pretendi(carica_layout(disco, err, file_ministeriale(), {}, ancora) && ancora == l);
}

void testi(DiscoMemoria& disco) {
    Errore err;
    TestoPosta posta, posta_ancora;
    const std::string percorso = file_intestazione(kAvviso, "001");
    if (carica_intestazione(disco, err, percorso, posta) && posta.oggetto.find('"') == std::string::npos &&
        posta.corpo.find('"') == std::string::npos)
        pretendi(salva_intestazione(disco, err, percorso, posta) &&
                 carica_intestazione(disco, err, percorso, posta_ancora) && posta_ancora == posta);
    TestiLiberi liberi;
    pretendi(carica_testi(disco, err, file_testi(kAvviso, "001"), liberi) != liberi.riga.empty());
}

void etichette(DiscoMemoria& disco) {
    Errore err;
    Etic e;
    leggi_etichette(disco, err, kEtichetteFornitori, e);
    for (int riga = 1; riga <= Etic::kRighe; ++riga) e.carattere(riga), e.colore(riga);
    RecordingPrinter stampante;
    FoglioEtichette foglio(stampante, e, true);
    foglio.salta_fino_a(3);
    for (int i = 0; i < 5; ++i) foglio.etichetta([](int riga) { return "campo " + std::to_string(riga); });
    foglio.fine();
}

void quadro(DiscoMemoria& disco) {
    PiattaformaProva piattaforma;
    Programma prog(disco, piattaforma, "1");
    const DatiQuadro dati = carica_quadro(prog);
    const std::vector<RigaQuadro> righe(6, {1, "1.234,00"});
    stampamod(prog, dati, righe);
    const Scostamenti s = carica_scostamenti(prog);
    stampamin(prog, dati, righe, leggi_numero(s.orizzontale), leggi_numero(s.verticale));
    pretendi(prog.arc.sezioni_prese() == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
    if (n == 0) return 0;
    // Said again until every file has all its lines.
    const std::string pezzo(reinterpret_cast<const char*>(dati), n);
    const auto righe = static_cast<std::size_t>(std::ranges::count(pezzo, '\n')) + 1;
    std::string testo;
    for (std::size_t i = 0; i <= 600 / righe && testo.size() < 100000; ++i) testo += pezzo + "\r\n";
    DiscoMemoria disco;
    for (const std::string& nome :
         {file_ministeriale(), file_intestazione(kAvviso, "001"), file_testi(kAvviso, "001"),
          file_etichette(kEtichetteFornitori), kCartella + "lummmi.dxy"})
        disco.contenuto(nome) = testo;
    quadro(disco);
    layout(disco);
    testi(disco);
    etichette(disco);
    return 0;
}
