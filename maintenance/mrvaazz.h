// mrvaazz, "Azzeramento archivi": the yearly clearing. Removes for good every document registered before a
// date, paid or not, and closes the gaps in place.
//
// The family of this screen has nine boxes; here only the one of index 8 is offered.
#pragma once

#include <array>

#include "screen/programma.h"
#include "screen/schermo.h"

namespace ambra {

class Mrvaazz : public Schermo {
  public:
    explicit Mrvaazz(Programma& p);

    Etichetta avvertenza, e_data, msg;
    Casella azz8;
    CampoData text1_6{CampoData::Altro::intatto};
    std::array<Bottone, 2> command3d4;  ///< 0 "Annulla", 1 "Azzera"

  private:
    void azzera();
    bool data_buona();
    /// False: another program holds the archive, and nothing was done.
    bool esegui();
};

}  // namespace ambra
