#include "qt/uscita.h"

#include <QFile>
#include <QPageLayout>
#include <QPdfWriter>
#include <algorithm>

namespace ambra {

namespace {

constexpr int kPuntiPollice = 1440;  // a device dot is a twip
constexpr double kLatoMinimo = 100, kLatoMassimo = 200000;

// The sheet as the device wants it: upright size and orientation apart.
QPageLayout foglio(double larghezza, double altezza) {
    const double corto = std::clamp(std::min(larghezza, altezza), kLatoMinimo, kLatoMassimo);
    const double lungo = std::clamp(std::max(larghezza, altezza), kLatoMinimo, kLatoMassimo);
    QPageSize misura(QSizeF(corto / kTwipPerPunto, lungo / kTwipPerPunto), QPageSize::Point, QString(),
                     QPageSize::FuzzyMatch);
    const auto verso = larghezza > altezza ? QPageLayout::Landscape : QPageLayout::Portrait;
    QPageLayout l(misura, verso, QMarginsF());
    l.setMode(QPageLayout::FullPageMode);
    return l;
}

class UscitaPdf : public Uscita {
  public:
    /// `file` is null where the pages go elsewhere.
    UscitaPdf(QIODevice& dove, std::unique_ptr<QFile> file, const QString& titolo)
        : file_(std::move(file)), dove_(dove), pdf_(&dove) {
        pdf_.setTitle(titolo);
        pdf_.setCreator(QStringLiteral("Kit Ambra"));
        pdf_.setResolution(kPuntiPollice);
    }
    ~UscitaPdf() override { fine(); }

    QPainter* pagina(double larghezza, double altezza) override {
        if (guasta_) return nullptr;
        pdf_.setPageLayout(foglio(larghezza, altezza));
        if (!painter_.isActive()) {
            guasta_ = !dove_.open(QIODevice::WriteOnly) || !painter_.begin(&pdf_);
        } else {
            guasta_ = !pdf_.newPage();
        }
        guasta_ = guasta_ || rifiutato();
        return guasta_ ? nullptr : &painter_;
    }

    bool fine() override {
        if (painter_.isActive()) {
            painter_.end();
            guasta_ = (file_ && !file_->flush()) || rifiutato() || guasta_;
            dove_.close();
        }
        return !guasta_;
    }

  private:
    bool rifiutato() const { return file_ && file_->error() != QFileDevice::NoError; }

    std::unique_ptr<QFile> file_;
    QIODevice& dove_;
    QPdfWriter pdf_;
    QPainter painter_;
    bool guasta_ = false;
};

class UscitaStampante : public Uscita {
  public:
    UscitaStampante(std::unique_ptr<QPrinter> stampante, const QString& titolo)
        : stampante_(std::move(stampante)) {
        stampante_->setDocName(titolo);
        stampante_->setCreator(QStringLiteral("Kit Ambra"));
        stampante_->setFullPage(true);
    }
    ~UscitaStampante() override { fine(); }

    QPainter* pagina(double larghezza, double altezza) override {
        if (guasta_) return nullptr;
        stampante_->setPageLayout(foglio(larghezza, altezza));
        guasta_ = painter_.isActive() ? !stampante_->newPage() : !painter_.begin(stampante_.get());
        if (guasta_) return nullptr;
        const double scala = stampante_->resolution() / double(kPuntiPollice);
        painter_.setWorldTransform(QTransform::fromScale(scala, scala));
        return &painter_;
    }

    bool fine() override {
        if (painter_.isActive()) guasta_ = !painter_.end() || guasta_;
        return !guasta_ && stampante_->printerState() != QPrinter::Error;
    }

  private:
    std::unique_ptr<QPrinter> stampante_;
    QPainter painter_;
    bool guasta_ = false;
};

}  // namespace

std::unique_ptr<Uscita> uscita_pdf(const QString& percorso, const QString& titolo) {
    auto file = std::make_unique<QFile>(percorso);
    QFile& dove = *file;
    return std::make_unique<UscitaPdf>(dove, std::move(file), titolo);
}

std::unique_ptr<Uscita> uscita_pdf(QBuffer& dove) {
    return std::make_unique<UscitaPdf>(dove, nullptr, QString());
}

std::unique_ptr<Uscita> uscita_stampante(std::unique_ptr<QPrinter> stampante, const QString& titolo) {
    return std::make_unique<UscitaStampante>(std::move(stampante), titolo);
}

}  // namespace ambra
