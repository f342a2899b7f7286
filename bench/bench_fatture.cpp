// A zip of 1,000 electronic invoices listed: at most 3 times what the XML parser alone takes for the same
// invoices, unpacked, in memory.
#include <archive.h>
#include <archive_entry.h>
#include <benchmark/benchmark.h>

#include <pugixml.hpp>

#include "ambra/fatture_json.h"
#include "bench/rapporti.h"
#include "fatturapa/lettore.h"
#include "invoices/analisi.h"

using namespace ambra;

namespace {

constexpr int kFatture = 1000, kRighe = 12;

std::string soggetto(const std::string& nome, const std::string& codice) {
    return "    <" + nome +
           ">\n      <DatiAnagrafici>\n        <IdFiscaleIVA>\n          <IdPaese>IT</IdPaese>\n"
           "          <IdCodice>" +
           codice +
           "</IdCodice>\n        </IdFiscaleIVA>\n        <Anagrafica>\n"
           "          <Denominazione>Manutenzioni Località Più Belle S.r.l.</Denominazione>\n        "
           "</Anagrafica>\n"
           "        <RegimeFiscale>RF01</RegimeFiscale>\n      </DatiAnagrafici>\n      <Sede>\n"
           "        <Indirizzo>Via Giuseppe Garibaldi</Indirizzo>\n        <NumeroCivico>12</NumeroCivico>\n"
           "        <CAP>20121</CAP>\n        <Comune>Milano</Comune>\n        <Provincia>MI</Provincia>\n"
           "        <Nazione>IT</Nazione>\n      </Sede>\n    </" +
           nome + ">\n";
}

std::string riga(int n) {
    return "      <DettaglioLinee>\n        <NumeroLinea>" + std::to_string(n) +
           "</NumeroLinea>\n"
           "        <Descrizione>Intervento di manutenzione ordinaria dell'impianto, scala B, con materiale"
           "</Descrizione>\n        <Quantita>1.00</Quantita>\n        <UnitaMisura>NR</UnitaMisura>\n"
           "        <PrezzoUnitario>100.00000000</PrezzoUnitario>\n        "
           "<PrezzoTotale>100.00</PrezzoTotale>\n"
           "        <AliquotaIVA>22.00</AliquotaIVA>\n        <Ritenuta>SI</Ritenuta>\n      "
           "</DettaglioLinee>\n";
}

std::string fattura(int n) {
    std::string r =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<p:FatturaElettronica versione=\"FPR12\" "
        "xmlns:p=\"http://ivaservizi.agenziaentrate.gov.it/docs/xsd/fatture/v1.2\">\n  "
        "<FatturaElettronicaHeader>\n" +
        soggetto("CedentePrestatore", std::to_string(10'000'000'000 + n)) +
        soggetto("CessionarioCommittente", "97012340158") +
        "  </FatturaElettronicaHeader>\n  <FatturaElettronicaBody>\n    <DatiGenerali>\n      "
        "<DatiGeneraliDocumento>\n"
        "        <TipoDocumento>TD01</TipoDocumento>\n        <Divisa>EUR</Divisa>\n        "
        "<Data>2026-10-05</Data>\n"
        "        <Numero>" +
        std::to_string(n) +
        "/26</Numero>\n        <DatiRitenuta>\n          <TipoRitenuta>RT02"
        "</TipoRitenuta>\n          <ImportoRitenuta>48.00</ImportoRitenuta>\n          "
        "<AliquotaRitenuta>4.00"
        "</AliquotaRitenuta>\n          <CausalePagamento>W</CausalePagamento>\n        </DatiRitenuta>\n"
        "        <ImportoTotaleDocumento>1464.00</ImportoTotaleDocumento>\n      </DatiGeneraliDocumento>\n"
        "    </DatiGenerali>\n    <DatiBeniServizi>\n";
    for (int i = 1; i <= kRighe; ++i) r += riga(i);
    return r +
           "      <DatiRiepilogo>\n        <AliquotaIVA>22.00</AliquotaIVA>\n        "
           "<ImponibileImporto>1200.00"
           "</ImponibileImporto>\n        <Imposta>264.00</Imposta>\n        "
           "<EsigibilitaIVA>I</EsigibilitaIVA>\n"
           "      </DatiRiepilogo>\n    </DatiBeniServizi>\n    <DatiPagamento>\n      "
           "<CondizioniPagamento>TP02"
           "</CondizioniPagamento>\n      <DettaglioPagamento>\n        "
           "<ModalitaPagamento>MP05</ModalitaPagamento>\n"
           "        <DataScadenzaPagamento>2026-11-30</DataScadenzaPagamento>\n        "
           "<ImportoPagamento>1416.00"
           "</ImportoPagamento>\n        <IBAN>IT60X0542811101000000123456</IBAN>\n      "
           "</DettaglioPagamento>\n"
           "    </DatiPagamento>\n  </FatturaElettronicaBody>\n</p:FatturaElettronica>\n";
}

std::string archivio() {
    std::string r(std::size_t{32} << 20, '\0');
    std::size_t scritti = 0;
    archive* a = archive_write_new();
    archive_write_set_format_zip(a);
    archive_write_open_memory(a, r.data(), r.size(), &scritti);
    for (int n = 0; n < kFatture; ++n) {
        const std::string xml = fattura(n);
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

void solo_xml(benchmark::State& stato) {
    std::vector<std::string> tutte;
    std::size_t byte = 0;
    for (int n = 0; n < kFatture; ++n) byte += tutte.emplace_back(fattura(n)).size();
    for (auto _ : stato)
        for (const std::string& xml : tutte) {
            pugi::xml_document doc;
            if (!doc.load_buffer(xml.data(), xml.size())) stato.SkipWithError("not parsed");
            benchmark::DoNotOptimize(doc.document_element());
        }
    stato.counters["byte_fattura"] = static_cast<double>(byte) / kFatture;
}

void elenco(benchmark::State& stato) {
    const std::string zip = archivio();
    for (auto _ : stato) {
        const FileLetto letto = fatturapa::Lettore().leggi(zip, "tutte.zip");
        if (letto.fatture.size() != kFatture) stato.SkipWithError("not all were read");
        for (const FatturaLetta& f : letto.fatture) benchmark::DoNotOptimize(analizza(f));
    }
}

// The same, written out for programs.
void elenco_json(benchmark::State& stato) {
    const std::string zip = archivio();
    for (auto _ : stato)
        for (const FatturaLetta& f : fatturapa::Lettore().leggi(zip, "tutte.zip").fatture)
            benchmark::DoNotOptimize(riga_json(f, analizza(f)));
}

BENCHMARK(solo_xml)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(elenco)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(elenco_json)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
    return misura(argc, argv, {{"elenco", "solo_xml", 3}, {"elenco_json", "solo_xml"}});
}
