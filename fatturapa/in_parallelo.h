// Work that splits, on the processors that there are.
#pragma once

#include <cstddef>
#include <functional>

namespace ambra::fatturapa {

/// Runs `lavora` on `fili` threads at once, this one among them, though never on more than a few nor on more
/// than there are processors; returns when all have ended. `lavora` shares the work out by itself and must
/// not throw.
void in_parallelo(std::size_t fili, const std::function<void()>& lavora);

}  // namespace ambra::fatturapa
