// The manual inside the program: beside the work, with its contents, an index of words, and a search.
#pragma once

#include <QTextBrowser>
#include <QWidget>
#include <string>

class QLabel;
class QLineEdit;
class QListWidget;
class QTreeWidget;

namespace ambra {

/// The page: pictures are drawn no wider than the column of text.
class PaginaManuale : public QTextBrowser {
    Q_OBJECT
  public:
    explicit PaginaManuale(QWidget* padre);
    /// Brings a place of the text to the top.
    void vai(int posizione);
    QVariant loadResource(int tipo, const QUrl& nome) override;
};

class Manuale : public QWidget {
    Q_OBJECT
  public:
    Manuale();
    PaginaManuale& pagina() { return *pagina_; }
    /// Goes to the chapter with this heading; stays where it is when there is none.
    void vai_al_capitolo(const QString& titolo);

  protected:
    void keyPressEvent(QKeyEvent* e) override;

  private:
    void elenca_capitoli();
    void elenca_parole();
    void cerca(const QString& testo);
    /// The next place found, or with -1 the one before, round the ends.
    void trovato(int passo);

    QLineEdit* cerca_;
    QLabel* quanti_;
    QTreeWidget* contenuto_;
    QListWidget* indice_;
    PaginaManuale* pagina_;
    QList<QTextCursor> trovati_;
    qsizetype quale_ = -1;
};

/// The heading of the manual that belongs to a screen.
QString capitolo_di(const std::string& schermo);

/// Opens the manual, or brings it to the front, at the screen's chapter. Null where this build has none.
Manuale* apri_manuale(const std::string& schermo);

}  // namespace ambra
