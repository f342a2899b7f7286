// What the steps of a story are written in: words, bytes in hexadecimal, assignments to fields; and how a
// story fails.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace ambra::storia {

/// Ends the story: what is wrong, for the person who reads the test's output.
[[noreturn]] void male(const std::string& testo);

/// Word number `quale`, from 0; "" past the last.
std::string parola(const std::string& s, int quale);
/// What follows the first `parole` words.
std::string dopo(const std::string& s, int parole);

std::string da_hex(const std::string& h);
std::string in_hex(std::string_view s);

/// A whole file; a missing one ends the story.
std::string leggi_file(const std::filesystem::path& p);
/// Writes a whole file and the folders that lead to it.
void scrivi_file(const std::filesystem::path& p, const std::string& s);

/// One `field(k)="value"` or `field=number` of a record line.
struct Assegnazione {
    std::string campo;
    int indice = -1;  ///< -1: not given
    std::string valore;
};
/// All assignments of a line, for record `n`, whose number stands for `$n`.
std::vector<Assegnazione> assegnazioni(const std::string& s, long n);

/// `N` or `A..B`: the first and the last record meant.
struct Intervallo {
    long da = 0, a = 0;
};
Intervallo intervallo(const std::string& s);

}  // namespace ambra::storia
