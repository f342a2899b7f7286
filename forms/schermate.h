// The screens of this folder, by name.
#pragma once

namespace ambra {

class Registro;

/// Makes the screens of `forms` known to the registry.
void registra_forms(Registro& r);

}  // namespace ambra
