#include "qt/anteprima.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/pittore.h"
#include "qt/replica.h"
#include "qt/ricco.h"

namespace ambra {

namespace {

constexpr int kLarghezza = 0, kPaginaIntera = -1;  // beside the per cents
constexpr double kPollice = 1440;
constexpr int kMargine = 12;

}  // namespace

std::vector<FoglioLavoro> fogli_di(const LavoroStampa& lavoro) {
    std::vector<FoglioLavoro> fogli;
    for (std::size_t i = 0; i < lavoro.pagine.size(); ++i) {
        const PaginaStampa& p = lavoro.pagine[i];
        const QSizeF carta(p.larghezza, p.altezza);
        const bool ricca = !p.operazioni.empty() && p.operazioni.front().documento;
        if (!ricca) {
            fogli.push_back({i, -1, carta});
            continue;
        }
        const ImpaginatoRicco impaginato(*p.operazioni.front().documento, carta);
        for (int k = 0; k < impaginato.pagine(); ++k) fogli.push_back({i, k, impaginato.foglio()});
    }
    return fogli;
}

// ---- one sheet ----

FoglioAnteprima::FoglioAnteprima(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("foglio"));
    setAccessibleName(QStringLiteral("Pagina"));
}

void FoglioAnteprima::mostra(const LavoroStampa* lavoro, const FoglioLavoro& foglio) {
    lavoro_ = lavoro;
    foglio_ = foglio;
    update();
}

void FoglioAnteprima::scala(double pixel_per_twip) {
    scala_ = pixel_per_twip;
    setFixedSize((foglio_.misura * scala_).toSize() + QSize(2 * kMargine, 2 * kMargine));
    update();
}

void FoglioAnteprima::paintEvent(QPaintEvent*) {
    if (!lavoro_ || foglio_.pagina >= lavoro_->pagine.size()) return;
    QPainter p(this);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    p.translate(kMargine, kMargine);
    p.fillRect(QRectF(QPointF(3, 3), foglio_.misura * scala_), QColor(0, 0, 0, 60));
    p.scale(scala_, scala_);
    p.fillRect(QRectF(QPointF(), foglio_.misura), Qt::white);
    p.setClipRect(QRectF(QPointF(), foglio_.misura));
    const PaginaStampa& pagina = lavoro_->pagine[foglio_.pagina];
    if (foglio_.ricca >= 0) {
        const auto& d = pagina.operazioni.front().documento;
        if (documento_ != d.get())
            impaginato_ = std::make_unique<ImpaginatoRicco>(*d, QSizeF(pagina.larghezza, pagina.altezza));
        documento_ = d.get();
        impaginato_->disegna(p, foglio_.ricca);
        return;
    }
    Pittore pittore(p, facce_);
    for (const OperazioneStampa& o : pagina.operazioni) pittore.operazione(o);
}

// ---- the window ----

AnteprimaStampa::AnteprimaStampa(QWidget* padre) : QWidget(padre, Qt::Window) {
    setWindowTitle(QStringLiteral("Anteprima di stampa"));
    vista_ = new FoglioAnteprima;
    area_ = new QScrollArea;
    area_->setBackgroundRole(QPalette::Dark);
    area_->setAlignment(Qt::AlignCenter);
    area_->setWidget(vista_);
    auto* tutto = new QVBoxLayout(this);
    tutto->addWidget(barra());
    tutto->addWidget(area_, 1);
    const int lettera = fontMetrics().averageCharWidth();
    resize(lettera * 130, fontMetrics().height() * 42);
}

AnteprimaStampa::~AnteprimaStampa() = default;

