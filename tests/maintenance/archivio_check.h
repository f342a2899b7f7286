// What tests of the check work with: one run of it with all it finds, and the demo archive to spoil.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "ambra/demo.h"
#include "core/impostazioni.h"
#include "core/testo.h"
#include "maintenance/verifica.h"
#include "records/fattura.h"
#include "tests/supporto/disco_memoria.h"

namespace ambra {

/// One run of the check and what it found.
struct Giro {
    std::vector<Rilievo> rilievi;
    int stato = 0;
    bool dice(const std::string& file, const std::string& campo) const {
        return std::any_of(rilievi.begin(), rilievi.end(), [&](const Rilievo& r) {
            return r.file == file && (campo == "*" || r.campo.starts_with(campo));
        });
    }
    std::string elenco() const {
        std::string s;
        for (const auto& r : rilievi)
            s += r.file + " " + std::to_string(r.record) + " " + r.campo + ": " + r.trovato + " / " +
                 r.atteso + "\n";
        return a_utf8(s);
    }
};

inline Giro verifica(Disco& disco) {
    Giro g;
    Verifica v(disco, [&](const Rilievo& r) { g.rilievi.push_back(r); });
    std::vector<std::string> stabili;
    v.quali_stabili(stabili);
    v.globali();
    for (const auto& s : stabili) v.stabile(s);
    g.stato = v.stato();
    return g;
}

/// The demo archive on a disc in memory, made once.
class Check : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        modello_ = new DiscoMemoria;
        ASSERT_TRUE(demo::crea(*modello_, {{15, 3, 2024}, false}));
    }
    static void TearDownTestSuite() {
        delete modello_;
        modello_ = nullptr;
    }
    void SetUp() override {
        std::vector<std::string> nomi;
        disco.elenca(kCartella, nomi);
        for (const auto& n : nomi) disco.elimina(kCartella + n);
        modello_->elenca(kCartella, nomi);
        for (const auto& n : nomi) disco.contenuto(kCartella + n) = modello_->contenuto(kCartella + n);
    }

    std::string& file(const std::string& nome) { return disco.contenuto(kCartella + nome); }
    template <class R, class F>
    void cambia(const std::string& nome, long n, F f) {
        R r;
        std::memcpy(&r, file(nome).data() + static_cast<std::size_t>(n - 1) * sizeof r, sizeof r);
        f(r);
        std::memcpy(file(nome).data() + static_cast<std::size_t>(n - 1) * sizeof r, &r, sizeof r);
    }
    template <class R>
    R record(const std::string& nome, long n) {
        R r;
        cambia<R>(nome, n, [&](R& x) { r = x; });
        return r;
    }
    template <class P>
    long cerca_fattura(P p) {
        const long quante = static_cast<long>(file("lum001.ftr").size() / sizeof(RecFattura));
        for (long n = 1; n <= quante; ++n)
            if (const auto f = record<RecFattura>("lum001.ftr", n); f.cancellata == 0 && p(f)) return n;
        ADD_FAILURE() << "the demo has no such document";
        return 1;
    }

    DiscoMemoria disco;
    inline static DiscoMemoria* modello_ = nullptr;
};

}  // namespace ambra
