// What every part of the check shares: the folder of one building open for reading, and the way to tell a
// finding.
#pragma once

#include <cmath>
#include <cstring>
#include <optional>
#include <span>
#include <unordered_map>

#include "archivio/archivio.h"
#include "core/date.h"
#include "core/filerecord.h"
#include "maintenance/tavola.h"
#include "maintenance/verifica.h"
#include "records/descrizione.h"

namespace ambra {

class Cartella {
  public:
    Cartella(Verifica& v, std::string nnn) : v_(v), nnn_(std::move(nnn)) {}
    /// Tells what was found: one cause once, with how often.
    ~Cartella();
    Cartella(const Cartella&) = delete;
    Cartella& operator=(const Cartella&) = delete;

    Errore err;
    static constexpr std::size_t kSenzaMarca = std::string_view::npos;

    const std::string& nnn() const { return nnn_; }
    Disco& disco() { return v_.disco_; }
    /// "ftr" is lumNNN.ftr; a name with a point is global.
    std::string nome(std::string_view file) const;
    std::string percorso(std::string_view file) const;

    void rilievo(Gravita g, std::string_view file, long record, std::string campo, std::string trovato,
                 std::string atteso);
    void errore(std::string_view file, long record, std::string campo, std::string trovato,
                std::string atteso) {
        rilievo(Gravita::errore, file, record, std::move(campo), std::move(trovato), std::move(atteso));
    }
    void avviso(std::string_view file, long record, std::string campo, std::string trovato,
                std::string atteso) {
        rilievo(Gravita::avviso, file, record, std::move(campo), std::move(trovato), std::move(atteso));
    }
    /// The file is there and cannot be read: the check cannot be whole. What is no file was told with the
    /// names.
    void illeggibile(std::string_view file, long record);

    /// Surely not there.
    bool manca(std::string_view file);
    /// Opens a record file and looks at its length. False when it is not there or cannot be read;
    /// `deve` makes a missing one a finding.
    bool apri(FileRecord& f, std::string_view file, bool deve);

    /// Control characters in the texts of a record and numbers that are none, field by field.
    /// `marca` is the offset at which the mark of a deleted supplier may stand, in front of a name.
    void generali(std::string_view file, long n, std::span<const std::byte> record,
                  const FormatoRecord& forma, std::size_t marca = kSenzaMarca);

    /// A mark that is 0 or 1.
    void zero_o_uno(std::string_view file, long n, const char* campo, int v) {
        if (v != 0 && v != 1) errore(file, n, campo, std::to_string(v), "0 oppure 1");
    }

  private:
    void campo_per_campo(std::string_view file, long n, std::span<const std::byte> record,
                         const FormatoRecord& forma, std::size_t marca);

    Verifica& v_;
    std::string nnn_;
    std::vector<Rilievo> rilievi_;
    std::unordered_map<std::string, std::size_t> per_specie_;
};

/// Passes over records 1 to `quanti`: f(n, record). Stops and reports where the disc does.
template <class R, class F>
void per_record(Cartella& c, FileDi<R>& file, std::string_view nome, long quanti, F f) {
    Passata<R> passata(file);
    for (long n = 1; n <= quanti; ++n) {
        const R* r = passata.vista(n);
        if (!r) return c.illeggibile(nome, n);
        f(n, *r);
    }
}

/// "sca(2)".
std::string campo_n(std::string_view campo, std::size_t n);
/// A text as a person can read it: control characters become points, blanks at the right end go.
std::string leggibile(std::string_view s);
/// Blanks, zero bytes or zeros alone: no date.
bool data_vuota(std::string_view s);
/// A stored date, eight digits; the day first when `giorno_prima`.
std::optional<Data> data_registrata(std::string_view s, bool giorno_prima);

// ---- the parts of the check, in the order in which they run: each leaves what later ones compare with ----

/// What is known of one building so far.
struct Saputo {
    // ---- of the ledger ----
    bool vuoto = true;  ///< a ledger that the suite has not begun
    long condomini = 0;
    long conti = 0;
    std::vector<char> conto_senza_nome;        ///< by record number
    std::vector<double> saldo, dai_movimenti;  ///< by record number of the chart, euro
    bool saldi_diversi = false;                ///< the two above do not agree
    std::vector<double> addebiti;              ///< by condomino, from the movements
    Tavola movimenti;                          ///< how many movements of an amount, in cents
    std::string primo_giorno;                  ///< of the first movement, yyyymmdd; "" without one
    // ---- of the suppliers ----
    bool ha_schede = false;  ///< their records are there
    long fornitori = 0;
};

void verifica_stabile(Cartella& c, Saputo& s);    ///< its records in the files of all buildings
void verifica_conti(Cartella& c, Saputo& s);      ///< chart, journal, balances
void verifica_condomini(Cartella& c, Saputo& s);  ///< condomini, thousandths, shares
void verifica_fornitori(Cartella& c, Saputo& s);  ///< counters and records
void verifica_indice(Cartella& c, Saputo& s);     ///< the name index of the suppliers
void verifica_documenti(Cartella& c, Saputo& s);  ///< the documents, one by one and all together

void verifica_nomi(Cartella& c, const std::vector<std::string>& nomi);  ///< what lies in the folder
void verifica_globali(Cartella& c);                                     ///< what all buildings share

/// A sum in cents, as a key to compare amounts by.
inline std::uint64_t in_centesimi(double euro) {
    return static_cast<std::uint64_t>(std::llround(std::fabs(euro) < 1e13 ? euro * 100 : 0.0));
}

}  // namespace ambra
