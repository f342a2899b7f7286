// What else can be asked of a row of the worklist.
#include "worklist/vexoraf.h"

namespace ambra {

const VoceElenco* Vexoraf::voce(int riga) const {
    const long chiave = elenco.chiave(riga);
    return chiave < 1 || chiave > static_cast<long>(voci_.size())
               ? nullptr
               : &voci_[static_cast<std::size_t>(chiave - 1)];
}

std::optional<RecFattura> Vexoraf::documento(int riga) {
    RecFattura f{};
    if (visti_.ritrova(static_cast<int>(elenco.chiave(riga)), f) == 0) return {};
    return f;
}

void Vexoraf::ripristina(int riga) {
    const auto f = documento(riga);
    if (!f || f->cancellata != 1) {
        prog.riferisci(DocumentoInMano::Esito::sparito);
        return;
    }
    if (!prog.chiedi_prudente("Confermi il ripristino della fattura?", "Attenzione")) return;
    prog.riferisci(
        cambia(static_cast<int>(elenco.chiave(riga)), segna_viva, DocumentoInMano::Contatori::modifica));
}

bool Vexoraf::azzerata(int riga) const {
    return azzerati_.di(visti_.posto(static_cast<int>(elenco.chiave(riga))));
}

void Vexoraf::rimetti_saldo(int riga) {
    if (!prog.chiedi_prudente("Confermi il ripristino del precedente saldo della fattura?", "Attenzione"))
        return;
    const Clessidra attesa(prog);
    prog.riferisci(azzerati_.rimetti(visti_.posto(static_cast<int>(elenco.chiave(riga)))));
}

}  // namespace ambra
