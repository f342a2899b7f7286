#include "core/disco_blocchi.h"

#include <algorithm>
#include <thread>

#include "core/errori.h"

namespace ambra {

ProvaBlocco Blocchi::prova(Tenuto& t, const std::string& vero, int sezione) {
    // A file that was replaced under its name is another one: a lock on the old one would exclude nobody.
    if (t.file && t.sezioni.empty() && !t.file->sta_ancora_in(vero)) t.file.reset();
    if (!t.file)
        if (const auto p = apri_per_blocchi(vero, t.file); p != ProvaBlocco::preso) return p;
    // Windows would refuse what is one's own already.
    if (t.sezioni.contains(sezione)) return ProvaBlocco::preso;
    const auto p = t.file->prova(sezione);
    if (p == ProvaBlocco::preso) t.sezioni.insert(sezione);
    return p;
}

int Blocchi::blocca(const std::string& chiave, const std::string& vero, int sezione,
                    std::chrono::milliseconds pazienza) {
    using Tempo = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds kPausa{10};
    const auto fine = Tempo::now() + pazienza;
    while (prova(tenuti_[chiave], vero, sezione) == ProvaBlocco::di_altri) {
        const auto resto = std::chrono::ceil<std::chrono::milliseconds>(fine - Tempo::now());
        if (resto <= std::chrono::milliseconds::zero()) return errore::permesso_negato;
        std::this_thread::sleep_for(std::min(kPausa, resto));
    }
    return 0;
}

void Blocchi::sblocca(const std::string& chiave, int sezione) {
    const auto it = tenuti_.find(chiave);
    if (it != tenuti_.end() && it->second.sezioni.erase(sezione) > 0) it->second.file->lascia(sezione);
}

}  // namespace ambra
