// The drive that a story is told on: where its files are, how it is laid out, and what it held before the
// last run.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "records/descrizione.h"

namespace ambra::storia {

class Dischetto {
  public:
    explicit Dischetto(std::filesystem::path radice);

    const std::filesystem::path& radice() const { return radice_; }
    std::string stabile = "1";  ///< as typed on the command line

    /// "ftr", "012.ftr", "lumora.tot", "/a/x.txt": a file of the drive.
    std::filesystem::path percorso(const std::string& nome) const;
    /// The format of a file so named; one without records ends the story.
    static const FormatoRecord& formato(const std::string& nome);

    // ---- laying out: each takes the rest of its step ----

    /// FILE N|A..B field=value ...
    void record(const std::string& resto) const;
    /// FILE 11=021045 97=030 ...: the 600 lines of a form layout, with these positions
    void layout(const std::string& resto) const;
    /// FILE 1.1=5 1.2=10 ...: the 210 lines of a label file, these values of row and place as told, the rest
    /// as a new file has it
    void etichette(const std::string& resto) const;
    /// FILE OFFSET bytes
    void hex(const std::string& resto) const;
    /// The headings of the building's accounts, 654 lines, from lines "VOCE TOTAL NAME".
    void voci_contabili(const std::string& righe) const;

    // ---- before and after a run ----

    using Foto = std::map<std::string, std::string>;  ///< content by path from the drive's root
    void fotografa();
    const Foto& prima() const { return prima_; }

  private:
    std::filesystem::path radice_;
    Foto prima_;
};

}  // namespace ambra::storia
