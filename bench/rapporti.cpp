#include "bench/rapporti.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>

namespace ambra {

namespace {

class Cronista : public benchmark::ConsoleReporter {
  public:
    Cronista() : ConsoleReporter(OO_Tabular) {}
    void ReportRuns(const std::vector<Run>& corse) override {
        for (const Run& r : corse) {
            std::string nome = r.run_name.function_name;
            if (!r.run_name.args.empty()) nome += "/" + r.run_name.args;
            // What runs in other processes is only seen on the clock on the wall, or measured by the
            // benchmark.
            const bool parete = r.run_name.time_type == "real_time" || r.run_name.time_type == "manual_time";
            const double tempo = parete ? r.real_accumulated_time : r.cpu_accumulated_time;
            const auto voci = r.counters.find("items_per_second");
            if (r.run_type != Run::RT_Iteration || r.iterations == 0 || tempo <= 0) continue;
            const double suoi =
                voci != r.counters.end() ? 1 / voci->second.value : tempo / static_cast<double>(r.iterations);
            double& suo = secondi.try_emplace(nome, suoi).first->second;
            suo = std::min(suo, suoi);
        }
        ConsoleReporter::ReportRuns(corse);
    }
    std::map<std::string, double>
        secondi;  // of each that went well, an item or an iteration; the best of several
};

}  // namespace

int misura(int argc, char** argv, const std::vector<Rapporto>& rapporti) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    Cronista cronista;
    benchmark::RunSpecifiedBenchmarks(&cronista);
    for (const Rapporto& r : rapporti) {
        const auto nostra = cronista.secondi.find(r.misura), metro = cronista.secondi.find(r.metro);
        if (nostra == cronista.secondi.end() || metro == cronista.secondi.end()) continue;
        const double quante = nostra->second / metro->second;
        std::printf("%s takes %.3g times %s", r.misura.c_str(), quante, r.metro.c_str());
        if (r.limite > 0) std::printf(", at most %.3g%s", r.limite, quante > r.limite ? ": OVER" : "");
        std::printf("\n");
    }
    return 0;
}

}  // namespace ambra
