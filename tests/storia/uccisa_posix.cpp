#include "tests/storia/uccisa.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <sstream>

#include "tests/storia/parole.h"
#include "tests/storia/processo.h"
#include "tests/storia/storia.h"
#include "tests/supporto/uccisione.h"

namespace fs = std::filesystem;

namespace ambra::storia {

namespace {

constexpr int kMai = 1000000;

// The script done to some line and no further: how many operations that took, and what was left.
struct Tappa {
    int operazioni = 0;
    Dischetto::Foto dopo;
};

class Strage {
  public:
    Strage(const Dischetto& drive, std::vector<std::string> parole)
        : radice_(drive.radice()), intatta_(radice_.string() + ".intatta"), parole_(std::move(parole)) {
        fs::copy(radice_, intatta_, fs::copy_options::recursive);
        // Copies that a repair makes first.
        ::setenv("XDG_DATA_HOME", (radice_.string() + ".copie").c_str(), 1);
    }
    ~Strage() {
        rimetti();
        fs::remove_all(intatta_);
    }
    void tappe() {
        std::istringstream righe(leggi_file(parole_.back()));
        impara();
        std::string fin_qui;
        tappa(fin_qui);
        for (std::string r; std::getline(righe, r);) tappa(fin_qui += r + "\n");
    }
    void uccidi_tutte() {
        if (tappe_.back().operazioni < 3) male("nothing to kill: the story writes nothing");
        for (int n = 1; n <= tappe_.back().operazioni; ++n) {
            rimetti();
            int stato = 0;
            if (uccidi_prima_di(parole_, n, stato) != Sorte::ucciso)
                male("not killed before " + std::to_string(n));
            try {
                interi(foto(), n);
                riparabile();
            } catch (const std::exception& e) {
                male("killed before operation " + std::to_string(n) + " of " +
                     std::to_string(tappe_.back().operazioni) + ": " + e.what());
            }
        }
    }

  private:
    // The folder itself stays: the program begins in it.
    void rimetti() const {
        for (const auto& e : fs::directory_iterator(radice_)) fs::remove_all(e.path());
        fs::copy(intatta_, radice_, fs::copy_options::recursive);
    }
    Dischetto::Foto foto() const {
        Dischetto d(radice_);
        d.fotografa();
        return d.prima();
    }
    void tappa(const std::string& script) {
        rimetti();
        std::vector<std::string> parole = parole_;
        parole.back() = radice_.string() + ".tappa";
        scrivi_file(parole.back(), script);
        Tappa t;
        int stato = 0;
        if (uccidi_prima_di(parole, kMai, stato, &t.operazioni) == Sorte::negato) throw Saltata();
        t.dopo = foto();
        impara();
        tappe_.push_back(std::move(t));
    }
    // Each record is what it was at the last line that was done, or is later.
    void interi(const Dischetto::Foto& ora, int n) const {
        std::size_t da = 0;
        while (da + 1 < tappe_.size() && tappe_[da + 1].operazioni < n) ++da;
        for (const auto& [file, byte] : tappe_.back().dopo) {
            const std::string est = fs::path(file).extension().string();
            if (est != ".for" && est != ".ftr" && est != ".mov") continue;
            const std::size_t lungo = Dischetto::formato("001" + est).lunghezza;
            const auto record = [&](const Dischetto::Foto& f, std::size_t r) {
                const auto it = f.find(file);
                return it == f.end() || it->second.size() <= r * lungo ? std::string()
                                                                       : it->second.substr(r * lungo, lungo);
            };
            for (std::size_t r = 0; r * lungo < byte.size(); ++r)
                if (std::none_of(tappe_.begin() + static_cast<std::ptrdiff_t>(da), tappe_.end(),
                                 [&](const Tappa& t) { return record(t.dopo, r) == record(ora, r); }))
                    male(file + ", record " + std::to_string(r + 1) + " is lost, or half");
        }
    }
    std::string controllo(std::vector<std::string> opzioni) const {
        opzioni.insert(opzioni.begin(), {parole_[0], "check", "--drive", radice_.string()});
        const fs::path detto = radice_.string() + ".detto";
        esegui_programma(opzioni, detto);
        return leggi_file(detto);
    }
    void impara() { noti_.merge(errori(controllo({}))); }
    // The shares of the owners are added up anew by the next movement.
    static bool di_passaggio(const std::string& dove) { return dove.ends_with(", dquota"); }
    // Where the errors are, without what was found there.
    static std::set<std::string> errori(const std::string& detto) {
        std::set<std::string> e;
        std::istringstream righe(detto);
        for (std::string r; std::getline(righe, r);)
            if (const auto qui = r.find(": errore,");
                qui != std::string::npos && !di_passaggio(r.substr(0, qui)))
                e.insert(r.substr(0, qui));
        return e;
    }
    bool sano(const std::string& detto) const {
        const auto trovati = errori(detto);
        return std::includes(noti_.begin(), noti_.end(), trovati.begin(), trovati.end());
    }
    void riparabile() const {
        if (sano(controllo({}))) return;
        const std::string riparato = controllo({"--repair"});
        if (const std::string ora = controllo({}); !sano(ora))
            male("not mended by\n" + riparato + "but\n" + ora);
    }

    fs::path radice_, intatta_;
    std::vector<std::string> parole_;
    std::vector<Tappa> tappe_;
    std::set<std::string> noti_;  // errors that the story began with, or leaves between two lines
};

}  // namespace

void uccidi_ad_ogni_passo(const Dischetto& drive, const std::vector<std::string>& parole) {
    Strage s(drive, parole);
    s.tappe();
    s.uccidi_tutte();
}

}  // namespace ambra::storia
