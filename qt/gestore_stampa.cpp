#include "qt/gestore_stampa.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>
#include <QWindow>

#include "qt/accanto.h"
#include "qt/imposta.h"
#include "qt/replica.h"

namespace ambra {

namespace {

constexpr int kPrimaDiDireDove = 400;  // milliseconds: the jobs of one run are told together
constexpr int kPrimaDiAvanzamento = 1000;
constexpr int kOgniTanto = 100;

// Puts a window of our own over the one that prints, wherever the desktop puts new windows. It has no parent:
// the window beneath may close before it.
void metti_sopra(QWidget& w) {
    const QWidget* sotto = QApplication::activeWindow();
    // Between the end of one window and the turn of the next none is active.
    const QWidgetList tutte = QApplication::topLevelWidgets();
    for (auto it = tutte.begin(); !sotto && it != tutte.end(); ++it)
        if (*it != &w && (*it)->isVisible() && (*it)->windowHandle()) sotto = *it;
    if (!sotto) return;
    w.winId();
    w.windowHandle()->setTransientParent(sotto->windowHandle());
    w.adjustSize();
    w.move(sotto->frameGeometry().center() - w.rect().center());
}

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
        anteprima_->stampa = [this](const LavoroStampa& l) { return stampa(l); };
        anteprima_->salva = [this](const LavoroStampa& l, const QString& f) {
            finito(l.titolo, f, scrivi_pdf(l, f, facce_));
        };
    }
    anteprima_->aggiungi(std::move(lavoro));
    in_lavoro_ = false;
    fra_poco_.start(kPrimaDiDireDove);
    if (anteprima_->isVisible()) return;
    avanzamento_.reset();
    metti_accanto(*anteprima_);
    anteprima_->show();
    anteprima_->raise();
}

bool GestoreStampa::stampa(const LavoroStampa& lavoro) {
    QString file;
    const auto uscita = apri_uscita(stampante_.scelta, lavoro.titolo, file);
    avanza(lavoro.titolo, 1);
    const bool riuscito = replica(lavoro, *uscita, facce_);
    finito(lavoro.titolo, file, riuscito);
    return riuscito;
}

// A job on paper that went well needs no word; a file has to be found, and a failure known.
void GestoreStampa::finito(const std::string& titolo, const QString& file, bool riuscito) {
    in_lavoro_ = false;
    if (!riuscito) {
        falliti_ << (file.isEmpty() ? testo_qt(titolo) : file);
    } else if (!file.isEmpty()) {
        salvati_ << file;
    }
    fra_poco_.start(kPrimaDiDireDove);
}

// The folders of the files, each once.
QString GestoreStampa::cartelle() const {
    QStringList tutte;
    for (const QString& f : salvati_) tutte << QDir::toNativeSeparators(QFileInfo(f).absolutePath());
    tutte.removeDuplicates();
    return tutte.join(u'\n');
}

// Waits for the end of the run. What a word still in sight told is told again together with the new.
void GestoreStampa::di_dove() {
    if (in_lavoro_ || QApplication::overrideCursor()) return fra_poco_.start(kPrimaDiDireDove);
    avanzamento_.reset();
    da_quando_.invalidate();
    if (salvati_.size() + falliti_.size() == detti_) return;
    if (!avviso_ || !avviso_->isVisible()) {
        salvati_.remove(0, detti_salvati_);
        falliti_.remove(0, detti_ - detti_salvati_);
    }
    detti_salvati_ = salvati_.size();
    detti_ = salvati_.size() + falliti_.size();
    delete avviso_;
    QString testo;
    if (salvati_.size() == 1)
        testo = QStringLiteral("La stampa si trova nel file:\n%1").arg(QDir::toNativeSeparators(salvati_[0]));
    if (salvati_.size() > 1)
        testo =
            QStringLiteral("%1 stampe si trovano nella cartella:\n%2").arg(salvati_.size()).arg(cartelle());
    if (!falliti_.isEmpty()) {
        if (!testo.isEmpty()) testo += QStringLiteral("\n\n");
        testo += QStringLiteral("Stampa non riuscita:\n%1").arg(falliti_.mid(0, 10).join(u'\n'));
        if (falliti_.size() > 10) testo += QStringLiteral("\ne altre %1").arg(falliti_.size() - 10);
    }
    avviso_ = new QMessageBox(falliti_.isEmpty() ? QMessageBox::Information : QMessageBox::Warning,
                              QStringLiteral("Stampa"), testo, QMessageBox::NoButton);
    avviso_->setAttribute(Qt::WA_DeleteOnClose);
    avviso_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (!salvati_.isEmpty()) {
        const QUrl dove =
            QUrl::fromLocalFile(salvati_.size() == 1 ? salvati_[0] : QFileInfo(salvati_[0]).absolutePath());
        auto* apri = avviso_->addButton(QStringLiteral("&Apri"), QMessageBox::ActionRole);
        connect(apri, &QPushButton::clicked, this, [dove] { QDesktopServices::openUrl(dove); });
    }
    QPushButton* ok = avviso_->addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    avviso_->setDefaultButton(ok);
    avviso_->setEscapeButton(ok);
    avviso_->setModal(false);
    metti_sopra(*avviso_);
    avviso_->show();
}

void GestoreStampa::avanza(const std::string& titolo, int pagina) {
    in_lavoro_ = true;
    if (!da_quando_.isValid()) da_quando_.start();
    if (!avanzamento_) {
        if (da_quando_.elapsed() < kPrimaDiAvanzamento) return;
        avanzamento_ = std::make_unique<QLabel>(nullptr, Qt::Tool);
        avanzamento_->setAttribute(Qt::WA_ShowWithoutActivating);
        avanzamento_->setWindowTitle(QStringLiteral("Stampa in corso"));
        avanzamento_->setMargin(avanzamento_->fontMetrics().height());
        avanzamento_->setMinimumWidth(avanzamento_->fontMetrics().averageCharWidth() * 60);
        metti_sopra(*avanzamento_);
    } else if (da_quando_.elapsed() < kOgniTanto) {
        return;
    }
    da_quando_.restart();
    avanzamento_->setText(QStringLiteral("%1: pagina %2").arg(testo_qt(titolo)).arg(pagina));
    avanzamento_->show();
    avanzamento_->repaint();
    // The windows are painted, but what the user does in the meantime waits.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace ambra
