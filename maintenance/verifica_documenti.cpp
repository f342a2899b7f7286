// The documents of a building: their suppliers, dates, codes, amounts and marks.
#include <algorithm>
#include <cmath>

#include "core/numeri.h"
#include "core/testo.h"
#include "maintenance/verifica_cartella.h"
#include "maintenance/verifica_insieme.h"
#include "records/fattura.h"
#include "records/totali.h"

namespace ambra {

namespace {

constexpr double kMezzoCentesimo = 0.005;

class Documenti {
  public:
    Documenti(Cartella& c, const Saputo& q) : c_(c), q_(q) {}

    void documento(long n, const RecFattura& f) {
        static const FormatoRecord& kForma = *formato_di_file("ftr");
        c_.generali("ftr", n, std::as_bytes(std::span(&f, 1)), kForma);
        n_ = n;
        if (f.cancellata != 1 && (f.numfor < 1 || (q_.ha_schede && f.numfor > q_.fornitori)))
            male("numfor", std::to_string(int(f.numfor)),
                 unisci("un fornitore da 1 a ", std::to_string(q_.fornitori)));
        codici(f);
        date(f);
        importi(f);
        rate(f);
    }

  private:
    void male(std::string campo, std::string trovato, std::string atteso) {
        c_.errore("ftr", n_, std::move(campo), std::move(trovato), std::move(atteso));
    }
    void strano(std::string campo, std::string trovato, std::string atteso) {
        c_.avviso("ftr", n_, std::move(campo), std::move(trovato), std::move(atteso));
    }

    void codici(const RecFattura& f) {
        c_.zero_o_uno("ftr", n_, "tipodc", f.tipodc);
        c_.zero_o_uno("ftr", n_, "pagata", f.pagata);
        c_.zero_o_uno("ftr", n_, "cancellata", f.cancellata);
        if (f.modpag < 0 || f.modpag > 39) male("modpag", std::to_string(int(f.modpag)), "da 0 a 39");
        for (const auto& [campo, t] : {std::pair("addebita", &f.addebita), std::pair("riporta", &f.riporta)})
            if (t->b[0] != '0' && t->b[0] != '1') male(campo, leggibile(t->grezzo()), "0 oppure 1");
    }

    // `k` from 1 for a field of an array.
    void data(const char* campo, std::size_t k, std::string_view s, bool giorno_prima, bool deve) {
        if ((!deve && data_vuota(s)) || data_registrata(s, giorno_prima)) return;
        male(k == 0 ? std::string(campo) : campo_n(campo, k), leggibile(s),
             giorno_prima ? "una data ggmmaaaa" : "una data aaaammgg");
    }

    void date(const RecFattura& f) {
        data("datareg", 0, f.datareg.grezzo(), false, true);
        data("datadoc", 0, f.datadoc.grezzo(), false, true);
        for (std::size_t k = 0; k < 4; ++k) {
            // Without its instalment a due date may be anything that was typed.
            if (f.sca[k] != 0) data("dsca", k + 1, f.dsca[k].grezzo(), true, true);
            data("dver", k + 1, f.dver[k].grezzo(), true, false);
            const bool pagato = f.ver[k] != 0, quando = !data_vuota(f.dver[k].grezzo());
            if (pagato && !quando) strano(campo_n("dver", k + 1), "", "la data di quel che risulta pagato");
            if (!pagato && quando)
                strano(campo_n("ver", k + 1), "0",
                       unisci("un importo pagato: ", leggibile(f.dver[k].grezzo())));
        }
        data("dscarit", 0, f.dscarit.grezzo(), true, false);
        data("dverrit", 0, f.dverrit.grezzo(), true, false);
    }

    template <std::size_t N>
    void centesimi(const char* campo, const Doppio (&importi)[N]) {
        for (std::size_t k = 0; k < N; ++k) {
            const double x = importi[k], c = std::fabs(x * 100);
            if (x == 0 || !(c < 1e14)) continue;
            const double resto = c - static_cast<double>(static_cast<long long>(c + 0.5));
            if (std::fabs(resto) > 1e-4)
                strano(campo_n(campo, k + 1), testo_numero(x), "un importo in centesimi interi");
        }
    }

    void importi(const RecFattura& f) {
        centesimi("impon", f.impon);
        centesimi("ivai", f.ivai);
        centesimi("esent", f.esent);
        centesimi("rac", f.rac);
        centesimi("sca", f.sca);
        centesimi("ver", f.ver);
    }

    void rate(const RecFattura& f) {
        const double netto = somma(f.impon) + somma(f.ivai) + somma(f.esent) - somma(f.rac);
        const double sca = somma(f.sca), ver = somma(f.ver);
        if (std::fabs(netto - sca) >= kMezzoCentesimo)
            strano("sca", formatta(sca, Formato::due_decimali),
                   unisci("rate per ", formatta(netto, Formato::due_decimali)));
        for (std::size_t k = 0; k < 4; ++k)
            if (std::fabs(f.ver[k]) >= std::fabs(f.sca[k]) + kMezzoCentesimo || f.ver[k] * f.sca[k] < 0)
                strano(campo_n("ver", k + 1), formatta(f.ver[k], Formato::due_decimali),
                       unisci("al massimo ", formatta(f.sca[k], Formato::due_decimali)));
        // The change of a paid document leaves its marks as they were.
        const bool saldata = std::fabs(sca - ver) < kMezzoCentesimo;
        if (f.pagata == 1 && !saldata)
            strano("pagata", "1", unisci("0: restano ", formatta(sca - ver, Formato::due_decimali)));
        if (f.pagata == 0 && saldata && std::fabs(sca) >= kMezzoCentesimo)
            strano("pagata", "0", "1: le rate sono tutte versate");
    }

    Cartella& c_;
    const Saputo& q_;
    long n_ = 0;
};

}  // namespace

void verifica_documenti(Cartella& c, Saputo& s) {
    FileDi<RecTotali> tfr(c.err, 21);
    FileDi<RecFattura> ftr(c.err, 24);
    FileDi<RecFattura> copia(c.err, 25);
    const bool iniziato = tfr.apri(c.disco(), c.percorso("tfr"), Apertura::lettura);
    if (!c.apri(ftr, "ftr", iniziato)) return;
    c.apri(copia, "$$$", false);
    long contati = ftr.quanti();
    bool noto = true;  // a count that can be no count is told with the suppliers
    if (iniziato) {
        RecTotali t{};
        if (!leggi(tfr, 2, t)) return c.illeggibile("tfr", 2);
        noto = t.parola[0] >= 0;
        contati = std::max<long>(t.parola[0], 0);
        if (contati > ftr.quanti())
            c.errore("tfr", 2, "parola(0)", std::to_string(contati),
                     unisci("al massimo ", std::to_string(ftr.quanti()), " record di: ", c.nome("ftr")));
    }
    contati = std::min(contati, ftr.quanti());
    Documenti documenti(c, s);
    Insieme insieme(c, s, contati);
    per_record<RecFattura>(c, ftr, "ftr", contati, [&](long n, const RecFattura& f) {
        documenti.documento(n, f);
        insieme.documento(n, f);
    });
    insieme.confronta();
    if (noto && contati < ftr.quanti()) cerca_perduti(c, s, ftr, copia, contati);
}

}  // namespace ambra
