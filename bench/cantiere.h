// A building site for the benchmarks: the archive of one building, with suppliers, tables and a ledger of as
// many condomini as asked, on any disc.
#pragma once

#include <cstdlib>
#include <string>
#include <vector>

#include "archivio/archivio.h"
#include "core/disco.h"
#include "core/impostazioni.h"
#include "core/testo.h"
#include "records/condomino.h"
#include "records/conto.h"
#include "records/fattura.h"
#include "records/fornitore.h"
#include "records/nome.h"
#include "records/totali.h"

namespace ambra::cantiere {

template <class R>
std::string byte_di(const std::vector<R>& tutti) {
    return {reinterpret_cast<const char*>(tutti.data()), tutti.size() * sizeof(R)};
}

/// A file whole; a site that cannot be laid out measures nothing.
inline void metti(Disco& disco, const std::string& percorso, const std::string& contenuto) {
    if (disco.scrivi_tutto(percorso, contenuto) != 0) std::abort();
}

inline std::string righe(const std::vector<std::string>& r) {
    std::string s;
    for (const auto& x : r) s += x + "\r\n";
    return s;
}

/// Tables: VAT at 22 with 20 withheld and seven other codes; term 1 is four instalments at the month's end.
inline void tabelle(Disco& disco) {
    std::vector<std::string> iva, pag = {"30/60/90/120 fine mese", "001002003004F000"};
    for (int i = 0; i < 8; ++i) iva.insert(iva.end(), {i % 2 ? "10" : "22", "100", i % 2 ? "4" : "20"});
    for (int i = 0; i < 8; ++i) iva.emplace_back("Art. 10");
    pag.resize(80);
    metti(disco, kCartella + "lumora.iva", righe(iva));
    metti(disco, kCartella + "lumora.pag", righe(pag));
}

/// Building 001 with one supplier, no documents, and a ledger of `condomini` owners.
inline void stabile(Disco& disco, int condomini) {
    tabelle(disco);
    std::vector<RecFornitore> fornitori(1);
    fornitori[0].inte1 = "IMPRESA ROSSI";
    fornitori[0].conto = 1;
    std::vector<RecNome> indice(1);
    indice[0].nome = "IMPRESA ROSSI";
    indice[0].numero = 1;
    std::vector<RecTotali> contatori(5);
    contatori[0].parola[0] = 1;
    std::vector<RecConto> piano(kConti);
    piano[0].cnome = "Manutenzioni";
    piano[kBaseContropartite].cnome = "Banca";
    std::vector<RecCondomino> cnd(static_cast<std::size_t>(condomini));
    std::vector<RecCondomino2> cn2(cnd.size());
    std::vector<RecNome> cns(cnd.size());
    for (std::size_t i = 0; i < cnd.size(); ++i) {
        cnd[i].dnome = "Condomino";
        for (auto& m : cnd[i].dmill) m = 1000.0 / condomini;
        cns[i].numero = static_cast<int>(i) + 1;
    }
    std::vector<RecTotaliLedger> tot(1);
    tot[0].tcondomini = condomini;
    std::vector<std::string> voci(40 * 15 + 54);
    for (std::size_t v = 0; v < 40; ++v) {
        voci[v * 15] = "Voce";
        voci[v * 15 + 2] = "1000";
    }
    const auto scrivi = [&](const char* ext, const std::string& s) {
        metti(disco, nome_file("001", ext), s);
    };
    scrivi("for", byte_di(fornitori));
    scrivi("srf", byte_di(indice));
    scrivi("tfr", byte_di(contatori));
    scrivi("ftr", "");
    scrivi("pia", byte_di(piano));
    scrivi("cnd", byte_di(cnd));
    scrivi("cn2", byte_di(cn2));
    scrivi("cns", byte_di(cns));
    scrivi("tot", byte_di(tot));
    scrivi("mov", "");
    scrivi("tab", righe(voci));
}

/// Supplier `i`, from 0, of many: a name in order, an address, a person every other one.
inline RecFornitore fornitore(int i) {
    RecFornitore f{};
    f.inte1 = "FORNITORE " + con_zeri(i + 1, 4);
    f.inte2 = "e figli";
    f.indir = "Via Garibaldi, " + std::to_string(i);
    f.citta = "Torino";
    f.cap = "10100";
    f.codfis = "RSSMRA60A01L219X";
    f.luogonas = "Asti";
    f.datanas = "01/01/1960";
    f.fisica = i % 2;
    return f;
}

/// Building 001 with the tables, `fornitori` suppliers and these documents.
inline void acquisti(Disco& disco, int fornitori, const std::vector<RecFattura>& documenti) {
    tabelle(disco);
    std::vector<RecFornitore> schede;
    std::vector<RecNome> indice(static_cast<std::size_t>(fornitori));
    for (int i = 0; i < fornitori; ++i) {
        schede.push_back(fornitore(i));
        indice[static_cast<std::size_t>(i)].nome = schede.back().inte1.testo();
        indice[static_cast<std::size_t>(i)].numero = i + 1;
    }
    std::vector<RecTotali> contatori(5);
    contatori[0].parola[0] = fornitori;
    contatori[1].parola[0] = static_cast<int>(documenti.size());
    metti(disco, nome_file("001", "for"), byte_di(schede));
    metti(disco, nome_file("001", "srf"), byte_di(indice));
    metti(disco, nome_file("001", "ftr"), byte_di(documenti));
    metti(disco, nome_file("001", "tfr"), byte_di(contatori));
}

}  // namespace ambra::cantiere
