#include "archivio/documento.h"

#include <array>

#include "archivio/fondi.h"

namespace ambra {

namespace {

using Esito = DocumentoInMano::Esito;
using Contatori = DocumentoInMano::Contatori;

// The amounts of a document hang together: nobody's half of them is put beside somebody else's.
constexpr std::array<std::string_view, 8> kInsieme = {"tipodc", "modpag", "dsca", "impon",
                                                      "ivai",   "esent",  "rac",  "sca"};

Byte byte(const RecFattura& f) {
    return std::as_bytes(std::span(&f, 1));
}

// Counters that cannot be read are not guessed: what would be written after them was refused.
bool leggi_contatori(Archivio& arc, RecTotali& t) {
    if (leggi(arc.tfr, 2, t)) return true;
    if (arc.disco) arc.disco->conta_rifiuto(nome_file(arc.nnn, "tfr"), arc.err.numero);
    return false;
}

bool scrivi_contatori(Archivio& arc, Contatori quali) {
    if (quali == Contatori::nessuno) return true;
    RecTotali t{};
    if (!leggi_contatori(arc, t)) return false;
    t.parola[1] = 1;
    if (quali != Contatori::modifica) t.parola[2] = 1;
    return scrivi(arc.tfr, 2, t);
}

// Record and counters, in the order of the command.
Esito deposita_in(Archivio& arc, long n, const RecFattura& prima, const RecFattura& dopo, Contatori quali) {
    if (quali == Contatori::prima_eliminazione) scrivi_contatori(arc, quali);
    const bool scritto = scrivi(arc.ftr, n, dopo);
    if (scritto) annuncia(arc, n, prima, dopo);
    if (quali != Contatori::prima_eliminazione) scrivi_contatori(arc, quali);
    return scritto ? Esito::scritto : Esito::guasto;
}

}  // namespace

void segna_eliminata(RecFattura& f) {
    f.cancellata = 1;
}

void annuncia(Archivio& arc, long n, const RecFattura& prima, const RecFattura& dopo) {
    for (Osservatore* o : arc.osservatori) o->scritta(n, prima, dopo);
}

void DocumentoInMano::nuovo() {
    nuovo_ = true;
    visti_.svuota();
    visto_ = base_ = {};
}

bool DocumentoInMano::prendi(long n) {
    RecFattura f{};
    const bool letto = leggi(arc_.ftr, n, f);
    visto_ = base_ = f;
    nuovo_ = false;
    visti_.svuota();
    visti_.aggiungi(n, f);
    return letto;
}

void DocumentoInMano::base(const Campi& c) {
    base_ = visto_;
    c(base_);
}

Esito DocumentoInMano::fuso(const Campi& c, RecFattura& disco, RecFattura& r) {
    if (visti_.ritrova(1, disco) == 0) return Esito::sparito;
    RecFattura mio = visto_;
    c(mio);
    static const FormatoRecord& kFormato = *formato_di_file("ftr");
    const bool si = fondi(kFormato, kInsieme, byte(visto_), byte(base_), byte(mio), byte(disco),
                          std::as_writable_bytes(std::span(&r, 1)));
    return si ? Esito::scritto : Esito::sparito;
}

Esito DocumentoInMano::ritrova() {
    RecFattura disco{};
    return visti_.ritrova(1, disco) == 0 ? Esito::sparito : Esito::scritto;
}

Esito DocumentoInMano::anteprima(const Campi& c, RecFattura& r) {
    if (nuovo_) {
        r = {};
        c(r);
        return Esito::scritto;
    }
    RecFattura disco{};
    return fuso(c, disco, r);
}

Esito DocumentoInMano::scrivi(const Campi& c, const Campi& poi, Contatori quali) {
    const Sezione sezione(arc_.serratura, Serratura::documenti);
    if (!sezione.presa()) return Esito::occupato;
    if (nuovo_) return aggiungi(c);
    RecFattura disco{}, r{};
    if (const Esito e = fuso(c, disco, r); e != Esito::scritto) return e;
    if (poi) poi(r);
    return deposita(disco, r, quali);
}

// The counters are read inside the lock: another program may have written meanwhile. A counter at its end
// stays there. A document whose counter did not rise is not there.
Esito DocumentoInMano::aggiungi(const Campi& c) {
    RecFattura nuova{};
    c(nuova);
    RecTotali t{};
    if (!leggi_contatori(arc_, t)) return Esito::guasto;
    const long n = long(t.parola[0]) + 1;
    if (!ambra::scrivi(arc_.ftr, n, nuova)) return Esito::guasto;
    t.parola[1] = 1;
    incrementa(t.parola[0], arc_.err);
    if (!ambra::scrivi(arc_.tfr, 2, t)) return Esito::guasto;
    visto_ = base_ = nuova;
    nuovo_ = false;
    visti_.svuota();
    visti_.aggiungi(n, nuova);
    return Esito::scritto;
}

Esito DocumentoInMano::cambia(const Campi& c, Contatori quali) {
    const Sezione sezione(arc_.serratura, Serratura::documenti);
    if (!sezione.presa()) return Esito::occupato;
    RecFattura disco{};
    if (visti_.ritrova(1, disco) == 0) return Esito::sparito;
    RecFattura r = disco;
    c(r);
    return deposita(disco, r, quali);
}

Esito DocumentoInMano::elimina(Contatori quali) {
    return cambia(segna_eliminata, quali);
}

Esito DocumentoInMano::deposita(const RecFattura& prima, const RecFattura& dopo, Contatori quali) {
    return deposita_in(arc_, record(), prima, dopo, quali);
}

Esito cambia_documento(Archivio& arc, DocumentiVisti& visti, int chiave, const DocumentoInMano::Campi& c,
                       Contatori quali) {
    const Sezione sezione(arc.serratura, Serratura::documenti);
    if (!sezione.presa()) return Esito::occupato;
    RecFattura disco{};
    const long n = visti.ritrova(chiave, disco);
    if (n == 0) return Esito::sparito;
    RecFattura r = disco;
    c(r);
    return deposita_in(arc, n, disco, r, quali);
}

}  // namespace ambra
