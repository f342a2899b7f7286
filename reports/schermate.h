// The screens of this folder, by name.
#pragma once

namespace ambra {

class Registro;

/// Makes the screens of `reports` known to the registry.
void registra_reports(Registro& r);

}  // namespace ambra
