#include "maintenance/riparazione.h"

#include <algorithm>
#include <cstring>
#include <type_traits>
#include <vector>

#include "archivio/archivio.h"
#include "core/errori.h"
#include "core/impostazioni.h"
#include "core/lettura.h"
#include "core/testo.h"
#include "maintenance/nomi_archivio.h"
#include "maintenance/ripristino.h"
#include "maintenance/verifica.h"

namespace ambra {

namespace {

struct Male {
    bool indice = false, contatori = false;
};

// What the check finds and we can mend.
Male male_di(Disco& disco, const std::string& nnn) {
    Male m;
    Verifica v(disco, [&](const Rilievo& r) {
        const bool conta = r.campo == "parola(0)" || r.campo == "tcondomini" || r.campo == "tmovimenti";
        m.contatori = m.contatori || conta || r.file == unisci("lum", nnn, ".tfr");
        m.indice = m.indice || r.file == unisci("lum", nnn, ".srf");
    });
    v.stabile(nnn);
    return m;
}

// The files of one building as the repair works on them, those that are there.
class Officina {
  public:
    Officina(Disco& disco, const std::string& nnn, const Detto& detto)
        : disco_(disco), nnn_(nnn), detto_(detto) {}

    bool contatori() {
        if (!apri(fornitori_, "for") && !apri(ftr_, "ftr")) return true;
        apri(ftr_, "ftr");
        if (!tfr_.apri(disco_, nome_file(nnn_, "tfr"))) return false;
        RecTotali f{}, d{};
        leggi_o_resta(tfr_, 1, f);
        leggi_o_resta(tfr_, 2, d);
        const long quanti = fornitori_.aperto() ? fornitori_.interi() : 0;
        const bool perduti = f.parola[0] == 0 && quanti > 0;
        bool bene = conta(tfr_, 1, f, f.parola[0], quanti, "fornitori");
        // Without the suppliers' count that of the documents is lost too; alone, a 0 may be a reset's.
        const long documenti = ftr_.aperto() ? ftr_.interi() : 0;
        const bool male = d.parola[0] < 0 || d.parola[0] > documenti || (perduti && d.parola[0] == 0);
        if (male) bene = conta(tfr_, 2, d, d.parola[0], documenti, "fatture") && bene;
        for (long n = tfr_.quanti() + 1; n <= 5; ++n) bene = scrivi(tfr_, n, RecTotali{}) && bene;
        return contatori_dei_conti() && bene;
    }

    // Every supplier once, under his name in upper case; a deleted one bears his mark already.
    bool indice() {
        if (!apri(fornitori_, "for") || !tfr_.apri(disco_, nome_file(nnn_, "tfr"))) return true;
        std::vector<RecNome> nomi;
        RecFornitore f{};
        for (long n = 1; n <= fornitori_.interi(); ++n) {
            if (!leggi(fornitori_, n, f)) return false;
            RecNome r{};
            r.nome = maiuscolo(f.inte1.testo());
            r.numero = static_cast<int>(n);
            nomi.push_back(r);
        }
        std::stable_sort(nomi.begin(), nomi.end(), [](const RecNome& a, const RecNome& b) {
            return std::memcmp(&a.nome, &b.nome, sizeof a.nome) < 0;
        });
        const std::string byte(reinterpret_cast<const char*>(nomi.data()), nomi.size() * sizeof(RecNome));
        if (!err_.esito(disco_.scrivi_tutto(nome_file(nnn_, "srf"), byte))) return false;
        RecTotali t{};
        if (!leggi(tfr_, 1, t)) return false;
        t.parola[1] = 0;
        detto_(unisci("lum", nnn_, ".srf: indice rifatto, ", std::to_string(nomi.size()), " nomi"));
        return scrivi(tfr_, 1, t);
    }

    int errore_visto() const { return err_.numero; }

  private:
    // Opens what is there; makes nothing.
    bool apri(FileRecord& f, const char* estensione) {
        if (f.aperto()) return true;
        Cosa c{};
        const std::string p = nome_file(nnn_, estensione);
        return disco_.cosa_c_e(p, c) == 0 && c == Cosa::file && f.apri(disco_, p);
    }
    template <class R>
    bool conta(FileDi<R>& file, long n, R& r, Intero& quale, long quanti, const char* di_che) {
        if (quale == quanti || quanti > 32767) return true;
        detto_(unisci("lum", nnn_, ".", std::is_same_v<R, RecTotali> ? "tfr" : "tot", ": ", di_che, " ",
                      std::to_string(quanti), ", erano ", std::to_string(int(quale))));
        quale = static_cast<int>(quanti);
        return scrivi(file, n, r);
    }
    bool contatori_dei_conti() {
        if (!apri(tot_, "tot") || tot_.quanti() == 0) return true;
        RecTotaliLedger t{};
        if (!leggi(tot_, 1, t)) return false;
        bool bene = true;
        if (apri(cnd_, "cnd") && apri(cn2_, "cn2") && apri(cns_, "cns") && cnd_.interi() == cn2_.interi() &&
            cnd_.interi() == cns_.interi())
            bene = conta(tot_, 1, t, t.tcondomini, cnd_.interi(), "condomini");
        if (apri(mov_, "mov")) bene = conta(tot_, 1, t, t.tmovimenti, mov_.interi(), "movimenti") && bene;
        return bene;
    }

    Disco& disco_;
    const std::string& nnn_;
    const Detto& detto_;
    Errore err_;
    FileDi<RecTotali> tfr_{err_, 21};
    FileDi<RecFornitore> fornitori_{err_, 22};
    FileDi<RecFattura> ftr_{err_, 24};
    FileDi<RecTotaliLedger> tot_{err_, 15};
    FileDi<RecCondomino> cnd_{err_, 1};
    FileDi<RecNome> cns_{err_, 2};
    FileDi<RecMovimento> mov_{err_, 4};
    FileDi<RecCondomino2> cn2_{err_, 5};
};

}  // namespace

void togli_avanzi(Disco& disco, const Detto& detto) {
    std::vector<std::string> nomi;
    if (!ripristino_interrotto(disco).empty() || disco.elenca(kCartella, nomi) != 0) return;
    std::sort(nomi.begin(), nomi.end());
    for (const auto& n : nomi) {
        if (!e_avanzo(n) || disco.in_uso(kCartella + n)) continue;
        const int e = disco.elimina(kCartella + n);
        detto(e == 0 ? unisci(n, ": tolto, era un file provvisorio")
                     : unisci(n, ": non si può togliere: "_it, in_parole(e)));
    }
}

bool riparabile(Disco& disco, const std::string& nnn) {
    const Male m = male_di(disco, nnn);
    return m.indice || m.contatori;
}

std::string ripara(Disco& disco, const std::string& nnn, const Detto& detto) {
    if (const std::string aperto = aperto_da_altri(disco, nnn); !aperto.empty())
        return unisci("un altro programma tiene aperto ", aperto);
    const Male m = male_di(disco, nnn);
    Officina officina(disco, nnn, detto);
    // The index goes by the count.
    const bool bene =
        (!m.contatori || officina.contatori()) && (!(m.indice || m.contatori) || officina.indice());
    return bene ? "" : in_parole(officina.errore_visto());
}

}  // namespace ambra
