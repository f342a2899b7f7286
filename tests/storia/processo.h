// Running programs from a story, and what a user may not write: what each platform does its way.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

namespace ambra::storia {

/// Runs a program to its end, its standard output into a file. Its exit status; -1 when it could not be run
/// or was ended by force.
int esegui_programma(const std::vector<std::string>& parole, const std::filesystem::path& uscita);

/// A running program: what goes to its standard input, and what comes from its standard output.
struct ProgrammaAvviato {
    std::FILE *verso = nullptr, *da = nullptr;
    std::intptr_t processo = 0;
};
/// `processo` is 0 when it could not be run.
ProgrammaAvviato avvia_programma(const std::vector<std::string>& parole);
/// Waits for its end; exit status as above. Once.
int attendi(const ProgrammaAvviato& p);

/// Takes the right to write from a file or a folder. False where it is written all the same.
bool togli_scrittura(const std::filesystem::path& p);

/// The words in front of a program that make it run as somebody whom a file closed to writing is closed to;
/// `casa` is given to him. Empty when the user who runs the story is one himself. False if it cannot be done.
bool come_utente(const std::filesystem::path& casa, std::vector<std::string>& parole);

}  // namespace ambra::storia
