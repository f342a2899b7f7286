// The pass that makes the worklist, apart from its screen: it may be made before there is one.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "archivio/visti.h"
#include "core/numeri.h"
#include "records/fattura.h"
#include "records/totali.h"
#include "screen/griglia.h"
#include "worklist/voci.h"

namespace ambra {

/// What the worklist knows of its rows beside their texts; a row's key, from 1, is its place in both.
struct SottoLista {
    explicit SottoLista(Archivio& arc) : visti(arc) {}

    DocumentiVisti visti;  ///< the document of each row
    std::vector<VoceElenco> voci;
    RecFattura ultima{};  ///< the last one read
};

/// Gives the grid the columns of the worklist, and no row.
void prepara_colonne(Griglia& elenco);
/// Adds a row to the empty `elenco` for each of the first `quante` documents, in record order. `oggi` is
/// yyyymmdd. A record that cannot be read shows the one before it.
void leggi_lista(Archivio& arc, int quante, const Cambio& cambio, const std::string& oggi, Griglia& elenco,
                 SottoLista& sotto);

/// The list as it was read ahead, on an archive of its own.
struct ListaAnticipata {
    using Orologio = std::chrono::steady_clock;

    std::unique_ptr<Disco> disco;
    std::string nnn{};
    Errore err{};
    Archivio arc{err};
    RecTotali totali{};            ///< the counters that it was read by
    Cambio cambio{"", "1"};        ///< euro
    std::string oggi{};            ///< yyyymmdd
    Orologio::time_point letta{};  ///< when the reading was over
    Griglia elenco{};
    SottoLista sotto{arc};

    /// Whether building `n` would read just that on that day, half a second after at the most.
    bool vale_per(std::string_view n, std::string_view giorno, const RecTotali& contatori) const;
};

/// Reads the list of building `nnn` ahead, for whoever opens it in a moment; `oggi` is yyyymmdd. Null if
/// anything is amiss with its files; nothing is made, written or told.
std::shared_ptr<ListaAnticipata> anticipa_lista(std::unique_ptr<Disco> disco, std::string_view nnn,
                                                const std::string& oggi);

}  // namespace ambra
