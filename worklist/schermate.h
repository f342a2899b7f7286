// The screens of this folder, by name.
#pragma once

namespace ambra {

class Registro;

/// Makes the screens of `worklist` known to the registry.
void registra_worklist(Registro& r);

}  // namespace ambra
