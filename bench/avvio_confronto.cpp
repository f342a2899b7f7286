// Compares the start of the desktop program with that of a bare window: median of RUNS alternating starts,
// and the peak of memory. avvio_confronto DIR NNN [RUNS]; the other two executables stand beside it.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

struct Serie {
    std::string nome;
    std::vector<std::string> comando;
    std::vector<double> ms;
    long picco_kb = 0;

    double mediana() {
        std::sort(ms.begin(), ms.end());
        return ms[ms.size() / 2];
    }
};

bool una_volta(Serie& s) {
    std::vector<char*> argomenti;
    for (auto& a : s.comando) argomenti.push_back(a.data());
    argomenti.push_back(nullptr);
    const auto inizio = std::chrono::steady_clock::now();
    const pid_t figlio = fork();
    if (figlio == 0) {
        execv(argomenti[0], argomenti.data());
        _exit(127);
    }
    int stato = 0;
    rusage uso{};
    wait4(figlio, &stato, 0, &uso);
    const std::chrono::duration<double, std::milli> durata = std::chrono::steady_clock::now() - inizio;
    s.ms.push_back(durata.count());
    s.picco_kb = std::max(s.picco_kb, uso.ru_maxrss);
    return WIFEXITED(stato) && WEXITSTATUS(stato) == 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "avvio_confronto DIR NNN [RUNS]\n");
        return 2;
    }
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    const std::string io = argv[0];
    const std::string cartella = io.substr(0, io.rfind('/') + 1);
    const int volte = argc > 3 ? std::atoi(argv[3]) : 15;
    Serie nuda{"bare window", {cartella + "avvio_nuda"}, {}, 0};
    Serie nostra{"vexoraf", {cartella + "avvio_vexoraf", argv[1], argv[2]}, {}, 0};
    for (int i = 0; i < volte + 1; ++i) {
        for (Serie* s : {&nuda, &nostra})
            if (!una_volta(*s)) {
                std::fprintf(stderr, "%s failed\n", s->nome.c_str());
                return 1;
            }
        if (i == 0) nuda.ms.clear(), nostra.ms.clear();  // the first warms the disk's cache
    }
    for (Serie* s : {&nuda, &nostra})
        std::printf("%-12s %7.1f ms   peak %6.1f MB\n", s->nome.c_str(), s->mediana(),
                    static_cast<double>(s->picco_kb) / 1024);
    std::printf("ratio %.2f\n", nostra.mediana() / nuda.mediana());
    return 0;
}
