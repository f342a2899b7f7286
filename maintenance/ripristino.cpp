#include "maintenance/ripristino.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <span>
#include <utility>

#include "core/disco_comune.h"
#include "core/errori.h"
#include "core/impostazioni.h"
#include "core/testo.h"
#include "maintenance/nomi_archivio.h"

namespace ambra {

namespace {

const std::string kGiornale = kCartella + kGiornaleRipristino;
// The last line of a journal whose new files all lie ready.
constexpr std::string_view kPronto = "pronto";

std::string provvisorio(const std::string& nome) {
    return unisci(kCartella, nome, ".~~~");
}

bool manca(int e) {
    return e == errore::file_mancante || e == errore::percorso_mancante;
}

// The journal as values. Names in `via` and `nuovi` are those of the archive's folder.
struct Piano {
    std::string deposito;
    std::vector<std::string> via, nuovi;
    bool pronto = false;

    std::string testo() const {
        std::string r = deposito + "\r\n";
        for (const auto& n : via) r += unisci("-", n, "\r\n");
        for (const auto& n : nuovi) r += unisci("+", n, "\r\n");
        return r;
    }
};

bool nome_di_deposito(std::string_view s) {
    return !s.empty() && std::all_of(s.begin(), s.end(),
                                     [](char c) { return (c >= 'a' && c <= 'z') || cifra(c) || c == '-'; });
}

// False for what no restore of ours has written.
bool leggi_piano(std::string_view testo, Piano& p) {
    p.pronto = testo.ends_with(unisci(kPronto, "\r\n"));
    bool primo = true;
    for (auto fine = testo.find("\r\n"); fine != std::string_view::npos; fine = testo.find("\r\n")) {
        const std::string riga(testo.substr(0, fine));
        testo.remove_prefix(fine + 2);
        if (primo) {
            p.deposito = riga;
            primo = false;
        } else if (riga == kPronto && testo.empty()) {
            break;
        } else if (riga.size() > 1 && (riga[0] == '-' || riga[0] == '+') &&
                   !padrone(riga.substr(1)).empty()) {
            (riga[0] == '-' ? p.via : p.nuovi).push_back(riga.substr(1));
        } else {
            return false;
        }
    }
    return nome_di_deposito(p.deposito) && !p.nuovi.empty();
}

// The moves of a plan, forward and back. Where each file is tells what is still to do, so that both can be
// run again whatever an earlier run has left.
class Ripristino {
  public:
    Ripristino(Disco& disco, const Piano& piano) : disco_(disco), p_(piano) {}

    /// Everything into place; "" or what was in the way.
    std::string finisci() {
        if (controlla() && sgombra() && riempi() && e_lasciato()) consolida();
        return std::exchange(male_, "");
    }

    /// Everything back to where it was.
    std::string annulla() {
        for (const auto& n : p_.nuovi)
            if (c_e(kCartella + n) && !c_e(provvisorio(n))) sposta(kCartella + n, provvisorio(n));
        for (const auto& n : p_.via)
            if (c_e(da_parte(n)) && (!c_e(kCartella + n) || metti_via(n))) sposta(da_parte(n), kCartella + n);
        consolida();
        return std::exchange(male_, "");
    }

  private:
    // Only what is surely not there is not there: the rest ends the work.
    bool c_e(const std::string& percorso) {
        Cosa g{};
        if (!male_.empty()) return false;
        if (const int e = disco_.cosa_c_e(percorso, g)) return rifiuta(percorso, in_parole(e));
        return g != Cosa::niente;
    }
    bool rifiuta(std::string_view percorso, std::string_view perche) {
        if (male_.empty()) male_ = unisci(percorso.substr(percorso.rfind('\\') + 1), ": ", perche);
        return false;
    }
    bool sposta(const std::string& da, const std::string& a) {
        if (!male_.empty()) return false;
        const int e = disco_.sposta(da, a);
        return e == 0 || rifiuta(da, in_parole(e));
    }
    std::string da_parte(const std::string& nome) const { return unisci(kCartella, p_.deposito, "\\", nome); }
    // Nothing in the deposit is replaced: a file that somebody made since the first one went gets a number.
    bool metti_via(const std::string& nome) {
        std::string dove = da_parte(nome);
        for (int n = 2; c_e(dove); ++n) dove = unisci(da_parte(nome), ".", std::to_string(n));
        return sposta(kCartella + nome, dove);
    }
    bool tocca_a(const std::string& nome) {
        const bool nuovo = std::any_of(p_.nuovi.begin(), p_.nuovi.end(),
                                       [&](const std::string& n) { return minuscolo(n) == minuscolo(nome); });
        // What stands where a new file has gone in is that file.
        return c_e(kCartella + nome) && (!nuovo || c_e(provvisorio(nome)));
    }

