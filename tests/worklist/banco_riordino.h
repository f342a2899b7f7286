// What tests of the reorganisation work with: documents in a row, the button pressed, what came of it.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "archivio/riordino.h"
#include "core/testo.h"
#include "tests/supporto/banco.h"
#include "worklist/vexoraf.h"

namespace ambra {

inline RecFattura documento(const std::string& numero, const std::string& datareg, bool cancellata = false) {
    RecFattura f = fattura_vuota();
    f.numdoc = numero;
    f.datareg = datareg;
    f.cancellata = cancellata ? 1 : 0;
    return f;
}

// The numbers of the documents of a file, record by record.
inline std::vector<std::string> numeri(const std::string& file) {
    std::vector<std::string> r;
    for (std::size_t i = 0; i + sizeof(RecFattura) <= file.size(); i += sizeof(RecFattura))
        r.emplace_back(rifila(std::string_view(file).substr(i + offsetof(RecFattura, numdoc), 10)));
    return r;
}

inline int contatore(Banco& b) {
    RecTotali t{};
    std::memcpy(&t, b.file("tfr").data() + sizeof t, sizeof t);
    return t.parola[0];
}

struct BancoRiordino : Banco {
    Vexoraf& schermo_principale() { return static_cast<Vexoraf&>(*prog.schermi.caricato("vexoraf")); }
    void riordina(bool conferma = true) {
        piattaforma.risposte = {conferma ? Risposta::si : Risposta::no};
        piattaforma.messaggi.clear();
        schermo_principale().riordino();
    }
    // The text of the message that followed the question, or "".
    std::string guasto() const {
        if (piattaforma.messaggi.size() < 2) return "";
        const auto& m = piattaforma.messaggi.back();
        EXPECT_EQ(m.titolo, "Attenzione");
        EXPECT_EQ(m.icona, Icona::stop);
        EXPECT_EQ(m.bottoni, Bottoni::ok);
        return a_utf8(m.testo);
    }
};

// ---- what a failure tells: the number, then the stage ----

inline const std::string kCoda =
    " Probabilmente qualche applicazione non è stata chiusa correttamente oppure qualche computer della rete "
    "sta utilizzando Lumeria. Verificate ed eventualmente riavviate Windows.";
inline const std::string kCaricamento =
    " durante la procedura di caricamento in memoria del dati da riordinare." + kCoda;
inline const std::string kRiordino =
    " durante la procedura di riordino dei dati in memoria del dati da riordinare." + kCoda;
inline const std::string kDuplicazione = " durante la procedura di duplicazione del file indici." + kCoda;
inline const std::string kApertura = " durante la procedura di apertura del file indici." + kCoda;
inline const std::string kSalvataggio = " durante la procedura di salvataggio dei dati riordinati." + kCoda;

inline std::string errore_n(int n) {
    return "Si è verificato l'errore " + std::to_string(n);
}

}  // namespace ambra
