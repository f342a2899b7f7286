#include "core/memoria.h"

namespace ambra {

// Large pages want a right that nobody has there.
void prepara_memoria() {}

}  // namespace ambra
