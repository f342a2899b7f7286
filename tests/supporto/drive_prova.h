// A folder of this machine as the drive of a test; it goes with the object.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <string>

#include "tests/supporto/cartella_prova.h"

namespace ambra {

/// Where a program sees the archive's folder of the drive.
inline const std::string kCasa = "\\lumdir\\lumora\\";

inline std::span<const std::byte> come_byte(const std::string& s) {
    return std::as_bytes(std::span(s));
}

struct DriveProva {
    CartellaProva casa;
    const std::filesystem::path& radice = casa.dove();

    DriveProva() { std::filesystem::create_directories(radice / "LumDir" / "lumora"); }

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
