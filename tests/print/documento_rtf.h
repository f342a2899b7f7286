// What the tests of the rich text reader look at: the text alone, the format at a place.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "print/rtf_lettore.h"
#include "print/testoricco.h"

namespace ambra::rtf {

inline std::string piano(std::string_view s) {
    return testo_piano(leggi(s));
}

/// The format of the n-th character.
inline const FormatoCarattere& formato(const Documento& d, std::size_t n) {
    for (const Tratto& t : d.tratti) {
        if (n < t.n) return d.formati[t.formato];
        n -= t.n;
    }
    return d.formati[0];
}

inline const FormatoParagrafo& paragrafo(const Documento& d, std::size_t i) {
    return d.formati_paragrafo[d.paragrafi.at(i).formato];
}

/// All lengths cover the text exactly, and every number points at something.
inline void coerente(const Documento& d) {
    std::size_t n = 0;
    for (const Tratto& t : d.tratti) {
        n += t.n;
        ASSERT_LT(t.formato, d.formati.size());
    }
    ASSERT_EQ(n, d.testo.size());
    n = 0;
    for (const Paragrafo& p : d.paragrafi) {
        n += p.n;
        ASSERT_LT(p.formato, d.formati_paragrafo.size());
        ASSERT_LT(p.riga, static_cast<int>(d.righe.size()));
        if (p.riga >= 0) {
            ASSERT_LT(p.cella, static_cast<int>(d.righe[static_cast<std::size_t>(p.riga)].celle.size()));
        }
    }
    ASSERT_EQ(n, d.testo.size());
    n = 0;
    for (const Parte& p : d.parti) n += p.paragrafi;
    ASSERT_EQ(n, d.paragrafi.size());
}

}  // namespace ambra::rtf
