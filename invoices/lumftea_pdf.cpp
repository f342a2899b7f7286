// The PDF attached to a document: its path is stored, the file itself stays where it is.
#include "core/numeri.h"
#include "core/testo.h"
#include "invoices/lumftea.h"

namespace ambra {

namespace {

constexpr int kPrimoSuccesso = 33;

std::string causa(int esito) {
    switch (esito) {
        case 2:
            return "File PDF non trovato";
        case 3:
            return "Cartella o Percorso non trovato";
        case 5:
            return "Accesso negato";
        case 8:
            return "Memoria esaurita";
        case 31:
            return "Programma Acrobat Reader non installato o non disponibile";
        case 32:
            return "DLL non trovata";
        default:
            return "Errore sconosciuto";
    }
}

}  // namespace

void Lumftea::vista_pdf(bool dentro) {
    const bool esistente = !nuova();
    command3d1[0].visible(!dentro);
    command3d1[2].visible(!dentro && esistente);
    command3d1[3].visible(!dentro && esistente);
    command3d1[5].visible(!dentro);
    command3d1[1].caption(dentro ? "Indietro" : "Annulla");
    pdf.visible(dentro);
    Label2.visible(dentro);
    for (auto& b : Command3) {
        b.visible(dentro);
        b.enabled(dentro);
    }
    fuoco(dentro ? static_cast<Controllo&>(Command3[1]) : Text2[0]);
}

void Lumftea::annulla() {
    if (command3d1[1].caption() == "Indietro") return vista_pdf(false);
    chiudi();
}

void Lumftea::seleziona_pdf() {
    const auto scelto = prog.piattaforma.open_file("Seleziona PDF", "*.pdf");
    if (!scelto) return;
    const std::string percorso(rifila(*scelto));
    if (maiuscolo(percorso).find("PDF") == std::string::npos || percorso.find('*') != std::string::npos)
        return;
    pdf.testo(percorso);
}

void Lumftea::apri_pdf() {
    const int esito = prog.piattaforma.open_document(std::string(rifila(pdf.testo())));
    if (esito >= kPrimoSuccesso) return;
    prog.ferma(unisci("Si è verificato l'errore"_it, testo_con_segno(esito), " - ", causa(esito)), "ApriPDF");
}

}  // namespace ambra
