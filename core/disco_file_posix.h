// Files of a POSIX system: opening what is a regular file, the open file, the error numbers.
#pragma once

#include <memory>
#include <string>

#include "core/disco.h"

namespace ambra {

/// The run-time error number of an `errno`.
int numero_errore(int e);

/// Opens a regular file with these flags of open(2); anything else that bears the name is refused (EISDIR)
/// without waiting for it. 0 or an `errno`; `fd` is -1 when it failed.
int apri_regolare(const std::string& vero, int modo, int& fd);

/// Writes all bytes where the descriptor stands. 0 or an `errno`.
int scrivi_fd(int fd, std::string_view byte);

/// Takes the descriptor over.
std::unique_ptr<FileAperto> file_posix(int fd);

}  // namespace ambra
