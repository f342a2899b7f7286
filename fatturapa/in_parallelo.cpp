#include "fatturapa/in_parallelo.h"

#include <algorithm>
#include <exception>
#include <thread>
#include <vector>

namespace ambra::fatturapa {

namespace {

constexpr std::size_t kMassimiFili = 4;

}  // namespace

void in_parallelo(std::size_t fili, const std::function<void()>& lavora) {
    const std::size_t processori = std::thread::hardware_concurrency();
    std::vector<std::jthread> altri;
    try {
        for (std::size_t i = 1; i < std::min({fili, processori, kMassimiFili}); ++i)
            altri.emplace_back(lavora);
    } catch (const std::exception&) {  // those that there are will do
    }
    lavora();
}

}  // namespace ambra::fatturapa
