// The recording printer: keeps each page as a list of operations, with fixed metrics, so that a layout can
// be tested exactly and replayed on another device. A4, 11906 x 16838 twips upright.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "print/printer.h"

namespace ambra {

struct OperazioneStampa {
    enum class Tipo { testo, linea, riquadro, pieno, testo_ricco };
    Tipo tipo = Tipo::testo;
    Scala unita = Scala::twip;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;  ///< a text stands at x1, y1
    long colore = 0;
    int stile = 0;                                    ///< of a line: 0 solid, 2 dotted
    int spessore = 1;                                 ///< of a line, in dots of the device
    std::string testo;                                ///< of a rich text its plain characters
    std::shared_ptr<const rtf::Documento> documento;  ///< of a rich text
    Carattere font;
};

struct PaginaStampa {
    double larghezza = 0, altezza = 0;  ///< twips
    std::vector<OperazioneStampa> operazioni;
};

struct LavoroStampa {
    std::string titolo;
    Orientamento orientamento = Orientamento::verticale;
    std::vector<PaginaStampa> pagine;
};

class RecordingPrinter : public Printer {
  public:
    /// Takes each finished job that has a page.
    std::function<void(LavoroStampa&&)> finito;

    double width() const override;
    double height() const override;
    double text_width(std::string_view testo) override;
    void print(std::string_view testo) override;
    void line(double x1, double y1, double x2, double y2, long colore) override;
    void box(double x1, double y1, double x2, double y2, long colore) override;
    void filled_box(double x1, double y1, double x2, double y2, long colore) override;
    void rich_text(const rtf::Documento& documento) override;
    void new_page() override;
    void end_doc() override;

  private:
    OperazioneStampa& aggiungi(OperazioneStampa::Tipo t, double x1, double y1, double x2, double y2,
                               long colore);
    PaginaStampa& pagina();

    LavoroStampa lavoro_;
    bool in_pagina_ = false;
};

}  // namespace ambra
