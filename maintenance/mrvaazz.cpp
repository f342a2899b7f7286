#include "maintenance/mrvaazz.h"

#include "archivio/azzeramento.h"
#include "core/testo.h"

namespace ambra {

namespace {
const std::string kTitolo = "Azzeramento archivi";
}

Mrvaazz::Mrvaazz(Programma& p) : Schermo(p, "mrvaazz", kTitolo) {
    aggiungi("avvertenza", avvertenza,
             "Seleziona gli archivi da azzerare abilitando l'apposita casella di controllo e compila il "
             "campo data (se previsto)");
    aggiungi("azz(8)", azz8, "Fatture ricevute");
    aggiungi("e_data", e_data, "Elimina le fatture ricevute registrate prima del:");
    aggiungi("text1(6)", text1_6);
    aggiungi("msg", msg);
    aggiungi("command3d4(1)", command3d4[1], "Azzera");
    aggiungi("command3d4(0)", command3d4[0], "Annulla");

    text1_6.testo("01/01/" + p.anno_corrente());
    command3d4[0].premuto = [this] { prog.schermi.chiudi(nome()); };
    command3d4[1].premuto = [this] { azzera(); };
}

bool Mrvaazz::data_buona() {
    text1_6.testo(std::string(rifila(text1_6.testo())));
    return text1_6.testo().size() == 10 && data_valida(text1_6.testo()).has_value();
}

void Mrvaazz::azzera() {
    if (azz8.spuntata() && !data_buona()) {
        prog.ferma("La data di azzeramento per uno degli archivi selezionati non è valida"_it);
        return fuoco(text1_6);
    }
    if (prog.chiedi_prudente("Confermi l'azzeramento degli archivi selezionati?", kTitolo) &&
        prog.chiedi_prudente("Sei proprio sicuro?", kTitolo)) {
        if (!esegui()) return prog.riferisci_occupato();
        msg.caption("");
        prog.informa("Operazione effettuata", kTitolo);
    }
    prog.schermi.chiudi(nome());
}

bool Mrvaazz::esegui() {
    const Clessidra attesa(prog);
    if (!azz8.spuntata()) return true;
    prog.err.azzera();
    msg.caption("Azzero l'archivio fatture ricevute");
    prog.piattaforma.refresh();
    const std::string& d = text1_6.testo();
    return azzera_prima_di(prog.arc, unisci(medio(d, 7, 4), medio(d, 4, 2), medio(d, 1, 2)));
}

}  // namespace ambra
