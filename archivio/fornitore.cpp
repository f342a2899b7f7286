#include "archivio/fornitore.h"

#include "archivio/fondi.h"
#include "core/lettura.h"
#include "core/testo.h"

namespace ambra {

namespace {

using Esito = FornitoreInMano::Esito;

Byte byte(const RecFornitore& f) {
    return std::as_bytes(std::span(&f, 1));
}

// The position in the index of the first deleted supplier, whose record an insert takes over; 0 if none.
int posto_libero(Archivio& arc, int quanti) {
    Passata<RecNome> indice(arc.srf);
    Schedario<RecFornitore> schede(arc.fornitori);
    RecNome nome{};
    RecFornitore f{};
    for (int i = 1; i <= quanti; ++i) {
        leggi_o_resta(indice, i, nome);
        leggi_o_resta(schede, nome.numero, f);
        if (f.cancellata != 0) return i;
    }
    return 0;
}

// Nothing may follow from counters that nobody could read: the insert counts as refused.
bool leggi_contatori(Archivio& arc, RecTotali& t) {
    if (leggi(arc.tfr, 1, t)) return true;
    arc.disco->conta_rifiuto(nome_file(arc.nnn, "tfr"), arc.err.numero);
    return false;
}

// The index bears the name of a live supplier in upper case, that of a deleted one as it stands.
std::string nome_in_indice(const RecFornitore& f) {
    return f.cancellata == 0 ? maiuscolo(f.inte1.testo()) : f.inte1.testo();
}

// The known position if it still bears his number, else the first that does; 0 if none.
int cerca_posto(Archivio& arc, int noto, long n) {
    RecNome nome{};
    if (noto > 0 && leggi(arc.srf, noto, nome) && nome.numero == n) return noto;
    return posto_nell_indice(arc, quanti_fornitori(arc), n);
}

// The supplier of record `n`, last seen at `posto`, has another name in the index from here on. Who stands
// nowhere in it leaves it alone, and the next "Riordina" finds him.
bool rinomina(Archivio& arc, int& posto, long n, std::string_view nome) {
    const int qui = cerca_posto(arc, posto, n);
    if (qui == 0) return segna_disordine(arc, true);
    posto = qui;
    RecNome prima{}, dopo{};
    if (!leggi(arc.srf, qui, prima)) return false;
    dopo.nome = nome;
    dopo.numero = prima.numero;
    if (!scrivi(arc.srf, qui, dopo)) return false;
    if (segna_disordine(arc, true)) return true;
    scrivi(arc.srf, qui, prima);
    return false;
}

}  // namespace

std::string nome_marcato(const RecFornitore& f) {
    return unisci("\xFF", f.inte1.testo()).substr(0, sizeof f.inte1);
}

int posto_nell_indice(Archivio& arc, int quanti, long n) {
    Passata<RecNome> indice(arc.srf);
    for (int i = 1; i <= quanti; ++i) {
        const RecNome* r = indice.vista(i);
        if (r && r->numero == n) return i;
    }
    return 0;
}

bool segna_disordine(Archivio& arc, bool disordine) {
    RecTotali t{};
    if (!leggi_contatori(arc, t)) return false;
    t.parola[1] = disordine ? 1 : 0;
    return scrivi(arc.tfr, 1, t);
}

bool aggiungi_fornitore(const FileFornitori& f, Errore& err, const RecFornitore& nuovo,
                        std::string_view nome) {
    RecTotali t{};
    if (!leggi(f.tfr, 1, t) || !incrementa(t.parola[0], err)) return false;
    const int n = t.parola[0];
    RecNome in_indice{};
    in_indice.nome = nome;
    in_indice.numero = n;
    t.parola[1] = 1;
    return scrivi(f.fornitori, n, nuovo) && scrivi(f.srf, n, in_indice) && scrivi(f.tfr, 1, t);
}

void FornitoreInMano::prendi(int posto, long n, const RecFornitore& letto) {
    posto_ = posto;
    visto_.vedi(n, letto);
    letto_ = base_ = letto;
}

int FornitoreInMano::posto() {
    if (const int qui = cerca_posto(arc_, posto_, record())) posto_ = qui;
    return posto_;
}

Esito FornitoreInMano::ritrova() {
    RecFornitore ora = letto_;
    return visto_.ancora_lui(ora) ? Esito::scritto : Esito::un_altro;
}

Esito FornitoreInMano::anteprima(const RecFornitore& mio, RecFornitore& r) {
    RecFornitore disco{};
    return fuso(letto_, mio, disco, r);
}

Esito FornitoreInMano::fuso(const RecFornitore& base, const RecFornitore& mio, RecFornitore& disco,
                            RecFornitore& r) {
    disco = letto_;
    if (!visto_.ancora_lui(disco)) return Esito::un_altro;
    static const FormatoRecord& kFormato = *formato_di_file("for");
    // No field of a supplier hangs together with another, so that nothing is refused.
    (void)fondi(kFormato, {}, byte(letto_), byte(base), byte(mio), byte(disco),
                std::as_writable_bytes(std::span(&r, 1)));
    // But the mail address is one value over two fields.
    if (mio.email1.grezzo() != base.email1.grezzo() || mio.email2.grezzo() != base.email2.grezzo()) {
        r.email1 = mio.email1;
        r.email2 = mio.email2;
    }
    return Esito::scritto;
}

// The counters are read inside the lock: another program may have written meanwhile.
Esito FornitoreInMano::inserisci(const RecFornitore& nuovo) {
    const Sezione sezione(arc_.serratura, Serratura::fornitori);
    if (!sezione.presa()) return Esito::occupato;
    RecTotali t{};
    if (!leggi_contatori(arc_, t)) return Esito::guasto;
    const int libero = posto_libero(arc_, t.parola[0]);
    if (libero == 0) return in_coda(nuovo, t.parola[0] + 1);
    RecNome nome{};
    RecFornitore vecchio{};
    if (!leggi(arc_.srf, libero, nome) || !leggi(arc_.fornitori, nome.numero, vecchio)) return Esito::guasto;
    return deposita(libero, nome.numero, vecchio, nuovo);
}

Esito FornitoreInMano::in_coda(const RecFornitore& nuovo, int n) {
    if (!aggiungi_fornitore({arc_.tfr, arc_.fornitori, arc_.srf}, arc_.err, nuovo, nome_in_indice(nuovo))) {
        if (arc_.err.numero == errore::overflow)
            arc_.disco->conta_rifiuto(nome_file(arc_.nnn, "for"), errore::overflow);
        return Esito::guasto;
    }
    prendi(n, n, nuovo);
    annuncia(arc_, n, RecFornitore{}, nuovo);
    return Esito::scritto;
}

Esito FornitoreInMano::cambia(const RecFornitore& mio) {
    return scrivi(base_, mio);
}

Esito FornitoreInMano::elimina(RecFornitore mio) {
    mio.inte1 = nome_marcato(mio);
    mio.cancellata = 1;
    return scrivi(letto_, mio);
}

Esito FornitoreInMano::scrivi(const RecFornitore& base, const RecFornitore& mio) {
    const Sezione sezione(arc_.serratura, Serratura::fornitori);
    if (!sezione.presa()) return Esito::occupato;
    RecFornitore disco{}, r{};
    if (const Esito e = fuso(base, mio, disco, r); e != Esito::scritto) return e;
    return deposita(posto_, record(), disco, r);
}

// The record, then its name in the index where that is another one. Where the index is refused the record is
// put back: nobody finds half a supplier.
Esito FornitoreInMano::deposita(int posto, long n, const RecFornitore& prima, const RecFornitore& dopo) {
    if (!ambra::scrivi(arc_.fornitori, n, dopo)) return Esito::guasto;
    const bool stesso =
        dopo.inte1.rifilato() == prima.inte1.rifilato() && dopo.cancellata == prima.cancellata;
    if (!stesso && !rinomina(arc_, posto, n, nome_in_indice(dopo))) {
        ambra::scrivi(arc_.fornitori, n, prima);
        return Esito::guasto;
    }
    prendi(posto, n, dopo);
    annuncia(arc_, n, prima, dopo);
    return Esito::scritto;
}

}  // namespace ambra
