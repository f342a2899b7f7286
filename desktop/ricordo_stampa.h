// The print set-up that a user chose, kept for the next time.
#pragma once

namespace ambra {

class StampanteQt;

void ricorda_stampa(const StampanteQt& stampante);
/// A printer that is no more leaves the PDF file.
void riprendi_stampa(StampanteQt& stampante);

}  // namespace ambra
