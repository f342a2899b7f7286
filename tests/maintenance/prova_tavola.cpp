// The flat table keeps each key apart, full as it may get.
#include "maintenance/tavola.h"

#include <gtest/gtest.h>

#include <map>

using namespace ambra;

namespace {

TEST(Tavola, TieneOgniChiaveFinoAllUltima) {
    for (const long quante : {1L, 2L, 3L, 100L, 6143L}) {
        Tavola tavola(quante);
        std::map<std::uint64_t, long> attese;
        for (long i = 0; i < quante; ++i) {
            const std::uint64_t chiave = static_cast<std::uint64_t>(i) << 40;
            EXPECT_EQ(tavola.cerca(chiave), nullptr);
            EXPECT_EQ(tavola[chiave], 0);
            tavola[chiave] = attese[chiave] = i - 50;
        }
        for (const auto& [chiave, numero] : attese) EXPECT_EQ(tavola[chiave], numero);
        EXPECT_EQ(tavola.cerca(1), nullptr);
    }
}

TEST(Tavola, VuotaNonHaNulla) {
    EXPECT_EQ(Tavola().cerca(0), nullptr);
}

}  // namespace
