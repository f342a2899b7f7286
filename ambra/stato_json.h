// What a run shows, as JSON: controls, screens, print jobs.
#pragma once

#include <nlohmann/json.hpp>

#include "print/registratore.h"
#include "screen/schermo.h"

namespace ambra {

using Json = nlohmann::ordered_json;

Json json_controllo(const Controllo& c);
Json json_schermo(const Schermo& s);
Json json_pagina(const PaginaStampa& p);

}  // namespace ambra
