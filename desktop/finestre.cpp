#include "desktop/finestre.h"

#include <QVBoxLayout>

#include "desktop/viste.h"

namespace ambra {

Finestre::Finestre(Programma& prog) : prog_(prog) {
    prog_.schermi.spia = [this](Registro::Evento e, Schermo& s) { evento(e, s); };
}

Finestre::~Finestre() {
    prog_.schermi.spia = nullptr;
    for (auto& [s, f] : tutte_) delete f.data();
}

Finestra* Finestre::finestra(const std::string& schermo) const {
    for (const auto& [s, f] : tutte_)
        if (s->nome() == schermo) return f;
    return nullptr;
}

Finestra* Finestre::in_cima() const {
    const auto& pila = prog_.schermi.pila();
    if (pila.empty()) return nullptr;
    const auto it = tutte_.find(pila.back());
    return it == tutte_.end() ? nullptr : it->second.data();
}

void Finestre::evento(Registro::Evento e, Schermo& s) {
    switch (e) {
        case Registro::Evento::open:
            apri(s).show();
            break;
        case Registro::Evento::hide:
            if (const auto it = tutte_.find(&s); it != tutte_.end()) it->second->hide();
            break;
        case Registro::Evento::close:
            chiudi(s);
            break;
        case Registro::Evento::activate:
            if (const auto it = tutte_.find(&s); it != tutte_.end() && it->second->isVisible()) {
                if (it->second->isMinimized()) it->second->showNormal();
                it->second->raise();
                it->second->activateWindow();
            }
            break;
    }
}

Finestra& Finestre::apri(Schermo& s) {
    QPointer<Finestra>& f = tutte_[&s];
    if (!f) {
        f = new Finestra(s);
        auto* pagina = new QVBoxLayout(f);
        pagina->addWidget(costruisci_vista(*f, s));
        f->disponi();
    }
    return *f;
}

void Finestre::chiudi(const Schermo& s) {
    const auto it = tutte_.find(&s);
    if (it == tutte_.end()) return;
    Finestra* f = it->second;
    tutte_.erase(it);
    f->stacca();
    f->hide();
    f->deleteLater();
}

}  // namespace ambra
