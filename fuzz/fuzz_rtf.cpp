// Any bytes give a document whose lists agree with its text, before and after a replacement.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "fuzz/pretendi.h"
#include "print/testoricco.h"

namespace {

void controlla(const ambra::rtf::Documento& d) {
    std::size_t tratti = 0, paragrafi = 0;
    for (const auto& t : d.tratti) tratti += t.n;
    for (const auto& p : d.paragrafi) {
        paragrafi += p.n;
        pretendi(p.riga < static_cast<int>(d.righe.size()));
    }
    pretendi(tratti == d.testo.size() && paragrafi == d.testo.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n) {
    ambra::TestoRicco t;
    t.carica({reinterpret_cast<const char*>(dati), n});
    controlla(t.documento());
    t.sostituisci("$$$251$$$", "ROSSI");
    t.sostituisci("$$$250$$$", "");
    t.sel_start(n / 2);
    t.sel_length(3);
    t.sel_text("x");
    controlla(t.documento());
    return 0;
}
