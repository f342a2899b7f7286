// What the real disks of all platforms share: the reading of the system's paths, names of temporary files.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/disco.h"

namespace ambra {

/// The names of a path, folder by folder, as they stand. A drive letter is a folder of the root: "a:x.txt" is
/// "a", "x.txt".
std::vector<std::string> nomi_del_percorso(std::string_view percorso);

/// Disco::leggi_tutto by way of its `apri`.
int leggi_aprendo(Disco& disco, std::string_view percorso, std::string& contenuto);

/// Whether an opening that failed with this error number may well succeed in a moment.
bool forse_tra_poco(int errore);

/// A name beside `vero` that no other file of this or another program (`processo`) bears.
std::string nome_provvisorio(const std::string& vero, long processo);

}  // namespace ambra
