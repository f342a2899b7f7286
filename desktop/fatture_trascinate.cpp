#include "desktop/fatture_trascinate.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <string>
#include <vector>

#include "desktop/finestra.h"
#include "invoices/mrvxml.h"

namespace ambra {

namespace {

std::vector<std::string> percorsi(const QMimeData* m) {
    std::vector<std::string> r;
    for (const QUrl& u : m->urls())
        if (u.isLocalFile()) r.push_back(u.toLocalFile().toStdString());
    return r;
}

class Cesto : public QObject {
  public:
    explicit Cesto(Finestra& f) : QObject(&f), f_(f) {}

    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() == QEvent::DragEnter || e->type() == QEvent::DragMove) {
            auto* d = static_cast<QDropEvent*>(e);
            if (percorsi(d->mimeData()).empty()) return false;
            d->acceptProposedAction();
            return true;
        }
        if (e->type() != QEvent::Drop) return QObject::eventFilter(o, e);
        auto* d = static_cast<QDropEvent*>(e);
        const std::vector<std::string> p = percorsi(d->mimeData());
        if (p.empty()) return false;
        d->acceptProposedAction();
        // The hand that drags is let go before the reading begins.
        QMetaObject::invokeMethod(
            this, [this, p] { apri(p); }, Qt::QueuedConnection);
        return true;
    }

  private:
    void apri(const std::vector<std::string>& p) {
        f_.utente([this, &p] {
            Registro& schermi = f_.schermo()->prog.schermi;
            schermi.apri("mrvxml");
            schermi.carica<Mrvxml>("mrvxml").aggiungi_percorsi(p);
        });
    }

    Finestra& f_;
};

}  // namespace

void accetta_fatture(Finestra& f) {
    f.setAcceptDrops(true);
    f.installEventFilter(new Cesto(f));
}

}  // namespace ambra
