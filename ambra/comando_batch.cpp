#include <ctime>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>

#include "ambra/batch.h"
#include "ambra/comandi.h"
#include "ambra/pdf_batch.h"
#include "core/disco_vero.h"
#include "core/filetesto.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "qt/tutte.h"

namespace ambra {

namespace {

struct OpzioniBatch {
    std::string drive, oggi, pdf, nnn, script;
};

int esegui_batch(const OpzioniBatch& o) {
    // Without a building nothing else counts, not even an option that makes no sense.
    if (leggi_numero(da_utf8(o.nnn)) == 0) return 0;
    std::ifstream da_file;
    if (!o.script.empty()) {
        da_file.open(o.script);
        if (!da_file) {
            std::cerr << "ambra: cannot read " << o.script << '\n';
            return 2;
        }
    }
    std::istream& script = o.script.empty() ? std::cin : da_file;
    DiscoVero disco(o.drive.empty() ? DiscoVero::radice_corrente() : o.drive);
    PiattaformaBatch piattaforma(script, std::cout);
    const auto oggi = oggi_di(o.oggi);
    if (!oggi) {
        std::cerr << "ambra: not a date: " << o.oggi << '\n';
        return 2;
    }
    piattaforma.oggi(*oggi);
    piattaforma.esiste_documento = [&disco](const std::string& percorso) {
        Errore err;
        return prova_lettura(disco, err, percorso);
    };
    Programma programma(disco, piattaforma, da_utf8(o.nnn));
    std::unique_ptr<PdfBatch> pdf;
    if (!o.pdf.empty()) {
        std::string perche;
        pdf = crea_pdf_batch(o.pdf, perche);
        if (!pdf) {
            std::cerr << "ambra: " << perche << '\n';
            return 2;
        }
        piattaforma.stampato = [&pdf, &piattaforma](const LavoroStampa& lavoro, int numero) {
            if (pdf->scrivi(lavoro, numero)) return;
            std::cerr << "ambra: cannot write the PDF of job " << numero << '\n';
            piattaforma.esito_minimo = 2;
        };
    }
    registra_tutte(programma.schermi);
    programma.schermi.apri("vexoraf");
    return piattaforma.esegui(programma);
}

}  // namespace

std::optional<Data> oggi_di(const std::string& opzione) {
    if (!opzione.empty()) return data_valida(opzione);
    const std::time_t t = std::time(nullptr);
    std::tm tm{};
    localtime_r(&t, &tm);
    return Data{tm.tm_mday, tm.tm_mon + 1, tm.tm_year + 1900};
}

void aggiungi_batch(CLI::App& app, int& stato) {
    auto o = std::make_shared<OpzioniBatch>();
    CLI::App* c = app.add_subcommand("batch", "Runs a script of user actions, one JSON event a line out");
    c->add_option("--drive", o->drive, "Folder that stands for the current drive");
    c->add_option("--today", o->oggi, "Today's date, dd/mm/yyyy");
    c->add_option("--pdf", o->pdf, "Writes each print job as a PDF into this folder");
    c->add_option("NNN", o->nnn, "Number of the building");
    c->add_option("SCRIPT", o->script, "Script file; standard input if missing");
    c->callback([o, &stato] { stato = esegui_batch(*o); });
}

}  // namespace ambra
