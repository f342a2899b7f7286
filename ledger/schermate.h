// The screens of this folder, by name.
#pragma once

namespace ambra {

class Registro;

/// Makes the screens of `ledger` known to the registry.
void registra_ledger(Registro& r);

}  // namespace ambra