QWidget* AnteprimaStampa::barra() {
    auto* barra = new QWidget;
    auto* riga = new QHBoxLayout(barra);
    riga->setContentsMargins({});
    const auto bottone = [&](const char* nome, const QString& testo, const QString& spiega, auto azione) {
        auto* b = new QPushButton(testo);
        b->setObjectName(QString::fromLatin1(nome));
        b->setToolTip(spiega);
        b->setAccessibleName(spiega);
        connect(b, &QPushButton::clicked, this, azione);
        return b;
    };
    scelta_lavoro_ = new QComboBox;
    scelta_lavoro_->setObjectName(QStringLiteral("lavoro"));
    scelta_lavoro_->setAccessibleName(QStringLiteral("Documento"));
    scelta_lavoro_->setMaximumWidth(fontMetrics().averageCharWidth() * 40);
    scelta_lavoro_->hide();
    connect(scelta_lavoro_, &QComboBox::activated, this, [this](int n) { mostra_lavoro(n); });
    prima_ = bottone("prima", QStringLiteral("|<"), QStringLiteral("Prima pagina"), [this] { vai(0); });
    indietro_ = bottone("indietro", QStringLiteral("<"), QStringLiteral("Pagina precedente"),
                        [this] { vai(foglio_ - 1); });
    avanti_ = bottone("avanti", QStringLiteral(">"), QStringLiteral("Pagina seguente"),
                      [this] { vai(foglio_ + 1); });
    ultima_ = bottone("ultima", QStringLiteral(">|"), QStringLiteral("Ultima pagina"),
                      [this] { vai(quanti_fogli() - 1); });
    for (QPushButton* b : {prima_, indietro_, avanti_, ultima_})
        b->setMaximumWidth(fontMetrics().averageCharWidth() * 6);
    numero_ = new QSpinBox;
    numero_->setObjectName(QStringLiteral("numero"));
    numero_->setAccessibleName(QStringLiteral("Numero di pagina"));
    connect(numero_, &QSpinBox::valueChanged, this, [this](int n) { vai(n - 1); });
    quanti_ = new QLabel;
    zoom_ = new QComboBox;
    zoom_->setObjectName(QStringLiteral("zoom"));
    zoom_->setAccessibleName(QStringLiteral("Ingrandimento"));
    zoom_->addItem(QStringLiteral("Pagina intera"), kPaginaIntera);
    zoom_->addItem(QStringLiteral("Larghezza"), kLarghezza);
    for (const int z : {50, 75, 100, 125, 150, 200, 400}) zoom_->addItem(QStringLiteral("%1%").arg(z), z);
    zoom_->setCurrentIndex(1);
    connect(zoom_, &QComboBox::currentIndexChanged, this, [this] { adatta(); });
    stampa_ = bottone("stampa", QStringLiteral("&Stampa"), QStringLiteral("Stampa tutte le pagine"),
                      [this] { stampa_tutto(); });
    salva_ = bottone("salva", QStringLiteral("Salva &PDF..."), QStringLiteral("Salva come file PDF"),
                     [this] { chiedi_e_salva(); });
    auto* chiudi = bottone("chiudi", QStringLiteral("&Chiudi"), QStringLiteral("Chiudi senza stampare"),
                           [this] { close(); });
    for (QWidget* w : std::initializer_list<QWidget*>{scelta_lavoro_, prima_, indietro_, numero_, quanti_,
                                                      avanti_, ultima_, zoom_})
        riga->addWidget(w);
    riga->addStretch();
    for (QWidget* w : {stampa_, salva_, chiudi}) riga->addWidget(w);
    return barra;
}

void AnteprimaStampa::aggiungi(LavoroStampa&& lavoro) {
    lavori_.push_back(std::make_unique<LavoroStampa>(std::move(lavoro)));
    const QString titolo = testo_qt(lavori_.back()->titolo);
    scelta_lavoro_->addItem(titolo.isEmpty() ? QStringLiteral("Stampa %1").arg(lavori_.size()) : titolo);
    scelta_lavoro_->setVisible(lavori_.size() > 1);
    if (lavori_.size() > 1)
        stampa_->setToolTip(QStringLiteral("Stampa tutti i %1 documenti").arg(lavori_.size()));
    if (lavoro_ < 0) mostra_lavoro(0);
}

