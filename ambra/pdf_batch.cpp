#include "ambra/pdf_batch.h"

#ifdef AMBRA_CON_QT
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <clocale>

#include "qt/replica.h"
#endif

namespace ambra {

#ifdef AMBRA_CON_QT

namespace {

// Fonts need a running window library, even where there is no display.
class PdfQt : public PdfBatch {
  public:
    explicit PdfQt(const std::string& cartella) : cartella_(QString::fromStdString(cartella)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        const std::string locale = std::setlocale(LC_ALL, nullptr);
        applicazione_ = std::make_unique<QGuiApplication>(argc_, argv_);
        std::setlocale(LC_ALL, locale.c_str());  // the command line stays out of the user's locale
    }

    bool pronta() const {
        return QDir().mkpath(cartella_) && QFileInfo(cartella_).isDir() && QFileInfo(cartella_).isWritable();
    }

    bool scrivi(const LavoroStampa& lavoro, int numero) override {
        QString nome = QStringLiteral("lavoro-%1").arg(numero, 3, 10, QChar(u'0'));
        const QString titolo = nome_di_file(lavoro.titolo).replace(u' ', u'-');
        if (!titolo.isEmpty()) nome += u'-' + titolo;
        return scrivi_pdf(lavoro, QDir(cartella_).filePath(nome + QStringLiteral(".pdf")), facce_);
    }

  private:
    int argc_ = 1;
    char nome_[6] = "ambra";
    char* argv_[2] = {nome_, nullptr};
    std::unique_ptr<QGuiApplication> applicazione_;
    QString cartella_;
    Facce facce_;
};

}  // namespace

std::unique_ptr<PdfBatch> crea_pdf_batch(const std::string& cartella, std::string& perche) {
    auto pdf = std::make_unique<PdfQt>(cartella);
    if (pdf->pronta()) return pdf;
    perche = cartella + ": la cartella non si può scrivere";
    return nullptr;
}

#else

std::unique_ptr<PdfBatch> crea_pdf_batch(const std::string&, std::string& perche) {
    perche = "--pdf: questo programma è costruito senza PDF";
    return nullptr;
}

#endif

}  // namespace ambra
