// Any bytes as the script of `ambra batch`, over an archive of two suppliers and three documents.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "ambra/batch.h"
#include "bench/cantiere.h"
#include "fuzz/pretendi.h"
#include "qt/tutte.h"
#include "tests/supporto/disco_memoria.h"

namespace {

using namespace ambra;

RecFattura documento(int fornitore, int n) {
    RecFattura f{};
    f.numfor = fornitore;
    f.numdoc = "D" + std::to_string(n);
    f.datareg = f.datadoc = "2024010" + std::to_string(n);
    f.dsca[0] = "31012024";
    f.impon[0] = 100 * n;
    f.ivai[0] = 22 * n;
    f.rac[0] = 20 * n;
    f.sca[0] = 102 * n;
    f.addebita = f.riporta = "0";
    return f;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
    const std::string testo(reinterpret_cast<const char*>(dati), n);
    if (testo.find("csv") != std::string::npos) return 0;  // it writes where the script says
    DiscoMemoria disco;
    cantiere::stabile(disco, 2);
    cantiere::acquisti(disco, 2, {documento(1, 1), documento(2, 2), documento(1, 3)});
    std::istringstream script(testo);
    std::ostringstream eventi;
    PiattaformaBatch piattaforma(script, eventi);
    piattaforma.oggi({15, 3, 2024});
    Programma prog(disco, piattaforma, "1");
    registra_tutte(prog.schermi);
    prog.schermi.apri("vexoraf");
    const int stato = piattaforma.esegui(prog);
    pretendi(stato == 0 || stato == 2 || stato == 3);
    pretendi(prog.arc.sezioni_prese() == 0);
    return 0;
}
