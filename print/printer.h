// The printer as the programs of old knew it: a pen with a font, a position and a scale.
//
// Properties are plain members; a device implements the operations. Coordinates are in the scale in force,
// twips (1/1440 inch) or millimetres, from the upper left corner of the sheet. Texts are Windows-1252.
// An operation that fails throws PrinterFault; whoever drives a job decides what that abandons.
#pragma once

#include <string>
#include <string_view>

namespace ambra {

namespace rtf {
struct Documento;
}

enum class Orientamento { verticale = 1, orizzontale = 2 };
enum class Scala { twip = 1, millimetri = 6 };

constexpr double kTwipPerMm = 1440 / 25.4;
constexpr double kTwipPerPunto = 20;

/// A font as the dialogs and the printer speak of it.
struct Carattere {
    std::string nome = "Arial";
    double punti = 9;
    bool grassetto = false;
    bool corsivo = false;
    bool operator==(const Carattere&) const = default;
};

struct PrinterFault {};

class Printer {
  public:
    virtual ~Printer() = default;

    Carattere font;
    long fore_color = 0;  ///< RGB number, blue in the high byte
    double current_x = 0;
    double current_y = 0;
    int draw_style = 0;  ///< 0 solid, 2 dotted
    int draw_width = 1;
    int fill_style = 1;          ///< 1 transparent
    std::string document_title;  ///< what the job is called in the spooler and in the name of its PDF

    /// Size of the page in twips, whatever the scale, in the orientation in force.
    virtual double width() const = 0;
    virtual double height() const = 0;

    Scala scale_mode() const { return scala_; }
    virtual void scale_mode(Scala s) { scala_ = s; }
    Orientamento orientation() const { return orientamento_; }
    virtual void orientation(Orientamento o) { orientamento_ = o; }

    /// Advance width of a text in the font in force, in the scale in force.
    virtual double text_width(std::string_view testo) = 0;
    /// Writes at the current position; the pen then stands at x 0 of the next line, for an empty text too.
    virtual void print(std::string_view testo) = 0;
    virtual void line(double x1, double y1, double x2, double y2, long colore) = 0;
    virtual void box(double x1, double y1, double x2, double y2, long colore) = 0;
    virtual void filled_box(double x1, double y1, double x2, double y2, long colore) = 0;
    /// Sends a whole rich-text document, from a new page on.
    virtual void rich_text(const rtf::Documento& documento) = 0;
    /// Ends the page in hand, blank or not.
    virtual void new_page() = 0;
    /// Ends the job. A last page with nothing on it is dropped; a job without a page prints nothing.
    virtual void end_doc() = 0;
    /// Many jobs follow, up to `end_run`: a device may gather them, and then tells of each somewhat later.
    virtual void begin_run() {}
    virtual void end_run() {}

  protected:
    /// Twips of one unit of the scale in force.
    double twip_per_unita() const { return scala_ == Scala::twip ? 1 : kTwipPerMm; }

  private:
    Scala scala_ = Scala::twip;
    Orientamento orientamento_ = Orientamento::verticale;
};

}  // namespace ambra
