// Which rows of a list a search lets through: the texts of the rows made plain once, looked through at each
// key.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ambra {

class Griglia;

/// Small letters without accents; the mark of a deleted supplier is a blank.
std::string in_piano(std::string_view testo);

class RigheCercate {
  public:
    /// The first `colonne` of the grid are looked at.
    RigheCercate(const Griglia& g, int colonne) : g_(g), colonne_(colonne) {}
    /// The grid was filled anew: texts are taken again at the next question.
    void rifatta() { testi_.clear(); }
    void cerca(std::string_view parole);
    bool qualcosa() const { return !parole_.empty(); }
    /// True if the row, which must have a key, holds all words.
    bool passa(int riga);

  private:
    const std::string& testo(int riga);

    const Griglia& g_;
    int colonne_;
    std::vector<std::string> parole_;
    std::vector<std::string> testi_;  // by key
};

}  // namespace ambra
