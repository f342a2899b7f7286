// The widths of the columns of a list: shared out by the room there is, or as the user wanted them, from one
// day to the next.
#include <QHeaderView>
#include <algorithm>
#include <numeric>

#include "desktop/finestra.h"
#include "desktop/parts/griglia_vista.h"
#include "qt/ricordi.h"

namespace ambra {

namespace {

constexpr int kCifreDiUnaData = 10;

}  // namespace

// What is left over all columns share alike, so that a wide display does not draw what belongs together
// apart. What lacks the wide texts give, each in its proportion and none more than two thirds of it; an
// amount or a date is never cut.
std::vector<int> VistaGriglia::colonne_per(int spazio) const {
    std::vector<int> w = naturali_;
    const int resto = spazio - std::accumulate(w.begin(), w.end(), 0);
    const auto viste = static_cast<int>(std::count_if(w.begin(), w.end(), [](int x) { return x > 0; }));
    if (resto >= 0) {
        for (int& x : w)
            if (x > 0) x += resto / viste;
        return w;
    }
    std::vector<int> cede(w.size());
    for (std::size_t c = 0; c < w.size(); ++c)
        if (g_.colonna(static_cast<int>(c)).verso == Allineamento::sinistra)
            cede[c] = std::max(0, w[c] - std::max(w[c] / 3, minima(static_cast<int>(c))));
    const int in_tutto = std::accumulate(cede.begin(), cede.end(), 0);
    const int manca = std::min(-resto, in_tutto);
    for (std::size_t c = 0; c < w.size(); ++c)
        if (cede[c] > 0) w[c] -= static_cast<int>(static_cast<long long>(cede[c]) * manca / in_tutto);
    return w;
}

// What stands in a column as narrow as can be: a date, or the text that was told.
int VistaGriglia::minima(int colonna) const {
    const QFontMetrics m = tabella_->fontMetrics();
    QString testo(kCifreDiUnaData, u'0');
    for (const auto& [c, t] : parole_)
        if (c == colonna) testo = t;
    return m.horizontalAdvance(testo) + m.averageCharWidth() * 3;
}

QString VistaGriglia::nome_dei_ricordi() const {
    return QStringLiteral("colonne/%1.%2").arg(f_.objectName(), QString::fromStdString(g_.nome()));
}

void VistaGriglia::ricorda_colonne() const {
    QStringList larghe;
    const QHeaderView* testa = tabella_->horizontalHeader();
    for (int c = 0; c < testa->count(); ++c) larghe += QString::number(testa->sectionSize(c));
    ricordi().setValue(nome_dei_ricordi(), larghe);
}

// False if there are none, or they are of a list with other columns.
bool VistaGriglia::riprendi_colonne() {
    const QStringList larghe = ricordi().value(nome_dei_ricordi()).toStringList();
    if (larghe.size() != tabella_->horizontalHeader()->count()) return false;
    dell_utente_ = true;
    for (int c = 0; c < larghe.size(); ++c)
        if (!tabella_->isColumnHidden(c)) tabella_->setColumnWidth(c, larghe[c].toInt());
    tabella_->horizontalHeader()->setStretchLastSection(true);
    disponi_etichette();
    return true;
}

}  // namespace ambra
