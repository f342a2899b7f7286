#include "fatturapa/fogli.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

namespace ambra::fatturapa {

namespace {

constexpr std::size_t kMazzo = std::size_t{256} << 10;   // bytes that are worth a thread
constexpr std::size_t kPiccolo = std::size_t{64} << 10;  // of a file that may be parsed beside others

void leggi(Foglio& f) {
    if (!f.byte.empty()) f.esito = leggi_xml(std::exchange(f.byte, {}), f.origine, f.letto);
}

std::vector<Foglio> leggi_tutti(std::vector<Foglio> mazzo) {
    for (Foglio& f : mazzo) leggi(f);
    return mazzo;
}

unsigned mani() {
    return std::clamp(std::thread::hardware_concurrency(), 1U, 4U);
}

}  // namespace

// What is read takes many times its text: a large one stands alone.
void Fogli::aggiungi(Foglio foglio) {
    if (foglio.byte.size() > kPiccolo) {
        finisci();
        leggi(foglio);
        return raccogli_(foglio);
    }
    byte_ += foglio.byte.size();
    mazzo_.push_back(std::move(foglio));
    if (byte_ >= kMazzo) parti();
}

// Where no hand is free, this one does it.
void Fogli::parti() {
    using namespace std::chrono_literals;
    const auto al_lavoro = [](const std::future<Mazzo>& m) {
        return m.wait_for(0s) == std::future_status::timeout;
    };
    const bool libera = std::ranges::count_if(in_volo_, al_lavoro) + 1 < mani();
    const auto come = libera ? std::launch::async | std::launch::deferred : std::launch::deferred;
    in_volo_.push_back(std::async(come, leggi_tutti, std::exchange(mazzo_, {})));
    byte_ = 0;
    if (!libera) in_volo_.back().wait();
    while (!in_volo_.empty() && !al_lavoro(in_volo_.front())) atterra();
}

void Fogli::atterra() {
    Mazzo mazzo = in_volo_.front().get();
    in_volo_.pop_front();
    for (Foglio& f : mazzo) raccogli_(f);
}

void Fogli::finisci() {
    in_volo_.push_back(std::async(std::launch::deferred, leggi_tutti, std::exchange(mazzo_, {})));
    byte_ = 0;
    while (!in_volo_.empty()) atterra();
}

}  // namespace ambra::fatturapa
