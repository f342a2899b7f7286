#include "archivio/visti.h"

namespace ambra {

int DocumentiVisti::aggiungi(long n, const RecFattura& f) {
    voci_.push_back({n, Impronta::di(f)});
    return static_cast<int>(voci_.size());
}

long DocumentiVisti::posto(int chiave) const {
    if (chiave < 1 || chiave > static_cast<int>(voci_.size())) return 0;
    return voci_[static_cast<std::size_t>(chiave - 1)].posto;
}

long DocumentiVisti::ritrova(int chiave, RecFattura& f) {
    if (chiave < 1 || chiave > static_cast<int>(voci_.size())) return 0;
    Voce& v = voci_[static_cast<std::size_t>(chiave - 1)];
    if (v.posto == 0) return 0;
    const long quante = quante_fatture(arc_);
    if (v.posto >= 1 && v.posto <= quante && leggi(arc_.ftr, v.posto, f) &&
        Impronta::di(f).stesso_documento(v.impronta))
        return v.posto;
    const long qui = cerca(v.impronta, quante);
    if (qui == 0 || !leggi(arc_.ftr, qui, f)) return 0;
    v.posto = qui;
    return qui;
}

long DocumentiVisti::cerca(const Impronta& i, long quante) const {
    long simile = 0, uguale = 0;
    int simili = 0, uguali = 0;
    Passata<RecFattura> documenti(arc_.ftr);
    for (long n = 1; n <= quante; ++n) {
        const RecFattura* f = documenti.vista(n);
        if (!f) continue;
        const Impronta qui = Impronta::di(*f);
        if (!qui.stesso_documento(i)) continue;
        simile = n;
        ++simili;
        if (qui.intero != i.intero) continue;
        uguale = n;
        ++uguali;
    }
    if (simili == 1) return simile;
    return uguali == 1 ? uguale : 0;
}

void DocumentiVisti::scritta(long n, const RecFattura& prima, const RecFattura& dopo) {
    const Impronta vecchia = Impronta::di(prima), nuova = Impronta::di(dopo);
    for (Voce& v : voci_)
        if (v.posto == n && v.impronta.stesso_documento(vecchia)) v.impronta = nuova;
}

void DocumentiVisti::spostate(std::span<const Impronta> vecchi, std::span<const long> nuovi) {
    for (Voce& v : voci_) {
        const auto i = static_cast<std::size_t>(v.posto - 1);
        if (v.posto < 1 || i >= vecchi.size()) continue;
        if (vecchi[i].stesso_documento(v.impronta)) v.posto = nuovi[i];
    }
}

}  // namespace ambra
