// Advisory locks on one byte far behind the end of a file, one byte a section.
#pragma once

#include <chrono>
#include <map>
#include <set>
#include <string>

namespace ambra {

/// The locks that one disc holds. A file is opened when its first lock is asked for and stays open: its locks
/// would fall with it.
class BlocchiPosix {
  public:
    BlocchiPosix() = default;
    ~BlocchiPosix();
    BlocchiPosix(const BlocchiPosix&) = delete;
    BlocchiPosix& operator=(const BlocchiPosix&) = delete;

    /// As Disco::blocca; `chiave` names the file from call to call, `vero` is where it lies now.
    int blocca(const std::string& chiave, const std::string& vero, int sezione,
               std::chrono::milliseconds pazienza);
    void sblocca(const std::string& chiave, int sezione);

  private:
    enum class Prova { presa, di_altri, senza };
    struct Tenuto {
        int fd = -1;
        std::set<int> sezioni;
    };
    Prova prova(Tenuto& file, const std::string& vero, int sezione);

    std::map<std::string, Tenuto> file_;
};

}  // namespace ambra
