// A print job as a list of operations a page, and the printers that make one of each stroke of the pen.
#pragma once

#include <memory>
#include <string>
#include <string_view>
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

/// What the devices that work by operations share: the pen, told in operations.
class StampanteAOperazioni : public Printer {
  public:
    void print(std::string_view testo) override;
    void line(double x1, double y1, double x2, double y2, long colore) override;
    void box(double x1, double y1, double x2, double y2, long colore) override;
    void filled_box(double x1, double y1, double x2, double y2, long colore) override;

  protected:
    /// Takes an operation of the page in hand, which is begun if there is none.
    virtual void operazione(OperazioneStampa&& o) = 0;
    /// Takes a text, not empty, at the current position.
    virtual void scrivi(std::string_view testo);
    /// From one line of the font in force to the next, in twips.
    virtual double altezza_riga() = 0;

  private:
    OperazioneStampa nuova(OperazioneStampa::Tipo t, double x1, double y1, double x2, double y2,
                           long colore) const;
};

}  // namespace ambra
