#include "qt/imposta.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace ambra {

namespace {

struct Carta {
    QPageSize::PageSizeId misura;
    const char* nome;
};
constexpr Carta kCarte[] = {{QPageSize::A4, "A4 (210 x 297 mm)"},
                            {QPageSize::A3, "A3 (297 x 420 mm)"},
                            {QPageSize::A5, "A5 (148 x 210 mm)"},
                            {QPageSize::B5, "B5 (176 x 250 mm)"},
                            {QPageSize::Letter, "Lettera USA (216 x 279 mm)"},
                            {QPageSize::Legal, "Legale USA (216 x 356 mm)"}};

}  // namespace

DialogoImposta::DialogoImposta(const SceltaStampa& ora, Orientamento verso, QWidget* padre) : QDialog(padre) {
    setWindowTitle(QStringLiteral("Imposta stampante"));
    stampante_ = new QComboBox;
    stampante_->setObjectName(QStringLiteral("stampante"));
    riempi_stampanti(ora.stampante);

    cartella_ = new QLineEdit(cartella_pdf(ora));
    cartella_->setObjectName(QStringLiteral("cartella"));
    cartella_->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    auto* sfoglia = new QPushButton(QStringLiteral("S&foglia..."));
    connect(sfoglia, &QPushButton::clicked, this, [this] { scegli_cartella(); });
    riga_cartella_ = new QWidget;
    auto* riga = new QHBoxLayout(riga_cartella_);
    riga->setContentsMargins({});
    riga->addWidget(cartella_, 1);
    riga->addWidget(sfoglia);

    verticale_ = new QRadioButton(QStringLiteral("&Verticale"));
    verticale_->setObjectName(QStringLiteral("verticale"));
    orizzontale_ = new QRadioButton(QStringLiteral("&Orizzontale"));
    orizzontale_->setObjectName(QStringLiteral("orizzontale"));
    (verso == Orientamento::verticale ? verticale_ : orizzontale_)->setChecked(true);
    auto* versi = new QHBoxLayout;
    versi->addWidget(verticale_);
    versi->addWidget(orizzontale_);
    versi->addStretch();

    carta_ = new QComboBox;
    carta_->setObjectName(QStringLiteral("carta"));
    riempi_carte(ora.carta);
    anteprima_ = new QCheckBox(QStringLiteral("&Mostra l'anteprima prima di stampare"));
    anteprima_->setObjectName(QStringLiteral("anteprima"));
    anteprima_->setChecked(ora.anteprima);

    auto* dati = new QFormLayout;
    dati->addRow(QStringLiteral("&Stampante"), stampante_);
    dati->addRow(QStringLiteral("&Cartella dei PDF"), riga_cartella_);
    if (auto* e = qobject_cast<QWidget*>(dati->labelForField(riga_cartella_)))
        e->setObjectName(QStringLiteral("etichetta_cartella"));
    dati->addRow(QStringLiteral("Orientamento"), versi);
    dati->addRow(QStringLiteral("C&arta"), carta_);
    dati->addRow(QString(), anteprima_);

    auto* bottoni = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    bottoni->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
    bottoni->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annulla"));
    connect(bottoni, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(bottoni, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* tutto = new QVBoxLayout(this);
    tutto->addLayout(dati);
    tutto->addStretch();
    tutto->addWidget(bottoni);
    connect(stampante_, &QComboBox::currentIndexChanged, this, [this] { aggiorna(); });
    aggiorna();
}

void DialogoImposta::riempi_stampanti(const QString& ora) {
    stampante_->addItem(QStringLiteral("File PDF"), QString());
    for (const QString& nome : QPrinterInfo::availablePrinterNames()) stampante_->addItem(nome, nome);
    stampante_->setCurrentIndex(std::max(0, stampante_->findData(ora)));
}

void DialogoImposta::riempi_carte(const QPageSize& ora) {
    for (const Carta& c : kCarte) carta_->addItem(QString::fromLatin1(c.nome), int(c.misura));
    carta_->setCurrentIndex(std::max(0, carta_->findData(int(ora.id()))));
}

// The folder matters for files alone.
void DialogoImposta::aggiorna() {
    const bool pdf = stampante_->currentData().toString().isEmpty();
    riga_cartella_->setEnabled(pdf);
    if (auto* e = findChild<QWidget*>(QStringLiteral("etichetta_cartella"))) e->setEnabled(pdf);
}

void DialogoImposta::scegli_cartella() {
    const QString scelta =
        QFileDialog::getExistingDirectory(this, QStringLiteral("Cartella dei PDF"), cartella_->text());
    if (!scelta.isEmpty()) cartella_->setText(scelta);
}

SceltaStampa DialogoImposta::scelta() const {
    SceltaStampa s;
    s.stampante = stampante_->currentData().toString();
    s.cartella_pdf = cartella_->text().trimmed();
    s.carta = QPageSize(static_cast<QPageSize::PageSizeId>(carta_->currentData().toInt()));
    s.anteprima = anteprima_->isChecked();
    return s;
}

Orientamento DialogoImposta::orientamento() const {
    return orizzontale_->isChecked() ? Orientamento::orizzontale : Orientamento::verticale;
}

}  // namespace ambra
