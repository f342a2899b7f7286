// Print jobs as PDF files, through the window library.
#include <QDir>
#include <QGuiApplication>
#include <clocale>

#include "parti/parti.h"
#include "qt/replica.h"

namespace ambra {

namespace {

// Fonts need a running window library, even where there is no display.
class Pdf : public PartePdf {
  public:
    Pdf() {
#ifndef Q_OS_WIN  // whose offscreen platform knows no fonts
        qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
        const std::string locale = std::setlocale(LC_ALL, nullptr);
        applicazione_ = std::make_unique<QGuiApplication>(argc_, argv_);
        std::setlocale(LC_ALL, locale.c_str());  // the command line stays out of the user's locale
    }

    bool scrivi(const LavoroStampa& lavoro, int numero, const std::string& cartella) override {
        QString nome = QStringLiteral("lavoro-%1").arg(numero, 3, 10, QChar(u'0'));
        const QString titolo = nome_di_file(lavoro.titolo).replace(u' ', u'-');
        if (!titolo.isEmpty()) nome += u'-' + titolo;
        return scrivi_pdf(
            lavoro, QDir(QString::fromStdString(cartella)).filePath(nome + QStringLiteral(".pdf")), facce_);
    }

  private:
    int argc_ = 1;
    char nome_[6] = "ambra";
    char* argv_[2] = {nome_, nullptr};
    std::unique_ptr<QGuiApplication> applicazione_;
    Facce facce_;
};

}  // namespace

PartePdf* ambra_pdf() {
    static Pdf parte;
    return &parte;
}

}  // namespace ambra
