#include "fatturapa/documento.h"

#include <algorithm>
#include <iterator>

#include "fatturapa/base64.h"
#include "fatturapa/impronta.h"
#include "fatturapa/lettore.h"
#include "fatturapa/nodi.h"

namespace ambra::fatturapa {

namespace {

using pugi::xml_node;
constexpr Tipo kImporto = Tipo::importo;
constexpr std::string_view kPdf = "%PDF";
constexpr const char *kMalformato = "XML non leggibile", *kDoctype = "DOCTYPE rifiutato";

constexpr Campo<SoggettoLetto> kSoggetto[] = {{"IdPaese", &SoggettoLetto::paese_iva},
                                              {"IdCodice", &SoggettoLetto::codice_iva},
                                              {"CodiceFiscale", &SoggettoLetto::codice_fiscale},
                                              {"Denominazione", &SoggettoLetto::denominazione},
                                              {"Nome", &SoggettoLetto::nome},
                                              {"Cognome", &SoggettoLetto::cognome},
                                              {"Titolo", &SoggettoLetto::titolo},
                                              {"RegimeFiscale", &SoggettoLetto::regime},
                                              {"Indirizzo", &SoggettoLetto::indirizzo},
                                              {"NumeroCivico", &SoggettoLetto::civico},
                                              {"CAP", &SoggettoLetto::cap},
                                              {"Comune", &SoggettoLetto::comune},
                                              {"Provincia", &SoggettoLetto::provincia},
                                              {"Nazione", &SoggettoLetto::nazione},
                                              {"Telefono", &SoggettoLetto::telefono},
                                              {"Fax", &SoggettoLetto::fax},
                                              {"Email", &SoggettoLetto::email}};
// The groups of a party in both formats; others (its other branch, its representative) bear the same names.
constexpr std::string_view kGruppi[] = {
    "DatiAnagrafici",        "IdFiscaleIVA",           "Anagrafica", "Sede", "Contatti",
    "IdentificativiFiscali", "AltriDatiIdentificativi"};

constexpr Campo<FatturaLetta> kGenerali[] = {{"TipoDocumento", &FatturaLetta::tipo},
                                             {"Divisa", &FatturaLetta::divisa},
                                             {"Data", &FatturaLetta::data},
                                             {"Numero", &FatturaLetta::numero},
                                             {"ImportoTotaleDocumento", &FatturaLetta::totale, kImporto},
                                             {"Arrotondamento", &FatturaLetta::arrotondamento, kImporto}};
constexpr Campo<RitenutaLetta> kRitenuta[] = {{"TipoRitenuta", &RitenutaLetta::tipo},
                                              {"ImportoRitenuta", &RitenutaLetta::importo, kImporto},
                                              {"AliquotaRitenuta", &RitenutaLetta::aliquota, kImporto},
                                              {"CausalePagamento", &RitenutaLetta::causale}};
constexpr Campo<CassaLetta> kCassa[] = {{"TipoCassa", &CassaLetta::tipo},
                                        {"AlCassa", &CassaLetta::percentuale, kImporto},
                                        {"ImportoContributoCassa", &CassaLetta::importo, kImporto},
                                        {"ImponibileCassa", &CassaLetta::imponibile, kImporto},
                                        {"AliquotaIVA", &CassaLetta::aliquota, kImporto},
                                        {"Natura", &CassaLetta::natura}};
constexpr Campo<RigaLetta> kRiga[] = {{"NumeroLinea", &RigaLetta::numero},
                                      {"Descrizione", &RigaLetta::descrizione},
                                      {"Quantita", &RigaLetta::quantita},
                                      {"UnitaMisura", &RigaLetta::unita_misura},
                                      {"PrezzoUnitario", &RigaLetta::prezzo},
                                      {"PrezzoTotale", &RigaLetta::totale, kImporto},
                                      {"AliquotaIVA", &RigaLetta::aliquota, kImporto},
                                      {"Natura", &RigaLetta::natura}};
constexpr Campo<RigaLetta> kRigaSemplice[] = {{"Descrizione", &RigaLetta::descrizione},
                                              {"Importo", &RigaLetta::totale, kImporto},
                                              {"Imposta", &RigaLetta::imposta, kImporto},
                                              {"Aliquota", &RigaLetta::aliquota, kImporto},
                                              {"Natura", &RigaLetta::natura}};
constexpr Campo<RiepilogoLetto> kRiepilogo[] = {
    {"AliquotaIVA", &RiepilogoLetto::aliquota, kImporto},
    {"Natura", &RiepilogoLetto::natura},
    {"SpeseAccessorie", &RiepilogoLetto::spese_accessorie, kImporto},
    {"Arrotondamento", &RiepilogoLetto::arrotondamento, kImporto},
    {"ImponibileImporto", &RiepilogoLetto::imponibile, kImporto},
    {"Imposta", &RiepilogoLetto::imposta, kImporto},
    {"EsigibilitaIVA", &RiepilogoLetto::esigibilita},
    {"RiferimentoNormativo", &RiepilogoLetto::norma}};
constexpr Campo<PagamentoLetto> kPagamento[] = {
    {"Beneficiario", &PagamentoLetto::beneficiario},
    {"ModalitaPagamento", &PagamentoLetto::modalita},
    {"DataRiferimentoTerminiPagamento", &PagamentoLetto::riferimento},
    {"GiorniTerminiPagamento", &PagamentoLetto::giorni},
    {"DataScadenzaPagamento", &PagamentoLetto::scadenza},
    {"ImportoPagamento", &PagamentoLetto::importo, kImporto},
    {"IstitutoFinanziario", &PagamentoLetto::istituto},
    {"IBAN", &PagamentoLetto::iban}};
constexpr Campo<AllegatoLetto> kAllegato[] = {{"NomeAttachment", &AllegatoLetto::nome},
                                              {"FormatoAttachment", &AllegatoLetto::formato},
                                              {"DescrizioneAttachment", &AllegatoLetto::descrizione}};

bool si(xml_node n) {
    return testo_di(n) == "SI";
}

// A date is its first ten characters: a time zone may follow.
void accorcia(std::string& data) {
    if (data.size() > 10) data.resize(10);
    while (data.ends_with(' ')) data.pop_back();
}

// Adds a T, filled from the element; `altro` gets what its table does not know. False past the limit.
template <class T, std::size_t N, class F>
void aggiungi(std::vector<T>& tutti, xml_node n, const Campo<T> (&tabella)[N], Difetto& difetto,
              const F& altro) {
    if (tutti.size() >= static_cast<std::size_t>(kMassimeRighe)) {
        if (difetto.empty()) difetto = "troppe righe";
        return;
    }
    T& t = tutti.emplace_back();
    riempi_campi(n, t, tabella, difetto, [&](xml_node c) { altro(t, nome_di(c), c); });
}

void leggi_soggetto(xml_node n, SoggettoLetto& s, Difetto& difetto, int livelli = 3) {
    riempi_campi(n, s, kSoggetto, difetto, [&](xml_node c) {
        const auto* fine = std::end(kGruppi);
        if (livelli > 0 && std::find(std::begin(kGruppi), fine, nome_di(c)) != fine)
            leggi_soggetto(c, s, difetto, livelli - 1);
    });
}

class Documento {
  public:
    Documento(FatturaLetta& f, Difetto& difetto, bool con_allegati)
        : f_(f), difetto_(difetto), con_allegati_(con_allegati) {}

