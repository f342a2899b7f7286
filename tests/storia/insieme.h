// Several programs at once on one drive, each given its lines one at a time: a line is done before the next
// one goes to anybody.
#pragma once

#include <string>
#include <vector>

#include "tests/storia/eventi.h"

namespace ambra::storia {

/// Runs `righe`, each "N action" with N from 1 to 9 for the program, as `comando` (the words of a program
/// that reads its script from standard input). Every event gets the key "programma". Gives the greatest exit
/// status.
int corri_insieme(const std::vector<std::string>& comando, const std::string& righe, Eventi& eventi);

}  // namespace ambra::storia
