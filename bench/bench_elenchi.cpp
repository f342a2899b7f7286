// Each list from 30,000 documents and 1,000 suppliers on the real disc, from "Aggiorna lista" to the list in
// full: at most 1.5 times its floor. The worklist, which also notes how to find each document again: 3 times.
//
// A floor reads each file once in blocks and writes the same texts into a flat buffer.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <filesystem>

#include "bench/cantiere.h"
#include "bench/rapporti.h"
#include "core/date.h"
#include "core/disco.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/documenti.h"
#include "ledger/lumstca.h"
#include "ledger/lumstcr.h"
#include "qt/tutte.h"
#include "records/tabelle.h"
#include "reports/lumstcd.h"
#include "reports/lumstcf.h"
#include "reports/lumstcs.h"
#include "reports/lumstct.h"
#include "tests/supporto/piattaforma_prova.h"
#include "worklist/vexoraf.h"

using namespace ambra;

namespace {

constexpr int kFornitori = 1000, kDocumenti = 30000;

struct Cantiere {
    std::string casa;
    std::unique_ptr<Disco> disco;
    PiattaformaProva piattaforma;
    std::unique_ptr<Programma> prog;
    TabellaPagamenti pagamenti;

    Cantiere() {
        char modello[] = "/tmp/ambra-bench-XXXXXX";
        casa = ::mkdtemp(modello);
        std::filesystem::create_directories(casa + "/lumdir/lumora");
        disco = disco_vero(casa);
        cantiere::acquisti(*disco, kFornitori, documenti());
        prog = std::make_unique<Programma>(*disco, piattaforma, "1");
        registra_tutte(prog->schermi);
        prog->schermi.apri("vexoraf");
        carica_pagamenti(*disco, prog->err, pagamenti);
    }
    ~Cantiere() { std::filesystem::remove_all(casa); }

