#include "reports/esporta.h"

#include "core/lettura.h"
#include "core/numeri.h"
#include "core/testo.h"

namespace ambra {

namespace {

// Quoted fields at their full width, blanks and quotes within as they stand; the total last, unquoted.
std::string linea(const DatiQuadro& d, const RecFornitore& f, const std::string& totale) {
    const std::string campi[] = {d.stabile2.codfisc.testo(),
                                 d.stabile.nome.testo(),
                                 d.stabile.cittastab.testo(),
                                 "",
                                 d.stabile.indirizzo.testo(),
                                 f.codfis.testo(),
                                 f.inte1.testo(),
                                 f.inte2.testo(),
                                 f.fisica == 1 ? f.sesso.testo() : "",
                                 f.datanas.testo(),
                                 f.luogonas.testo(),
                                 f.provnas.testo(),
                                 f.citta.testo(),
                                 f.prov.testo(),
                                 f.indir.testo(),
                                 f.sigla.testo()};
    std::string r;
    for (const auto& c : campi) r.append("\"").append(c).append("\",");
    return r.append(totale).append("\r\n");
}

}  // namespace

std::string file_esportazione(const Programma& prog) {
    return "a:lumxp" + prog.nnn() + ".txt";
}

void esporta(Programma& prog, const DatiQuadro& dati, const std::vector<RigaQuadro>& righe) {
    prog.err.azzera();
    const std::string percorso = file_esportazione(prog);
    // Where no diskette drive exists its folder is made now; usually it is already there.
    (void)prog.disco.crea_cartella("a:");
    const bool aperto = prog.err.esito(prog.disco.scrivi_tutto(percorso, ""));
    Schedario<RecFornitore> schede(prog.arc.fornitori);
    RecFornitore f{};
    std::string tutto;
    for (const RigaQuadro& r : righe) {
        leggi_o_resta(schede, r.fornitore, f);
        if (aperto)
            tutto += linea(dati, f, prog.fmtimporto(valimporto_di(r.importo)));
        else
            prog.err.esito(errore::numero_file);
    }
    if (aperto && !tutto.empty()) prog.err.esito(prog.disco.scrivi_tutto(percorso, tutto));
}

}  // namespace ambra
