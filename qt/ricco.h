// A rich-text document laid out in pages, ready for any device. All lengths are twips.
#pragma once

#include <QPainter>
#include <QSizeF>
#include <memory>

#include "print/rtf.h"

namespace ambra {

class ImpaginatoRicco {
  public:
    /// `carta` is the sheet of the printer, for a document that names none of its own.
    ImpaginatoRicco(const rtf::Documento& documento, QSizeF carta);
    ~ImpaginatoRicco();

    int pagine() const;
    QSizeF foglio() const;
    /// Draws page `n`, from 0, with its upper left corner at the painter's origin.
    void disegna(QPainter& p, int n) const;

  private:
    struct Dentro;
    std::unique_ptr<Dentro> d_;
};

}  // namespace ambra
