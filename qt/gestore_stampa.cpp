#include "qt/gestore_stampa.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include "qt/imposta.h"
#include "qt/replica.h"

namespace ambra {

namespace {

constexpr int kPrimaDiDireDove = 400;  // milliseconds: the jobs of one run are told together
constexpr int kPrimaDiAvanzamento = 1000;
constexpr int kOgniTanto = 100;

}  // namespace

GestoreStampa::GestoreStampa(StampanteQt& stampante) : stampante_(stampante) {
    stampante_.da_mostrare = [this](LavoroStampa&& l) { mostra(std::move(l)); };
    stampante_.stampato = [this](const std::string& t, const QString& f, bool bene) { finito(t, f, bene); };
    stampante_.avanza = [this](const std::string& t, int n) { avanza(t, n); };
    fra_poco_.setSingleShot(true);
    connect(&fra_poco_, &QTimer::timeout, this, [this] { di_dove(); });
}

GestoreStampa::~GestoreStampa() {
    stampante_.da_mostrare = nullptr;
    stampante_.stampato = nullptr;
    stampante_.avanza = nullptr;
    delete anteprima_;
    delete avviso_;
}

bool GestoreStampa::imposta(QWidget* padre) {
    DialogoImposta d(stampante_.scelta, stampante_.orientation(), padre);
    if (d.exec() != QDialog::Accepted) return false;
    stampante_.scelta = d.scelta();
    stampante_.orientation(d.orientamento());
    return true;
}

void GestoreStampa::mostra(LavoroStampa&& lavoro) {
    if (lavoro.pagine.empty()) return;
    if (!anteprima_) {
        anteprima_ = new AnteprimaStampa;
        anteprima_->setAttribute(Qt::WA_DeleteOnClose);
        anteprima_->stampa = [this](const LavoroStampa& l) { stampa(l); };
        anteprima_->salva = [this](const LavoroStampa& l, const QString& f) {
            finito(l.titolo, f, scrivi_pdf(l, f, facce_));
        };
    }
    anteprima_->aggiungi(std::move(lavoro));
    anteprima_->show();
    anteprima_->raise();
    avanzamento_.reset();
    da_quando_.invalidate();
}

void GestoreStampa::stampa(const LavoroStampa& lavoro) {
    QString file;
    const auto uscita = apri_uscita(stampante_.scelta, lavoro.titolo, file);
    finito(lavoro.titolo, file, replica(lavoro, *uscita, facce_));
}

// A job on paper that went well needs no word; a file has to be found, and a failure known.
void GestoreStampa::finito(const std::string& titolo, const QString& file, bool riuscito) {
    avanzamento_.reset();
    da_quando_.invalidate();
    if (!riuscito) {
        falliti_ << (file.isEmpty() ? testo_qt(titolo) : file);
    } else if (!file.isEmpty()) {
        salvati_ << file;
    }
    if (!salvati_.isEmpty() || !falliti_.isEmpty()) fra_poco_.start(kPrimaDiDireDove);
}

void GestoreStampa::di_dove() {
    delete avviso_;
    QString testo;
    if (salvati_.size() == 1)
        testo = QStringLiteral("La stampa si trova nel file:\n%1").arg(QDir::toNativeSeparators(salvati_[0]));
    if (salvati_.size() > 1)
        testo = QStringLiteral("%1 stampe si trovano nella cartella:\n%2")
                    .arg(salvati_.size())
                    .arg(QDir::toNativeSeparators(QFileInfo(salvati_[0]).absolutePath()));
    if (!falliti_.isEmpty()) {
        if (!testo.isEmpty()) testo += QStringLiteral("\n\n");
        testo += QStringLiteral("Stampa non riuscita:\n%1").arg(falliti_.mid(0, 10).join(u'\n'));
        if (falliti_.size() > 10) testo += QStringLiteral("\ne altre %1").arg(falliti_.size() - 10);
    }
    avviso_ =
        new QMessageBox(falliti_.isEmpty() ? QMessageBox::Information : QMessageBox::Warning,
                        QStringLiteral("Stampa"), testo, QMessageBox::NoButton, QApplication::activeWindow());
    avviso_->setAttribute(Qt::WA_DeleteOnClose);
    avviso_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (!salvati_.isEmpty()) {
        const QUrl dove =
            QUrl::fromLocalFile(salvati_.size() == 1 ? salvati_[0] : QFileInfo(salvati_[0]).absolutePath());
        auto* apri = avviso_->addButton(QStringLiteral("&Apri"), QMessageBox::ActionRole);
        connect(apri, &QPushButton::clicked, this, [dove] { QDesktopServices::openUrl(dove); });
    }
    avviso_->setDefaultButton(avviso_->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole));
    avviso_->setModal(false);
    avviso_->show();
    salvati_.clear();
    falliti_.clear();
}

void GestoreStampa::avanza(const std::string& titolo, int pagina) {
    if (!da_quando_.isValid()) da_quando_.start();
    if (!avanzamento_) {
        if (da_quando_.elapsed() < kPrimaDiAvanzamento) return;
        avanzamento_ = std::make_unique<QLabel>(nullptr, Qt::Tool);
        avanzamento_->setAttribute(Qt::WA_ShowWithoutActivating);
        avanzamento_->setWindowTitle(QStringLiteral("Stampa in corso"));
        avanzamento_->setMargin(avanzamento_->fontMetrics().height());
        avanzamento_->setMinimumWidth(avanzamento_->fontMetrics().averageCharWidth() * 40);
    } else if (da_quando_.elapsed() < kOgniTanto) {
        return;
    }
    da_quando_.restart();
    avanzamento_->setText(QStringLiteral("%1: pagina %2").arg(testo_qt(titolo)).arg(pagina));
    avanzamento_->show();
    avanzamento_->repaint();
}

}  // namespace ambra
