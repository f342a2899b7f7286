#include "desktop/posto.h"

#include <QDir>
#include <QFileInfo>

#include "qt/ricordi.h"

namespace ambra {

namespace {

constexpr int kPosti = 9;  // who opens more has them one over the other

}  // namespace

Posto::Posto() {
    const QDir cartella = QFileInfo(ricordi().fileName()).absoluteDir();
    if (!cartella.mkpath(QStringLiteral("."))) return;
    for (numero_ = 0; numero_ < kPosti; ++numero_) {
        preso_ = std::make_unique<QLockFile>(cartella.filePath(QStringLiteral("posto%1").arg(numero_ + 1)));
        preso_->setStaleLockTime(0);  // a program may run for days
        if (preso_->tryLock()) return;
        if (preso_->error() != QLockFile::LockFailedError) break;  // nothing can be told
    }
    preso_.reset();
    numero_ %= kPosti;
}

QString Posto::nome_nel_primo(const QString& finestra) {
    return QStringLiteral("finestre/") + finestra;
}

QString Posto::nome(const QString& finestra) const {
    const QString n = nome_nel_primo(finestra);
    return primo() ? n : n + QStringLiteral(".%1").arg(numero_ + 1);
}

QRect Posto::accanto_al_primo(const QRect& geometria, const QRect& spazio, int passo) const {
    return geometria.translated(passo * numero_, passo * numero_) & spazio;
}

}  // namespace ambra
