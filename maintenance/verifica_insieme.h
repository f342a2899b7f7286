// What the documents of a building tell only together: one registered twice, one charged without a movement,
// one that the count has lost.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "maintenance/verifica_cartella.h"
#include "records/fattura.h"

namespace ambra {

class Insieme {
  public:
    /// `quanti` documents to come.
    Insieme(Cartella& c, Saputo& s, long quanti) : c_(c), s_(s) {
        vive_.reserve(static_cast<std::size_t>(quanti));
    }
    /// Takes note of a document; in record order.
    void documento(long n, const RecFattura& f);
    /// Tells what they are together.
    void confronta();

  private:
    struct Addebitata {
        long record = 0;
        double importo = 0;
        std::string nome;  ///< " 123 del 01/02/2024", as a movement's description has it
    };
    void doppie();
    void cerca_nelle_descrizioni();
    bool ha_movimento(double importo);

    Cartella& c_;
    Saputo& s_;
    std::vector<std::pair<std::uint64_t, long>> vive_;  // what a document is known by, its record
    std::vector<Addebitata> senza_movimento_;
};

/// Looks behind the count for documents that no reorganisation and no reset has left there.
void cerca_perduti(Cartella& c, const Saputo& s, FileDi<RecFattura>& ftr, FileDi<RecFattura>& copia,
                   long contati);

}  // namespace ambra
