#include "maintenance/salvataggio.h"

#include <algorithm>
#include <set>

#include "core/errori.h"
#include "core/impostazioni.h"
#include "core/testo.h"
#include "maintenance/sha256.h"

namespace ambra {

namespace {

constexpr std::string_view kIntestazione = "Kit Ambra, stabile ";

std::string minuscolo(std::string_view s) {
    std::string r(s);
    for (char& c : r)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    return r;
}

bool e_nnn(std::string_view s) {
    return s.size() == 3 && std::all_of(s.begin(), s.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool nome_semplice(std::string_view n) {
    return !n.empty() && n.size() <= 40 && n.find("..") == std::string_view::npos &&
           std::all_of(n.begin(), n.end(), [](char c) {
               return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                      c == '.' || c == '$';
           });
}

// "007" for a file of building 7, "*" for one of all buildings, "" for what is not of the archive.
std::string padrone(std::string_view nome) {
    if (!nome_semplice(nome)) return "";
    const std::string n = minuscolo(nome);
    const auto punto = n.find('.');
    if (punto == std::string::npos || n.find('.', punto + 1) != std::string::npos) return "";
    const std::string base = n.substr(0, punto), est = n.substr(punto + 1);
    if (est.size() != 3) return "";
    if (base == "lumora" || base == "lumoral" || base == "lumeria" || base == "lummmi") return "*";
    if (base == "vexoral") return e_nnn(est) ? est : "";
    return base.size() == 6 && base.starts_with("lum") && e_nnn(base.substr(3)) ? base.substr(3) : "";
}

std::string riga_manifesto(const FileSalvato& f) {
    return unisci(sha256(f.contenuto), " ", std::to_string(f.contenuto.size()), " ", f.nome, "\r\n");
}

std::string manifesto(const std::string& nnn, const std::vector<FileSalvato>& file) {
    std::string r = unisci(kIntestazione, nnn, "\r\n");
    for (const auto& f : file)
        if (f.nome != kManifesto) r += riga_manifesto(f);
    return r;
}

std::string provvisorio(const std::string& nome) {
    return kCartella + nome + ".~~~";
}

// One move of a restore and how to undo it.
struct Mossa {
    std::string da, a;
};

class Ripristino {
  public:
    Ripristino(Disco& disco, std::string deposito) : disco_(disco), deposito_(std::move(deposito)) {}

    /// Moves what stands in the way aside and the new files in. Files that are already in place are passed
    /// over, so that it can be run again.
    int esegui(const std::vector<std::string>& nuovi, const std::vector<std::string>& via) {
        for (const auto& n : via)
            if (const int e = metti_via(n)) return torna_indietro(e);
        for (const auto& n : nuovi) {
            if (!esiste(provvisorio(n))) continue;
            if (const int e = metti_via(n)) return torna_indietro(e);
            if (const int e = muovi(provvisorio(n), kCartella + n)) return torna_indietro(e);
        }
        return 0;
    }

    /// A failure could not be undone: only the journal can put things right.
    bool a_meta() const { return a_meta_; }

  private:
    bool esiste(const std::string& p) {
        std::unique_ptr<FileAperto> f;
        return disco_.apri(p, Apertura::lettura, f) == 0;
    }
    int muovi(const std::string& da, const std::string& a) {
        if (const int e = disco_.rinomina(da, a)) return e;
        fatte_.push_back({da, a});
        return 0;
    }
    int metti_via(const std::string& nome) {
        if (!esiste(kCartella + nome)) return 0;
        return muovi(kCartella + nome, unisci(kCartella, deposito_, "\\", nome));
    }
    int torna_indietro(int e) {
        for (auto m = fatte_.rbegin(); m != fatte_.rend(); ++m)
            if (disco_.rinomina(m->a, m->da) != 0) a_meta_ = true;
        return e;
    }

    Disco& disco_;
    std::string deposito_;
    std::vector<Mossa> fatte_;
    bool a_meta_ = false;
};

// The journal: the folder of what is replaced, then "+name" for a new file, "-name" for one that goes.
std::string giornale(const std::string& deposito, const std::vector<std::string>& nuovi,
                     const std::vector<std::string>& via) {
    std::string r = deposito + "\r\n";
    for (const auto& n : via) r += "-" + n + "\r\n";
    for (const auto& n : nuovi) r += "+" + n + "\r\n";
    return r;
}

std::vector<std::string> righe_di(std::string_view s) {
    std::vector<std::string> r;
    while (!s.empty()) {
        const auto fine = std::min(s.find("\r\n"), s.size());
        r.emplace_back(s.substr(0, fine));
        s.remove_prefix(std::min(fine + 2, s.size()));
    }
    return r;
}

}  // namespace

int raccogli(Disco& disco, const std::string& nnn, std::vector<FileSalvato>& file) {
    std::vector<std::string> nomi;
    if (const int e = disco.elenca(kCartella, nomi)) return e;
    std::sort(nomi.begin(), nomi.end());
    file.assign(1, {kManifesto, ""});
    bool suoi = false;
    for (const auto& n : nomi) {
        const std::string di_chi = padrone(n);
        if (di_chi != "*" && di_chi != nnn) continue;
        suoi = suoi || di_chi == nnn;
        file.push_back({n, ""});
        if (const int e = disco.leggi_tutto(kCartella + n, file.back().contenuto)) return e;
    }
    if (!suoi) return errore::file_mancante;
    file[0].contenuto = manifesto(nnn, file);
    return 0;
}

std::string difetto(const std::vector<FileSalvato>& file, std::string& nnn) {
    if (file.empty() || file[0].nome != kManifesto) return "manca il manifesto";
    const auto righe = righe_di(file[0].contenuto);
    if (righe.empty() || !righe[0].starts_with(kIntestazione)) return "il manifesto non si legge";
    nnn = righe[0].substr(kIntestazione.size());
    if (!e_nnn(nnn)) return "il manifesto non dice lo stabile";
    std::set<std::string> visti;
    for (std::size_t i = 1; i < file.size(); ++i) {
        const std::string di_chi = padrone(file[i].nome);
        if (di_chi != "*" && di_chi != nnn)
            return unisci("un file che non appartiene allo stabile: ", file[i].nome);
        if (!visti.insert(minuscolo(file[i].nome)).second) return unisci("un file doppio: ", file[i].nome);
    }
    if (righe.size() != file.size()) return "file in numero diverso dal manifesto";
    for (std::size_t i = 1; i < file.size(); ++i)
        if (righe[i] + "\r\n" != riga_manifesto(file[i])) return unisci("un file alterato: ", file[i].nome);
    if (file[0].contenuto != manifesto(nnn, file)) return "il manifesto \xE8 alterato";
    return "";
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

int ripristina(Disco& disco, const std::vector<FileSalvato>& file, const std::string& nnn,
               const std::string& deposito) {
    std::vector<std::string> presenti, nuovi, via;
    if (const int e = disco.elenca(kCartella, presenti)) return e;
    std::set<std::string> tengo;
    int e = 0;
    for (const auto& f : file) {
        if (f.nome == kManifesto) continue;
        nuovi.push_back(f.nome);
        tengo.insert(minuscolo(f.nome));
        if (e == 0) e = disco.scrivi_tutto(provvisorio(f.nome), f.contenuto);
    }
    for (const auto& n : presenti)
        if (padrone(n) == nnn && !tengo.contains(minuscolo(n))) via.push_back(n);
    const auto pulisci = [&] {
        for (const auto& n : nuovi) disco.elimina(provvisorio(n));
    };
    if (e == 0) e = disco.crea_cartella(kCartella + deposito);
    // From the journal on there is enough on the disc to finish, whatever happens.
    if (e == 0) e = disco.scrivi_tutto(kCartella + kGiornaleRipristino, giornale(deposito, nuovi, via));
    if (e != 0) {
        pulisci();
        return e;
    }
    Ripristino lavoro(disco, deposito);
    e = lavoro.esegui(nuovi, via);
    if (lavoro.a_meta()) return e;
    // A journal that stays behind a finished restore finds nothing left to do.
    disco.elimina(kCartella + kGiornaleRipristino);
    if (e != 0) pulisci();
    return e;
}

int riprendi_ripristino(Disco& disco) {
    std::string testo;
    const int letto = disco.leggi_tutto(kCartella + kGiornaleRipristino, testo);
    if (letto != 0) return letto == errore::file_mancante || letto == errore::percorso_mancante ? 0 : letto;
    const auto righe = righe_di(testo);
    std::vector<std::string> nuovi, via;
    for (std::size_t i = 1; i < righe.size(); ++i) {
        if (righe[i].size() < 2 || padrone(std::string_view(righe[i]).substr(1)).empty())
            return errore::accesso;
        (righe[i][0] == '+' ? nuovi : via).push_back(righe[i].substr(1));
    }
    if (righe.empty()) return errore::accesso;
    if (const int e = Ripristino(disco, righe[0]).esegui(nuovi, via)) return e;
    return disco.elimina(kCartella + kGiornaleRipristino);
}

}  // namespace ambra
