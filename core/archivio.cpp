#include "core/archivio.h"

#include <array>

#include "core/filetesto.h"
#include "core/impostazioni.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

std::string nnn_di(std::string_view argomento) {
    return std::string(destra(unisci("000", rifila(argomento)), 3));
}

std::string nome_file(std::string_view nnn, std::string_view estensione) {
    return unisci(kCartella, "lum", nnn, ".", estensione);
}

void apriarchivi(Disco& disco, Errore& err, Archivio& arc, std::string_view nnn, std::span<std::byte> stabile,
                 std::span<std::byte> stabile2) {
    arc.stabili.apri(disco, kCartella + "lumora.tot");
    arc.stabili2.apri(disco, kCartella + "lumora.tt2");

    arc.tot.apri(disco, nome_file(nnn, "tot"));
    arc.cnd.apri(disco, nome_file(nnn, "cnd"));
    arc.cns.apri(disco, nome_file(nnn, "cns"));
    arc.pia.apri(disco, nome_file(nnn, "pia"));
    arc.mov.apri(disco, nome_file(nnn, "mov"));
    arc.cn2.apri(disco, nome_file(nnn, "cn2"));

    const auto numero = static_cast<long>(leggi_numero(nnn));
    arc.stabili.leggi_byte(numero, stabile);
    arc.stabili2.leggi_byte(numero, stabile2);

    prova_lettura(disco, err, nome_file(nnn, "tfr"));
    arc.tfr.apri(disco, nome_file(nnn, "tfr"));
    arc.fornitori.apri(disco, nome_file(nnn, "for"));
    arc.srf.apri(disco, nome_file(nnn, "srf"));
    arc.ftr.apri(disco, nome_file(nnn, "ftr"));

    // Whatever went wrong above, not only a missing .tfr, starts the counters anew.
    if (!err) return;
    constexpr std::array<std::byte, 28> kVuoto{};
    for (long n = 1; n <= 5; ++n) arc.tfr.scrivi_byte(n, kVuoto);
}

}  // namespace ambra
