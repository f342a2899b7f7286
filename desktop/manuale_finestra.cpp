#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMap>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextTable>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/manuale.h"

namespace ambra {

namespace {

constexpr int kPosizione = Qt::UserRole;
constexpr int kPiuLarga = 560;  // of a picture, in points of a plain display

// The words in bold: commands, and what has a name. Each with its first place.
QMap<QString, int> parole_in_grassetto(const QTextDocument& d) {
    QMap<QString, int> parole;
    for (QTextBlock b = d.begin(); b.isValid(); b = b.next()) {
        const QTextTable* tabella = QTextCursor(b).currentTable();
        const bool intestazione = tabella && tabella->cellAt(b.position()).row() == 0;
        if (b.blockFormat().headingLevel() > 0 || intestazione) continue;
        for (auto i = b.begin(); !i.atEnd(); ++i) {
            const QTextFragment f = i.fragment();
            const QString parola = f.text().trimmed();
            if (f.charFormat().fontWeight() <= QFont::Medium || parola.size() < 3) continue;
            if (!parole.contains(parola)) parole.insert(parola, f.position());
        }
    }
    return parole;
}

}  // namespace

PaginaManuale::PaginaManuale(QWidget* padre) : QTextBrowser(padre) {
    setOpenExternalLinks(false);
    setSource(QUrl(QStringLiteral("qrc:/manuale.md")), QTextDocument::MarkdownResource);
    document()->setDocumentMargin(fontMetrics().averageCharWidth() * 2);
}

void PaginaManuale::vai(int posizione) {
    QTextCursor c(document());
    c.setPosition(posizione);
    // From the end upwards, so that the place comes to stand at the top.
    moveCursor(QTextCursor::End);
    setTextCursor(c);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top());
}

QVariant PaginaManuale::loadResource(int tipo, const QUrl& nome) {
    const QVariant cosa = QTextBrowser::loadResource(tipo, nome);
    if (tipo != QTextDocument::ImageResource) return cosa;
    QImage i = cosa.canConvert<QByteArray>() ? QImage::fromData(cosa.toByteArray()) : cosa.value<QImage>();
    const int punti = static_cast<int>(kPiuLarga * devicePixelRatioF());
    if (i.width() > punti) i = i.scaledToWidth(punti, Qt::SmoothTransformation);
    i.setDevicePixelRatio(devicePixelRatioF());
    return i;
}

Manuale::Manuale()
    : cerca_(new QLineEdit(this)),
      quanti_(new QLabel(this)),
      contenuto_(new QTreeWidget(this)),
      indice_(new QListWidget(this)),
      pagina_(new PaginaManuale(this)) {
    setWindowTitle(QStringLiteral("Kit Ambra - Manuale"));
    cerca_->setPlaceholderText(QStringLiteral("Cerca nel manuale (Ctrl+F)"));
    cerca_->setAccessibleName(cerca_->placeholderText());
    cerca_->setClearButtonEnabled(true);
    contenuto_->setHeaderHidden(true);
    auto* schede = new QTabWidget(this);
    schede->addTab(contenuto_, QStringLiteral("Contenuto"));
    schede->addTab(indice_, QStringLiteral("Indice"));
    auto* diviso = new QSplitter(this);
    diviso->addWidget(schede);
    diviso->addWidget(pagina_);
    diviso->setStretchFactor(1, 1);
    const QFontMetrics m = fontMetrics();
    diviso->setSizes({m.averageCharWidth() * 34, m.averageCharWidth() * 110});
    auto* sopra = new QHBoxLayout;
    sopra->addWidget(cerca_, 1);
    sopra->addWidget(quanti_);
    auto* tutto = new QVBoxLayout(this);
    tutto->addLayout(sopra);
    tutto->addWidget(diviso, 1);
    resize(m.averageCharWidth() * 146, m.height() * 38);

    elenca_capitoli();
    elenca_parole();
    connect(cerca_, &QLineEdit::textChanged, this, &Manuale::cerca);
    connect(contenuto_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* v) {
        if (v) pagina_->vai(v->data(0, kPosizione).toInt());
    });
    connect(indice_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* v) {
        if (v) pagina_->vai(v->data(kPosizione).toInt());
    });
    for (const QKeySequence& via : {QKeySequence(Qt::Key_Escape), QKeySequence(QKeySequence::Close)})
        connect(new QShortcut(via, this), &QShortcut::activated, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        cerca_->setFocus();
        cerca_->selectAll();
    });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this, [this] { trovato(1); });
    connect(new QShortcut(QKeySequence::FindPrevious, this), &QShortcut::activated, this,
            [this] { trovato(-1); });
}

void Manuale::elenca_capitoli() {
    QTreeWidgetItem* capitolo = nullptr;
    for (QTextBlock b = pagina_->document()->begin(); b.isValid(); b = b.next()) {
        const int livello = b.blockFormat().headingLevel();
        if (livello < 2) continue;
        auto* voce =
            livello > 2 && capitolo ? new QTreeWidgetItem(capitolo) : new QTreeWidgetItem(contenuto_);
        voce->setText(0, b.text());
        voce->setData(0, kPosizione, b.position());
        if (livello == 2) capitolo = voce;
    }
    contenuto_->expandAll();
}

void Manuale::elenca_parole() {
    const auto parole = parole_in_grassetto(*pagina_->document());
    for (auto i = parole.begin(); i != parole.end(); ++i) {
        auto* voce = new QListWidgetItem(i.key(), indice_);
        voce->setData(kPosizione, i.value());
    }
    indice_->sortItems();
}

void Manuale::vai_al_capitolo(const QString& titolo) {
    for (QTreeWidgetItem* voce : contenuto_->findItems(titolo, Qt::MatchExactly | Qt::MatchRecursive)) {
        contenuto_->setCurrentItem(voce);
        pagina_->vai(voce->data(0, kPosizione).toInt());
        return;
    }
}

void Manuale::cerca(const QString& testo) {
    trovati_.clear();
    quale_ = -1;
    QList<QTextEdit::ExtraSelection> segni;
    QTextCursor c(pagina_->document());
    while (!testo.trimmed().isEmpty() && !(c = pagina_->document()->find(testo.trimmed(), c)).isNull()) {
        trovati_ += c;
        QTextEdit::ExtraSelection segno;
        segno.cursor = c;
        segno.format.setBackground(QColor(0xFF, 0xE0, 0x82));
        segno.format.setForeground(Qt::black);
        segni += segno;
    }
    pagina_->setExtraSelections(segni);
    quanti_->setText(testo.trimmed().isEmpty() ? QString() : QStringLiteral("non trovato"));
    trovato(1);
}

void Manuale::trovato(int passo) {
    if (trovati_.isEmpty()) return;
    quale_ = (quale_ + passo + trovati_.size()) % trovati_.size();
    if (quale_ < 0) quale_ += trovati_.size();
    quanti_->setText(QStringLiteral("%1 di %2").arg(quale_ + 1).arg(trovati_.size()));
    pagina_->setTextCursor(trovati_[quale_]);
    pagina_->ensureCursorVisible();
}

// Enter in the search goes on to the next place, with the shift key to the one before.
void Manuale::keyPressEvent(QKeyEvent* e) {
    const bool invio = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter;
    if (!invio || !cerca_->hasFocus()) return QWidget::keyPressEvent(e);
    trovato(e->modifiers() & Qt::ShiftModifier ? -1 : 1);
}

}  // namespace ambra
