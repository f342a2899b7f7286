#include "tests/storia/processo.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace fs = std::filesystem;

namespace ambra::storia {

namespace {

std::string per_la_shell(const std::string& parola) {
    std::string r = "'";
    for (char c : parola) r += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return r + "' ";
}

int esito_di(int stato) {
    return WIFEXITED(stato) ? WEXITSTATUS(stato) : -1;
}

}  // namespace

int esegui_programma(const std::vector<std::string>& parole, const fs::path& uscita) {
    std::string comando;
    for (const auto& p : parole) comando += per_la_shell(p);
    return esito_di(std::system((comando + "> " + per_la_shell(uscita.string())).c_str()));
}

ProgrammaAvviato avvia_programma(const std::vector<std::string>& parole) {
    std::signal(SIGPIPE, SIG_IGN);  // a program that ended takes no more lines
    int dentro[2], fuori[2];
    if (::pipe2(dentro, O_CLOEXEC) != 0 || ::pipe2(fuori, O_CLOEXEC) != 0) return {};
    std::vector<char*> c;
    for (const auto& p : parole) c.push_back(const_cast<char*>(p.c_str()));
    c.push_back(nullptr);
    const pid_t figlio = ::fork();
    if (figlio == 0) {
        ::dup2(dentro[0], 0);
        ::dup2(fuori[1], 1);
        ::execvp(c[0], c.data());
        ::_exit(127);
    }
    ::close(dentro[0]);
    ::close(fuori[1]);
    return {::fdopen(dentro[1], "w"), ::fdopen(fuori[0], "r"), figlio};
}

int attendi(const ProgrammaAvviato& p) {
    int stato = 0;
    ::waitpid(static_cast<pid_t>(p.processo), &stato, 0);
    return esito_di(stato);
}

bool togli_scrittura(const fs::path& p) {
    fs::permissions(p, fs::is_directory(p) ? fs::perms(0555) : fs::perms(0444), fs::perm_options::replace);
    return true;
}

// A superuser is refused nothing: the program then runs as nobody.
bool come_utente(const fs::path& casa, std::vector<std::string>& parole) {
    if (::geteuid() != 0) return true;
    parole = {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"};
    std::vector<std::string> prova = parole;
    prova.emplace_back("true");
    return esegui_programma({"chown", "-R", "65534:65534", casa.string()}, "/dev/null") == 0 &&
           esegui_programma(prova, "/dev/null") == 0;
}

}  // namespace ambra::storia
