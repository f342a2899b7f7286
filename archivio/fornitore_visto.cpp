#include "archivio/fornitore_visto.h"

namespace ambra {

namespace {

bool e_un_altro(const RecFornitore& visto, const RecFornitore& ora) {
    if ((ora.cancellata != 0) != (visto.cancellata != 0)) return true;
    return ora.inte1.rifilato() != visto.inte1.rifilato() &&
           ora.codfis.rifilato() != visto.codfis.rifilato() && ora.piva.rifilato() != visto.piva.rifilato();
}

}  // namespace

bool FornitoreVisto::ancora_lui(RecFornitore& ora) {
    if (record_ < 1) return true;
    if (sostituito_) return false;
    if (!leggi(arc_.fornitori, record_, ora)) return true;
    return !e_un_altro(visto_, ora);
}

void FornitoreVisto::fornitore_scritto(long n, const RecFornitore& prima, const RecFornitore& dopo) {
    if (n != record_ || sostituito_ || e_un_altro(visto_, prima)) return;
    sostituito_ = visto_.cancellata != 0 && dopo.cancellata == 0;
    if (!sostituito_) visto_ = dopo;
}

void annuncia(Archivio& arc, long n, const RecFornitore& prima, const RecFornitore& dopo) {
    for (Osservatore* o : arc.osservatori) o->fornitore_scritto(n, prima, dopo);
}

}  // namespace ambra
