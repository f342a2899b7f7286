// The suppliers of a building: counters and records.
#include "core/lettura.h"
#include "core/testo.h"
#include "maintenance/verifica_cartella.h"
#include "records/conto.h"
#include "records/fornitore.h"
#include "records/nome.h"
#include "records/totali.h"

namespace ambra {

namespace {

void verifica_contatori(Cartella& c, FileDi<RecTotali>& tfr) {
    if (tfr.quanti() != 5)
        c.avviso("tfr", 0, "", unisci(std::to_string(tfr.quanti()), " record"), "5 record");
    for (long n = 1; n <= 2; ++n) {
        RecTotali t{};
        if (!leggi(tfr, n, t)) return c.illeggibile("tfr", n);
        if (t.parola[0] < 0)
            c.errore("tfr", n, "parola(0)", std::to_string(int(t.parola[0])), "un numero di record");
        c.zero_o_uno("tfr", n, "parola(1)", t.parola[1]);
        if (n == 2) c.zero_o_uno("tfr", n, "parola(2)", t.parola[2]);
    }
}

class Fornitori {
  public:
    Fornitori(Cartella& c, const Saputo& q) : c_(c), q_(q) {}

    void scheda(long n, const RecFornitore& f) {
        static const FormatoRecord& kForma = *formato_di_file("for");
        c_.generali("for", n, std::as_bytes(std::span(&f, 1)), kForma, 0);
        c_.zero_o_uno("for", n, "cancellata", f.cancellata);
        c_.zero_o_uno("for", n, "nofelenco", f.nofelenco);
        c_.zero_o_uno("for", n, "fisica", f.fisica);
        c_.zero_o_uno("for", n, "nonres", f.nonres);
        const bool marca = f.inte1.b[0] == '\xFF';
        if (marca != (f.cancellata == 1))
            c_.errore("for", n, "inte1", leggibile(f.inte1.grezzo()),
                      marca ? "un fornitore cancellato" : "il segno di cancellazione davanti al nome");
        if (f.inte1.rifilato().empty()) c_.avviso("for", n, "inte1", "", "una ragione sociale");
        if (f.formapag < 0 || f.formapag > 39)
            c_.errore("for", n, "formapag", std::to_string(int(f.formapag)), "da 0 a 39");
        conto(n, f.conto);
        const char s = f.sesso.b[0];
        if (s != 'M' && s != 'F' && s != ' ' && s != '\0')
            c_.avviso("for", n, "sesso", leggibile(f.sesso.grezzo()), "M oppure F");
        const std::string fiscale = maiuscolo(f.codfis.rifilato());
        if (f.cancellata != 0 || rifila(fiscale).empty()) return;
        const auto [primo, nuovo] = per_codice_.emplace(fiscale, n);
        if (!nuovo)
            c_.avviso(
                "for", n, "codfis", fiscale,
                unisci("un codice che nessun altro ha: anche il fornitore ", std::to_string(primo->second)));
    }

  private:
    void conto(long n, int conto) {
        if (conto == 0) return;
        if (conto < 0 || conto > kBaseContropartite)
            return c_.errore("for", n, "conto", std::to_string(conto), "0 oppure un conto del piano");
        if (static_cast<std::size_t>(conto) < q_.conto_senza_nome.size() &&
            q_.conto_senza_nome[static_cast<std::size_t>(conto)])
            c_.avviso("for", n, "conto", std::to_string(conto), "un conto con un nome");
    }

    Cartella& c_;
    const Saputo& q_;
    std::unordered_map<std::string, long> per_codice_;  // live suppliers
};

}  // namespace

void verifica_fornitori(Cartella& c, Saputo& s) {
    FileDi<RecTotali> tfr(c.err, 21);
    FileDi<RecFornitore> schede(c.err, 22);
    FileDi<RecNome> indice(c.err, 23);
    // A building that this program never opened has none of its files.
    const bool iniziato = c.apri(tfr, "tfr", false);
    const bool ha_schede = c.apri(schede, "for", iniziato), ha_indice = c.apri(indice, "srf", iniziato);
    if (!iniziato && (ha_schede || ha_indice)) c.errore("tfr", 0, "", "manca", "il file");
    RecTotali t{};
    if (iniziato) {
        verifica_contatori(c, tfr);
        leggi_o_resta(tfr, 1, t);
    }
    // A count that is wrong is told once: what follows goes by the records that are there.
    for (FileRecord* f : std::initializer_list<FileRecord*>{&schede, &indice})
        if (iniziato && f->aperto() && f->quanti() != t.parola[0])
            c.errore(
                "tfr", 1, "parola(0)", std::to_string(int(t.parola[0])),
                unisci(std::to_string(f->quanti()), " record di: ", c.nome(f == &schede ? "for" : "srf")));
    s.ha_schede = ha_schede;
    s.fornitori = schede.quanti();
    Fornitori fornitori(c, s);
    per_record<RecFornitore>(c, schede, "for", s.fornitori,
                             [&](long n, const RecFornitore& f) { fornitori.scheda(n, f); });
}

}  // namespace ambra
