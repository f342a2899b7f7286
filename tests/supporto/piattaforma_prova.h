// The platform of the unit tests: answers are queued, what would be shown is kept.
#pragma once

#include <cassert>
#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "print/registratore.h"
#include "screen/platform.h"

namespace ambra {

/// What `end` throws, so that a test survives the end of its program.
struct FineProcesso {};

class PiattaformaProva : public Platform {
  public:
    PiattaformaProva() {
        stampante.finito = [this](LavoroStampa&& l) { lavori.push_back(std::move(l)); };
    }

    struct Messaggio {
        std::string testo, titolo;
        Icona icona;
        Bottoni bottoni;
        Risposta prescelta = Risposta::si;
    };
    std::vector<Messaggio> messaggi;
    std::deque<Risposta> risposte;  ///< an empty queue answers no, or OK where there is only OK
    std::deque<std::optional<std::string>> file;
    std::deque<std::optional<Carattere>> caratteri;
    std::deque<std::optional<long>> colori;
    std::deque<std::optional<Orientamento>> stampanti;
    std::vector<std::string> documenti;
    int esito_documento = 33;
    Data oggi{15, 3, 2024};
    std::function<int()> sezioni_prese;  ///< how many the program holds: none while a user is waited for
    std::function<void(const std::string&)> mentre_chiede;  ///< what goes on while a message stands
    std::deque<std::function<void()>> attese;               ///< what the user does when a screen waits
    int rinfreschi = 0;
    Puntatore puntatore = Puntatore::normale;
    RecordingPrinter stampante;
    std::vector<LavoroStampa> lavori;

    Risposta message_box(const std::string& testo, const std::string& titolo, Icona icona, Bottoni bottoni,
                         Risposta prescelta) override {
        messaggi.push_back({testo, titolo, icona, bottoni, prescelta});
        assert(!sezioni_prese || sezioni_prese() == 0);
        if (mentre_chiede) mentre_chiede(testo);
        return prendi(risposte, bottoni == Bottoni::ok ? Risposta::ok : Risposta::no);
    }
    std::optional<std::string> open_file(const std::string&, const std::string&) override {
        return prendi(file, {});
    }
    std::optional<std::string> open_folder(const std::string&) override { return prendi(file, {}); }
    std::optional<Carattere> choose_font(const std::string&, const Carattere&) override {
        return prendi(caratteri, {});
    }
    std::optional<long> choose_colour(const std::string&, long) override { return prendi(colori, {}); }
    bool printer_setup() override {
        const auto o = prendi(stampanti, {});
        if (o) stampante.orientation(*o);
        return o.has_value();
    }
    int open_document(const std::string& percorso) override {
        documenti.push_back(percorso);
        return esito_documento;
    }
    Data today() override { return oggi; }
    void refresh() override { ++rinfreschi; }
    void wait_event() override {
        assert(!sezioni_prese || sezioni_prese() == 0);
        if (attese.empty()) throw FineProcesso{};
        auto f = std::move(attese.front());
        attese.pop_front();
        f();
    }
    void pointer(Puntatore p) override { puntatore = p; }
    [[noreturn]] void end() override { throw FineProcesso{}; }
    Printer& printer() override { return stampante; }

  private:
    template <class T>
    static T prendi(std::deque<T>& coda, T altrimenti) {
        if (coda.empty()) return altrimenti;
        T t = std::move(coda.front());
        coda.pop_front();
        return t;
    }
};

}  // namespace ambra
