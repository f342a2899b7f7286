// vexoraf, the main screen: the worklist of all documents of the building and the tree of commands.
#pragma once

#include <array>

#include "records/fattura.h"
#include "records/totali.h"
#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Vexoraf : public Schermo {
  public:
    explicit Vexoraf(Programma& p);

    Etichetta stabili, xx_versione;
    std::array<Etichetta, 10> srx;
    Griglia elenco;
    std::array<Bottone, 4> command3d2;
    Bottone command3d1, stampante, Label2, indice;

    /// Rebuilds the list from the archive, in record order.
    void aggiornalista();
    /// Rewrites the invoice file in date order without the deleted documents.
    void riordino();

    /// Data rows of the list and its heading row; the filler rows below are not counted.
    int righe = 1;
    RecFattura fattura{};
    RecTotali totali{};

  private:
    void prepara_elenco();
    void ordina(int etichetta);
    void clic(int riga, int colonna);
    void apri(int chiave, const char* schermo);
    void elimina(int chiave);
    void salda(int chiave, bool azzera);
    void mostra_documento(long record);
    int riga_di(long record) const;
    DocumentoInMano::Esito cambia(int chiave, const DocumentoInMano::Campi& c,
                                  DocumentoInMano::Contatori quali = DocumentoInMano::Contatori::nessuno);

    void radice();
    void livello(const std::array<const char*, 7>& captions);
    void comando(const std::string& caption);
    void fine();

    DocumentiVisti visti_{prog.arc};  ///< the document of each row, by its key
};

}  // namespace ambra
