// How the program takes its memory from the system.
#pragma once

namespace ambra {

/// To be called before anything else: the first 32 MB of the heap come from the system in large pages, where
/// it has them. In small ones the system takes a sixth of the start for handing them out.
void prepara_memoria();

}  // namespace ambra
