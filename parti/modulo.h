// Parts of the program that are files of their own; where the platform has one file alone, they are in it.
#pragma once

#include <string>

namespace ambra {

/// The function `nome` of the module of that name, which stays loaded. Null, with the reason (UTF-8) in
/// `perche`, when it cannot be had.
void* da_modulo(const char* nome, std::string& perche);
/// Why the module of that name cannot be there at all, "" if nothing is known; nothing is loaded.
std::string manca_modulo(const char* nome);

}  // namespace ambra
