// What else can be asked of a row of the worklist.
#include "worklist/vexoraf.h"

namespace ambra {

const VoceElenco* Vexoraf::voce(int riga) const {
    const long chiave = elenco.chiave(riga);
    return chiave < 1 || chiave > static_cast<long>(sotto_.voci.size())
               ? nullptr
               : &sotto_.voci[static_cast<std::size_t>(chiave - 1)];
}

std::optional<RecFattura> Vexoraf::documento(int riga) {
    RecFattura f{};
    if (sotto_.visti.ritrova(static_cast<int>(elenco.chiave(riga)), f) == 0) return {};
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
    return azzerati_.di(sotto_.visti.posto(static_cast<int>(elenco.chiave(riga))));
}

void Vexoraf::rimetti_saldo(int riga) {
    if (!prog.chiedi_prudente("Confermi il ripristino del precedente saldo della fattura?", "Attenzione"))
        return;
    const Clessidra attesa(prog);
    prog.riferisci(azzerati_.rimetti(sotto_.visti.posto(static_cast<int>(elenco.chiave(riga)))));
}

}  // namespace ambra
