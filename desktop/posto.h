// Which of the programs that this user has open this one is: the windows of the second stand beside those of
// the first, not exactly over them, and are remembered for themselves.
#pragma once

#include <QLockFile>
#include <QRect>
#include <QString>
#include <memory>

namespace ambra {

class Posto {
  public:
    /// Takes the first place that is free, until the program ends.
    Posto();
    /// Under what name the place of a window is remembered: here, and in the first program.
    QString nome(const QString& finestra) const;
    static QString nome_nel_primo(const QString& finestra);
    /// Where a window stands that in the first program stands at `geometria`: moved by `passo` pixels for
    /// each program before, within `spazio`.
    QRect accanto_al_primo(const QRect& geometria, const QRect& spazio, int passo) const;
    bool primo() const { return numero_ == 0; }

  private:
    std::unique_ptr<QLockFile> preso_;
    int numero_ = 0;
};

}  // namespace ambra