    void testata(xml_node n) {
        for (const xml_node c : n.children()) {
            const std::string_view nome = nome_di(c);
            if (nome == "CedentePrestatore") leggi_soggetto(c, f_.fornitore, difetto_);
            if (nome == "CessionarioCommittente") leggi_soggetto(c, f_.cliente, difetto_);
            if (nome == "DatiTrasmissione")
                for (const xml_node d : c.children())
                    if (nome_di(d) == "FormatoTrasmissione") f_.formato = testo_di(d);
        }
    }

    void corpo(xml_node n) {
        for (const xml_node c : n.children()) {
            const std::string_view nome = nome_di(c);
            if (nome == "DatiGenerali") generali(c);
            if (nome == "DatiBeniServizi") f_.semplificata ? riga_semplice(c) : beni(c);
            if (nome == "DatiPagamento") pagamento(c);
            if (nome == "Allegati") allegato(c);
        }
        accorcia(f_.data);
    }

  private:
    void bollo(xml_node n) {
        f_.bollo = true;
        for (const xml_node c : n.children())
            if (nome_di(c) == "ImportoBollo") {
                f_.importo_bollo = testo_di(c);
                controlla_importo("ImportoBollo", f_.importo_bollo, difetto_);
            }
    }

    void generale(xml_node n) {
        const std::string_view nome = nome_di(n);
        if (nome == "DatiRitenuta")
            aggiungi(f_.ritenute, n, kRitenuta, difetto_, [](auto&, std::string_view, xml_node) {});
        if (nome == "DatiCassaPrevidenziale")
            aggiungi(f_.casse, n, kCassa, difetto_, [](CassaLetta& c, std::string_view quale, xml_node d) {
                if (quale == "Ritenuta") c.ritenuta = si(d);
            });
        if (nome == "DatiBollo") bollo(n);
        if (nome == "BolloVirtuale") f_.bollo = si(n);
        if (nome == "Causale" && f_.causali.size() < static_cast<std::size_t>(kMassimeRighe))
            f_.causali.push_back(testo_di(n));
    }

