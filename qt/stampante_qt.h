// The printer of the desktop: paper, PDF files, or pages kept for a preview, all from the same operations.
//
// Pages go to the device as they are drawn, so that a job takes the memory of one page; only a preview
// keeps its pages, as recorded operations.
#pragma once

#include <QPageSize>
#include <QString>
#include <functional>
#include <memory>

#include "print/operazioni.h"
#include "qt/caratteri.h"
#include "qt/uscita.h"

namespace ambra {

/// What "Imposta" chooses, remembered for the run.
struct SceltaStampa {
    QString stampante;     ///< name of the printer; empty: each job becomes a PDF file
    QString cartella_pdf;  ///< where those files go; empty: the user's documents folder
    QPageSize carta{QPageSize::A4};
    bool anteprima = false;  ///< the pages are shown first
};

/// The folder where PDF files of a choice go.
QString cartella_pdf(const SceltaStampa& scelta);
/// Size of an upright sheet in twips.
QSizeF misura_foglio(const QPageSize& carta);
/// Whether the jobs of a choice become PDF files.
bool su_pdf(const SceltaStampa& scelta);
/// The PDF file of the next job of that title; its folder is made.
QString prossimo_pdf(const SceltaStampa& scelta, const std::string& titolo);
/// The device of a choice, and in `file` the path when that is a PDF file.
std::unique_ptr<Uscita> apri_uscita(const SceltaStampa& scelta, const std::string& titolo, QString& file);

class Tiratura;

class StampanteQt : public StampanteAOperazioni {
  public:
    SceltaStampa scelta;

    /// Takes a finished job whose pages are to be shown first.
    std::function<void(LavoroStampa&&)> da_mostrare;
    /// A job went to its device. `file` is the path of its PDF, empty on paper.
    std::function<void(const std::string& titolo, const QString& file, bool riuscito)> stampato;
    /// Page `n` of the job in hand begins.
    std::function<void(const std::string& titolo, int n)> avanza;

    double width() const override;
    double height() const override;
    double text_width(std::string_view testo) override;
    void rich_text(const rtf::Documento& documento) override;
    void new_page() override;
    void end_doc() override;
    /// Jobs of a run that become PDF files are told when a block of them is written.
    void begin_run() override;
    void end_run() override;

  protected:
    void operazione(OperazioneStampa&& o) override;
    void scrivi(std::string_view testo) override;
    double altezza_riga() override;

  private:
    void inizia_lavoro();
    void apri_pagina();
    void nuova_pagina(double larghezza, double altezza);

    Facce facce_;
    bool in_lavoro_ = false, in_pagina_ = false, guasta_ = false;
    bool mostra_ = false,
         registra_ = false;  // the job in hand is shown; its pages are kept, to be drawn later
    int pagine_ = 0;
    std::string titolo_;
    LavoroStampa lavoro_;                 // pages that are kept
    std::unique_ptr<Tiratura> tiratura_;  // of a run
    std::unique_ptr<Uscita> uscita_;      // otherwise where they go
    QString file_;
    QPainter* painter_ = nullptr;
    std::unique_ptr<class Pittore> pittore_;

  public:
    StampanteQt();
    ~StampanteQt() override;
};

}  // namespace ambra
