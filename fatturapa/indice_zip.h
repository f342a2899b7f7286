// The plain zips, which are nearly all: their index read in memory, their entries unpacked by the fast
// library. Whatever is unusual is left to who knows every kind of zip (compresso.h).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct libdeflate_decompressor;

namespace ambra::fatturapa {

/// An ordinary entry, as index and heading agree to tell it: stored or deflated, not protected, of no more
/// than kMassimaVoce bytes.
struct VoceZip {
    std::string_view nome;      ///< printable ASCII
    std::string_view dati;      ///< as they are packed
    std::size_t lunghezza = 0;  ///< bytes, unpacked
    std::uint32_t crc = 0;
    bool compressa = false, cartella = false;
};

struct IndiceZip {
    std::vector<VoceZip> voci;  ///< in the order of their bytes, up to the first that is not ordinary
    bool completo = false;      ///< they are all that the archive has
};

/// An index that is unusual itself gives no entry.
IndiceZip indice_zip(std::string_view byte);

/// Unpacks entries; each thread has one of its own.
class Spacchettatore {
  public:
    Spacchettatore();
    /// False: the entry's data are damaged, and `contenuto` holds nothing of use.
    bool spacchetta(const VoceZip& voce, std::string& contenuto) const;

  private:
    struct Libera {
        void operator()(libdeflate_decompressor* d) const;
    };
    std::unique_ptr<libdeflate_decompressor, Libera> d_;
};

}  // namespace ambra::fatturapa
