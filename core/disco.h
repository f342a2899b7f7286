// The one door to the disk. Paths are the system's own: Windows-1252, beginning with "\lumdir\lumora\".
//
// Every operation returns 0 or a run-time error number and never throws. The real disk is `disco_vero`;
// what is busy or shared out right now it tells as 55, too many open files as 67, a share that lost the file
// as 71: DiscoAttento tries those again.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/testo.h"

namespace ambra {

/// How a file is opened. Every file is shared with other programs.
enum class Apertura {
    lettura,  ///< must exist
    scambio   ///< random access: created when missing, read and write, read alone when refused
};

/// What stands at a path, links not followed.
enum class Cosa { niente, file, collegamento, cartella, altro };

/// An open file. Closed by its destructor.
class FileAperto {
  public:
    virtual ~FileAperto() = default;
    /// Reads up to `dove.size()` bytes at `posto`; `letti` is how many there were.
    [[nodiscard]] virtual int leggi(std::uint64_t posto, std::span<std::byte> dove, std::size_t& letti) = 0;
    /// Writes all bytes at `posto` as one operation of the platform. What is refused leaves the length of the
    /// file as it was, unless another program has appended meanwhile.
    [[nodiscard]] virtual int scrivi(std::uint64_t posto, std::span<const std::byte> che) = 0;
    /// Length in bytes; 0 if it cannot be told.
    virtual std::uint64_t lunghezza() = 0;
    /// What was written survives a power cut from here on.
    [[nodiscard]] virtual int consolida() = 0;
};

class Disco {
  public:
    virtual ~Disco() = default;
    [[nodiscard]] virtual int apri(std::string_view percorso, Apertura come,
                                   std::unique_ptr<FileAperto>& file) = 0;
    /// The whole content of a file.
    [[nodiscard]] virtual int leggi_tutto(std::string_view percorso, std::string& contenuto) = 0;
    /// Replaces or creates a file, durably; a crash leaves the old content or the new one.
    [[nodiscard]] virtual int scrivi_tutto(std::string_view percorso, std::string_view contenuto) = 0;
    /// Makes a file that is not there yet, durable but for its name. Whatever stands there, a link too,
    /// stays: error 75.
    [[nodiscard]] virtual int scrivi_nuovo(std::string_view percorso, std::string_view contenuto) = 0;
    /// What stands there; what cannot be told is an error, and only what is surely not there is `niente`.
    [[nodiscard]] virtual int cosa_c_e(std::string_view percorso, Cosa& che) = 0;
    [[nodiscard]] virtual int copia(std::string_view da, std::string_view a) = 0;
    /// Durable when it returns.
    [[nodiscard]] virtual int rinomina(std::string_view da, std::string_view a) = 0;
    /// Renames, and replaces nothing: where something stands at `a`, error 75. Durable with
    /// `consolida_cartella`.
    [[nodiscard]] virtual int sposta(std::string_view da, std::string_view a) = 0;
    virtual int elimina(std::string_view percorso) = 0;
    /// Makes a directory; its parent must exist. An existing one is error 75.
    virtual int crea_cartella(std::string_view percorso) = 0;
    /// The names in a directory, as they stand, in no order.
    virtual int elenca(std::string_view cartella, std::vector<std::string>& nomi) = 0;

    /// Takes the advisory lock of a section of that file, against other programs and other discs of this one,
    /// waiting at most `pazienza`: error 70 if it is still held by another. It is not counted: one `sblocca`
    /// gives it back. Where no lock can be had (no such file, not to be written, a drive that has none) it
    /// answers 0 and holds nothing. No byte of the file changes, and it is never made.
    [[nodiscard]] virtual int blocca(std::string_view percorso, int sezione,
                                     std::chrono::milliseconds pazienza) = 0;
    virtual void sblocca(std::string_view percorso, int sezione) = 0;

    /// The names in the folder that holds this path survive a power cut from here on.
    [[nodiscard]] virtual int consolida_cartella(std::string_view percorso) = 0;
    /// A write that never reached the disc, told by whoever had no open file to write into.
    virtual void conta_rifiuto(std::string_view /*percorso*/, int /*errore*/) {}
    /// Whether another program has the file open, as far as the platform can tell; false where it cannot.
    virtual bool in_uso(std::string_view) { return false; }
    /// The platform's path (UTF-8) of a path of the system, existing or not; "" is the root of the drive.
    virtual std::string reale(std::string_view percorso) { return a_utf8(percorso); }
    /// Where a person finds that file on this machine, Windows-1252.
    std::string luogo(std::string_view percorso) { return da_utf8(reale(percorso)); }
};

/// The real disk; `radice` is the folder that stands for the current drive (UTF-8). Elsewhere than on Windows
/// names are matched without regard to case, and a drive letter is a folder of the root.
std::unique_ptr<Disco> disco_vero(std::string radice);
/// Replaces or makes a file that lies outside of the drive, where the user wants it (UTF-8 path): written new
/// beside it, durable, then renamed. A link at its name is replaced, never followed; a folder, a pipe or a
/// device is refused. 0 or the error; then what stood there stands.
[[nodiscard]] int scrivi_fuori(const std::string& percorso, std::string_view contenuto);
/// The nearest folder, from the working directory upwards, that holds a folder "lumdir" in any case; the
/// working directory if there is none (UTF-8).
std::string radice_corrente();

}  // namespace ambra
