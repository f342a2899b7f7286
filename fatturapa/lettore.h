// Reads electronic invoices, and is the only room that knows the libraries for it.
#pragma once

#include <cstddef>

#include "invoices/lettore_fatture.h"

namespace ambra::fatturapa {

/// What a reading never goes past, so that no file can take the machine with it.
constexpr std::size_t kMassimoFile = std::size_t{60}
                                     << 20;  ///< bytes handed in, and unpacked from them in all
constexpr std::size_t kMassimaVoce = std::size_t{5} << 20;  ///< of one entry, and of one invoice
constexpr int kMassimeVoci = 2000, kMassimiLivelli = 5;     ///< of archives within archives
constexpr int kMassimeBuste = 5;                            ///< signed or base64, one within the other
constexpr int kMassimeRighe = 10'000;                       ///< lines, summary rows ... of a document, each
constexpr std::size_t kMassimoLetto = std::size_t{64}
                                      << 20;  ///< memory of what was read, texts of the bodies aside

class Lettore : public LettoreFatture {
  public:
    FileLetto leggi(std::string_view byte, const std::string& nome) override;
    FileLetto leggi_file(const std::string& percorso) override;
    std::optional<FatturaLetta> intera(std::string_view byte, const FatturaLetta& f) override;
    std::optional<FatturaLetta> intera_da_file(const std::string& percorso, const FatturaLetta& f) override;
    std::vector<std::string> file_di(const std::string& percorso) override;
};

}  // namespace ambra::fatturapa
