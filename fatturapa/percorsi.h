// Files and folders of this machine, wherever the user has them; nothing is ever written there.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace ambra::fatturapa {

/// A path given in UTF-8, whatever the code page.
std::filesystem::path da_percorso(const std::string& utf8);
/// The last name of a path in UTF-8; what is no UTF-8 is taken as Windows-1252.
std::string utf8_del_sistema(const std::filesystem::path& percorso);
/// The bytes of a plain file, at most one more than can be read at all. False: not there or not readable.
bool byte_del_file(const std::filesystem::path& percorso, std::string& byte);
/// The plain files of a folder by name; those below it are not looked at. False: it cannot be listed whole.
bool file_della_cartella(const std::filesystem::path& cartella, std::vector<std::filesystem::path>& file);

}  // namespace ambra::fatturapa
