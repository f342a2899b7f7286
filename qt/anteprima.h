// The preview: the pages of a job on the screen, as they would come out, to be turned, enlarged, printed or
// saved. Several jobs of one run are shown one after the other in the same window.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "print/registratore.h"
#include "qt/caratteri.h"

class QComboBox;
class QLabel;
class QPushButton;
class QScrollArea;
class QSpinBox;

namespace ambra {

class ImpaginatoRicco;

/// A sheet of a job: a recorded page, or one page of the rich text on it.
struct FoglioLavoro {
    std::size_t pagina = 0;
    int ricca = -1;
    QSizeF misura;  ///< twips
};

/// The sheets that a job makes.
std::vector<FoglioLavoro> fogli_di(const LavoroStampa& lavoro);

/// Draws one sheet as large as the window tells it.
class FoglioAnteprima : public QWidget {
  public:
    explicit FoglioAnteprima(QWidget* padre = nullptr);
    void mostra(const LavoroStampa* lavoro, const FoglioLavoro& foglio);
    void scala(double pixel_per_twip);
    QSizeF misura() const { return foglio_.misura; }

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    const LavoroStampa* lavoro_ = nullptr;
    FoglioLavoro foglio_;
    double scala_ = 0.05;
    Facce facce_;
    const void* documento_ = nullptr;
    std::unique_ptr<ImpaginatoRicco> impaginato_;  // of the rich text in sight
};

class AnteprimaStampa : public QWidget {
  public:
    explicit AnteprimaStampa(QWidget* padre = nullptr);
    ~AnteprimaStampa() override;

    /// Shows a job, after those that are shown already.
    void aggiungi(LavoroStampa&& lavoro);
    /// Prints a job where the user's choice says; false when it failed.
    std::function<bool(const LavoroStampa&)> stampa;
    /// Saves a job as a PDF file into a folder, or under a name when there is only one.
    std::function<void(const LavoroStampa&, const QString& percorso)> salva;

    int quanti_fogli() const { return static_cast<int>(fogli_.size()); }
    int quanti_lavori() const { return static_cast<int>(lavori_.size()); }
    int foglio() const { return foglio_; }
    void vai(int foglio);

  protected:
    void resizeEvent(QResizeEvent*) override;
    void keyPressEvent(QKeyEvent*) override;

  private:
    QWidget* barra();
    void mostra_lavoro(int n);
    void adatta();
    void aggiorna();
    void chiedi_e_salva();
    void stampa_tutto();

    std::vector<std::unique_ptr<LavoroStampa>> lavori_;
    std::vector<FoglioLavoro> fogli_;  // of the job in sight
    int lavoro_ = -1, foglio_ = 0;
    QComboBox *scelta_lavoro_ = nullptr, *zoom_ = nullptr;
    QPushButton *prima_ = nullptr, *indietro_ = nullptr, *avanti_ = nullptr, *ultima_ = nullptr;
    QPushButton *stampa_ = nullptr, *salva_ = nullptr;
    QSpinBox* numero_ = nullptr;
    QLabel* quanti_ = nullptr;
    QScrollArea* area_ = nullptr;
    FoglioAnteprima* vista_ = nullptr;
};

}  // namespace ambra
