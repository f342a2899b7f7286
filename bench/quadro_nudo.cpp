// The floor and the peer of the worklist as whole processes. usage: quadro_nudo FOLDER-OF-THE-ARCHIVE
// [DATABASE [pronte]]
//
// Reads building 001 in blocks and makes the texts of each row; with a database, which holds what the archive
// holds, reads the same rows through its API. "pronte": the sums of each document were worked out
// beforehand. A database that is missing is made first, indexed.
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

void metti(Riga&& r) {
    testi.push_back(std::move(r.numero));
    testi.push_back(mostra_aaaammgg(r.datareg));
    testi.push_back(std::move(r.numdoc));
    testi.push_back(mostra_aaaammgg(r.datadoc));
    testi.push_back(std::move(r.nome));
    testi.push_back(fmtimporto(euro(), r.totale));
    testi.push_back(fmtimporto(euro(), r.scoperto));
    for (int i = 0; i < 3; ++i) testi.emplace_back("clic qui");
    testi.push_back(std::move(r.datareg));
}

std::vector<std::string> nomi_fornitori(const std::string& cartella) {
    std::vector<std::string> nomi(1);
    scorri<RecFornitore>(cartella + "/lum001.for",
                         [&](int, const RecFornitore& r) { nomi.push_back(r.inte1.testo()); });
    return nomi;
}

void leggi_archivio(const std::string& cartella) {
    const std::vector<std::string> nomi = nomi_fornitori(cartella);
    scorri<RecFattura>(cartella + "/lum001.ftr", [&](int n, const RecFattura& r) {
        if (r.cancellata != 0) return;
        const auto k = static_cast<std::size_t>(int(r.numfor));
        metti({std::to_string(n), r.datareg.testo(), r.numdoc.rifilato(), r.datadoc.testo(),
               k < nomi.size() ? nomi[k] : "", somma(r.impon) + somma(r.ivai) + somma(r.esent),
               somma(r.sca) - somma(r.ver)});
    });
}

// ---- the database ----

// The amounts of a document that its row needs, as columns: "impon1 REAL, impon2 REAL, ..."
struct Importi {
    const char* nome;
    int quanti;
};
constexpr Importi kImporti[] = {{"impon", 8}, {"ivai", 8}, {"esent", 8}, {"sca", 4}, {"ver", 4}};

std::string colonne(const Importi& i, const char* fra, const char* dopo = "") {
    std::string r;
    for (int k = 1; k <= i.quanti; ++k)
        r += (k > 1 ? fra : "") + std::string(i.nome) + std::to_string(k) + dopo;
    return r;
}

void esegui(sqlite3* db, const std::string& sql) {
    sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr);
}

sqlite3_stmt* prepara(sqlite3* db, const std::string& sql) {
    sqlite3_stmt* q = nullptr;
    sqlite3_prepare_v2(db, sql.c_str(), -1, &q, nullptr);
    return q;
}

void lega(sqlite3_stmt* q, int dove, const std::string& s) {
    sqlite3_bind_text(q, dove, s.data(), static_cast<int>(s.size()), SQLITE_TRANSIENT);
}

void inserisci(sqlite3_stmt* q, int n, const RecFattura& r) {
    sqlite3_bind_int(q, 1, n);
    sqlite3_bind_int(q, 2, r.numfor);
    lega(q, 3, r.numdoc.rifilato());
    lega(q, 4, r.datareg.testo());
    lega(q, 5, r.datadoc.testo());
    int dove = 6;
    const auto importi = [&](const auto& tutti) {
        for (const double x : tutti) sqlite3_bind_double(q, dove++, x);
    };
    importi(r.impon);
    importi(r.ivai);
    importi(r.esent);
    importi(r.sca);
    importi(r.ver);
    sqlite3_step(q);
    sqlite3_reset(q);
}

void fai(sqlite3* db, const std::string& cartella) {
    std::string tipi, domande = "?,?,?,?,?", somme[5];
    for (std::size_t i = 0; i < std::size(kImporti); ++i) {
        tipi += ", " + colonne(kImporti[i], ", ", " REAL");
        for (int k = 0; k < kImporti[i].quanti; ++k) domande += ",?";
        somme[i] = colonne(kImporti[i], "+");
    }
    esegui(db,
           "CREATE TABLE fornitori(numero INTEGER PRIMARY KEY, nome TEXT);"
           "CREATE TABLE fatture(n INTEGER PRIMARY KEY, numfor INTEGER, numdoc TEXT, datareg TEXT, datadoc "
           "TEXT" +
               tipi + "); CREATE INDEX per_fornitore ON fatture(numfor); BEGIN");
    sqlite3_stmt* q = prepara(db, "INSERT INTO fornitori VALUES(?,?)");
    const std::vector<std::string> nomi = nomi_fornitori(cartella);
    for (std::size_t n = 1; n < nomi.size(); ++n) {
        sqlite3_bind_int(q, 1, static_cast<int>(n));
        lega(q, 2, nomi[n]);
        sqlite3_step(q);
        sqlite3_reset(q);
    }
    sqlite3_finalize(q);
    q = prepara(db, "INSERT INTO fatture VALUES(" + domande + ")");
    scorri<RecFattura>(cartella + "/lum001.ftr", [&](int n, const RecFattura& r) {
        if (r.cancellata == 0) inserisci(q, n, r);
    });
    sqlite3_finalize(q);
    const std::string calcola = "SELECT n, numfor, numdoc, datareg, datadoc, " + somme[0] + "+" + somme[1] +
                                "+" + somme[2] + " AS totale, " + somme[3] + "-(" + somme[4] +
                                ") AS scoperto FROM fatture";
    esegui(db, "CREATE VIEW calcolate AS " + calcola + "; CREATE TABLE pronte AS " + calcola +
                   "; CREATE UNIQUE INDEX per_numero ON pronte(n); COMMIT");
}

void leggi_database(sqlite3* db, const std::string& tabella) {
    sqlite3_stmt* q =
        prepara(db, "SELECT f.n, f.datareg, f.numdoc, f.datadoc, s.nome, f.totale, f.scoperto FROM " +
                        tabella + " f JOIN fornitori s ON s.numero = f.numfor ORDER BY f.n");
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
    if (argc < 2) return 2;
    if (argc == 2) {
        leggi_archivio(argv[1]);
    } else {
        const bool c_e = std::filesystem::exists(argv[2]);
        sqlite3* db = nullptr;
        sqlite3_open(argv[2], &db);
        if (!c_e) fai(db, argv[1]);
        leggi_database(db, argc > 3 ? argv[3] : "calcolate");
        sqlite3_close(db);
    }
    std::printf("%zu\n", testi.size());
}
