// The subcommands of `ambra`. Each adds itself to the command line and returns its exit status when run.
#pragma once

#include <CLI/CLI.hpp>

namespace ambra {

void aggiungi_batch(CLI::App& app, int& stato);

}  // namespace ambra
