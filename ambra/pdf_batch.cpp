#include "ambra/pdf_batch.h"

#include <filesystem>
#include <fstream>
#include <utility>

#include "core/percorso.h"

namespace ambra {

namespace {

constexpr std::size_t kBlocco = 64;  // jobs of a run that wait in memory

[[maybe_unused]] bool si_scrive(const std::filesystem::path& cartella) {
    std::error_code ec;
    std::filesystem::create_directories(cartella, ec);
    const auto prova = cartella / ".ambra-prova";
    if (!std::ofstream(prova)) return false;
    return std::filesystem::remove(prova, ec);
}

}  // namespace

void PdfBatch::aggiungi(LavoroStampa&& lavoro, int numero) {
    in_attesa_.push_back({std::move(lavoro), numero});
    if (!in_tornata_ || in_attesa_.size() == kBlocco) scrivi();
}

void PdfBatch::tornata(bool inizia) {
    in_tornata_ = inizia;
    scrivi();
}

void PdfBatch::scrivi() {
    const std::vector<LavoroNumerato> lavori = std::exchange(in_attesa_, {});
    if (lavori.empty()) return;
    std::string perche;
    PartePdf* parte = parte_pdf(perche);
    if (!parte) return fallito(perche);
    for (const int numero : parte->scrivi(lavori, cartella_))
        fallito("il PDF del lavoro " + std::to_string(numero) + " non si può scrivere");
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
