#include "tests/storia/insieme.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <sstream>
#include <stdexcept>

#include "tests/storia/parole.h"
#include "tests/storia/processo.h"

namespace ambra::storia {

namespace {

// One running program: its script goes in line by line, its events come out.
class Programma {
  public:
    Programma(const std::vector<std::string>& comando, int numero, Eventi& eventi)
        : numero_(numero), eventi_(eventi), p_(avvia_programma(comando)) {
        if (p_.processo == 0) male("the program cannot be run");
    }
    ~Programma() {
        if (p_.verso) std::fclose(p_.verso);
        if (p_.da) std::fclose(p_.da);
        if (p_.processo != 0) attendi(p_);
    }
    Programma(const Programma&) = delete;
    Programma& operator=(const Programma&) = delete;

    /// Gives the program a line and waits until it was done, or the program has ended.
    void fai(const std::string& riga) {
        std::fprintf(p_.verso, "%s\nnote @fatto\n", riga.c_str());
        std::fflush(p_.verso);
        leggi_fino("@fatto");
    }
    int finisci() {
        std::fclose(p_.verso);
        p_.verso = nullptr;
        leggi_fino("");
        const int stato = attendi(p_);
        p_.processo = 0;
        return stato;
    }

  private:
    bool riga(std::string& r) const {
        r.clear();
        for (int c; (c = std::fgetc(p_.da)) != EOF; r += static_cast<char>(c))
            if (c == '\n') return true;
        return !r.empty();
    }
    void leggi_fino(const std::string& nota) {
        for (std::string r; riga(r);) {
            Json j = Json::parse(r);
            if (j["event"] == "note" && j["text"] == nota) break;
            j["programma"] = numero_;
            eventi_.push_back(std::move(j));
        }
    }

    int numero_;
    Eventi& eventi_;
    ProgrammaAvviato p_;
};

}  // namespace

int corri_insieme(const std::vector<std::string>& comando, const std::string& righe, Eventi& eventi) {
    std::map<int, Programma> tutti;
    std::istringstream in(righe);
    for (std::string riga; std::getline(in, riga);) {
        if (riga.size() < 3 || riga[0] < '1' || riga[0] > '9' || riga[1] != ' ') male("whose line? " + riga);
        const int n = riga[0] - '0';
        tutti.try_emplace(n, comando, n, eventi).first->second.fai(riga.substr(2));
    }
    int stato = 0;
    for (auto& [n, p] : tutti) stato = std::max(stato, p.finisci());
    return stato;
}

}  // namespace ambra::storia