    bool controlla() {
        for (const auto& n : p_.nuovi)
            if (!c_e(provvisorio(n)) && !c_e(kCartella + n)) return rifiuta(n, "il file nuovo manca");
        for (const auto& n : p_.via)
            if (tocca_a(n) && disco_.in_uso(kCartella + n)) return rifiuta(n, kInUso);
        return male_.empty();
    }
    bool sgombra() {
        for (const auto& n : p_.via)
            if (tocca_a(n) && !metti_via(n)) return false;
        return male_.empty();
    }
    bool riempi() {
        for (const auto& n : p_.nuovi) {
            if (!c_e(provvisorio(n))) continue;
            if (c_e(kCartella + n) && !metti_via(n)) return false;
            if (!sposta(provvisorio(n), kCartella + n)) return false;
        }
        return male_.empty();
    }
    // Who opened a file just before it was put aside would write into the deposit from now on.
    bool e_lasciato() {
        for (const auto& n : p_.via)
            if (c_e(da_parte(n)) && disco_.in_uso(da_parte(n))) return rifiuta(n, kInUso);
        return male_.empty();
    }
    void consolida() {
        for (const auto& p : {kGiornale, da_parte("")}) {
            const int e = male_.empty() ? disco_.consolida_cartella(p) : 0;
            if (e != 0) rifiuta(p, in_parole(e));
        }
    }

    static constexpr std::string_view kInUso = "un altro programma lo tiene aperto";
    Disco& disco_;
    const Piano& p_;
    std::string male_;
};

// Whoever holds the journal is at work: a journal that nobody holds is that of a dead one.
class Tenuta {
  public:
    explicit Tenuta(Disco& disco)
        : disco_(disco), libero_(disco.blocca(kGiornale, 1, std::chrono::milliseconds::zero()) == 0) {}
    ~Tenuta() {
        if (libero_) disco_.sblocca(kGiornale, 1);
    }
    Tenuta(const Tenuta&) = delete;
    Tenuta& operator=(const Tenuta&) = delete;
    bool di_altri() const { return !libero_; }

