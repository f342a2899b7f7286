// The faces of print: each looked up once, with its glyphs and advances by Windows-1252 byte, so that a
// text costs no font matching, no shaping and no measuring of its own.
//
// A face that stands for Arial or Helvetica has the fixed advances of the recorded pages, so that columns
// and cuts come out the same on paper, in a PDF and in a recording. All lengths are twips.
#pragma once

#include <QFont>
#include <QHash>
#include <QList>
#include <QPainter>
#include <QRawFont>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <tuple>

#include "print/printer.h"

namespace ambra {

/// Points that can be printed: what is not a number or not positive becomes 1, what is huge 400.
double punti_stampabili(double punti);
/// For each of the usual faces that is not there, of those of the same measures the first that is; the names
/// of the missing ones in lower case.
QHash<QString, QString> famiglie_sostituite(const std::function<bool(const QString&)>& c_e);
/// The family to draw with for one of that name: a stand-in where this machine has it not, or as a bitmap
/// alone.
QString famiglia_da_disegno(const QString& nome);
/// Whether the face has the advances of Helvetica.
bool somiglia_ad_arial(std::string_view nome);
/// The gap that the face wants under its lines, beyond what the window library gives: some of its versions
/// give none. In the unit of the face's size.
double interlinea_taciuta(const QRawFont& f);
/// The colour of an RGB number with blue in the high byte.
QColor colore_qt(long rgb);
/// The text of the window library.
QString testo_qt(std::string_view testo);
/// Back into the program's text.
std::string testo_di(const QString& s);

/// Glyphs of one face, and where each stands on its base line.
struct Glifi {
    QList<quint32> quali;
    QList<QPointF> dove;
};

class Faccia {
  public:
    explicit Faccia(const Carattere& c);

    double larghezza(std::string_view testo) const;
    double altezza_riga() const { return altezza_; }
    /// Adds the glyphs of a text to those of a run, the upper left corner of its line at x, y. False, and
    /// nothing is added, when the face lacks one of them.
    bool raccogli(Glifi& run, double x, double y, std::string_view testo) const;
    /// Draws a text with glyphs that the face lacks, borrowed by the window library from another one. The
    /// pen's colour is the painter's.
    void disegna_in_prestito(QPainter& p, double x, double y, std::string_view testo) const;
    const QRawFont& grezza() const { return grezza_; }

  private:
    void leggi_glifi();

    QFont font_;
    QRawFont grezza_;
    bool grassetto_;
    bool fissa_;    // advances of Helvetica
    double corpo_;  // size in twips
    double ascendente_ = 0, altezza_ = 0;
    std::array<quint32, 256> glifi_{};
    std::array<double, 256> avanza_{};
};

/// The faces in use. Few live at a time; when too many have been asked for, all go and come again.
class Facce {
  public:
    Faccia& di(const Carattere& c);

  private:
    using Chiave = std::tuple<std::string, double, bool, bool>;
    std::map<Chiave, std::unique_ptr<Faccia>> tutte_;
    Carattere ultimo_;
    Faccia* ultima_ = nullptr;
};

}  // namespace ambra
