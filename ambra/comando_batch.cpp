#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>

#include "ambra/batch.h"
#include "ambra/comandi.h"
#include "ambra/pdf_batch.h"
#include "core/disco_attento.h"
#include "core/filetesto.h"
#include "core/numeri.h"
#include "core/percorso.h"
#include "core/testo.h"
#include "maintenance/ripristino.h"
#include "parti/parti.h"
#include "qt/tutte.h"

namespace ambra {

namespace {

struct OpzioniBatch {
    std::string drive, oggi, pdf, nnn, script;
};

int esegui_batch(const OpzioniBatch& o) {
    // Without a building nothing else counts, not even an option that makes no sense.
    if (leggi_numero(da_utf8(o.nnn)) == 0) return 0;
    std::error_code nulla;
    if (!o.drive.empty() && !std::filesystem::is_directory(percorso_utf8(o.drive), nulla))
        return non_fatto(o.drive + ": non è una cartella");
    if (std::filesystem::is_directory(percorso_utf8(o.script), nulla))
        return non_fatto(o.script + ": è una cartella");
    std::ifstream da_file;
    if (!o.script.empty()) {
        da_file.open(percorso_utf8(o.script), std::ios::binary);
        if (!da_file) return non_fatto(o.script + ": il file manca o non si legge");
    }
    std::istream& script = o.script.empty() ? std::cin : da_file;
    const auto vero = disco_vero(o.drive.empty() ? radice_corrente() : o.drive);
    DiscoAttento disco(*vero);
    if (const std::string male = ripristino_interrotto(disco); !male.empty()) return non_fatto(a_utf8(male));
    PiattaformaBatch piattaforma(script, std::cout);
    const auto oggi = oggi_di(o.oggi);
    if (!oggi) return non_fatto("non è una data: " + o.oggi);
    piattaforma.oggi(*oggi);
    disco.avviso = [&piattaforma](const Guasto& g) { piattaforma.guasto(g); };
    piattaforma.esiste_documento = [&disco](const std::string& percorso) {
        Errore err;
        return prova_lettura(disco, err, percorso);
    };
    Programma programma(disco, piattaforma, da_utf8(o.nnn));
    std::unique_ptr<PdfBatch> pdf;
    if (!o.pdf.empty()) {
        std::string perche;
        pdf = crea_pdf_batch(o.pdf, perche);
        if (!pdf) return non_fatto(perche);
        pdf->fallito = [&piattaforma](const std::string& male) {
            piattaforma.esito_minimo = non_fatto(male);
        };
        piattaforma.stampato = [&pdf](LavoroStampa&& lavoro, int numero) {
            pdf->aggiungi(std::move(lavoro), numero);
        };
        piattaforma.tornata = [&pdf](bool inizia) { pdf->tornata(inizia); };
    }
    const auto lettore = lettore_a_richiesta();
    programma.lettore = lettore.get();
    registra_tutte(programma.schermi);
    programma.schermi.apri("vexoraf");
    return piattaforma.esegui(programma);
}

}  // namespace

void aggiungi_batch(CLI::App& app, int& stato) {
    auto o = std::make_shared<OpzioniBatch>();
    CLI::App* c = app.add_subcommand("batch", "Esegue uno script di azioni e scrive un evento JSON per riga");
    aggiungi_drive(*c, o->drive);
    c->add_option("--today", o->oggi, "La data di oggi, gg/mm/aaaa")->type_name("DATA");
    c->add_option("--pdf", o->pdf, "Scrive ogni stampa come PDF in questa cartella")->type_name("CARTELLA");
    c->add_option("NNN", o->nnn, "Numero dello stabile");
    c->add_option("SCRIPT", o->script, "File dello script; se manca, lo standard input");
    c->callback([o, &stato] { stato = esegui_batch(*o); });
}

}  // namespace ambra
