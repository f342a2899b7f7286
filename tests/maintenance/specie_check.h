// How each kind of breach is made, and that it is found with what it says.
#pragma once

#include <functional>
#include <vector>

#include "records/condomino.h"
#include "records/fornitore.h"
#include "records/movimento.h"
#include "tests/maintenance/archivio_check.h"

namespace ambra {

struct GuastoCheck {
    const char* nome;
    std::function<void()> fai;
    const char* file;
    const char* campo;
};

class Specie : public Check {
  protected:
    using Fai = std::function<void()>;
    template <class R>
    Fai con(const char* f, long n, std::function<void(R&)> cambio) {
        return [this, f, n, cambio] { cambia<R>(f, n, cambio); };
    }
    Fai intero(const char* f, std::size_t posto, int v) {
        return [this, f, posto, v] {
            Intero i;
            i = v;
            std::memcpy(file(f).data() + posto, &i, 2);
        };
    }
    Fai fattura(long n, std::function<void(RecFattura&)> cambio) {
        return con<RecFattura>("lum001.ftr", n, std::move(cambio));
    }
    Fai fornitore(std::function<void(RecFornitore&)> cambio) {
        return con<RecFornitore>("lum001.for", 2, std::move(cambio));
    }
    Fai movimento(std::function<void(RecMovimento&)> cambio) {
        return con<RecMovimento>("lum001.mov", 5, std::move(cambio));
    }
    Fai condomino(std::function<void(RecCondomino&)> cambio) {
        return con<RecCondomino>("lum001.cnd", 3, std::move(cambio));
    }
    // Each is found with what it says, on an archive that is sound before.
    void trovati(const std::vector<GuastoCheck>& guasti) {
        for (const auto& g : guasti) {
            SetUp();
            ASSERT_TRUE(verifica(disco).rilievi.empty()) << "before " << g.nome;
            g.fai();
            const Giro dopo = verifica(disco);
            EXPECT_EQ(dopo.stato, 1) << g.nome;
            EXPECT_TRUE(dopo.dice(g.file, g.campo)) << g.nome << "\n" << dopo.elenco();
            for (const auto& r : dopo.rilievi) EXPECT_FALSE(r.atteso.empty()) << g.nome;
        }
    }
};

}  // namespace ambra
