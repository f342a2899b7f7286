// The parts of both programs that stand on large libraries. These would cost the start of every run more
// than all the rest does: where the platform has modules, each part is one, loaded when it is first needed.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "invoices/lettore_fatture.h"
#include "maintenance/salvataggio.h"
#include "print/registratore.h"
#include "screen/foglio.h"

namespace ambra {

/// Compressed archives and electronic invoices.
class ParteArchivi {
  public:
    virtual ~ParteArchivi() = default;
    /// The files as one compressed archive (tar, gzip); the same files give the same bytes. "" or what went
    /// wrong.
    virtual std::string comprimi(const std::vector<FileSalvato>& file, std::string& byte) = 0;
    /// Adds the files of the archive at that path (UTF-8) to `file`. Links, folders, damaged data and sizes
    /// that no archive of a building has are refused. "" or what went wrong.
    virtual std::string espandi(const std::string& percorso, std::vector<FileSalvato>& file) = 0;
    virtual LettoreFatture& lettore() = 0;
};

struct LavoroNumerato {
    LavoroStampa lavoro;
    int numero = 0;
};

/// The pages of jobs as PDF files.
class PartePdf {
  public:
    virtual ~PartePdf() = default;
    /// Writes each job as `lavoro-001.pdf` into the folder (UTF-8), with its title behind the number where
    /// there is one. Gives the numbers of those whose file could not be written.
    virtual std::vector<int> scrivi(const std::vector<LavoroNumerato>& lavori,
                                    const std::string& cartella) = 0;
};

/// Tables as workbooks of a spreadsheet.
class ParteFogli {
  public:
    virtual ~ParteFogli() = default;
    /// An Excel workbook of one sheet: the headings in bold and always in sight, amounts as numbers, dates as
    /// dates, columns as wide as their texts. 0 or the run-time error.
    virtual int xlsx(const Foglio& foglio, std::string& byte) = 0;
};

/// What each module has under its own name.
extern "C" ParteArchivi* ambra_archivi();
extern "C" PartePdf* ambra_pdf();
extern "C" ParteFogli* ambra_fogli();

/// The part, loaded at the first call, for as long as the program runs. Null, with the reason (UTF-8), where
/// its module is missing.
ParteArchivi* parte_archivi(std::string& perche);
PartePdf* parte_pdf(std::string& perche);
ParteFogli* parte_fogli(std::string& perche);
/// Why the PDF part could not be loaded, without loading it; "" when it can.
std::string manca_pdf();

/// Reads electronic invoices through the part. Where this is missing each file is refused for that reason.
std::unique_ptr<LettoreFatture> lettore_a_richiesta();
/// Writes the table as a workbook, which replaces what stands there (UTF-8) once it is whole. "" or what went
/// wrong, and then what stood there stands.
std::string scrivi_xlsx(const Foglio& foglio, const std::string& percorso);

}  // namespace ambra
