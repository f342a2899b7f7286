#include "qt/ricco_tabella.h"

#include <algorithm>

namespace ambra {

namespace {

constexpr int kStessoBordo = 15;  // edges nearer than this are one
constexpr int kColonneMassime = 200;

}  // namespace

TabellaComposta::TabellaComposta(QTextCursor& cursore, const rtf::Documento& d, int prima, int ultima)
    : d_(d), prima_(prima), righe_(ultima - prima + 1) {
    trova_colonne();
    QTextTableFormat f;
    f.setBorder(0);
    f.setCellPadding(0);
    f.setCellSpacing(0);
    f.setMargin(0);
    const rtf::Riga& riga = d.righe[static_cast<std::size_t>(prima)];
    if (riga.verso == rtf::Verso::sinistra) f.setLeftMargin(bordi_.front());
    f.setAlignment(riga.verso == rtf::Verso::centro   ? Qt::AlignHCenter
                   : riga.verso == rtf::Verso::destra ? Qt::AlignRight
                                                      : Qt::AlignLeft);
    QList<QTextLength> larghezze;
    for (std::size_t i = 0; i + 1 < bordi_.size(); ++i)
        larghezze.append(QTextLength(QTextLength::FixedLength, bordi_[i + 1] - bordi_[i]));
    f.setColumnWidthConstraints(larghezze);
    tabella_ = cursore.insertTable(righe_, static_cast<int>(larghezze.size()), f);
    unisci_celle();
}

void TabellaComposta::trova_colonne() {
    for (int r = prima_; r < prima_ + righe_; ++r) {
        const rtf::Riga& riga = d_.righe[static_cast<std::size_t>(r)];
        bordi_.push_back(riga.sinistra);
        for (const auto& c : riga.celle) bordi_.push_back(c.destra);
    }
    std::sort(bordi_.begin(), bordi_.end());
    bordi_.erase(std::unique(bordi_.begin(), bordi_.end(), [](int a, int b) { return b - a < kStessoBordo; }),
                 bordi_.end());
    if (bordi_.size() > kColonneMassime) bordi_.resize(kColonneMassime);
    while (bordi_.size() < 2) bordi_.push_back(bordi_.back() + 1000);
}

// The column that begins at an edge, or the nearest one before it.
int TabellaComposta::colonna_di(int bordo) const {
    const auto it = std::upper_bound(bordi_.begin(), bordi_.end(), bordo + kStessoBordo - 1);
    return std::clamp(static_cast<int>(it - bordi_.begin()) - 1, 0, static_cast<int>(bordi_.size()) - 2);
}

void TabellaComposta::unisci_celle() {
    for (int r = 0; r < righe_; ++r) {
        const rtf::Riga& riga = d_.righe[static_cast<std::size_t>(prima_ + r)];
        int sinistra = riga.sinistra;
        for (int c = 0; c < static_cast<int>(riga.celle.size()); ++c) {
            const int destra = riga.celle[static_cast<std::size_t>(c)].destra;
            const int colonna = colonna_di(sinistra);
            const auto fine = std::upper_bound(bordi_.begin(), bordi_.end(), destra - kStessoBordo);
            const int larga = std::max(1, static_cast<int>(fine - bordi_.begin()) - colonna);
            const int entro = std::min(larga, tabella_->columns() - colonna);
            if (entro > 1) tabella_->mergeCells(r, colonna, 1, entro);
            formato_cella(r, c, colonna);
            sinistra = destra;
        }
    }
    for (int r = 0; r < righe_; ++r) {
        const rtf::Riga& riga = d_.righe[static_cast<std::size_t>(prima_ + r)];
        int sinistra = riga.sinistra;
        for (std::size_t c = 0; c < riga.celle.size(); ++c) {
            if (!riga.celle[c].continua) unisci_in_verticale(r, colonna_di(sinistra), riga.celle[c].destra);
            sinistra = riga.celle[c].destra;
        }
    }
}

// Merges a cell with those below that go on with it.
void TabellaComposta::unisci_in_verticale(int r, int colonna, int destra) {
    int alta = 1;
    for (; r + alta < righe_; ++alta) {
        const rtf::Riga& sotto = d_.righe[static_cast<std::size_t>(prima_ + r + alta)];
        const bool continua = std::any_of(sotto.celle.begin(), sotto.celle.end(), [&](const rtf::Cella& c) {
            return c.continua && std::abs(c.destra - destra) < kStessoBordo;
        });
        if (!continua) break;
    }
    if (alta == 1) return;
    tabella_->mergeCells(r, colonna, alta, tabella_->cellAt(r, colonna).columnSpan());
}

void TabellaComposta::formato_cella(int r, int c, int colonna) {
    const rtf::Riga& riga = d_.righe[static_cast<std::size_t>(prima_ + r)];
    const rtf::Cella& cella = riga.celle[static_cast<std::size_t>(c)];
    QTextTableCell q = tabella_->cellAt(r, colonna);
    QTextTableCellFormat f = q.format().toTableCellFormat();
    // A border takes its room from the row, as wide as it is.
    f.setTopPadding(cella.continua ? 0 : cella.sopra.spessore + cella.spazio[0]);
    f.setLeftPadding(cella.spazio[1]);
    f.setBottomPadding(cella.spazio[2]);
    f.setRightPadding(cella.spazio[3] + cella.bordo_destro.spessore);
    f.setVerticalAlignment(cella.verticale == rtf::Verso::centro   ? QTextCharFormat::AlignMiddle
                           : cella.verticale == rtf::Verso::destra ? QTextCharFormat::AlignBottom
                                                                   : QTextCharFormat::AlignTop);
    q.setFormat(f);
}

QTextTableCell TabellaComposta::cella_di(int riga, int cella) const {
    const rtf::Riga& r = d_.righe[static_cast<std::size_t>(riga)];
    int sinistra = r.sinistra;
    for (int c = 0; c < cella && c < static_cast<int>(r.celle.size()); ++c)
        sinistra = r.celle[static_cast<std::size_t>(c)].destra;
    return tabella_->cellAt(riga - prima_, colonna_di(sinistra));
}

QTextCursor TabellaComposta::cella(int riga, int cella) const {
    return cella_di(riga, cella).lastCursorPosition();
}

void TabellaComposta::spazio_sopra(int riga, int cella, double twip) const {
    QTextTableCell q = cella_di(riga, cella);
    if (twip <= 0 || q.row() != riga - prima_) return;
    QTextTableCellFormat f = q.format().toTableCellFormat();
    f.setTopPadding(f.topPadding() + twip);
    q.setFormat(f);
}

void TabellaComposta::spazio_sotto(double twip) const {
    if (twip <= 0) return;
    QTextTableFormat f = tabella_->format();
    f.setBottomMargin(twip);
    tabella_->setFormat(f);
}

QTextCursor TabellaComposta::dopo() const {
    QTextCursor c = tabella_->lastCursorPosition();
    c.movePosition(QTextCursor::NextBlock);
    return c;
}

}  // namespace ambra
