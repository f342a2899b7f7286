// One keystroke in an amount of the invoice screen, with all that it sets off: VAT, withholding, totals, four
// instalments, the due date of the withheld tax; or in its number, which a full building may hold already. To
// stay under 0.2 ms of logic.
#include <benchmark/benchmark.h>

#include <sstream>
#include <utility>

#include "ambra/batch.h"
#include "bench/cantiere.h"
#include "invoices/lumftea.h"
#include "qt/tutte.h"
#include "tests/supporto/disco_memoria.h"

using namespace ambra;

namespace {

struct Scrivania {
    DiscoMemoria disco;
    std::istringstream script;
    std::ostringstream eventi;
    PiattaformaBatch piattaforma{script, eventi};
    Programma prog{disco, piattaforma, "1"};
    Lumftea* s = nullptr;

    explicit Scrivania(int documenti = 0) {
        cantiere::stabile(disco, 0);
        registrati(documenti);
        piattaforma.oggi({15, 3, 2024});
        registra_tutte(prog.schermi);
        prog.schermi.apri("vexoraf");
        prog.tornada = -99;
        prog.recfornitore = 1;
        prog.schermi.apri("lumftea");
        s = static_cast<Lumftea*>(prog.schermi.caricato("lumftea"));
        for (auto& c : s->impon) c.digita("1234567.89");
        for (auto& c : s->esent) c.digita("1234.56");
        s->pagato.clicca();
    }
    void registrati(int quanti) {
        std::string byte;
        for (int i = 1; i <= quanti; ++i) {
            RecFattura f{};
            f.numfor = 1;
            f.numdoc = std::to_string(i);
            f.datadoc = f.datareg = "20240301";
            byte.append(reinterpret_cast<const char*>(&f), sizeof f);
        }
        disco.scrivi_tutto(nome_file("001", "ftr"), byte);
        RecTotali contatore{};
        contatore.parola[0] = quanti;
        disco.contenuto(nome_file("001", "tfr"))
            .replace(sizeof contatore, sizeof contatore, reinterpret_cast<const char*>(&contatore),
                     sizeof contatore);
    }
};

void TastoInUnImponibile(benchmark::State& stato) {
    Scrivania d;
    const std::string testi[] = {"1", "12", "123", "1234", "1234.", "1234.5", "1234.56", "1234.567"};
    std::size_t i = 0;
    for (auto _ : stato) d.s->impon[0].digita(testi[i++ % 8]);
    stato.SetItemsProcessed(stato.iterations());
}
BENCHMARK(TastoInUnImponibile)->Unit(benchmark::kMicrosecond);

// Every other number is there, and the label says so.
void TastoNelNumero(benchmark::State& stato) {
    Scrivania d(30'000);
    const std::string testi[] = {"1", "12/A", "123", "1234/A", "12345", "12345/A"};
    std::size_t i = 0;
    bool prima = false;
    for (auto _ : stato) {
        d.s->Text2[0].digita(testi[i++ % 6]);
        if (std::exchange(prima, d.s->doppia.visible()) == d.s->doppia.visible())
            stato.SkipWithError("the label has not changed");
    }
}
BENCHMARK(TastoNelNumero)->Unit(benchmark::kMicrosecond);

// Three hundred digits in every field: the slowest texts there are.
void TastoTraTrecentoCifre(benchmark::State& stato) {
    Scrivania d;
    for (auto* colonna : {&d.s->impon, &d.s->ivai, &d.s->rac, &d.s->esent})
        for (auto& c : *colonna) c.digita(std::string(300, '7'));
    const std::string a(300, '8'), b(299, '8');
    bool quale = false;
    for (auto _ : stato) d.s->impon[0].digita((quale = !quale) ? a : b);
}
BENCHMARK(TastoTraTrecentoCifre)->Unit(benchmark::kMicrosecond);

void SceltaDelTermine(benchmark::State& stato) {
    Scrivania d;
    int quale = 0;
    for (auto _ : stato) d.s->Combo1.scegli(quale = 1 - quale);
}
BENCHMARK(SceltaDelTermine)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
