// A folder of a test's own, gone when the test is over.
#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace ambra {

class CartellaProva {
  public:
    CartellaProva() {
        std::random_device caso;
        const auto sotto = std::filesystem::temp_directory_path();
        do dove_ = sotto / ("ambra-prova-" + std::to_string(caso()));
        while (!std::filesystem::create_directory(dove_));
    }
    ~CartellaProva() {
        std::error_code ec;
        std::filesystem::remove_all(dove_, ec);
    }
    CartellaProva(const CartellaProva&) = delete;
    CartellaProva& operator=(const CartellaProva&) = delete;

    const std::filesystem::path& dove() const { return dove_; }

  private:
    std::filesystem::path dove_;
};

}  // namespace ambra
