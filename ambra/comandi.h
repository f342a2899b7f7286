// The subcommands of `ambra`. Each adds itself to the command line and returns its exit status when run.
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "core/date.h"

namespace ambra {

/// The date of an option, dd/mm/yyyy; today when empty, nothing when it is no date.
std::optional<Data> oggi_di(const std::string& opzione);

void aggiungi_batch(CLI::App& app, int& stato);
void aggiungi_demo(CLI::App& app, int& stato);
void aggiungi_check(CLI::App& app, int& stato);
void aggiungi_backup(CLI::App& app, int& stato);

}  // namespace ambra