void AnteprimaStampa::mostra_lavoro(int n) {
    lavoro_ = n;
    const LavoroStampa& l = *lavori_[static_cast<std::size_t>(n)];
    fogli_ = fogli_di(l);
    setWindowTitle(QStringLiteral("Anteprima di stampa: %1").arg(scelta_lavoro_->itemText(n)));
    numero_->setRange(1, std::max(1, quanti_fogli()));
    quanti_->setText(QStringLiteral("di %1").arg(quanti_fogli()));
    foglio_ = -1;
    vai(0);
}

void AnteprimaStampa::vai(int foglio) {
    if (fogli_.empty()) return;
    const int n = std::clamp(foglio, 0, quanti_fogli() - 1);
    if (n != foglio_) {
        foglio_ = n;
        vista_->mostra(lavori_[static_cast<std::size_t>(lavoro_)].get(), fogli_[static_cast<std::size_t>(n)]);
        adatta();
        area_->verticalScrollBar()->setValue(0);
    }
    aggiorna();
}

void AnteprimaStampa::aggiorna() {
    const QSignalBlocker zitto(numero_);
    numero_->setValue(foglio_ + 1);
    prima_->setEnabled(foglio_ > 0);
    indietro_->setEnabled(foglio_ > 0);
    avanti_->setEnabled(foglio_ + 1 < quanti_fogli());
    ultima_->setEnabled(foglio_ + 1 < quanti_fogli());
}

void AnteprimaStampa::adatta() {
    const QSizeF m = vista_->misura();
    if (m.isEmpty()) return;
    const QSize spazio = area_->maximumViewportSize() - QSize(2 * kMargine, 2 * kMargine);
    const int scelto = zoom_->currentData().toInt();
    const double intera_x = spazio.width() / m.width(), intera_y = spazio.height() / m.height();
    const int barra_larga = area_->verticalScrollBar()->sizeHint().width();
    const double larga = (spazio.width() - barra_larga) / m.width();
    const double scala = scelto == kPaginaIntera ? std::min(intera_x, intera_y)
                         : scelto == kLarghezza  ? larga
                                                 : scelto / 100.0 * logicalDpiX() / kPollice;
    vista_->scala(std::max(scala, 0.005));
}

void AnteprimaStampa::resizeEvent(QResizeEvent* e) {
    QWidget::resizeEvent(e);
    adatta();
}

void AnteprimaStampa::keyPressEvent(QKeyEvent* e) {
    switch (e->key()) {
        case Qt::Key_PageDown:
            return vai(foglio_ + 1);
        case Qt::Key_PageUp:
            return vai(foglio_ - 1);
        case Qt::Key_Home:
            return vai(0);
        case Qt::Key_End:
            return vai(quanti_fogli() - 1);
        case Qt::Key_Escape:
            close();
            return;
        default:
            QWidget::keyPressEvent(e);
    }
}

// The pages stay in sight when some of them could not be printed.
void AnteprimaStampa::stampa_tutto() {
    if (!stampa) return;
    setEnabled(false);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    bool tutti = true;
    for (const auto& l : lavori_) tutti = stampa(*l) && tutti;
    QApplication::restoreOverrideCursor();
    setEnabled(true);
    if (tutti) close();
}

void AnteprimaStampa::chiedi_e_salva() {
    if (!salva || lavori_.empty()) return;
    if (lavori_.size() == 1) {
        const QString nome = nome_di_file(lavori_[0]->titolo);
        const QString file = QFileDialog::getSaveFileName(
            this, QStringLiteral("Salva PDF"), (nome.isEmpty() ? QStringLiteral("Stampa") : nome) + ".pdf",
            QStringLiteral("File PDF (*.pdf)"));
        if (!file.isEmpty()) salva(*lavori_[0], file);
        return;
    }
    const QString cartella =
        QFileDialog::getExistingDirectory(this, QStringLiteral("Cartella in cui salvare i PDF"));
    if (cartella.isEmpty()) return;
    for (const auto& l : lavori_) salva(*l, pdf_libero(cartella, nome_di_file(l->titolo)));
}

}  // namespace ambra
