// The suppliers of a building: counters, records, the name index.
#include "core/testo.h"
#include "maintenance/verifica_cartella.h"
#include "records/conto.h"
#include "records/fornitore.h"
#include "records/nome.h"
#include "records/totali.h"

namespace ambra {

namespace {

std::string senza_zeri(std::string_view s) {
    std::string r(s);
    for (char& c : r)
        if (c == '\0') c = ' ';
    return r;
}

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
    Fornitori(Cartella& c, const QuantiRecord& q) : c_(c), q_(q) {}

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
    const QuantiRecord& q_;
};

class Indice {
  public:
    Indice(Cartella& c, FileDi<RecFornitore>& schede, long quanti)
        : c_(c), schede_(schede), quanti_(quanti), visto_(static_cast<std::size_t>(quanti) + 1) {}

    void nome(long i, const RecNome& r) {
        static const FormatoRecord& kForma = *formato_di_file("srf");
        c_.generali("srf", i, std::as_bytes(std::span(&r, 1)), kForma, 0);
        const int n = r.numero;
        if (n < 1 || n > quanti_)
            return c_.errore("srf", i, "numero", std::to_string(n),
                             unisci("da 1 a ", std::to_string(quanti_)));
        if (visto_[static_cast<std::size_t>(n)]++)
            c_.errore("srf", i, "numero", std::to_string(n), "un fornitore non ancora elencato");
        const RecFornitore* f = schede_.vista(n);
        if (!f) return c_.illeggibile("for", n);
        confronta(i, senza_zeri(r.nome.grezzo()), maiuscolo(senza_zeri(f->inte1.grezzo())));
        if (ordinato && i > 1 && precedente_ > r.nome.grezzo())
            c_.errore("srf", i, "nome", leggibile(r.nome.grezzo()),
                      unisci("un nome che segue ", leggibile(precedente_)));
        precedente_ = std::string(r.nome.grezzo());
    }

    bool ordinato = false;  ///< the counters say that the index is in order

  private:
    void confronta(long i, const std::string& ora, const std::string& voluto) {
        if (ora == voluto) return;
        if (maiuscolo(ora) == voluto)
            c_.errore("srf", i, "nome", leggibile(ora), unisci("in maiuscolo: ", leggibile(voluto)));
        else
            c_.errore("srf", i, "nome", leggibile(ora), leggibile(voluto));
    }

    Cartella& c_;
    Schedario<RecFornitore> schede_;
    long quanti_;
    std::vector<char> visto_;
    std::string precedente_;
};

}  // namespace

void verifica_fornitori(Cartella& c, QuantiRecord& q) {
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
        leggi(tfr, 1, t);
    }
    const long contati = iniziato ? int(t.parola[0]) : schede.quanti();
    for (FileRecord* f : std::initializer_list<FileRecord*>{&schede, &indice})
        if (f->aperto() && f->quanti() != contati)
            c.errore(
                "tfr", 1, "parola(0)", std::to_string(contati),
                unisci(std::to_string(f->quanti()), " record di ", c.nome(f == &schede ? "for" : "srf")));
    q.fornitori = std::min(contati, schede.quanti());
    Fornitori fornitori(c, q);
    per_record<RecFornitore>(c, schede, "for", q.fornitori,
                             [&](long n, const RecFornitore& f) { fornitori.scheda(n, f); });
    if (!ha_indice) return;
    Indice nomi(c, schede, std::max(q.fornitori, 0L));
    nomi.ordinato = t.parola[1] == 0;
    per_record<RecNome>(c, indice, "srf", std::min(contati, indice.quanti()),
                        [&](long i, const RecNome& r) { nomi.nome(i, r); });
}

}  // namespace ambra
