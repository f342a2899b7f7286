// Print jobs as PDF files, through the window library.
#include <QDir>
#include <QGuiApplication>
#include <clocale>

#include "parti/parti.h"
#include "qt/replica.h"
#include "qt/tiratura.h"

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

    std::vector<int> scrivi(const std::vector<LavoroNumerato>& lavori, const std::string& cartella) override {
        std::vector<int> falliti;
        const QDir dove(QString::fromStdString(cartella));
        if (lavori.size() == 1) {
            const LavoroNumerato& l = lavori[0];
            if (!scrivi_pdf(l.lavoro, dove.filePath(nome_di(l)), facce_)) falliti.push_back(l.numero);
            return falliti;
        }
        Tiratura tiratura(facce_);
        auto detto = lavori.begin();  // they are told in their order
        tiratura.stampato = [&](const std::string&, const QString&, bool riuscito) {
            if (!riuscito) falliti.push_back(detto->numero);
            ++detto;
        };
        for (const LavoroNumerato& l : lavori) {
            tiratura.apri(dove.filePath(nome_di(l)));
            tiratura.aggiungi(LavoroStampa(l.lavoro));
        }
        tiratura.fine();
        return falliti;
    }

  private:
    static QString nome_di(const LavoroNumerato& l) {
        QString nome = QStringLiteral("lavoro-%1").arg(l.numero, 3, 10, QChar(u'0'));
        const QString titolo = nome_di_file(l.lavoro.titolo).replace(u' ', u'-');
        if (!titolo.isEmpty()) nome += u'-' + titolo;
        return nome + QStringLiteral(".pdf");
    }

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
