// A zip of 1,000 electronic invoices listed: at most 3 times what the XML parser alone takes for the same
// invoices, unpacked, in memory. Unpacking them by the library that knows every kind of zip is measured too.
//
// The argument is how many of a hundred invoices carry a PDF. They are as long, and shrink about as much, as
// those that a studio gets: from one line to thirty, each with words and amounts of its own.
#include <archive.h>
#include <archive_entry.h>
#include <benchmark/benchmark.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <pugixml.hpp>
#include <random>

#include "ambra/fatture_json.h"
#include "bench/rapporti.h"
#include "core/decimale.h"
#include "fatturapa/lettore.h"
#include "fatturapa/nodi.h"
#include "invoices/analisi.h"

using namespace ambra;

namespace {

constexpr int kFatture = 1000, kMassimeRighe = 30;
constexpr std::size_t kPdf = 20'000;  // letters of base64

using Caso = std::minstd_rand;

unsigned a_caso(Caso& caso, unsigned da, unsigned a) {
    return da + static_cast<unsigned>(caso()) % (a - da + 1);
}

std::string parole(Caso& caso, unsigned quante) {
    static const std::array<const char*, 40> tutte = {
        "intervento", "manutenzione", "ordinaria",     "scala",        "materiale",   "caldaia",
        "ascensore",  "canone",       "periodo",       "sostituzione", "guarnizione", "pompa",
        "contatore",  "verifica",     "impianto",      "elettrico",    "pulizia",     "giardino",
        "potatura",   "siepe",        "citofono",      "cancello",     "automatico",  "riparazione",
        "tubazione",  "perdita",      "box",           "copertura",    "grondaia",    "trasporto",
        "discarica",  "manodopera",   "specializzata", "ore",          "lampada",     "scale",
        "serratura",  "vetro",        "autoclave",     "località"};
    std::string r;
    for (unsigned i = 0; i < quante; ++i)
        r += (i ? " " : "") + std::string(tutte[a_caso(caso, 0, tutte.size() - 1)]) +
             (a_caso(caso, 0, 4) == 0 ? " " + std::to_string(a_caso(caso, 1, 9999)) : "");
    return r;
}

std::string elemento(int rientro, const std::string& nome, const std::string& valore) {
    return std::string(static_cast<std::size_t>(rientro), ' ') + "<" + nome + ">" + valore + "</" + nome +
           ">\n";
}

std::string soggetto(Caso& caso, const std::string& nome, const std::string& codice) {
    return "    <" + nome + ">\n      <DatiAnagrafici>\n        <IdFiscaleIVA>\n" +
           elemento(10, "IdPaese", "IT") + elemento(10, "IdCodice", codice) +
           "        </IdFiscaleIVA>\n        <Anagrafica>\n" +
           elemento(10, "Denominazione", parole(caso, 3) + " S.r.l.") + "        </Anagrafica>\n" +
           elemento(8, "RegimeFiscale", "RF01") + "      </DatiAnagrafici>\n      <Sede>\n" +
           elemento(8, "Indirizzo", "Via " + parole(caso, 2)) +
           elemento(8, "NumeroCivico", std::to_string(a_caso(caso, 1, 200))) +
           elemento(8, "CAP", std::to_string(a_caso(caso, 10000, 99999))) +
           elemento(8, "Comune", parole(caso, 1)) + elemento(8, "Provincia", "MI") +
           elemento(8, "Nazione", "IT") + "      </Sede>\n    </" + nome + ">\n";
}

std::string riga(Caso& caso, int n, const std::string& prezzo) {
    return "      <DettaglioLinee>\n" + elemento(8, "NumeroLinea", std::to_string(n)) +
           elemento(8, "Descrizione", parole(caso, a_caso(caso, 3, 14))) + elemento(8, "Quantita", "1.00") +
           elemento(8, "UnitaMisura", "NR") + elemento(8, "PrezzoUnitario", prezzo + "000000") +
           elemento(8, "PrezzoTotale", prezzo) + elemento(8, "AliquotaIVA", "22.00") +
           elemento(8, "Ritenuta", "SI") + "      </DettaglioLinee>\n";
}

std::string allegato(Caso& caso) {
    std::string s = "JVBERi0x";  // what a PDF begins with
    while (s.size() < kPdf)
        s += "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/"[a_caso(caso, 0, 63)];
    return "    <Allegati>\n" + elemento(6, "NomeAttachment", "fattura.pdf") + elemento(6, "Attachment", s) +
           "    </Allegati>\n";
}

std::string testata(Caso& caso, int n, Decimale totale, Decimale ritenuta) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<p:FatturaElettronica versione=\"FPR12\" "
           "xmlns:p=\"http://ivaservizi.agenziaentrate.gov.it/docs/xsd/fatture/v1.2\">\n  "
           "<FatturaElettronicaHeader>\n" +
           soggetto(caso, "CedentePrestatore", std::to_string(10'000'000'000 + n)) +
           soggetto(caso, "CessionarioCommittente", "97012340158") +
           "  </FatturaElettronicaHeader>\n  <FatturaElettronicaBody>\n    <DatiGenerali>\n      "
           "<DatiGeneraliDocumento>\n" +
           elemento(8, "TipoDocumento", "TD01") + elemento(8, "Divisa", "EUR") +
           elemento(8, "Data", "2026-10-05") + elemento(8, "Numero", std::to_string(n) + "/26") +
           "        <DatiRitenuta>\n" + elemento(10, "TipoRitenuta", "RT02") +
           elemento(10, "ImportoRitenuta", ritenuta.testo()) + elemento(10, "AliquotaRitenuta", "4.00") +
           elemento(10, "CausalePagamento", "W") + "        </DatiRitenuta>\n" +
           elemento(8, "ImportoTotaleDocumento", totale.testo()) +
           "      </DatiGeneraliDocumento>\n    </DatiGenerali>\n    <DatiBeniServizi>\n";
}

std::string fattura(int n, int con_pdf) {
    Caso caso(static_cast<unsigned>(n) + 1);
    const int quante = static_cast<int>(a_caso(caso, 1, kMassimeRighe));
    std::string righe;
    std::int64_t imponibile = 0;
    for (int i = 1; i <= quante; ++i) {
        const std::int64_t centesimi = a_caso(caso, 100, 99'999);
        righe += riga(caso, i, Decimale::di_centesimi(centesimi).testo());
        imponibile += centesimi;
    }
    const auto parte = [imponibile](int percento) {
        return Decimale::di_centesimi((imponibile * percento + 50) / 100);
    };
    const Decimale base = Decimale::di_centesimi(imponibile), iva = parte(22), ritenuta = parte(4);
    return testata(caso, n, base + iva, ritenuta) + righe + "      <DatiRiepilogo>\n" +
           elemento(8, "AliquotaIVA", "22.00") + elemento(8, "ImponibileImporto", base.testo()) +
           elemento(8, "Imposta", iva.testo()) + elemento(8, "EsigibilitaIVA", "I") +
           "      </DatiRiepilogo>\n    </DatiBeniServizi>\n    <DatiPagamento>\n" +
           elemento(6, "CondizioniPagamento", "TP02") + "      <DettaglioPagamento>\n" +
           elemento(8, "ModalitaPagamento", "MP05") + elemento(8, "DataScadenzaPagamento", "2026-11-30") +
           elemento(8, "ImportoPagamento", (base + iva - ritenuta).testo()) +
           elemento(8, "IBAN", "IT60X0542811101000000" + std::to_string(a_caso(caso, 100'000, 999'999))) +
           "      </DettaglioPagamento>\n    </DatiPagamento>\n" + (n % 100 < con_pdf ? allegato(caso) : "") +
           "  </FatturaElettronicaBody>\n</p:FatturaElettronica>\n";
}

std::vector<std::string> fatture(int con_pdf) {
    std::vector<std::string> r;
    for (int n = 0; n < kFatture; ++n) r.push_back(fattura(n, con_pdf));
    return r;
}

std::string archivio(const std::vector<std::string>& tutte) {
    std::string r(std::size_t{64} << 20, '\0');
    std::size_t scritti = 0;
    archive* a = archive_write_new();
    archive_write_set_format_zip(a);
    archive_write_open_memory(a, r.data(), r.size(), &scritti);
    for (std::size_t n = 0; n < tutte.size(); ++n) {
        const std::string& xml = tutte[n];
        archive_entry* e = archive_entry_new();
        archive_entry_set_pathname(e, ("IT01234567890_" + std::to_string(n) + ".xml").c_str());
        archive_entry_set_size(e, static_cast<la_int64_t>(xml.size()));
        archive_entry_set_filetype(e, AE_IFREG);
        archive_write_header(a, e);
        archive_write_data(a, xml.data(), xml.size());
        archive_entry_free(e);
    }
    archive_write_close(a);
    archive_write_free(a);
    r.resize(scritti);
    return r;
}

void parser(benchmark::State& stato, unsigned come) {
    const auto tutte = fatture(static_cast<int>(stato.range(0)));
    std::size_t byte = 0;
    for (const std::string& xml : tutte) byte += xml.size();
    for (auto _ : stato)
        for (const std::string& xml : tutte) {
            pugi::xml_document doc;
            if (!doc.load_buffer(xml.data(), xml.size(), come, pugi::encoding_utf8))
                stato.SkipWithError("not parsed");
            benchmark::DoNotOptimize(doc.document_element());
        }
    stato.counters["byte_fattura"] = static_cast<double>(byte) / kFatture;
}

void solo_xml(benchmark::State& stato) {
    parser(stato, fatturapa::kLettura);
}

// As the parser reads where it is not told how: every text a node of its own, a little slower.
void solo_xml_come_viene(benchmark::State& stato) {
    parser(stato, pugi::parse_default);
}

// Unpacked into one room, by the library that knows every kind of zip.
void solo_zip(benchmark::State& stato) {
    const std::string zip = archivio(fatture(static_cast<int>(stato.range(0))));
    std::string xml(fatturapa::kMassimaVoce, '\0');
    for (auto _ : stato) {
        archive* a = archive_read_new();
        archive_read_support_format_zip_seekable(a);
        archive_read_open_memory(a, zip.data(), zip.size());
        int quante = 0;
        for (archive_entry* e = nullptr; archive_read_next_header(a, &e) == ARCHIVE_OK;)
            quante += archive_read_data(a, xml.data(), xml.size()) > 0;
        if (quante != kFatture) stato.SkipWithError("not all were unpacked");
        archive_read_free(a);
    }
    stato.counters["byte_fattura"] = static_cast<double>(zip.size()) / kFatture;
}

void analizza_tutte(benchmark::State& stato, const FileLetto& letto) {
    for (const FatturaLetta& f : letto.fatture) {
        const Analisi a = analizza(f);
        if (!a.avvisi.empty() || a.rate_da != RateDa::file) stato.SkipWithError("not as it was written");
        benchmark::DoNotOptimize(a);
    }
}

void elenco(benchmark::State& stato) {
    const std::string zip = archivio(fatture(static_cast<int>(stato.range(0))));
    for (auto _ : stato) {
        FileLetto letto = fatturapa::Lettore().leggi(zip, "tutte.zip");
        if (letto.fatture.size() != kFatture) stato.SkipWithError("not all were read");
        analizza_tutte(stato, letto);
        stato.PauseTiming();  // the list is there; whoever asked for it keeps it
        letto = {};
        stato.ResumeTiming();
    }
}

// The same, written out for programs.
void elenco_json(benchmark::State& stato) {
    const std::string zip = archivio(fatture(static_cast<int>(stato.range(0))));
    for (auto _ : stato)
        for (const FatturaLetta& f : fatturapa::Lettore().leggi(zip, "tutte.zip").fatture)
            benchmark::DoNotOptimize(riga_json(f, analizza(f)));
}

// The same invoices as plain files of a folder.
void cartella(benchmark::State& stato) {
    namespace fs = std::filesystem;
    const fs::path dove =
        fs::temp_directory_path() / ("ambra-bench-" + std::to_string(std::random_device()()));
    fs::create_directory(dove);
    const auto tutte = fatture(static_cast<int>(stato.range(0)));
    for (std::size_t n = 0; n < tutte.size(); ++n)
        std::ofstream(dove / (std::to_string(n) + ".xml"), std::ios::binary) << tutte[n];
    fatturapa::Lettore lettore;
    for (auto _ : stato) {
        const auto file = lettore.file_di(dove.string());
        if (file.size() != kFatture) stato.SkipWithError("not all were listed");
        for (const std::string& f : file) analizza_tutte(stato, lettore.leggi_file(f));
    }
    fs::remove_all(dove);
}

// On the clock, as more than one thread may be at work; the best of some runs, as other programs may be, too.
#define MISURA(nome)                    \
    BENCHMARK(nome)                     \
        ->Arg(0)                        \
        ->Arg(25)                       \
        ->Unit(benchmark::kMillisecond) \
        ->UseRealTime()                 \
        ->MinTime(0.1)                  \
        ->Repetitions(9)
MISURA(solo_xml);
MISURA(solo_xml_come_viene);
MISURA(solo_zip);
MISURA(elenco);
MISURA(elenco_json);
MISURA(cartella);

}  // namespace

int main(int argc, char** argv) {
    return misura(argc, argv,
                  {{"elenco/0", "solo_xml/0", 3},
                   {"elenco/0", "solo_xml_come_viene/0", 3},
                   {"elenco/0", "solo_zip/0"},
                   {"solo_zip/0", "solo_xml/0"},
                   {"elenco_json/0", "solo_xml/0"},
                   {"cartella/0", "solo_xml/0"},
                   {"elenco/25", "solo_xml/25"},
                   {"elenco/25", "solo_zip/25"},
                   {"solo_zip/25", "solo_xml/25"}});
}
