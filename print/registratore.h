// The recording printer: keeps each page as a list of operations, with fixed metrics, so that a layout can
// be tested exactly and replayed on another device. A4, 11906 x 16838 twips upright.
#pragma once

#include <functional>

#include "print/operazioni.h"

namespace ambra {

class RecordingPrinter : public StampanteAOperazioni {
  public:
    /// Takes each finished job that has a page.
    std::function<void(LavoroStampa&&)> finito;
    /// A run of jobs begins (true) or has ended.
    std::function<void(bool)> tornata;

    double width() const override;
    double height() const override;
    double text_width(std::string_view testo) override;
    void rich_text(const rtf::Documento& documento) override;
    void new_page() override;
    void end_doc() override;
    void begin_run() override;
    void end_run() override;

  protected:
    void operazione(OperazioneStampa&& o) override;
    double altezza_riga() override;

  private:
    PaginaStampa& pagina();

    LavoroStampa lavoro_;
    bool in_pagina_ = false;
};

}  // namespace ambra
