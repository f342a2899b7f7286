// The archive set of one building: twelve record files, opened once at start and open until the process ends.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "core/disco.h"
#include "core/filerecord.h"

namespace ambra {

/// The three-digit code of a building from the command line's text: "7" is 007, "1234" is 234.
std::string nnn_di(std::string_view argomento);

/// The path of a per-building file: nome_file("007", "ftr").
std::string nome_file(std::string_view nnn, std::string_view estensione);

struct Archivio {
    explicit Archivio(Errore& err)
        : cnd(err, 1, 596),
          cns(err, 2, 42),
          pia(err, 3, 64),
          mov(err, 4, 154),
          cn2(err, 5, 2264),
          tot(err, 15, 28),
          stabili(err, 20, 418),
          tfr(err, 21, 28),
          fornitori(err, 22, 600),
          srf(err, 23, 42),
          ftr(err, 24, 522),
          stabili2(err, 30, 3258) {}

    FileRecord cnd;        ///< RecCondomino
    FileRecord cns;        ///< RecNome, order of the condomini
    FileRecord pia;        ///< RecConto
    FileRecord mov;        ///< RecMovimento
    FileRecord cn2;        ///< RecCondomino2
    FileRecord tot;        ///< RecTotali of the ledger
    FileRecord stabili;    ///< RecStabile of all buildings (lumora.tot)
    FileRecord tfr;        ///< RecTotali of suppliers and invoices
    FileRecord fornitori;  ///< RecFornitore (.for)
    FileRecord srf;        ///< RecNome, index of the suppliers
    FileRecord ftr;        ///< RecFattura
    FileRecord stabili2;   ///< RecStabile2 of all buildings (lumora.tt2)
};

/// Opens the set of building `nnn` in the binding order and reads its two master records, 418 and 3258
/// bytes. `err` is not cleared on the way: any error gives .tfr its five initial records.
void apriarchivi(Disco& disco, Errore& err, Archivio& arc, std::string_view nnn, std::span<std::byte> stabile,
                 std::span<std::byte> stabile2);

}  // namespace ambra
