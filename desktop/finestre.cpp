#include "desktop/finestre.h"

#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "core/nomi_file.h"
#include "desktop/parts/pagina_scorrevole.h"
#include "desktop/parts/striscia.h"
#include "desktop/viste.h"

namespace ambra {

namespace {

constexpr const char* kPrincipale = "vexoraf";
constexpr const char* kAtteso = "lumincx";  // the posting, for which others wait

}  // namespace

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

void Finestre::ricorda() const {
    for (const auto& [s, f] : tutte_)
        if (f && f->isVisible()) f->ricorda();
}

Finestra* Finestre::in_cima() const {
    const auto& pila = prog_.schermi.pila();
    if (pila.empty()) return nullptr;
    const auto it = tutte_.find(pila.back());
    return it == tutte_.end() ? nullptr : it->second.data();
}

void Finestre::guasto(const Guasto& g) {
    if (!di_archivio(g.percorso)) return;
    const Finestra* principale = finestra(kPrincipale);
    auto* striscia = principale ? principale->findChild<Striscia*>() : nullptr;
    striscia ? striscia->aggiungi(g) : da_dire_.push_back(g);
}

// ---- what is not stored yet ----

bool Finestre::lascia(Finestra& f) {
    if (!f.scritta()) return true;
    if (!abbandonare(prog_)) return false;
    f.dimentica();
    return true;
}

// One question for all windows; the program ends after it.
bool Finestre::lascia_tutto() {
    const bool scritto = std::any_of(tutte_.begin(), tutte_.end(),
                                     [](const auto& x) { return x.second && x.second->scritta(); });
    return !scritto || abbandonare(prog_);
}

bool Finestre::lascia_il_programma() {
    const bool attende = std::any_of(tutte_.begin(), tutte_.end(),
                                     [](const auto& x) { return x.second && x.first->in_attesa(); });
    if (!attende) return lascia_tutto();
    porta_avanti_chi_e_atteso();
    return false;
}

bool Finestre::lascia_chiudere(Finestra& f) {
    if (f.schermo()->nome() == kPrincipale) return lascia_tutto();
    const auto& uscite = f.custodia().uscite;
    const bool esce = std::any_of(uscite.begin(), uscite.end(), [&](std::string_view nome) {
        const Controllo* c = f.schermo()->trova(nome);
        return c && fa_uscire(f.custodia(), *c);
    });
    return !esce || lascia(f);
}

bool Finestre::lascia_fare(Finestra& f, const Controllo& c, int riga, int colonna) {
    Schermo& s = *f.schermo();
    if (fa_uscire(f.custodia(), c)) return lascia(f);
    if (fine_del_programma(s, c)) return lascia_tutto();
    const Schermo* altro = riaperto_da(s, c, riga, colonna);
    const auto it = altro ? tutte_.find(altro) : tutte_.end();
    if (it != tutte_.end() && !it->second->in_attesa() && !lascia(*it->second)) return false;
    return !prima_del_clic || prima_del_clic(s, c);
}

void Finestre::porta_avanti_chi_e_atteso() {
    for (const auto& [s, f] : tutte_)
        if (f && f->isVisible() && s->nome() == kAtteso) {
            f->raise();
            f->activateWindow();
        }
}

// ---- the registry ----

void Finestre::evento(Registro::Evento e, Schermo& s) {
    switch (e) {
        case Registro::Evento::open:
            apri(s).dimentica();
            tutte_[&s]->show();
            break;
        case Registro::Evento::hide:
            if (const auto it = tutte_.find(&s); it != tutte_.end()) it->second->hide();
            break;
        case Registro::Evento::close:
            chiudi(s);
            break;
        case Registro::Evento::activate:
        case Registro::Evento::davanti:
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
        f = new Finestra(s, this);
        auto* pagina = new QVBoxLayout(f);
        pagina->addWidget(new PaginaScorrevole(costruisci_vista(*f, s), f));
        f->disponi();
        sopra_la_principale(*f);
        if (s.nome() == kPrincipale)
            for (const Guasto& g : std::exchange(da_dire_, {})) guasto(g);
    }
    return *f;
}

// However the user moves between them, the main window never covers another.
void Finestre::sopra_la_principale(Finestra& f) {
    Finestra* principale = finestra(kPrincipale);
    if (!principale || principale == &f) return;
    principale->winId();
    f.winId();
    f.windowHandle()->setTransientParent(principale->windowHandle());
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
