// The subcommands of `ambra`. Each adds itself to the command line and returns its exit status when run: 0
// done, 1 the check has found something, 2 not done.
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "core/date.h"

namespace ambra {

/// The date of an option, dd/mm/yyyy; today when empty, nothing when it is no date.
std::optional<Data> oggi_di(const std::string& opzione);
/// The folder that stands for the current drive: that of `--drive`, or the one found from the working
/// directory. Nothing, and a word on standard error, when there is no such folder.
std::optional<std::string> drive_di(const std::string& opzione);
/// The option `--drive`.
void aggiungi_drive(CLI::App& comando, std::string& drive);
/// Says on standard error why a command is not done; the status for it, 2.
int non_fatto(const std::string& perche);

void aggiungi_batch(CLI::App& app, int& stato);
void aggiungi_demo(CLI::App& app, int& stato);
void aggiungi_check(CLI::App& app, int& stato);
void aggiungi_backup(CLI::App& app, int& stato);
void aggiungi_fatture(CLI::App& app, int& stato);

}  // namespace ambra
