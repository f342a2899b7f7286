// Advisory locks on one byte far behind the end of a file, one byte a section: the same bytes on every
// platform, so that all kinds of machine exclude each other through one file server.
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace ambra {

constexpr std::uint64_t kPrimoPostoBlocchi = 0x3FFFFFFFFFFFF000;

enum class ProvaBlocco { preso, di_altri, senza };

/// A file that is open for its locks, as the platform has it. They fall with it.
class FileDeiBlocchi {
  public:
    virtual ~FileDeiBlocchi() = default;
    /// Whether it is still the one that bears the name.
    virtual bool sta_ancora_in(const std::string& vero) = 0;
    virtual ProvaBlocco prova(int sezione) = 0;
    virtual void lascia(int sezione) = 0;
};

/// `preso` with the file, or why there is none.
ProvaBlocco apri_per_blocchi(const std::string& vero, std::unique_ptr<FileDeiBlocchi>& file);

/// The locks that one disc holds. A file is opened when its first lock is asked for and stays open.
class Blocchi {
  public:
    /// As Disco::blocca; `chiave` names the file from call to call, `vero` (UTF-8) is where it lies now.
    int blocca(const std::string& chiave, const std::string& vero, int sezione,
               std::chrono::milliseconds pazienza);
    void sblocca(const std::string& chiave, int sezione);
    /// Closes the file, and with it all its locks fall.
    void chiudi(const std::string& chiave) { tenuti_.erase(chiave); }

  private:
    struct Tenuto {
        std::unique_ptr<FileDeiBlocchi> file;
        std::set<int> sezioni;
    };
    static ProvaBlocco prova(Tenuto& t, const std::string& vero, int sezione);

    std::map<std::string, Tenuto> tenuti_;
};

}  // namespace ambra
