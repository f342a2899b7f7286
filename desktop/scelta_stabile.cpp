// The list of the buildings: type a part of the name or the number, Enter opens.
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/ingresso.h"
#include "qt/ricordi.h"

namespace ambra {

namespace {

std::vector<StabileInArchivio> prima_gli_ultimi(std::vector<StabileInArchivio> stabili) {
    const QStringList ultimi = ricordi().value(QStringLiteral("stabili/ultimi")).toStringList();
    const auto posto = [&](const StabileInArchivio& s) {
        const qsizetype i = ultimi.indexOf(QString::number(s.numero));
        return i < 0 ? ultimi.size() : i;
    };
    std::stable_sort(stabili.begin(), stabili.end(),
                     [&](const auto& a, const auto& b) { return posto(a) < posto(b); });
    return stabili;
}

}  // namespace

SceltaStabile::SceltaStabile(const std::vector<StabileInArchivio>& stabili, const QString& avviso)
    : cerca_(new QLineEdit(this)), lista_(new QListWidget(this)) {
    setWindowTitle(QStringLiteral("Kit Ambra - Stabili"));
    auto* pagina = new QVBoxLayout(this);
    if (!avviso.isEmpty()) {
        auto* detto = new QLabel(avviso + QStringLiteral(" Scegliere uno di questi:"), this);
        detto->setObjectName(QStringLiteral("avviso"));
        detto->setWordWrap(true);
        pagina->addWidget(detto);
    }
    cerca_->setPlaceholderText(QStringLiteral("Nome o numero dello stabile"));
    cerca_->setAccessibleName(cerca_->placeholderText());
    cerca_->setClearButtonEnabled(true);
    cerca_->installEventFilter(this);
    lista_->setAccessibleName(QStringLiteral("Stabili"));
    for (const StabileInArchivio& s : prima_gli_ultimi(stabili)) {
        auto* voce = new QListWidgetItem(
            QStringLiteral("%1  %2").arg(s.numero, 3, 10, QChar('0')).arg(s.nome), lista_);
        voce->setData(Qt::UserRole, s.numero);
    }
    auto* bottoni = new QDialogButtonBox(this);
    apri_ = bottoni->addButton(QStringLiteral("&Apri"), QDialogButtonBox::AcceptRole);
    bottoni->addButton(QStringLiteral("&Esci"), QDialogButtonBox::RejectRole);
    apri_->setDefault(true);
    pagina->addWidget(cerca_);
    pagina->addWidget(lista_, 1);
    pagina->addWidget(bottoni);
    const QFontMetrics m = fontMetrics();
    resize(m.averageCharWidth() * 64, m.height() * 26);

    connect(cerca_, &QLineEdit::textChanged, this, &SceltaStabile::filtra);
    connect(lista_, &QListWidget::itemActivated, this, &QDialog::accept);
    connect(bottoni, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(bottoni, &QDialogButtonBox::rejected, this, &QDialog::reject);
    filtra({});
}

int SceltaStabile::scelto() const {
    const QListWidgetItem* voce = lista_->currentItem();
    return voce && !voce->isHidden() ? voce->data(Qt::UserRole).toInt() : 0;
}

void SceltaStabile::filtra(const QString& testo) {
    QListWidgetItem* primo = nullptr;
    for (int i = 0; i < lista_->count(); ++i) {
        QListWidgetItem* voce = lista_->item(i);
        voce->setHidden(!voce->text().contains(testo.trimmed(), Qt::CaseInsensitive));
        if (!voce->isHidden() && !primo) primo = voce;
    }
    lista_->setCurrentItem(primo);
    apri_->setEnabled(primo != nullptr);
}

// The list is walked while the hand stays in the field.
bool SceltaStabile::eventFilter(QObject* o, QEvent* e) {
    if (o != cerca_ || e->type() != QEvent::KeyPress) return QDialog::eventFilter(o, e);
    const int tasto = static_cast<QKeyEvent*>(e)->key();
    if (tasto != Qt::Key_Down && tasto != Qt::Key_Up && tasto != Qt::Key_PageDown && tasto != Qt::Key_PageUp)
        return QDialog::eventFilter(o, e);
    QCoreApplication::sendEvent(lista_, e);
    return true;
}

}  // namespace ambra
