// The Italian of the window library's own dialogs, for machines where its translations are not installed.
#pragma once

#include <QTranslator>

namespace ambra {

class ItalianoDiQt : public QTranslator {
  public:
    using QTranslator::QTranslator;
    QString translate(const char* contesto, const char* testo, const char* distinzione, int n) const override;
    bool isEmpty() const override { return false; }
};

}  // namespace ambra
