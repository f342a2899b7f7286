// The screens of this folder, by name.
#pragma once

namespace ambra {

class Registro;

/// Makes the screens of `maintenance` known to the registry.
void registra_maintenance(Registro& r);

}  // namespace ambra
