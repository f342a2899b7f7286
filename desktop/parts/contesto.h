// What a view works with: it makes the pieces of a window, each tied to a control of the screen by name,
// and the groups, rows and command lines they stand in.
//
// Tab order is the order of creation. A name that the screen does not have gives a piece that shows the
// name and is tied to nothing, so that a view is never the end of the program.
#pragma once

#include <QBoxLayout>
#include <QFormLayout>
#include <QGridLayout>
#include <QWidget>
#include <functional>
#include <initializer_list>
#include <string_view>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QToolButton;

namespace ambra {

class Controllo;
class Finestra;
class Schermo;
class VistaGriglia;

/// A part of a page: a widget or a layout.
struct Parte {
    Parte(QWidget* w) : widget(w) {}  // NOLINT: either is a part
    Parte(QLayout* l) : layout(l) {}  // NOLINT
    QWidget* widget = nullptr;
    QLayout* layout = nullptr;
};

/// What a line of text holds, which decides how a hand may write it.
enum class Contenuto { testo, numero, importo, data };

class Contesto {
  public:
    Contesto(Finestra& f, Schermo& s) : f_(f), s_(s) {}

    Finestra& finestra() { return f_; }
    Schermo& schermo() { return s_; }

    // ---- pieces; `accessibile` is what a screen reader says, the caption of its row unless given ----
    /// A line of text, or of an amount where the control says so. `caratteri` is the width it asks for;
    /// 0 is by the control's `massimo`.
    QLineEdit* testo(std::string_view nome, int caratteri = 0, const QString& accessibile = {});
    /// A right-aligned field in tabular figures.
    QLineEdit* importo(std::string_view nome, const QString& accessibile = {});
    /// A number that is no amount: millimetres, percentages.
    QLineEdit* numero(std::string_view nome, int caratteri, const QString& accessibile = {});
    /// A date that the screen keeps in a line of text.
    QLineEdit* data_scritta(std::string_view nome, const QString& accessibile = {});
    /// A date that can be typed or picked from a calendar.
    QWidget* data(std::string_view nome, const QString& accessibile = {});
    /// The calendar alone: a button beside the text field into which the screen writes the pick.
    QToolButton* calendario(std::string_view nome, const QString& accessibile = {});
    QLabel* etichetta(std::string_view nome);
    /// A caption of the window alone, made from what its controls hold; empty, it is not there.
    QLabel* viva(const char* nome, std::function<QString()> testo);
    /// The heading of a window.
    QLabel* titolo(std::string_view nome);
    /// A label that stands out.
    QLabel* avviso(std::string_view nome);
    /// A label that can be clicked.
    QToolButton* cliccabile(std::string_view nome, const QString& suggerimento = {});
    QPushButton* bottone(std::string_view nome, const QString& suggerimento = {});
    QCheckBox* casella(std::string_view nome);
    QRadioButton* opzione(std::string_view nome);
    /// Option buttons side by side.
    QWidget* opzioni(std::initializer_list<std::string_view> nomi);
    QComboBox* combo(std::string_view nome, const QString& accessibile = {});
    /// A list that shows its items at once.
    QListWidget* lista(std::string_view nome, int righe = 6, const QString& accessibile = {});
    /// The scroll bar that walks through records.
    QScrollBar* cursore(std::string_view nome, const QString& accessibile = {});
    QProgressBar* progresso(std::string_view nome);
    /// A grid; `etichette` is the array of sort labels over its columns ("srx"), empty for none.
    VistaGriglia* griglia(std::string_view nome, std::string_view etichette = {},
                          const QString& accessibile = {});
    /// The piece that suits the kind of the control.
    QWidget* pezzo(std::string_view nome);

    // ---- layout ----
    /// A row of a form: caption, pieces side by side. The caption goes with the first piece.
    QLabel* riga(QFormLayout* modulo, const QString& didascalia, std::initializer_list<QWidget*> pezzi);
    /// The same with a label of the screen as caption.
    QLabel* riga(QFormLayout* modulo, QLabel* didascalia, std::initializer_list<QWidget*> pezzi);
    /// A caption inside a row, for the field that follows it: "Prov" between town and province.
    QLabel* accanto(const QString& didascalia, QWidget* campo);
    /// Pieces side by side, the room left at the end.
    QHBoxLayout* fila(std::initializer_list<QWidget*> pezzi);
    /// A framed group with a title; "" for none.
    QWidget* gruppo(const QString& titolo, QLayout* contenuto);
    /// The row of commands: what the window does, what destroys (apart), the way out at the right end.
    QLayout* comandi(std::initializer_list<QWidget*> azioni, std::initializer_list<QWidget*> distruttivi,
                     std::initializer_list<QWidget*> uscita);
    /// A key for a button of the window ("F5"), a field ("Ctrl+F": the focus goes there) or a box. With a
    /// `caption`, only while the button bears it.
    void tasto(const char* sequenza, QWidget* w, const QString& caption = {});
    /// A page from its parts, top to bottom; the one at `elastico` takes the room that is left.
    QWidget* pagina(std::initializer_list<Parte> parti, int elastico);

  private:
    Controllo* trova(std::string_view nome) const;
    template <class C>
    C* trova_come(std::string_view nome) const;
    QLineEdit* campo(std::string_view nome, Contenuto che, int caratteri, const QString& accessibile);

    Finestra& f_;
    Schermo& s_;
};

}  // namespace ambra
