// What a run has told: its events, against those that a story expects.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace ambra::storia {

using Json = nlohmann::json;
using Eventi = std::vector<Json>;

/// These events come in this order, others between them; one JSON object a line. Ends the story if not.
void pretendi_attesi(const Eventi& eventi, const std::string& righe);
/// No event is like one of these. Ends the story if one is.
void pretendi_mai(const Eventi& eventi, const std::string& righe);

}  // namespace ambra::storia
