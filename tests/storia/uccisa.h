// A story whose program dies: killed right before each of its operations on files.
#pragma once

#include <string>
#include <vector>

#include "tests/storia/dischetto.h"

namespace ambra::storia {

/// Runs `parole` (`ambra batch ... SCRIPT`) as often as it has operations on files, each time on the drive as
/// it stands, and kills it right before one of them. What is left must hold each supplier, document and
/// movement whole, none older than the last line of the script that was done; and what `ambra check` calls an
/// error, `ambra check --repair` mends. Throws std::runtime_error where it does not hold, Saltata where
/// nobody can watch a program. Leaves the drive as it was.
void uccidi_ad_ogni_passo(const Dischetto& drive, const std::vector<std::string>& parole);

}  // namespace ambra::storia
