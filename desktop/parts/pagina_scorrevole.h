// The page of a window that may be larger than the display: then it scrolls, and follows the focus.
#pragma once

#include <QScrollArea>

namespace ambra {

class PaginaScorrevole : public QScrollArea {
    Q_OBJECT
  public:
    /// Takes the page over.
    PaginaScorrevole(QWidget* pagina, QWidget* padre);
    QSize sizeHint() const override;
    /// That of the page, as far as the display has room for it.
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* e) override;
    bool eventFilter(QObject* o, QEvent* e) override;

  private:
    void segui_il_fuoco(QWidget* ora);
};

}  // namespace ambra