    void generali(xml_node n) {
        for (const xml_node c : n.children())
            if (nome_di(c) == "DatiGeneraliDocumento")
                riempi_campi(c, f_, kGenerali, difetto_, [this](xml_node d) { generale(d); });
    }

    void beni(xml_node n) {
        const auto figli = std::distance(n.children().begin(), n.children().end());
        f_.righe.reserve(static_cast<std::size_t>(std::min<std::ptrdiff_t>(figli, kMassimeRighe)));
        for (const xml_node c : n.children()) {
            const std::string_view nome = nome_di(c);
            if (nome == "DettaglioLinee")
                aggiungi(f_.righe, c, kRiga, difetto_, [](RigaLetta& r, std::string_view quale, xml_node d) {
                    if (quale == "Ritenuta") r.ritenuta = si(d);
                });
            if (nome == "DatiRiepilogo")
                aggiungi(f_.riepiloghi, c, kRiepilogo, difetto_, [](auto&, std::string_view, xml_node) {});
        }
    }

    void riga_semplice(xml_node n) {
        aggiungi(f_.righe, n, kRigaSemplice, difetto_,
                 [this](RigaLetta& r, std::string_view quale, xml_node d) {
                     if (quale == "DatiIVA") riempi_campi(d, r, kRigaSemplice, difetto_);
                 });
    }

    void pagamento(xml_node n) {
        std::string condizioni;
        for (const xml_node c : n.children()) {
            if (nome_di(c) == "CondizioniPagamento") condizioni = testo_di(c);
            if (nome_di(c) != "DettaglioPagamento") continue;
            aggiungi(f_.pagamenti, c, kPagamento, difetto_, [](auto&, std::string_view, xml_node) {});
            PagamentoLetto& p = f_.pagamenti.back();
            p.condizioni = condizioni;
            accorcia(p.scadenza);
            accorcia(p.riferimento);
        }
    }

    void allegato(xml_node n) {
        aggiungi(f_.allegati, n, kAllegato, difetto_,
                 [this](AllegatoLetto& a, std::string_view quale, xml_node d) {
                     if (quale != "Attachment") return;
                     std::string contenuto = da_base64(testo_intero(d), con_allegati_ ? kTutto : kPdf.size());
                     a.pdf = contenuto.starts_with(kPdf);
                     if (!con_allegati_) return;
                     a.impronta = sha256(contenuto);
                     a.contenuto = std::move(contenuto);
                 });
    }

