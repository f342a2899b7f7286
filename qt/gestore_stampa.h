// Whoever stands between the printer of the desktop and its user: the set-up dialog, the preview, the
// progress of a long job, and the word about where a PDF went. None of it holds the logic up.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <memory>

#include "qt/anteprima.h"
#include "qt/stampante_qt.h"

class QLabel;
class QMessageBox;

namespace ambra {

class GestoreStampa : public QObject {
  public:
    explicit GestoreStampa(StampanteQt& stampante);
    ~GestoreStampa() override;

    /// The dialog of "Imposta"; true when confirmed, the printer has then taken the choice over.
    bool imposta(QWidget* padre);
    /// The preview in sight, or null.
    AnteprimaStampa* anteprima() const { return anteprima_; }

  private:
    void mostra(LavoroStampa&& lavoro);
    void finito(const std::string& titolo, const QString& file, bool riuscito);
    void avanza(const std::string& titolo, int pagina);
    bool stampa(const LavoroStampa& lavoro);
    QString cartelle() const;
    void di_dove();

    StampanteQt& stampante_;
    Facce facce_;
    QPointer<AnteprimaStampa> anteprima_;
    QPointer<QMessageBox> avviso_;
    std::unique_ptr<QLabel> avanzamento_;
    QElapsedTimer da_quando_;
    QTimer fra_poco_;
    bool in_lavoro_ = false;
    QStringList salvati_, falliti_;
    qsizetype detti_ = 0, detti_salvati_ = 0;  // how many of them the last word told
};

}  // namespace ambra
