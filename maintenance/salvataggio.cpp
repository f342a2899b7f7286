#include "maintenance/salvataggio.h"

#include <algorithm>
#include <charconv>
#include <set>

#include "core/disco_comune.h"
#include "core/errori.h"
#include "core/impostazioni.h"
#include "core/testo.h"
#include "maintenance/nomi_archivio.h"
#include "maintenance/ripristino.h"
#include "maintenance/sha256.h"

namespace ambra {

namespace {

constexpr std::string_view kIntestazione = "Kit Ambra, stabile ";
// With the command's pauses some fifteen seconds.
constexpr int kPassate = 100;

std::string riga_manifesto(const FileSalvato& f) {
    return unisci(sha256(f.contenuto), " ", std::to_string(f.contenuto.size()), " ", f.nome, "\r\n");
}

std::string manifesto(const std::string& nnn, const std::vector<FileSalvato>& file) {
    std::string r = unisci(kIntestazione, nnn, "\r\n");
    for (const auto& f : file)
        if (f.nome != kManifesto) r += riga_manifesto(f);
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

// The names that a set of the building holds, in order.
std::string nomi_di(Disco& disco, const std::string& nnn, std::vector<std::string>& nomi) {
    std::vector<std::string> tutti;
    if (const int e = disco.elenca(kCartella, tutti)) return in_parole(e);
    nomi.clear();
    bool suoi = false;
    for (const auto& n : tutti) {
        const std::string di_chi = padrone(n);
        if (di_chi == "*" || di_chi == nnn) nomi.push_back(n);
        suoi = suoi || (di_chi == nnn && fa_lo_stabile(n));
    }
    std::sort(nomi.begin(), nomi.end());
    return suoi ? "" : "lo stabile manca";
}

std::string leggi_salvato(Disco& disco, const std::string& nome, std::string& contenuto) {
    std::unique_ptr<FileAperto> f;
    int e = disco.apri(kCartella + nome, Apertura::lettura, f);
    if (e == 0 && f->lunghezza() > kMassimoFile) return unisci(nome, ": un file troppo grande");
    f.reset();
    if (e == 0) e = disco.leggi_tutto(kCartella + nome, contenuto);
    return e == 0 ? "" : unisci(nome, ": ", in_parole(e));
}

// One pass: brings `file` up to what the disc holds now; `uguale` if that is what it held before.
std::string passata(Disco& disco, const std::string& nnn, std::vector<FileSalvato>& file, bool& uguale) {
    std::vector<std::string> nomi;
    if (std::string male = nomi_di(disco, nnn, nomi); !male.empty()) return male;
    uguale = std::equal(nomi.begin(), nomi.end(), file.begin(), file.end(),
                        [](const std::string& n, const FileSalvato& f) { return n == f.nome; });
    if (!uguale) {
        file.clear();
        for (const auto& n : nomi) file.push_back({n, ""});
    }
    std::size_t tutto = 0;
    for (auto& f : file) {
        std::string ora;
        if (std::string male = leggi_salvato(disco, f.nome, ora); !male.empty()) return male;
        tutto += ora.size();
        if (tutto > kMassimoTutto || file.size() > kMassimoQuanti) return "un archivio troppo grande";
        if (ora == f.contenuto) continue;
        uguale = false;
        f.contenuto = std::move(ora);
    }
    return "";
}

std::string difetto_di_nome(const std::vector<FileSalvato>& file, const std::string& nnn) {
    std::set<std::string> visti;
    bool suoi = false;
    for (std::size_t i = 1; i < file.size(); ++i) {
        const std::string di_chi = padrone(file[i].nome);
        if (di_chi != "*" && di_chi != nnn)
            return unisci("un file che non appartiene allo stabile: ", file[i].nome);
        if (!visti.insert(minuscolo(file[i].nome)).second) return unisci("un file doppio: ", file[i].nome);
        suoi = suoi || (di_chi == nnn && fa_lo_stabile(file[i].nome));
    }
    return suoi ? "" : "non contiene nessun file dello stabile";
}

}  // namespace

std::string raccogli(Disco& disco, const std::string& nnn, std::vector<FileSalvato>& file,
                     const std::function<void()>& pausa) {
    file.clear();
    for (int volta = 0; volta < kPassate; ++volta) {
        if (volta > 0 && pausa) pausa();
        bool uguale = false;
        if (std::string male = passata(disco, nnn, file, uguale); !male.empty()) return male;
        // A restore that began during the pass has mixed its files.
        if (std::string male = ripristino_interrotto(disco); !male.empty()) return male;
        if (!uguale) continue;
        file.insert(file.begin(), {kManifesto, manifesto(nnn, file)});
        return "";
    }
    return "l'archivio cambia di continuo: chiudete i programmi che lo usano e riprovate";
}

std::string difetto(const std::vector<FileSalvato>& file, std::string& nnn) {
    if (file.empty() || file[0].nome != kManifesto) return "manca il manifesto";
    if (!e_manifesto(file[0])) return "il manifesto non si legge";
    const auto righe = righe_di(file[0].contenuto);
    nnn = righe[0].substr(kIntestazione.size());
    if (!e_nnn(nnn)) return "il manifesto non dice lo stabile";
    if (std::string male = difetto_di_nome(file, nnn); !male.empty()) return male;
    if (righe.size() != file.size()) return "file in numero diverso dal manifesto";
    for (std::size_t i = 1; i < file.size(); ++i)
        if (righe[i] + "\r\n" != riga_manifesto(file[i])) return unisci("un file alterato: ", file[i].nome);
    if (file[0].contenuto != manifesto(nnn, file)) return "il manifesto è alterato"_it;
    return "";
}

bool e_manifesto(const FileSalvato& f) {
    return f.nome == kManifesto && f.contenuto.starts_with(kIntestazione);
}

// The manifest, an empty line, the files as they follow in it.
std::string in_un_pezzo(const std::vector<FileSalvato>& file) {
    std::string r = file[0].contenuto + "\r\n";
    for (std::size_t i = 1; i < file.size(); ++i) r += file[i].contenuto;
    return r;
}

std::vector<FileSalvato> da_un_pezzo(const std::string& pezzo) {
    const auto fine = pezzo.find("\r\n\r\n");
    if (!pezzo.starts_with(kIntestazione) || fine == std::string::npos) return {};
    std::vector<FileSalvato> file{{kManifesto, pezzo.substr(0, fine + 2)}};
    std::size_t qui = fine + 4;
    const auto righe = righe_di(file[0].contenuto);
    for (std::size_t i = 1; i < righe.size(); ++i) {
        const auto prima = righe[i].find(' '), dopo = righe[i].rfind(' ');
        std::size_t lungo = 0;
        if (prima < dopo) std::from_chars(righe[i].data() + prima + 1, righe[i].data() + dopo, lungo);
        file.push_back({righe[i].substr(dopo + 1), pezzo.substr(std::min(qui, pezzo.size()), lungo)});
        qui += std::min(lungo, pezzo.size());
    }
    if (qui != pezzo.size()) file.clear();
    return file;
}

}  // namespace ambra