    FatturaLetta& f_;
    Difetto& difetto_;
    bool con_allegati_;
};

bool e_corpo(xml_node n) {
    return nome_di(n) == "FatturaElettronicaBody";
}

// Each body with the heading of all; one that is refused does not touch the others.
Xml leggi_corpi(xml_node radice, FatturaLetta& testata, const Difetto& difetto_testata,
                const Origine& origine, FileLetto& letto) {
    std::size_t corpi = 0;
    for (const xml_node n : radice.children()) corpi += e_corpo(n);
    if (corpi == 0) return {Genere::rifiutato, "fattura senza corpo"};
    if (corpi * peso(testata) > origine.massimo) return {Genere::rifiutato, "troppi documenti in un file"};
    testata.corpi = static_cast<int>(corpi);
    testata.corpo = 0;
    for (const xml_node n : radice.children()) {
        if (!e_corpo(n)) continue;
        const bool ultimo = ++testata.corpo == testata.corpi;
        FatturaLetta& f =
            ultimo ? letto.fatture.emplace_back(std::move(testata)) : letto.fatture.emplace_back(testata);
        Difetto difetto = difetto_testata;
        Documento(f, difetto, origine.con_allegati).corpo(n);
        if (difetto.empty()) continue;
        letto.rifiutate.push_back({f.file, f.voce, difetto});
        letto.fatture.pop_back();
    }
    return {Genere::fattura, ""};
}

}  // namespace

std::size_t peso(const FatturaLetta& f) {
    std::size_t p = sizeof f + f.righe.size() * sizeof(RigaLetta) +
                    f.riepiloghi.size() * sizeof(RiepilogoLetto) +
                    f.pagamenti.size() * sizeof(PagamentoLetto) + f.casse.size() * sizeof(CassaLetta) +
                    f.ritenute.size() * sizeof(RitenutaLetta) + f.allegati.size() * sizeof(AllegatoLetto) +
                    f.causali.size() * sizeof(std::string) + f.file.size() + f.voce.size() + f.formato.size();
    for (const SoggettoLetto* s : {&f.fornitore, &f.cliente})
        for (const Campo<SoggettoLetto>& c : kSoggetto) p += (s->*c.dove).size();
    return p;
}

Xml leggi_xml(std::string& byte, const Origine& origine, FileLetto& letto) {
    if (byte.size() > kMassimaVoce) return {Genere::rifiutato, "oltre 5 MB"};
    const std::size_t impronta = impronta_svelta(byte);
    decodifica(byte);
    const Prologo p = prologo(byte);
    if (p.doctype) {
        const bool pagina = p.tipo == "html" || p.tipo == "HTML";
        return {pagina ? Genere::altro : Genere::rifiutato, kDoctype};
    }
    const std::string_view nome = senza_prefisso(p.radice);
    const bool semplificata = nome == "FatturaElettronicaSemplificata";
    if (byte.find('>', p.inizio) == byte.npos) return {Genere::rifiutato, kMalformato};
    if (nome != "FatturaElettronica" && !semplificata)
        return {Genere::altro, "non è una fattura (" + std::string(nome.substr(0, 40)) + ")"};
    pugi::xml_document doc;
    const auto esito =
        doc.load_buffer_inplace(byte.data() + p.inizio, p.fine - p.inizio, kLettura, pugi::encoding_utf8);
    if (esito.status == pugi::status_bad_doctype) return {Genere::rifiutato, kDoctype};
    if (!esito) return {Genere::rifiutato, kMalformato};
    FatturaLetta f;
    f.file = origine.file;
    f.voce = origine.voce;
    f.firma_non_verificata = origine.firma_non_verificata;
    f.impronta = impronta;
    f.semplificata = semplificata;
    Difetto difetto;
    for (const xml_node n : doc.document_element().children())
        if (nome_di(n) == "FatturaElettronicaHeader") Documento(f, difetto, origine.con_allegati).testata(n);
    return leggi_corpi(doc.document_element(), f, difetto, origine, letto);
}

}  // namespace ambra::fatturapa
