// The watchman against random single changes: each is found, or is a value that the formats allow.
#include <algorithm>
#include <cmath>
#include <random>
#include <set>

#include "records/conto.h"
#include "records/descrizione.h"
#include "tests/maintenance/archivio_check.h"
#include "tests/supporto/seme.h"

using namespace ambra;

namespace {

// Whether the formats let `dopo` stand where `prima` stood, told from the tables of the formats alone.
struct Oracolo {
    std::string file;
    long record;
    const CampoRecord* campo;
    std::size_t elemento;     // of an array, from 0
    std::string prima, dopo;  // the bytes of the element
    const std::string& archivio;

    double numero(const std::string& s) const {
        Doppio d;
        std::memcpy(&d, s.data(), sizeof d);
        return d;
    }
    bool lecito() const {
        const std::string est = file.substr(file.size() - 3);
        // Bytes of the suite, carried through by everybody.
        if (campo->tipo == CampoRecord::Tipo::grezzo) return true;
        if (campo->tipo == CampoRecord::Tipo::testo) return testo_lecito(est);
        if (campo->tipo == CampoRecord::Tipo::doppio) {
            const double differenza = std::fabs(numero(dopo) - numero(prima));
            // Nobody can see what is far below a cent.
            if (differenza <= 2e-4) return true;
            // A movement holds its amount as typed, not rounded: a part of a cent moves no balance.
            if (campo->nome == "mimporto" && differenza < 0.01) return true;
            // The opening balance of a counter-account that nobody moved is known to nobody.
            if (est == "pia" && record > kBaseContropartite) return true;
            // Of a part payment any number of cents up to the instalment is as good as another.
            return est == "gnr" || (est == "ftr" && campo->nome == "ver");
        }
        return intero_lecito(est);
    }

  private:
    bool testo_lecito(const std::string& est) const {
        static const std::set<std::string> kMarche = {"addebita", "riporta"};
        const std::string nome(campo->nome);
        if (con_blank(prima) == con_blank(dopo)) return true;
        if (est == "srf" || (est == "for" && nome == "inte1") || kMarche.contains(nome)) return false;
        if (nome == "sesso") return dopo == "M" || dopo == "F" || dopo == " " || dopo[0] == 0;
        if (nome == "numprosp" || nome == "cnome" || nome == "dnome") return true;  // told apart by eye only
        const bool cifre = std::all_of(dopo.begin(), dopo.end(), [](char c) { return c >= '0' && c <= '9'; });
        if (est == "ftr" && nome != "numdoc" && nome != "pdf") return cifre || nome == "dsca" || vuoto();
        if (nome == "mdata") return cifre;
        return std::none_of(dopo.begin() + (nome == "mdesc" ? 1 : 0), dopo.end(), [](char c) {
            const auto u = static_cast<unsigned char>(c);
            return (u > 0 && u < 32) || u == 255;
        });
    }
    // A zero byte reads as a blank.
    static std::string con_blank(std::string t) {
        std::replace(t.begin(), t.end(), '\0', ' ');
        return t;
    }
    bool vuoto() const {
        return std::all_of(dopo.begin(), dopo.end(), [](char c) { return c == ' ' || c == 0 || c == '0'; });
    }
    bool intero_lecito(const std::string& est) const {
        Intero i;
        std::memcpy(&i, dopo.data(), 2);
        const int v = i;
        const std::string nome(campo->nome);
        if (est == "gnr" || nome == "dstato" || nome == "dperiodo" || nome == "dgiorni") return true;
        if (est == "tfr") {
            // Records 3 to 5 and word 2 of record 1 are nobody's; fewer documents than there are records is
            // what a reorganisation leaves.
            if (record > 2 || (record == 1 && elemento == 2)) return true;
            if (elemento == 0) return record == 2 && v >= 0;
            return v == 0 || v == 1;
        }
        if (nome == "numfor") return v >= 1 || cancellata();
        if (nome == "modpag" || nome == "formapag") return v >= 0 && v <= 39;
        if (nome == "conto") return v >= 0 && v <= 4158;
        if (nome == "mcondomino") return v >= 0;
        return v == 0 || v == 1;
    }
    bool cancellata() const {
        RecFattura f;
        std::memcpy(&f, archivio.data() + static_cast<std::size_t>(record - 1) * sizeof f, sizeof f);
        return f.cancellata == 1;
    }
};

TEST_F(Check, OgniCambiamentoACasoTrovatoOppureLecito) {
    const auto seme = seme_di_prova();
    std::mt19937 caso(seme);
    const auto fra = [&](std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(caso);
    };
    const std::vector<std::string> file_record = {
        "for", "srf", "ftr", "tfr",        "tot",        "cnd",         "cn2",
        "cns", "pia", "mov", "lumora.tot", "lumora.tt2", "lumeria.gnr", "lumoral.tot"};
    int trovati = 0, leciti = 0;
    for (int giro = 0; giro < 600; ++giro) {
        const std::string quale = file_record[fra(file_record.size())];
        const std::string nome = quale.size() > 3 ? quale : "lum001." + quale;
        const FormatoRecord& forma = *formato_di_file(quale);
        std::string& dati = file(nome);
        const std::string prima = dati;
        const std::size_t record = fra(dati.size() / forma.lunghezza);
        const CampoRecord& campo = forma.campi[fra(forma.campi.size())];
        const std::size_t k = fra(static_cast<std::size_t>(campo.quanti));
        const std::size_t posto = record * forma.lunghezza + campo.posto + k * campo.lungo;
        const auto byte = static_cast<char>(fra(256));
        char& dove = dati[posto + fra(campo.lungo)];
        if (dove == byte) continue;
        dove = byte;
        const Giro g = verifica(disco);
        if (g.stato != 0) {
            ++trovati;
        } else {
            const Oracolo o{nome, static_cast<long>(record) + 1,    &campo,
                            k,    prima.substr(posto, campo.lungo), dati.substr(posto, campo.lungo),
                            prima};
            ASSERT_TRUE(o.lecito()) << "seme " << seme << ": " << nome << " record " << record + 1
                                    << " campo " << campo.nome << " " << k + campo.primo << " byte "
                                    << int(byte);
            ++leciti;
        }
        dati = prima;
    }
    EXPECT_GT(trovati, 100);
    EXPECT_GT(leciti, 50);
}

}  // namespace
