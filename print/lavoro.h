// One job of a printer: whatever happens meanwhile it is ended, and the printer is left as it was.
#pragma once

#include <string>

#include "print/printer.h"

namespace ambra {

class Lavoro {
  public:
    explicit Lavoro(Printer& p)
        : p_(p), font_(p.font), colore_(p.fore_color), scala_(p.scale_mode()), titolo_(p.document_title) {}
    ~Lavoro() {
        try {
            p_.end_doc();  // nothing, where the job ended well
        } catch (const PrinterFault&) {
        }
        p_.font = font_;
        p_.fore_color = colore_;
        p_.scale_mode(scala_);
        p_.document_title = titolo_;
    }
    Lavoro(const Lavoro&) = delete;
    Lavoro& operator=(const Lavoro&) = delete;

  private:
    Printer& p_;
    Carattere font_;
    long colore_;
    Scala scala_;
    std::string titolo_;
};

}  // namespace ambra