    static std::vector<RecFattura> documenti() {
        std::vector<RecFattura> tutti(kDocumenti);
        for (int i = 0; i < kDocumenti; ++i) {
            RecFattura& f = tutti[static_cast<std::size_t>(i)];
            f.numfor = i * 7919 % kFornitori + 1;
            f.numdoc = std::to_string(i) + "/A";
            const std::string mese = con_zeri(i % 12 + 1, 2), giorno = con_zeri(i % 28 + 1, 2);
            f.datareg = f.datadoc = "2024" + mese + giorno;
            f.dsca[0] = f.dscarit = giorno + mese + "2024";
            f.dver[0] = f.dverrit = i % 2 ? giorno + mese + "2024" : "";
            f.impon[0] = 100 + i % 997 + 0.37;
            f.ivai[0] = 22 + i % 219 + 0.08;
            f.rac[0] = 20 + i % 199 + 0.11;
            f.sca[0] = 102 + i % 997 + 0.34;
            f.ver[0] = i % 3 ? 1 : 2;
            f.modpag = 0;
        }
        return tutti;
    }
};

// ---- the floors ----

// Both files whole, block by block: the suppliers kept, each document handed out with its own.
template <class F>
void pavimento(Cantiere& c, F documento) {
    std::vector<RecFornitore> schede(kFornitori);
    c.prog->arc.fornitori.leggi_blocco(1, std::as_writable_bytes(std::span(schede)));
    std::vector<RecFattura> blocco(256);
    for (int n = 1; n <= kDocumenti; n += static_cast<int>(blocco.size())) {
        c.prog->arc.ftr.leggi_blocco(n, std::as_writable_bytes(std::span(blocco)));
        for (int i = 0; i < static_cast<int>(blocco.size()) && n + i <= kDocumenti; ++i) {
            const RecFattura& f = blocco[static_cast<std::size_t>(i)];
            documento(n + i, f, schede[static_cast<std::size_t>(int(f.numfor) - 1)]);
        }
    }
}

template <class F>
void misura_pavimento(benchmark::State& stato, F riga) {
    Cantiere c;
    std::string testi;
    for (auto _ : stato) {
        std::string t;
        pavimento(c, [&](int n, const RecFattura& f, const RecFornitore& s) { riga(c, t, n, f, s); });
        benchmark::DoNotOptimize(t.data());
        stato.counters["byte"] = static_cast<double>(t.size());
    }
}

template <class... Parti>
void metti(std::string& t, const Parti&... parti) {
    (t.append(std::string_view(parti)), ...);
}

template <class S>
void misura(benchmark::State& stato, const char* nome) {
    Cantiere c;
    auto& s = c.prog->schermi.carica<S>(nome);
    if (Controllo* p = s.trova("text1(0)")) static_cast<CampoData*>(p)->testo("01/01/2024");
    if (Controllo* p = s.trova("text1(1)")) static_cast<CampoData*>(p)->testo("31/12/2024");
    for (auto _ : stato) s.comandi.command3d2.premuto();
    stato.counters["righe"] = s.elenco.righe();
}

void lumstct(benchmark::State& s) {
    misura<Lumstct>(s, "lumstct");
}
void lumstct_pavimento(benchmark::State& stato) {
    Cantiere c;
    for (auto _ : stato) {
        std::string t;
        std::vector<RecNome> indice(kFornitori);
        std::vector<RecFornitore> schede(kFornitori);
        c.prog->arc.srf.leggi_blocco(1, std::as_writable_bytes(std::span(indice)));
        c.prog->arc.fornitori.leggi_blocco(1, std::as_writable_bytes(std::span(schede)));
        for (const RecNome& n : indice) {
            const RecFornitore& f = schede[static_cast<std::size_t>(int(n.numero) - 1)];
            metti(t, f.inte1.testo(), f.inte2.testo(), f.indir.testo(), f.cap.testo(), f.citta.testo(),
                  std::to_string(int(n.numero)));
        }
        benchmark::DoNotOptimize(t.data());
    }
}

void lumstcs(benchmark::State& s) {
    misura<Lumstcs>(s, "lumstcs");
}
void lumstcs_pavimento(benchmark::State& s) {
    misura_pavimento(s, [](Cantiere& c, std::string& t, int n, const RecFattura& f, const RecFornitore& r) {
        const ImportiDocumento i = importi(f);
        if (n <= kFornitori) metti(t, r.inte1.testo(), std::to_string(n));
        metti(t, f.numdoc.testo(), mostra_aaaammgg(f.datadoc.testo()), nome_termine(c.pagamenti, f.modpag),
              c.prog->fmtimporto(i.totale()), c.prog->fmtimporto(i.sca - i.ver));
    });
}

void lumstcf(benchmark::State& s) {
    misura<Lumstcf>(s, "lumstcf");
}
void lumstcf_pavimento(benchmark::State& s) {
    misura_pavimento(s, [](Cantiere& c, std::string& t, int n, const RecFattura& f, const RecFornitore& r) {
        const ImportiDocumento i = importi(f);
        const std::string numero = f.numdoc.testo(), nome = r.inte1.testo();
        metti(t, numero, mostra_aaaammgg(f.datadoc.testo()), nome, nome_termine(c.pagamenti, f.modpag),
              c.prog->fmtimporto(i.totale()), c.prog->fmtimporto(i.rac), c.prog->fmtimporto(i.sca),
              c.prog->fmtimporto(i.ver), testo_con_segno(n), numero, f.datadoc.testo(), nome,
              testo_con_segno(i.totale()));
    });
}

void lumstcd(benchmark::State& s) {
    misura<Lumstcd>(s, "lumstcd");
}
void lumstcd_pavimento(benchmark::State& s) {
    misura_pavimento(s, [](Cantiere& c, std::string& t, int, const RecFattura& f, const RecFornitore& r) {
        const std::string numero = f.numdoc.testo(), nome = r.inte1.testo();
        const std::string termine = nome_termine(c.pagamenti, f.modpag);
        metti(t, numero, mostra_aaaammgg(f.datadoc.testo()), nome, c.prog->fmtimporto(somma(f.sca)),
              mostra_ggmmaaaa(f.dsca[0].testo()), c.prog->fmtimporto(f.sca[0] - f.ver[0]), termine, numero,
              nome, da_ggmmaaaa_a_aaaammgg(f.dsca[0].testo()), termine);
    });
}

void lumstca(benchmark::State& s) {
    misura<Lumstca>(s, "lumstca");
}
void lumstca_pavimento(benchmark::State& s) {
    misura_pavimento(s, [](Cantiere& c, std::string& t, int n, const RecFattura& f, const RecFornitore& r) {
        const ImportiDocumento i = importi(f);
        const std::string numero = f.numdoc.testo(), nome = r.inte1.testo();
        metti(t, numero, mostra_aaaammgg(f.datadoc.testo()), nome, c.prog->fmtimporto(i.totale()),
              c.prog->fmtimporto(i.rac), mostra_ggmmaaaa(f.dscarit.testo()),
              mostra_ggmmaaaa(f.dverrit.testo()), std::to_string(n),
              da_ggmmaaaa_a_aaaammgg(f.dscarit.testo()), numero, f.datadoc.testo(), nome,
              testo_numero(i.totale()));
    });
}

void lumstcr(benchmark::State& s) {
    misura<Lumstcr>(s, "lumstcr");
}
void lumstcr_pavimento(benchmark::State& s) {
    misura_pavimento(s, [](Cantiere& c, std::string& t, int n, const RecFattura& f, const RecFornitore& r) {
        const ImportiDocumento i = importi(f);
        if (n <= kFornitori) metti(t, r.inte1.testo(), std::to_string(n));
        metti(t, f.numdoc.testo(), mostra_aaaammgg(f.datadoc.testo()), c.prog->fmtimporto(i.impon),
              c.prog->fmtimporto(i.totale()), mostra_ggmmaaaa(f.dver[0].testo()), c.prog->fmtimporto(i.rac),
              mostra_ggmmaaaa(f.dverrit.testo()));
    });
}

// ---- the worklist ----

void vexoraf(benchmark::State& stato) {
    Cantiere c;
    auto& s = c.prog->schermi.carica<Vexoraf>("vexoraf");
    for (auto _ : stato) s.aggiornalista();
    stato.counters["righe"] = s.elenco.righe();
}

void riga_vexoraf(Cantiere& c, std::string& t, int n, const RecFattura& f, const RecFornitore& r) {
    metti(t, std::to_string(n), mostra_aaaammgg(f.datareg.testo()), f.numdoc.rifilato(),
          mostra_aaaammgg(f.datadoc.testo()), r.inte1.testo(),
          c.prog->fmtimporto(somma(f.impon) + somma(f.ivai) + somma(f.esent)),
          c.prog->fmtimporto(somma(f.sca) - somma(f.ver)), "clic qui", "clic qui", "clic qui",
          f.datareg.testo());
}
void vexoraf_pavimento(benchmark::State& s) {
    misura_pavimento(s, riga_vexoraf);
}

#define COPPIA(nome)                                \
    BENCHMARK(nome)->Unit(benchmark::kMillisecond); \
    BENCHMARK(nome##_pavimento)->Unit(benchmark::kMillisecond)
COPPIA(lumstct);
COPPIA(lumstcs);
COPPIA(lumstcf);
COPPIA(lumstcd);
COPPIA(lumstca);
COPPIA(lumstcr);
COPPIA(vexoraf);

}  // namespace

int main(int argc, char** argv) {
    return ambra::misura(argc, argv,
                         {{"lumstct", "lumstct_pavimento", 1.5},
                          {"lumstcs", "lumstcs_pavimento", 1.5},
                          {"lumstcf", "lumstcf_pavimento", 1.5},
                          {"lumstcd", "lumstcd_pavimento", 1.5},
                          {"lumstca", "lumstca_pavimento", 1.5},
                          {"lumstcr", "lumstcr_pavimento", 1.5},
                          {"vexoraf", "vexoraf_pavimento", 3}});
}
