// Killing a real program right before one of its operations on files.
#pragma once

#include <string>
#include <vector>

namespace ambra {

enum class Sorte {
    finito,  ///< it ended by itself before its n-th operation
    ucciso,  ///< it was killed right before it
    negato   ///< this machine lets nobody watch a program
};

/// Runs `comando` (program and arguments, its words thrown away) and kills it right before the `n`-th system
/// call, counted from 1, that changes a file or a folder. `stato` is the exit status of a program that ended,
/// `fatte` how many such calls it made.
Sorte uccidi_prima_di(const std::vector<std::string>& comando, int n, int& stato, int* fatte = nullptr);

}  // namespace ambra
