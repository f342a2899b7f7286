// What can be asked of a disc, by name: tests hang faults and other programs' steps on it.
#pragma once

namespace ambra {

/// The operations of Disco and FileAperto that reach the disc.
enum class Operazione {
    apri,
    leggi,
    scrivi,
    consolida,
    leggi_tutto,
    scrivi_tutto,
    scrivi_nuovo,
    cosa_c_e,
    copia,     ///< told with the path of its source
    rinomina,  ///< told with the path of its source
    sposta,    ///< told with the path of its source
    elimina,
    crea_cartella,
    elenca,
    blocca,
    sblocca,
    consolida_cartella,
    in_uso
};

}  // namespace ambra
