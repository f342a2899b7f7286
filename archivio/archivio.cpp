#include "archivio/archivio.h"

#include <array>

#include "core/filetesto.h"
#include "core/lettura.h"
#include "core/numeri.h"

namespace ambra {

namespace {

int contatore(Archivio& arc, long record) {
    RecTotali t{};
    leggi_o_resta(arc.tfr, record, t);
    return t.parola[0];
}

}  // namespace

Osservatore::Osservatore(Archivio& arc) : arc_(arc) {
    arc_.osservatori.push_back(this);
}

Osservatore::~Osservatore() {
    std::erase(arc_.osservatori, this);
}

void Archivio::consolida() {
    for (FileRecord* f :
         std::initializer_list<FileRecord*>{&cnd, &cns, &pia, &mov, &cn2, &tot, &tfr, &fornitori, &srf, &ftr})
        f->consolida();
}

void apriarchivi(Disco& disco, Archivio& arc, std::string_view nnn, RecStabile& stabile,
                 RecStabile2& stabile2) {
    arc.disco = &disco;
    arc.nnn = nnn;
    arc.edifici.apri(disco, kCartella + "lumora.tot");
    arc.edifici2.apri(disco, kCartella + "lumora.tt2");

    arc.tot.apri(disco, nome_file(nnn, "tot"));
    arc.cnd.apri(disco, nome_file(nnn, "cnd"));
    arc.cns.apri(disco, nome_file(nnn, "cns"));
    arc.pia.apri(disco, nome_file(nnn, "pia"));
    arc.mov.apri(disco, nome_file(nnn, "mov"));
    arc.cn2.apri(disco, nome_file(nnn, "cn2"));

    const auto numero = static_cast<long>(leggi_numero(nnn));
    leggi_o_resta(arc.edifici, numero, stabile);
    leggi_o_resta(arc.edifici2, numero, stabile2);

    prova_lettura(disco, arc.err, nome_file(nnn, "tfr"));
    arc.tfr.apri(disco, nome_file(nnn, "tfr"));
    arc.fornitori.apri(disco, nome_file(nnn, "for"));
    arc.srf.apri(disco, nome_file(nnn, "srf"));
    arc.ftr.apri(disco, nome_file(nnn, "ftr"));

    // Whatever went wrong above, not only a missing .tfr, starts the counters anew.
    if (arc.err) {
        const RecTotali vuoto{};
        for (long n = 1; n <= 5; ++n) scrivi(arc.tfr, n, vuoto);
    }
    arc.serratura = Serratura(disco, nome_file(nnn, "tfr"));
    arc.serratura.lasciate = [&arc] { arc.consolida(); };
}

int quanti_fornitori(Archivio& arc) {
    return contatore(arc, 1);
}
int quante_fatture(Archivio& arc) {
    return contatore(arc, 2);
}

}  // namespace ambra
