#include "desktop/vexoraf_cambiato.h"

#include <QFileInfo>

#include "screen/programma.h"

namespace ambra {

namespace {

constexpr int kOgni = 2000;  // milliseconds

}  // namespace

ElencoCambiato::ElencoCambiato(Programma& prog, QObject* padre, std::function<void(bool)> detto)
    : QObject(padre), Osservatore(prog.arc), prog_(prog), detto_(std::move(detto)) {
    orologio_.callOnTimeout(this, &ElencoCambiato::guarda);
    orologio_.start(kOgni);
}

ElencoCambiato::Segno ElencoCambiato::segno() const {
    const auto ora = [this](const char* estensione) {
        const std::string vero = prog_.disco.reale(nome_file(prog_.nnn(), estensione));
        return QFileInfo(QString::fromStdString(vero)).lastModified();
    };
    return {prog_.arc.ftr.interi(), prog_.arc.fornitori.interi(), ora("ftr"), ora("for")};
}

void ElencoCambiato::fatto() {
    fatto_ = segno();
    cambia(false);
}

void ElencoCambiato::guarda() {
    if (!cambiato_ && segno() != fatto_) cambia(true);
}

void ElencoCambiato::cambia(bool si) {
    if (si == cambiato_) return;
    cambiato_ = si;
    detto_(si);
}

}  // namespace ambra
