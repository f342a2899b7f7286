#include "ambra/demo.h"

#include "archivio/archivio.h"
#include "core/testo.h"
#include "records/stabile.h"

namespace ambra::demo {

unsigned long long Caso::prossimo() {
    unsigned long long z = (stato_ += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

int Caso::fra(int a, int b) {
    return a + static_cast<int>(prossimo() % static_cast<unsigned long long>(b - a + 1));
}

namespace {

std::vector<Stabile> stabili_demo() {
    return {
        {1, "CONDOMINIO VILLA ADRIANA", "Viale della Libertà, 18", "20131 Milano", "97012340158", 60, 300,
         40},
        {2, "CONDOMINIO I GLICINI", "Via Monte Nero, 7", "20090 Segrate", "97045610151", 18, 64, 12},
        {3, "SUPERCONDOMINIO PARCO NORD - CORPI A, B E C", "Via Fulvio Testi, 210", "20126 Milano",
         "97078920153", 9, 14, 24},
    };
}

}  // namespace

bool archivio_altrui(Disco& disco) {
    std::string stabili;
    if (disco.leggi_tutto(kCartella + "lumora.tot", stabili) != 0 || stabili.empty()) return false;
    return sinistra(stabili, sizeof(RecStabile::nome)) !=
           riempi(da_utf8(stabili_demo().front().nome), sizeof(RecStabile::nome));
}

bool crea(Disco& disco, const Opzioni& o) {
    std::vector<Stabile> stabili = stabili_demo();
    // The two folders above the archive are made one by one; that they stand already is no failure.
    disco.crea_cartella("\\lumdir");
    disco.crea_cartella("\\lumdir\\lumora");
    disco.crea_cartella("\\LUMDIR\\PDF");
    if (o.intera) {
        stabili[0].fornitori = 1000;
        stabili[0].fatture = 30000;
        stabili[0].condomini = 300;
    }
    Cantiere comune{disco, o.oggi, {}, {}, {}, {}, {}, {}, {}, {}};
    comune.cambio[1] = "1";
    if (!scrivi_globali(disco, stabili, comune)) return false;
    for (const Stabile& s : stabili) {
        Caso caso(static_cast<unsigned long long>(s.numero) * 7919);
        Cantiere c = comune;
        c.stabile = s;
        fai_conti(c, caso);
        fai_fornitori(c, caso);
        fai_fatture(c, caso);
        if (!scrivi_ledger(c, caso) || !scrivi_fornitori(c) || !scrivi_fatture(c)) return false;
    }
    return true;
}

}  // namespace ambra::demo
