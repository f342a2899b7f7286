// The desktop program of one building, put together: drive, printer, platform, screens, windows.
#pragma once

#include <memory>
#include <string>

#include "core/disco_attento.h"
#include "desktop/finestre.h"
#include "desktop/piattaforma_qt.h"
#include "parti/parti.h"
#include "qt/gestore_stampa.h"
#include "qt/stampante_qt.h"

namespace ambra {

/// Whether the archive may be opened; if not, the user has been told why.
bool si_puo_aprire(const std::string& radice);

/// Begins to read the worklist of a building in a thread of its own: it takes as long as the window library
/// to come up. `radice` and `comando` as below.
std::future<std::shared_ptr<ListaAnticipata>> anticipa(const std::string& radice, const std::string& comando);

struct ProgrammaDesktop {
    std::unique_ptr<Disco> vero;
    DiscoAttento disco{*vero};
    StampanteQt stampante;
    GestoreStampa gestore_stampa{stampante};
    PiattaformaQt piattaforma{stampante, &disco};
    std::unique_ptr<LettoreFatture> lettore = lettore_a_richiesta();
    Programma programma;
    Finestre finestre{programma};
    std::unique_ptr<Disco> copie;  ///< the folder of the dated copies; null where there is none

    /// `radice` is the folder that stands for the current drive, `comando` the text of the command line.
    /// `lista` is what `anticipa` began, or nothing. The main window is shown.
    ProgrammaDesktop(std::string radice, std::string comando,
                     std::future<std::shared_ptr<ListaAnticipata>> lista = {});
};

}  // namespace ambra
