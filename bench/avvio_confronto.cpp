// Compares the start of the desktop program with that of a bare window over the same list, and over one that
// is ready at once: on the clock, which is what a user waits for, and processor time, best of RUNS
// alternating starts; the median on the clock, the peak of memory. avvio_confronto DIR NNN [RUNS]; the other
// two executables stand beside it.
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
    std::vector<double> ms{};   // on the clock
    std::vector<double> cpu{};  // user and system
    long picco_kb = 0;

    double mediana() {
        std::sort(ms.begin(), ms.end());
        return ms[ms.size() / 2];
    }
};

double migliore(const std::vector<double>& v) {
    return *std::min_element(v.begin(), v.end());
}

double in_ms(const timeval& t) {
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_usec) / 1e3;
}

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
    s.cpu.push_back(in_ms(uso.ru_utime) + in_ms(uso.ru_stime));
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
    Serie pronta{"bare window over a ready model", {cartella + "avvio_nuda"}};
    Serie stessa{"bare window over the same list", {cartella + "avvio_nuda", argv[1], argv[2]}};
    Serie nostra{"vexoraf", {cartella + "avvio_vexoraf", argv[1], argv[2]}};
    const std::vector<Serie*> tutte{&pronta, &stessa, &nostra};
    for (int i = 0; i < volte + 1; ++i) {
        for (Serie* s : tutte)
            if (!una_volta(*s)) {
                std::fprintf(stderr, "%s failed\n", s->nome.c_str());
                return 1;
            }
        if (i == 0)  // which warms the disk's cache
            for (Serie* s : tutte) s->ms.clear(), s->cpu.clear();
    }
    for (Serie* s : tutte)
        std::printf("%-31s clock %6.1f ms (median %6.1f)   processor %6.1f ms   peak %5.1f MB\n",
                    s->nome.c_str(), migliore(s->ms), s->mediana(), migliore(s->cpu),
                    static_cast<double>(s->picco_kb) / 1024);
    for (Serie* s : {&stessa, &pronta}) {
        const double quante = migliore(nostra.ms) / migliore(s->ms);
        std::printf("vexoraf on the clock takes %.2f times %s, at most 1.5%s\n", quante, s->nome.c_str(),
                    quante > 1.5 ? ": OVER" : "");
        std::printf("vexoraf's processor time takes %.2f times %s\n", migliore(nostra.cpu) / migliore(s->cpu),
                    s->nome.c_str());
    }
    return 0;
}
