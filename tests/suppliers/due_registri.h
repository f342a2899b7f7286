// Two programs with the register of one archive, what they do there, and the files as a reader finds them.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/testo.h"
#include "suppliers/lumfor.h"
#include "tests/supporto/banco.h"

namespace ambra {

struct Due : Banco {
    DiscoMemoria altra{memoria.altro_programma()};
    PiattaformaProva piattaforma2;
    Programma prog2;

    explicit Due(std::string secondo = "1") : prog2(altra, piattaforma2, std::move(secondo)) {
        registra_tutte(prog2.schermi);
    }
    void apri() {
        prog.apriarchivi();
        prog2.apriarchivi();
    }
    Lumfor& uno() { return prog.schermi.carica<Lumfor>("lumfor"); }
    Lumfor& due() { return prog2.schermi.carica<Lumfor>("lumfor"); }
};

inline RecFornitore ditta(const std::string& nome, const std::string& codice) {
    RecFornitore f = fornitore_vuoto(nome);
    f.codfis = codice;
    return f;
}

inline void prendi(Lumfor& l, int posto) {
    l.dati.movepos = posto;
    l.dati.mostra();
}

/// The files of a building as a reader finds them.
struct Archivio1 {
    std::vector<RecFornitore> schede;
    std::vector<RecNome> indice;
    RecTotali totali{};

    explicit Archivio1(DiscoMemoria& d, const std::string& nnn = "001") {
        const auto leggi_tutti = [&](const char* estensione, auto& dove) {
            const std::string& s = d.contenuto(nome_file(nnn, estensione));
            dove.resize(s.size() / sizeof dove[0]);
            std::copy_n(s.data(), s.size(), reinterpret_cast<char*>(dove.data()));
        };
        std::vector<RecTotali> t;
        leggi_tutti("for", schede);
        leggi_tutti("srf", indice);
        leggi_tutti("tfr", t);
        totali = t.at(0);
    }
    /// The live suppliers of that name.
    std::vector<RecFornitore> vivi(const std::string& nome) const {
        std::vector<RecFornitore> r;
        for (const auto& f : schede)
            if (vivo(f) && f.inte1.rifilato() == nome) r.push_back(f);
        return r;
    }
    void sano() const {
        const auto n = static_cast<std::size_t>(int(totali.parola[0]));
        ASSERT_EQ(schede.size(), n);
        ASSERT_EQ(indice.size(), n);
        std::vector<bool> visto(n + 1, false);
        std::string precedente;
        for (const RecNome& r : indice) {
            const auto numero = static_cast<std::size_t>(int(r.numero));
            ASSERT_TRUE(numero >= 1 && numero <= n && !visto[numero]) << numero;
            visto[numero] = true;
            const RecFornitore& f = schede[numero - 1];
            // A rebuild gives a deleted supplier a second mark.
            const std::string suo = vivo(f) ? maiuscolo(f.inte1.testo()) : "\xFF";
            ASSERT_EQ(r.nome.testo().substr(0, suo.size()), suo);
            if (totali.parola[1] == 0) {
                ASSERT_LE(precedente, r.nome.testo());
            }
            precedente = r.nome.testo();
        }
    }
};

/// What somebody does in the register, on the supplier that he shows, and what must have come of it.
struct Azione {
    const char* nome;
    std::function<void(Lumfor&, PiattaformaProva&)> fai;
    std::function<void(const Archivio1&, const std::string& suo, const std::string& nuovo)> controlla;
};

inline void inserisci(Lumfor& l, const std::string& nome) {
    l.b_ins.premi();
    l.dati.scheda.Text2[0].digita(nome);
    l.b_conferma.premi();
}

inline std::vector<Azione> azioni(const std::string& nuovo) {
    const auto c_e = [](const Archivio1& a, const std::string& nome) {
        ASSERT_EQ(a.vivi(nome).size(), 1u) << nome;
    };
    const auto fermo = [c_e](const Archivio1& a, const std::string& suo, const std::string&) { c_e(a, suo); };
    return {
        {"inserisce", [nuovo](Lumfor& l, PiattaformaProva&) { inserisci(l, nuovo); },
         [c_e](const Archivio1& a, const std::string& suo, const std::string& altro) {
             c_e(a, suo);
             c_e(a, altro);
         }},
        {"telefona",
         [](Lumfor& l, PiattaformaProva&) {
             l.dati.scheda.Text2[14].digita("02 5");
             l.b_conferma.premi();
         },
         [c_e](const Archivio1& a, const std::string& suo, const std::string&) {
             c_e(a, suo);
             ASSERT_EQ(a.vivi(suo)[0].tel[0].rifilato(), "02 5");
         }},
        {"rinomina",
         [nuovo](Lumfor& l, PiattaformaProva&) {
             l.dati.scheda.Text2[0].digita(nuovo);
             l.b_conferma.premi();
         },
         [c_e](const Archivio1& a, const std::string& suo, const std::string& altro) {
             ASSERT_TRUE(a.vivi(suo).empty());
             c_e(a, altro);
         }},
        {"elimina",
         [](Lumfor& l, PiattaformaProva& p) {
             p.risposte = {Risposta::si};
             l.b_eli.premi();
         },
         [](const Archivio1& a, const std::string& suo, const std::string&) {
             ASSERT_TRUE(a.vivi(suo).empty());
         }},
        {"ordina", [](Lumfor& l, PiattaformaProva&) { l.ordinasrf(); }, fermo},
        {"riordina", [](Lumfor& l, PiattaformaProva&) { l.b_srt.premi(); }, fermo},
    };
}

/// Zeta is the first one's, Beta the second's; the index is out of order, with or without a free slot.
inline void prepara(Due& d, bool libero) {
    std::vector<RecFornitore> tutti = {ditta("Zeta", "Z"), ditta("Beta", "B"), ditta("Alfa", "A")};
    if (libero) {
        tutti.push_back(ditta("\xFFOmega", "O"));
        tutti.back().cancellata = 1;
    }
    d.fornitori(tutti);
    d.file("tfr")[2] = 1;
    d.apri();
    prendi(d.uno(), 1);
    prendi(d.due(), 2);
}

}  // namespace ambra
