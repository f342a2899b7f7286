// The one door to the disk. Paths are the system's own: Windows-1252, beginning with "\lumdir\lumora\".
//
// Three discs stand behind it: the real one (disco_vero.h), one in memory and one that fails on demand
// (disco_prova.h). Every operation returns 0 or a run-time error number and never throws.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ambra {

/// How a file is opened.
enum class Apertura {
    lettura,   ///< must exist
    scambio,   ///< random access, shared: created when missing, read and write, read alone when refused
    esclusiva  ///< random access, not shared where the platform can tell the difference
};

/// An open file. Closed by its destructor.
class FileAperto {
  public:
    virtual ~FileAperto() = default;
    /// Reads up to `dove.size()` bytes at `posto`; `letti` is how many there were.
    virtual int leggi(std::uint64_t posto, std::span<std::byte> dove, std::size_t& letti) = 0;
    /// Writes all bytes at `posto` as one operation of the platform.
    virtual int scrivi(std::uint64_t posto, std::span<const std::byte> che) = 0;
    /// Length in bytes; 0 if it cannot be told.
    virtual std::uint64_t lunghezza() = 0;
};

class Disco {
  public:
    virtual ~Disco() = default;
    virtual int apri(std::string_view percorso, Apertura come, std::unique_ptr<FileAperto>& file) = 0;
    /// The whole content of a file.
    virtual int leggi_tutto(std::string_view percorso, std::string& contenuto) = 0;
    /// Replaces or creates a file; a crash leaves the old content or the new one.
    virtual int scrivi_tutto(std::string_view percorso, std::string_view contenuto) = 0;
    virtual int copia(std::string_view da, std::string_view a) = 0;
    virtual int rinomina(std::string_view da, std::string_view a) = 0;
    virtual int elimina(std::string_view percorso) = 0;
    /// Makes a directory; its parent must exist. An existing one is error 75.
    virtual int crea_cartella(std::string_view percorso) = 0;
    /// The names in a directory, as they stand, in no order.
    virtual int elenca(std::string_view cartella, std::vector<std::string>& nomi) = 0;
    /// Whether another program has the file open, as far as the platform can tell; false where it cannot.
    virtual bool in_uso(std::string_view) { return false; }
    /// Where a person finds that file on this machine, Windows-1252; the path itself where they are one.
    virtual std::string luogo(std::string_view percorso) { return std::string(percorso); }
};

}  // namespace ambra
