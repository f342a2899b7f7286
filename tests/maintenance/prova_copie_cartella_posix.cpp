// Where a user's dated copies lie on a POSIX system.
#include <gtest/gtest.h>

#include <stdlib.h>

#include <filesystem>

#include "maintenance/copie_datate.h"

using namespace ambra;

namespace {

TEST(CopieCartella, UnaPerOgniArchivioNeiDatiDellUtente) {
    char modello[] = "/tmp/copie-XXXXXX";
    const std::filesystem::path casa = ::mkdtemp(modello);
    ::setenv("XDG_DATA_HOME", casa.c_str(), 1);
    const auto uno = cartella_delle_copie("/tmp"), due = cartella_delle_copie("/usr");
    ASSERT_TRUE(uno && due);
    EXPECT_EQ(uno->scrivi_nuovo("\\x", "1"), 0);
    EXPECT_EQ(due->scrivi_nuovo("\\x", "2"), 0);
    EXPECT_TRUE(uno->reale("").starts_with((casa / "kit-ambra" / "copie").string()));
    EXPECT_EQ(cartella_delle_copie("/tmp")->reale(""), uno->reale(""));
    // A folder that cannot be made.
    ::setenv("XDG_DATA_HOME", (casa / "kit-ambra" / "copie" / "x" / "y").c_str(), 1);
    std::filesystem::remove_all(casa);
    std::filesystem::create_directories(casa);
    ::setenv("XDG_DATA_HOME", "/dev/null", 1);
    EXPECT_FALSE(cartella_delle_copie("/tmp"));
    ::unsetenv("XDG_DATA_HOME");
    std::filesystem::remove_all(casa);
}

}  // namespace
