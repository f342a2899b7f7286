// The floor and the peer of the worklist as whole processes. usage: quadro_nudo FOLDER-OF-THE-ARCHIVE
// [DATABASE]
//
// Reads building 001 in blocks and makes the texts of each row; with a database, reads the same rows through
// its API. A database that is missing is made first, indexed.
#include <sqlite3.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "core/date.h"
#include "core/impostazioni.h"
#include "core/numeri.h"
#include "ledger/documenti.h"
#include "records/fattura.h"
#include "records/fornitore.h"

using namespace ambra;

namespace {

const Cambio& euro() {
    static const Cambio c = [] {
        Cambio x;
        x[1] = "1";
        return x;
    }();
    return c;
}

template <class R, class F>
void scorri(const std::string& percorso, F f) {
    std::ifstream file(percorso, std::ios::binary);
    std::vector<R> blocco(256);
    for (int n = 1;; n += 256) {
        file.read(reinterpret_cast<char*>(blocco.data()),
                  static_cast<std::streamsize>(blocco.size() * sizeof(R)));
        const auto letti = static_cast<std::size_t>(file.gcount()) / sizeof(R);
        for (std::size_t i = 0; i < letti; ++i) f(n + static_cast<int>(i), blocco[i]);
        if (letti < blocco.size()) return;
    }
}

struct Riga {
    std::string numero, datareg, numdoc, datadoc, nome;
    double totale, scoperto;
};

// The texts of the rows stay, as those of a list do.
std::vector<std::string> testi;

void metti(const Riga& r) {
    for (const std::string& s :
         {r.numero, mostra_aaaammgg(r.datareg), r.numdoc, mostra_aaaammgg(r.datadoc), r.nome,
          fmtimporto(euro(), r.totale), fmtimporto(euro(), r.scoperto), std::string("clic qui"),
          std::string("clic qui"), std::string("clic qui"), r.datareg})
        testi.push_back(s);
}

template <class F>
void righe(const std::string& cartella, F f) {
    std::vector<std::string> nomi(1);
    scorri<RecFornitore>(cartella + "/lum001.for",
                         [&](int, const RecFornitore& r) { nomi.push_back(r.inte1.testo()); });
    scorri<RecFattura>(cartella + "/lum001.ftr", [&](int n, const RecFattura& r) {
        if (r.cancellata != 0) return;
        const auto k = static_cast<std::size_t>(int(r.numfor));
        f(n, Riga{std::to_string(n), r.datareg.testo(), r.numdoc.rifilato(), r.datadoc.testo(),
                  k < nomi.size() ? nomi[k] : "", somma(r.impon) + somma(r.ivai) + somma(r.esent),
                  somma(r.sca) - somma(r.ver)});
    });
}

void lega(sqlite3_stmt* q, int dove, const std::string& s) {
    sqlite3_bind_text(q, dove, s.data(), static_cast<int>(s.size()), SQLITE_TRANSIENT);
}

void fai(sqlite3* db, const std::string& cartella) {
    sqlite3_exec(
        db,
        "CREATE TABLE fornitori(numero INTEGER PRIMARY KEY, nome TEXT);"
        "CREATE TABLE fatture(n INTEGER PRIMARY KEY, numfor INTEGER, numdoc TEXT, datareg TEXT, datadoc TEXT,"
        " totale REAL, scoperto REAL); CREATE INDEX per_fornitore ON fatture(numfor); BEGIN",
        nullptr, nullptr, nullptr);
    sqlite3_stmt* q = nullptr;
    sqlite3_prepare_v2(db, "INSERT INTO fornitori VALUES(?,?)", -1, &q, nullptr);
    scorri<RecFornitore>(cartella + "/lum001.for", [&](int n, const RecFornitore& r) {
        sqlite3_bind_int(q, 1, n);
        lega(q, 2, r.inte1.testo());
        sqlite3_step(q);
        sqlite3_reset(q);
    });
    sqlite3_finalize(q);
    sqlite3_prepare_v2(db, "INSERT INTO fatture VALUES(?,?,?,?,?,?,?)", -1, &q, nullptr);
    std::vector<int> di_chi(1);
    scorri<RecFattura>(cartella + "/lum001.ftr",
                       [&](int, const RecFattura& r) { di_chi.push_back(r.numfor); });
    righe(cartella, [&](int n, const Riga& r) {
        sqlite3_bind_int(q, 1, n);
        sqlite3_bind_int(q, 2, di_chi[static_cast<std::size_t>(n)]);
        lega(q, 3, r.numdoc);
        lega(q, 4, r.datareg);
        lega(q, 5, r.datadoc);
        sqlite3_bind_double(q, 6, r.totale);
        sqlite3_bind_double(q, 7, r.scoperto);
        sqlite3_step(q);
        sqlite3_reset(q);
    });
    sqlite3_finalize(q);
    sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
}

void leggi(sqlite3* db) {
    sqlite3_stmt* q = nullptr;
    sqlite3_prepare_v2(
        db,
        "SELECT f.n, f.datareg, f.numdoc, f.datadoc, s.nome, f.totale, f.scoperto FROM fatture f "
        "JOIN fornitori s ON s.numero = f.numfor ORDER BY f.n",
        -1, &q, nullptr);
    const auto testo = [&](int col) {
        return std::string(reinterpret_cast<const char*>(sqlite3_column_text(q, col)),
                           static_cast<std::size_t>(sqlite3_column_bytes(q, col)));
    };
    while (sqlite3_step(q) == SQLITE_ROW)
        metti({testo(0), testo(1), testo(2), testo(3), testo(4), sqlite3_column_double(q, 5),
               sqlite3_column_double(q, 6)});
    sqlite3_finalize(q);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2) {
        righe(argv[1], [](int, const Riga& r) { metti(r); });
    } else {
        const bool c_e = std::filesystem::exists(argv[2]);
        sqlite3* db = nullptr;
        sqlite3_open(argv[2], &db);
        if (!c_e) fai(db, argv[1]);
        leggi(db);
        sqlite3_close(db);
    }
    std::printf("%zu\n", testi.size());
}
