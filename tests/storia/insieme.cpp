#include "tests/storia/insieme.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <map>
#include <sstream>
#include <stdexcept>

#include "tests/storia/parole.h"

namespace ambra::storia {

namespace {

// One running program: its script goes in line by line, its events come out.
class Programma {
  public:
    Programma(const std::vector<std::string>& comando, int numero, Eventi& eventi)
        : numero_(numero), eventi_(eventi) {
        int dentro[2], fuori[2];
        if (::pipe2(dentro, O_CLOEXEC) != 0 || ::pipe2(fuori, O_CLOEXEC) != 0) male("no pipe");
        std::vector<char*> parole;
        for (const auto& p : comando) parole.push_back(const_cast<char*>(p.c_str()));
        parole.push_back(nullptr);
        figlio_ = ::fork();
        if (figlio_ == 0) {
            ::dup2(dentro[0], 0);
            ::dup2(fuori[1], 1);
            ::execvp(parole[0], parole.data());
            ::_exit(127);
        }
        ::close(dentro[0]);
        ::close(fuori[1]);
        verso_ = ::fdopen(dentro[1], "w");
        da_ = ::fdopen(fuori[0], "r");
    }
    ~Programma() {
        if (verso_) std::fclose(verso_);
        if (da_) std::fclose(da_);
        if (figlio_ > 0) ::waitpid(figlio_, nullptr, 0);
    }
    Programma(const Programma&) = delete;
    Programma& operator=(const Programma&) = delete;

    /// Gives the program a line and waits until it was done, or the program has ended.
    void fai(const std::string& riga) {
        std::fprintf(verso_, "%s\nnote @fatto\n", riga.c_str());
        std::fflush(verso_);
        leggi_fino("@fatto");
    }
    int finisci() {
        std::fclose(verso_);
        verso_ = nullptr;
        leggi_fino("");
        int stato = 0;
        ::waitpid(figlio_, &stato, 0);
        figlio_ = 0;
        return WIFEXITED(stato) ? WEXITSTATUS(stato) : 128 + WTERMSIG(stato);
    }

  private:
    void leggi_fino(const std::string& nota) {
        char* riga = nullptr;
        std::size_t posto = 0;
        ssize_t lungo = 0;
        while ((lungo = ::getline(&riga, &posto, da_)) > 0) {
            Json j = Json::parse(std::string(riga, static_cast<std::size_t>(lungo)));
            if (j["event"] == "note" && j["text"] == nota) break;
            j["programma"] = numero_;
            eventi_.push_back(std::move(j));
        }
        ::free(riga);
    }

    int numero_;
    Eventi& eventi_;
    pid_t figlio_ = 0;
    FILE* verso_ = nullptr;
    FILE* da_ = nullptr;
};

}  // namespace

int corri_insieme(const std::vector<std::string>& comando, const std::string& righe, Eventi& eventi) {
    std::signal(SIGPIPE, SIG_IGN);  // a program that ended takes no more lines
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
