// Files and folders dropped onto a window, for the list of electronic invoices.
#pragma once

namespace ambra {

class Finestra;

/// From now on what is dropped onto the window goes into `mrvxml`, which is opened for it.
void accetta_fatture(Finestra& f);

}  // namespace ambra
