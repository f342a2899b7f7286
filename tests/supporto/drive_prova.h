// A folder of this machine as the drive of a test; it goes with the object.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace ambra {

struct DriveProva {
    std::filesystem::path radice;

    DriveProva() {
        std::string m = (std::filesystem::temp_directory_path() / "ambra-prova-XXXXXX").string();
        radice = ::mkdtemp(m.data());
        std::filesystem::create_directories(radice / "LumDir" / "lumora");
    }
    ~DriveProva() {
        std::error_code ec;
        std::filesystem::remove_all(radice, ec);
    }
    DriveProva(const DriveProva&) = delete;
    DriveProva& operator=(const DriveProva&) = delete;

    std::filesystem::path vero(const std::string& nome) const { return radice / "LumDir" / "lumora" / nome; }
    std::string byte(const std::string& nome) const {
        std::ifstream f(vero(nome), std::ios::binary);
        return {std::istreambuf_iterator<char>(f), {}};
    }
    void metti(const std::string& nome, const std::string& byte) const {
        std::ofstream(vero(nome), std::ios::binary) << byte;
    }
    /// How many names the archive's folder holds.
    std::ptrdiff_t nomi() const {
        return std::distance(std::filesystem::directory_iterator(radice / "LumDir" / "lumora"), {});
    }
};

}  // namespace ambra
