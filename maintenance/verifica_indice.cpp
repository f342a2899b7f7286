// The name index of the suppliers: each of them once, under his name, in order.
#include <algorithm>

#include "core/lettura.h"
#include "core/testo.h"
#include "maintenance/verifica_cartella.h"
#include "records/fornitore.h"
#include "records/nome.h"
#include "records/totali.h"

namespace ambra {

namespace {

std::string senza_zeri(std::string_view s) {
    std::string r(s);
    std::replace(r.begin(), r.end(), '\0', ' ');
    return r;
}

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
                             unisci("un fornitore da 1 a ", std::to_string(quanti_)));
        if (visto_[static_cast<std::size_t>(n)]++)
            c_.errore("srf", i, "numero", std::to_string(n), "un fornitore non ancora elencato");
        const RecFornitore* f = schede_.vista(n);
        if (!f) return c_.illeggibile("for", n);
        if (!puo_chiamarsi(senza_zeri(r.nome.grezzo()), senza_zeri(f->inte1.grezzo()), f->cancellata == 1))
            return c_.errore(
                "srf", i, "nome", leggibile(r.nome.grezzo()),
                unisci("il nome della scheda in maiuscolo: ", leggibile(maiuscolo(f->inte1.grezzo()))));
        if (ordinato && i > 1 && precedente_ > r.nome.grezzo())
            c_.errore("srf", i, "nome", leggibile(r.nome.grezzo()),
                      unisci("un nome che segue: ", leggibile(precedente_)));
        precedente_ = std::string(r.nome.grezzo());
    }

    bool ordinato = false;  ///< the counters say that the index is in order

  private:
    // As typed, where it came by duplication from another building or by a deletion; a deleted one that was
    // rebuilt bears its mark twice.
    static bool puo_chiamarsi(const std::string& ora, const std::string& scheda, bool cancellato) {
        const std::string grande = maiuscolo(scheda);
        if (ora == grande || ora == scheda) return true;
        return cancellato && ora == unisci("\xFF", sinistra(grande, grande.size() - 1));
    }

    Cartella& c_;
    Schedario<RecFornitore> schede_;
    long quanti_;
    std::vector<char> visto_;
    std::string precedente_;
};

}  // namespace

void verifica_indice(Cartella& c, Saputo& s) {
    FileDi<RecTotali> tfr(c.err, 21);
    FileDi<RecFornitore> schede(c.err, 22);
    FileDi<RecNome> indice(c.err, 23);
    // Whether they are there has been told with the suppliers.
    if (!indice.apri(c.disco(), c.percorso("srf"), Apertura::lettura)) return;
    if (!schede.apri(c.disco(), c.percorso("for"), Apertura::lettura)) return;
    RecTotali t{};
    if (tfr.apri(c.disco(), c.percorso("tfr"), Apertura::lettura)) leggi_o_resta(tfr, 1, t);
    Indice nomi(c, schede, s.fornitori);
    nomi.ordinato = t.parola[1] == 0;
    per_record<RecNome>(c, indice, "srf", std::min(s.fornitori, indice.quanti()),
                        [&](long i, const RecNome& r) { nomi.nome(i, r); });
}

}  // namespace ambra
