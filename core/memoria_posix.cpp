#include "core/memoria.h"

#include <cstdint>
#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>
#endif

namespace ambra {

#ifdef __GLIBC__

void prepara_memoria() {
    constexpr int kRiserva = 32 << 20, kAvanzo = 128 << 10;
    // One heap for all threads. The arrays of a full list belong to it as well, and what it has it keeps.
    mallopt(M_ARENA_MAX, 1);
    mallopt(M_MMAP_THRESHOLD, kRiserva);
    mallopt(M_TRIM_THRESHOLD, 2 * kRiserva);
    mallopt(M_TOP_PAD, kRiserva);
    void* primo = std::malloc(2 * kAvanzo);  // more than is left of what came before: the heap grows
    const auto pagina = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const auto fine = reinterpret_cast<std::uintptr_t>(sbrk(0));
    const auto da = (reinterpret_cast<std::uintptr_t>(primo) + pagina) & ~(pagina - 1);
    // Refused, it stays as it was: small pages.
    if (fine > da) madvise(reinterpret_cast<void*>(da), fine - da, MADV_HUGEPAGE);
    mallopt(M_TOP_PAD, kAvanzo);
    std::free(primo);
}

#else

void prepara_memoria() {}

#endif

}  // namespace ambra
