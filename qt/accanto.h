// Where a window that only helps is put: beside the work, not over it.
#pragma once

class QWidget;

namespace ambra {

/// Moves a window that is about to be shown to the right of the active one, as far as the display goes.
void metti_accanto(QWidget& w);

}  // namespace ambra
