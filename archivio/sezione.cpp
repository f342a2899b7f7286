#include "archivio/sezione.h"

#include <algorithm>
#include <cassert>

namespace ambra {

namespace {

constexpr std::chrono::seconds kPazienza{30};

}  // namespace

bool Serratura::prendi(Parte p) {
    const auto questa = static_cast<std::size_t>(p);
    assert(std::all_of(quante_.begin() + p + 1, quante_.end(), [](int n) { return n == 0; }) &&
           "sections are taken in ascending order");
    if (quante_[questa] == 0 && disco_ && disco_->blocca(percorso_, p, kPazienza) != 0) return false;
    ++quante_[questa];
    ++prese_;
    return true;
}

void Serratura::lascia(Parte p) {
    const auto questa = static_cast<std::size_t>(p);
    assert(quante_[questa] > 0);
    if (--quante_[questa] == 0 && disco_) disco_->sblocca(percorso_, p);
    if (--prese_ == 0 && lasciate) lasciate();
}

}  // namespace ambra
