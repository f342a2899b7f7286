// What the logic asks for electronic invoices: bytes in, documents out.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "invoices/fattura_letta.h"

namespace ambra {

/// Something that should have been an invoice and cannot be read.
struct FatturaRifiutata {
    std::string file;    ///< as in FatturaLetta
    std::string voce;    ///< as in FatturaLetta
    std::string motivo;  ///< why, in Italian, UTF-8: "DOCTYPE rifiutato"
};

/// What a file gave. Both lists in the order of the file.
struct FileLetto {
    std::vector<FatturaLetta> fatture;
    std::vector<FatturaRifiutata> rifiutate;
    int saltate = 0;  ///< entries of another kind: receipts, metadata
};

class LettoreFatture {
  public:
    virtual ~LettoreFatture() = default;
    /// Reads a file of any of the known kinds, whatever its name says: XML, signed, compressed; the contents
    /// of attachments are left there. `nome` (UTF-8) is only shown. Never throws and writes nothing; a file
    /// that holds no invoice gives at least one refusal.
    virtual FileLetto leggi(std::string_view byte, const std::string& nome) = 0;
    /// The same of the file at a path of this machine (UTF-8), wherever it is; one that is not there or
    /// cannot be read gives a refusal.
    virtual FileLetto leggi_file(const std::string& percorso) = 0;
    /// The document that `leggi` gave as `f`, read once more from those bytes with the contents of its
    /// attachments; nothing if it is no longer there as it was.
    virtual std::optional<FatturaLetta> intera(std::string_view byte, const FatturaLetta& f) = 0;
    /// The same from the file at a path, which may have changed or gone meanwhile.
    virtual std::optional<FatturaLetta> intera_da_file(const std::string& percorso,
                                                       const FatturaLetta& f) = 0;
    /// The plain files of a folder by name, those below it not looked at; of what is no folder, or cannot be
    /// listed, the path itself. Paths in UTF-8.
    virtual std::vector<std::string> file_di(const std::string& percorso) = 0;
};

}  // namespace ambra
