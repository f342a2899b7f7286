// What the window benchmarks share: the end of the process at the first painting, which is what a user waits
// for after the double click, and a model that is ready at once, for the bare peers.
#pragma once

#include <QAbstractTableModel>
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdlib>

namespace ambra {

class PrimoDisegno : public QObject {
  public:
    explicit PrimoDisegno(QWidget* w) { w->installEventFilter(this); }

  protected:
    bool eventFilter(QObject*, QEvent* e) override {
        if (e->type() == QEvent::Paint) QTimer::singleShot(0, [] { std::_Exit(0); });
        return false;
    }
};

class TabellaPronta : public QAbstractTableModel {
  public:
    int rowCount(const QModelIndex& = {}) const override { return 30000; }
    int columnCount(const QModelIndex& = {}) const override { return 10; }
    QVariant data(const QModelIndex& i, int ruolo) const override {
        return ruolo == Qt::DisplayRole ? QVariant(QString::number(i.row() * i.column())) : QVariant();
    }
};

}  // namespace ambra
