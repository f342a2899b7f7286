#include "desktop/parts/striscia.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>
#include <algorithm>

#include "core/errori.h"
#include "desktop/parts/testo_qt.h"

namespace ambra {

namespace {

constexpr std::size_t kInVista = 3;  // the last ones; a strip must leave room for the work

QString solo_nome(const std::string& percorso) {
    return qs(percorso.substr(percorso.find_last_of('\\') + 1));
}

}  // namespace

QString rimedio(int errore) {
    switch (errore) {
        case errore::disco_pieno:
            return QStringLiteral("Liberare spazio sul disco, poi ripetere l'operazione.");
        case errore::permesso_negato:
        case errore::accesso:
            return QStringLiteral(
                "Verificare che il file non sia in sola lettura o in uso ad altri, poi ripetere "
                "l'operazione.");
        default:
            return QStringLiteral("Verificare il disco o la rete, poi ripetere l'operazione.");
    }
}

Striscia::Striscia(QWidget* padre) : QFrame(padre), detto_(new QLabel(this)) {
    setObjectName(QStringLiteral("guasto"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    QPalette p = palette();
    p.setColor(QPalette::Window, QColor(0xB0, 0x1E, 0x1E));
    p.setColor(QPalette::WindowText, Qt::white);
    p.setColor(QPalette::ButtonText, Qt::white);
    setPalette(p);
    detto_->setWordWrap(true);
    detto_->setTextFormat(Qt::PlainText);
    detto_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* chiudi = new QToolButton(this);
    chiudi->setObjectName(QStringLiteral("chiudi_guasto"));
    chiudi->setText(QStringLiteral("Chiudi"));
    chiudi->setAutoRaise(true);
    chiudi->setFocusPolicy(Qt::NoFocus);
    auto* fila = new QHBoxLayout(this);
    fila->addWidget(detto_, 1);
    fila->addWidget(chiudi, 0, Qt::AlignTop);
    connect(chiudi, &QToolButton::clicked, this, &Striscia::chiudi);
    hide();
}

void Striscia::chiudi() {
    guasti_.clear();
    hide();
}

void Striscia::aggiungi(const Guasto& g) {
    const auto uguale = [&](const auto& x) {
        return x.first.percorso == g.percorso && x.first.errore == g.errore;
    };
    if (const auto it = std::find_if(guasti_.begin(), guasti_.end(), uguale); it != guasti_.end()) {
        ++it->second;
    } else {
        guasti_.emplace_back(g, 1);
    }
    detto_->setText(testo());
    show();
}

QString Striscia::testo() const {
    QStringList righe;
    const std::size_t da = guasti_.size() > kInVista ? guasti_.size() - kInVista : 0;
    if (da > 0) righe += QStringLiteral("Altri %1 file non scritti.").arg(da);
    for (std::size_t i = da; i < guasti_.size(); ++i) {
        const auto& [g, volte] = guasti_[i];
        QString r = QStringLiteral("Non scritto: %1, %2").arg(solo_nome(g.percorso), qs(in_parole(g.errore)));
        if (volte > 1) r += QStringLiteral(", %1 volte").arg(volte);
        righe += r + QStringLiteral(". ") + rimedio(g.errore);
    }
    return righe.join('\n');
}

}  // namespace ambra
