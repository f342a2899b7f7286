// The screens of this folder, by name.
#pragma once

namespace ambra {

class Registro;

/// Makes the screens of `suppliers` known to the registry.
void registra_suppliers(Registro& r);

}  // namespace ambra
