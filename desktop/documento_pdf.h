// A PDF on its way into a document's record, which holds 38 characters of its path.
#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <string>

namespace ambra {

class Disco;
class Finestra;

/// A file of the drive as the archives name it; one of elsewhere as it stands.
std::string percorso_di_sistema(Disco* disco, const QString& file);

/// What the user is asked and told about a PDF.
struct Domande {
    std::function<bool(const QString&)> chiedi;
    std::function<void(const QString&)> avverte;
};

/// The path to store for a PDF. One that does not fit is copied, after a question, into the drive's folder of
/// PDF files under a name that fits. Nothing: the user did not want it, or the copy failed.
std::optional<std::string> pdf_da_collegare(Disco& disco, const QString& file, const Domande& domande);

/// A PDF dropped on the window is linked to its document, after a question.
void accoglie_pdf(Finestra& f);

}  // namespace ambra
