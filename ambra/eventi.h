// The events of a batch: one JSON object a line, in the order in which things happen.
#pragma once

#include <iosfwd>
#include <string>

#include "core/disco_attento.h"
#include "print/registratore.h"
#include "screen/platform.h"
#include "screen/programma.h"

namespace ambra {

/// Texts are those of the program, Windows-1252, unless a parameter says UTF-8.
class Eventi {
  public:
    explicit Eventi(std::ostream& dove) : dove_(dove) {}

    void inizio();
    void fine();
    /// A screen opens, goes or is activated; one that only comes to the front is no event.
    void schermo(Registro::Evento e, const Schermo& s);
    /// The screens that are loaded.
    void schermi(const Registro& tutti);
    void mostra(const Schermo& s);
    void mostra(const Schermo& s, const Controllo& c);
    /// `risposta` is the word of the script.
    void messaggio(const std::string& titolo, const std::string& testo, Icona icona, Bottoni bottoni,
                   const std::string& risposta);
    /// `risposta` is UTF-8, as the script gave it.
    void dialogo(const char* genere, const std::string& risposta);
    void documento(const std::string& percorso, int esito);
    void stampa(const LavoroStampa& lavoro, int numero);
    void nota(const std::string& testo);
    void guasto(const Guasto& g);
    /// `testo` is UTF-8 as far as the script was.
    void sbaglio(int riga, const std::string& testo);
    /// What was told reaches whoever reads.
    void svuota();

  private:
    std::ostream& dove_;
};

}  // namespace ambra