  private:
    Disco& disco_;
    bool libero_;
};

std::string togli_giornale(Disco& disco) {
    const int e = disco.elimina(kGiornale);
    return e == 0 || manca(e) ? "" : unisci(kGiornaleRipristino, ": ", in_parole(e));
}

void togli_provvisori(Disco& disco, const Piano& p) {
    for (const auto& n : p.nuovi) disco.elimina(provvisorio(n));
}

// Forward, and if that does not go, back. The new files go last: as long as the journal lies there they can
// still be needed.
std::string concludi(Disco& disco, const Piano& p) {
    Ripristino lavoro(disco, p);
    const std::string male = lavoro.finisci();
    if (male.empty()) return togli_giornale(disco);
    if (lavoro.annulla().empty() && togli_giornale(disco).empty()) togli_provvisori(disco, p);
    return male;
}

// The new files beside the old ones, each made new: what an earlier attempt left there, or a link, goes.
int prepara(Disco& disco, const std::vector<FileSalvato>& file, const Piano& p) {
    for (const auto& f : file) {
        if (f.nome == kManifesto) continue;
        if (const int e = disco.elimina(provvisorio(f.nome)); e != 0 && !manca(e)) return e;
        if (const int e = disco.scrivi_nuovo(provvisorio(f.nome), f.contenuto)) return e;
    }
    if (const int e = disco.crea_cartella(kCartella + p.deposito)) return e;
    if (const int e = disco.consolida_cartella(kGiornale)) return e;
    std::unique_ptr<FileAperto> giornale;
    if (const int e = disco.apri(kGiornale, Apertura::scambio, giornale)) return e;
    const std::string riga = unisci(kPronto, "\r\n");
    const int e = giornale->scrivi(giornale->lunghezza(), std::as_bytes(std::span(riga)));
    return e == 0 ? giornale->consolida() : e;
}

std::string fai_piano(Disco& disco, const std::vector<FileSalvato>& file, const std::string& nnn, Piano& p) {
    std::vector<std::string> presenti;
    if (const int e = disco.elenca(kCartella, presenti)) return in_parole(e);
    std::sort(presenti.begin(), presenti.end());
    std::set<std::string> tengo, visti;
    for (const auto& f : file)
        if (f.nome != kManifesto) {
            p.nuovi.push_back(f.nome);
            tengo.insert(minuscolo(f.nome));
        }
    for (const auto& n : presenti) {
        if (padrone(n) != nnn && !tengo.contains(minuscolo(n))) continue;
        if (!visti.insert(minuscolo(n)).second) return unisci("due file con lo stesso nome: ", n);
        p.via.push_back(n);
    }
    return "";
}

}  // namespace

std::string ripristino_interrotto(Disco& disco) {
    Cosa g{};
    const int e = disco.cosa_c_e(kGiornale, g);
    if (e != 0 && !manca(e)) return unisci(kGiornaleRipristino, ": ", in_parole(e));
    if (e != 0 || g == Cosa::niente) return "";
    return "un ripristino dell'archivio è in corso o è stato interrotto: ambra restore lo finisce"_it;
}

std::string aperto_da_altri(Disco& disco, const std::string& nnn) {
    std::vector<std::string> nomi;
    disco.elenca(kCartella, nomi);
    std::sort(nomi.begin(), nomi.end());
    for (const auto& n : nomi) {
        const std::string di_chi = padrone(n);
        if ((di_chi == "*" || di_chi == nnn) && disco.in_uso(kCartella + n)) return n;
    }
    return "";
}

std::string ripristina(Disco& disco, const std::vector<FileSalvato>& file, const std::string& nnn,
                       const std::string& deposito) {
    Piano p;
    p.deposito = deposito;
    if (std::string male = fai_piano(disco, file, nnn, p); !male.empty()) return male;
    if (const int e = disco.scrivi_nuovo(kGiornale, p.testo())) {
        const std::string male = ripristino_interrotto(disco);
        return male.empty() ? in_parole(e) : male;
    }
    const Tenuta tenuta(disco);
    // Until it was held, another restore could take the journal for that of a dead one.
    std::string mio;
    if (tenuta.di_altri() || disco.leggi_tutto(kGiornale, mio) != 0 || mio != p.testo())
        return "un altro ripristino è in corso"_it;
    const int e = prepara(disco, file, p);
    if (e == 0) return concludi(disco, p);
    togli_provvisori(disco, p);
    togli_giornale(disco);
    return in_parole(e);
}

std::string nuovo_deposito(Disco& disco, const std::string& momento) {
    const std::string primo = "sostituiti-" + momento;
    std::string nome = primo;
    Cosa c{};
    for (int n = 2; disco.cosa_c_e(kCartella + nome, c) == 0 && c != Cosa::niente; ++n)
        nome = unisci(primo, "-", std::to_string(n));
    return nome;
}

std::string riprendi_ripristino(Disco& disco) {
    const Tenuta tenuta(disco);
    if (tenuta.di_altri()) return "un altro ripristino è in corso"_it;
    std::string testo;
    const int letto = disco.leggi_tutto(kGiornale, testo);
    if (manca(letto)) return "";
    if (letto != 0) return unisci(kGiornaleRipristino, ": ", in_parole(letto));
    Piano p;
    const bool nostro = leggi_piano(testo, p);
    if (p.pronto) return nostro ? concludi(disco, p) : unisci(kGiornaleRipristino, ": non si capisce");
    // Whoever died before the last line, or in the middle of one, had moved nothing yet.
    togli_provvisori(disco, p);
    return togli_giornale(disco);
}

}  // namespace ambra
