#include "ambra/pdf_batch.h"

#include <filesystem>
#include <fstream>

#include "core/percorso.h"
#include "parti/parti.h"

namespace ambra {

namespace {

[[maybe_unused]] bool si_scrive(const std::filesystem::path& cartella) {
    std::error_code ec;
    std::filesystem::create_directories(cartella, ec);
    const auto prova = cartella / ".ambra-prova";
    if (!std::ofstream(prova)) return false;
    return std::filesystem::remove(prova, ec);
}

}  // namespace

std::string PdfBatch::scrivi(const LavoroStampa& lavoro, int numero) {
    std::string perche;
    PartePdf* parte = parte_pdf(perche);
    if (!parte) return perche;
    if (parte->scrivi(lavoro, numero, cartella_)) return "";
    return "il PDF del lavoro " + std::to_string(numero) + " non si può scrivere";
}

std::unique_ptr<PdfBatch> crea_pdf_batch(const std::string& cartella, std::string& perche) {
#ifdef AMBRA_CON_QT
    perche = manca_pdf();
    if (perche.empty() && !si_scrive(percorso_utf8(cartella)))
        perche = cartella + ": la cartella non si può scrivere";
#else
    perche = "--pdf: questo programma è costruito senza PDF";
#endif
    return perche.empty() ? std::make_unique<PdfBatch>(cartella) : nullptr;
}

}  // namespace ambra
