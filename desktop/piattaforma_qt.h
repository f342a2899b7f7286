// The platform of the desktop program: message boxes and dialogs in Italian, documents, the event loop.
#pragma once

#include <functional>

#include "screen/platform.h"

class QWidget;

namespace ambra {

class Disco;

class PiattaformaQt : public Platform {
  public:
    /// `disco` tells where the paths of the system lie; without one they are taken as they stand.
    explicit PiattaformaQt(Printer& stampante, Disco* disco = nullptr)
        : stampante_(stampante), disco_(disco) {}

    /// The dialog of "Imposta"; true when confirmed.
    std::function<bool(QWidget* padre)> imposta_stampante;
    /// Runs before the process ends.
    std::function<void()> prima_della_fine;
    /// Ends the process; must not return. Tests put their own here.
    std::function<void()> fine;

    Risposta message_box(const std::string& testo, const std::string& titolo, Icona icona, Bottoni bottoni,
                         Risposta prescelta) override;
    std::optional<std::string> open_file(const std::string& titolo, const std::string& modello) override;
    std::optional<std::string> open_folder(const std::string& titolo) override;
    std::optional<Carattere> choose_font(const std::string& titolo, const Carattere& ora) override;
    std::optional<long> choose_colour(const std::string& titolo, long ora) override;
    bool printer_setup() override;
    int open_document(const std::string& percorso) override;
    Data today() override;
    void refresh() override;
    void wait_event() override;
    void pointer(Puntatore p) override;
    [[noreturn]] void end() override;
    Printer& printer() override { return stampante_; }

  private:
    Printer& stampante_;
    Disco* disco_;
    bool clessidra_ = false;
};

}  // namespace ambra
