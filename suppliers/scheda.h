// The fields of one supplier on a screen: filled from a record, read back into one.
//
// The register edits them, the picker only shows them. What was shown last is remembered, so that a screen
// that refuses an edit can put it back.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "records/fornitore.h"
#include "screen/schermo.h"

namespace ambra {

struct SchedaFornitore {
    SchedaFornitore();

    std::array<CampoTesto, 24> Text2;
    std::array<Opzione, 2> Sesso;
    std::array<Casella, 3> indeti;
    Lista Combo1;
    Etichetta Label2;  ///< the warning over a deleted supplier
    std::array<Etichetta, 3> frame;

    /// Registers the first group, registered office and tax data.
    void registra_sede_legale(Schermo& s);
    /// The second, administrative office and the rest.
    void registra_sede_amministrativa(Schermo& s);
    /// The third, accounting data; a grid of accounts may follow.
    void registra_contabili(Schermo& s);

    /// All controls that belong to the supplier.
    void per_ogni_campo(const std::function<void(Controllo&)>& f);
    /// A user's edit or click in any field.
    void toccato(const std::function<void()>& f);

    /// The 40 payment terms, blank ones included.
    void carica_termini(Programma& prog);
    void mostra(const RecFornitore& f);
    /// `Text2(23)` and the payment term keep what they hold.
    void svuota();
    /// Puts back what was shown last.
    void ripristina();
    /// Each text as it is, cut or padded; the supplier is live afterwards. Account and reserved bytes stay.
    void in_record(RecFornitore& f) const;

  private:
    struct Valori {
        std::array<std::string, 24> testi;
        std::array<bool, 3> caselle{};
        int sesso = 0;
        int termine = 0;
    };
    void ricorda();
    Valori mostrati_;
};

/// Whether the record is a live supplier's.
inline bool vivo(const RecFornitore& f) {
    return f.cancellata == 0;
}

/// The mail address, one value over two fields.
std::string email(const RecFornitore& f);
void email(RecFornitore& f, std::string_view indirizzo);

}  // namespace ambra
