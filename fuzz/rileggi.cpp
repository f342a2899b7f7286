// Where there is no libFuzzer: gives each file of the folders named to the fuzzer once more.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t n);

int main(int argc, char** argv) {
    int quanti = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& voce : std::filesystem::directory_iterator(argv[i])) {
            std::ifstream f(voce.path(), std::ios::binary);
            const std::string byte{std::istreambuf_iterator<char>(f), {}};
            std::cout << voce.path().string() << std::endl;
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size());
            ++quanti;
        }
    return quanti > 0 ? 0 : 1;
}
