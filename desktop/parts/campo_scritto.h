// A line to write in: underlined in red while what stands there is wrong, with the word why; the letters of
// Alt that are nobody's are not written.
#pragma once

#include <QLineEdit>

namespace ambra {

class CampoScritto : public QLineEdit {
    Q_OBJECT
  public:
    using QLineEdit::QLineEdit;
    /// Says what is wrong with the text, under it and to a screen reader; "" for nothing.
    void errore(const QString& perche);
    const QString& errore() const { return errore_; }
    /// The width that it asks for, in pixels.
    void ideale(int larghezza) { ideale_ = larghezza; }
    QSize sizeHint() const override;
    /// The first click selects the whole text, as Tab does.
    void tutto_al_primo_clic() { tutto_ = true; }

  protected:
    void paintEvent(QPaintEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

  private:
    QString errore_, suggerimento_;
    int ideale_ = 0;
    bool tutto_ = false, primo_clic_ = false;
};

}  // namespace ambra
