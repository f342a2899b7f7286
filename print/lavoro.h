// One job of a printer: whatever happens meanwhile it is ended, and the printer is left as it was. A run of
// jobs.
#pragma once

#include <string>

#include "print/printer.h"

namespace ambra {

class Lavoro {
  public:
    explicit Lavoro(Printer& p)
        : p_(p), font_(p.font), colore_(p.fore_color), scala_(p.scale_mode()), titolo_(p.document_title) {}
    ~Lavoro() {
        // Nothing is left to end where the job ended well. A printer that refuses is told once more: what
        // stayed open would come out with the next job.
        if (!finisci()) finisci();
        p_.font = font_;
        p_.fore_color = colore_;
        p_.scale_mode(scala_);
        p_.document_title = titolo_;
    }
    Lavoro(const Lavoro&) = delete;
    Lavoro& operator=(const Lavoro&) = delete;

  private:
    bool finisci() {
        try {
            p_.end_doc();
        } catch (const PrinterFault&) {
            return false;
        }
        return true;
    }

    Printer& p_;
    Carattere font_;
    long colore_;
    Scala scala_;
    std::string titolo_;
};

/// The jobs made meanwhile are one run.
class Tornata {
  public:
    explicit Tornata(Printer& p) : p_(p) { p_.begin_run(); }
    ~Tornata() { p_.end_run(); }
    Tornata(const Tornata&) = delete;
    Tornata& operator=(const Tornata&) = delete;

  private:
    Printer& p_;
};

}  // namespace ambra
