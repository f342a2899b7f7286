#include "qt/accanto.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace ambra {

void metti_accanto(QWidget& w) {
    const QWidget* lavoro = QApplication::activeWindow();
    const QScreen* schermo = lavoro ? lavoro->screen() : QGuiApplication::primaryScreen();
    const QRect spazio = schermo->availableGeometry();
    // Room for the frame and the title.
    const int bordo = w.fontMetrics().height() * 2;
    const QSize s = w.size().boundedTo(spazio.size() - QSize(0, bordo));
    const int libero = lavoro ? lavoro->frameGeometry().right() + 1 : spazio.right();
    const int x = std::min(libero, spazio.right() + 1 - s.width());
    w.resize(s);
    w.move(std::max(x, spazio.left()),
           spazio.top() + std::max(0, (spazio.height() - bordo - s.height()) / 2));
}

}  // namespace ambra
