// The screens of this folder, by name.
#pragma once

namespace ambra {

class Registro;

/// Makes the screens of `invoices` known to the registry.
void registra_invoices(Registro& r);

}  // namespace ambra
