// Where the dated copies lie on Windows: in the folder of a user whose name no code page has.
#include <gtest/gtest.h>

#include <windows.h>

#include "core/percorso.h"
#include "core/riga.h"
#include "maintenance/copie_datate.h"
#include "tests/supporto/drive_prova.h"

using namespace ambra;

namespace {

TEST(CartellaDelleCopieWindows, NelNomeDiChiunque) {
    const DriveProva drive;
    const auto casa = drive.radice / L"Nicol\u00f2 \u0161";
    std::filesystem::create_directories(casa);
    SetEnvironmentVariableW(L"XDG_DATA_HOME", casa.c_str());
    EXPECT_EQ(percorso_utf8(dell_ambiente("XDG_DATA_HOME")), casa);
    const auto fuori = cartella_delle_copie(in_utf8(drive.radice));
    SetEnvironmentVariableW(L"XDG_DATA_HOME", nullptr);
    EXPECT_EQ(dell_ambiente("XDG_DATA_HOME"), "");
    ASSERT_TRUE(fuori);
    EXPECT_EQ(fuori->scrivi_nuovo("\\x", "y"), 0);
    EXPECT_TRUE(std::filesystem::exists(percorso_utf8(fuori->reale("\\x"))));
    EXPECT_TRUE(fuori->reale("").starts_with(in_utf8(casa)));
}

}  // namespace
