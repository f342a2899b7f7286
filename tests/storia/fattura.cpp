#include "tests/storia/fattura.h"

#include <sstream>
#include <vector>

#include "tests/storia/parole.h"

namespace ambra::storia {

namespace {

std::string el(const std::string& nome, const std::string& dentro) {
    return "<" + nome + ">" + dentro + "</" + nome + ">";
}

// An element that is left out where the word is "-" or missing.
std::string forse(const std::string& nome, const std::string& parola) {
    return parola.empty() || parola == "-" ? "" : el(nome, parola);
}

std::string base64(const std::string& s) {
    static const char* kLettere = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string r;
    for (std::size_t i = 0; i < s.size(); i += 3) {
        unsigned long n = 0;
        for (std::size_t k = 0; k < 3; ++k)
            n = n << 8 | (i + k < s.size() ? static_cast<unsigned char>(s[i + k]) : 0U);
        for (std::size_t k = 0; k < 4; ++k) r += i + k > s.size() ? '=' : kLettere[n >> (18 - 6 * k) & 63];
    }
    return r;
}

// What the lines add up to while they are read.
struct Foglio {
    std::string fornitore, sede, cliente;
    struct Corpo {
        std::string tipo, numero, data, totale, ritenute, casse, arrotondamento, linee, riepiloghi, pagamenti,
            allegati;
    };
    std::vector<Corpo> corpi;
};

std::string soggetto(const std::string& r) {
    const std::string nome = dopo(r, 4), cf = parola(r, 2);
    const auto barra = nome.find('/');
    const std::string chi = barra == std::string::npos
                                ? el("Denominazione", nome)
                                : el("Nome", nome.substr(barra + 1)) + el("Cognome", nome.substr(0, barra));
    const std::string iva =
        parola(r, 1) == "-" ? ""
                            : el("IdFiscaleIVA", el("IdPaese", parola(r, 0)) + el("IdCodice", parola(r, 1)));
    return el("DatiAnagrafici", iva + forse("CodiceFiscale", cf) + el("Anagrafica", chi) +
                                    forse("RegimeFiscale", parola(r, 3)));
}

std::string sede(const std::string& r) {
    std::istringstream in(dopo(r, 2));
    std::string comune, via, civico;
    std::getline(in, comune, ',');
    std::getline(in >> std::ws, via, ',');
    std::getline(in >> std::ws, civico);
    return el("Sede", el("Indirizzo", via) + forse("NumeroCivico", civico) + el("CAP", parola(r, 0)) +
                          el("Comune", comune) + forse("Provincia", parola(r, 1)) + el("Nazione", "IT"));
}

std::string linea(const std::string& r) {
    return el("DettaglioLinee", el("NumeroLinea", "1") + el("Descrizione", dopo(r, 4)) +
                                    el("PrezzoUnitario", parola(r, 0)) + el("PrezzoTotale", parola(r, 0)) +
                                    el("AliquotaIVA", parola(r, 1)) + forse("Ritenuta", parola(r, 2)) +
                                    forse("Natura", parola(r, 3)));
}

// False: it is no line of the head.
bool testata(Foglio& f, const std::string& tipo, const std::string& r) {
    if (tipo == "fornitore") f.fornitore = soggetto(r);
    if (tipo == "sede") f.sede = sede(r);
    if (tipo == "cliente") f.cliente = soggetto("IT - " + parola(r, 0) + " - " + dopo(r, 1));
    if (tipo != "documento") return tipo == "fornitore" || tipo == "sede" || tipo == "cliente";
    Foglio::Corpo& c = f.corpi.emplace_back();
    c.tipo = parola(r, 0);
    c.numero = parola(r, 1);
    c.data = parola(r, 2);
    c.totale = forse("ImportoTotaleDocumento", parola(r, 3));
    return true;
}

void riga(Foglio& f, const std::string& tipo, const std::string& r) {
    if (testata(f, tipo, r)) return;
    if (f.corpi.empty()) male("no documento before: " + tipo);
    Foglio::Corpo& c = f.corpi.back();
    if (tipo == "ritenuta")
        c.ritenute +=
            el("DatiRitenuta", el("TipoRitenuta", parola(r, 0)) + el("ImportoRitenuta", parola(r, 1)) +
                                   el("AliquotaRitenuta", parola(r, 2)));
    if (tipo == "cassa")
        c.casse += el("DatiCassaPrevidenziale",
                      el("TipoCassa", "TC01") + el("ImportoContributoCassa", parola(r, 0)) +
                          el("AliquotaIVA", parola(r, 1)) + forse("Ritenuta", parola(r, 2)));
    if (tipo == "linea") c.linee += linea(r);
    if (tipo == "arrotondamento") c.arrotondamento = el("Arrotondamento", parola(r, 0));
    if (tipo == "riepilogo")
        c.riepiloghi +=
            el("DatiRiepilogo", el("AliquotaIVA", parola(r, 0)) + forse("Natura", parola(r, 3)) +
                                    el("ImponibileImporto", parola(r, 1)) + el("Imposta", parola(r, 2)));
    if (tipo == "pagamento")
        c.pagamenti += el("DettaglioPagamento", el("ModalitaPagamento", "MP05") +
                                                    forse("DataScadenzaPagamento", parola(r, 0)) +
                                                    el("ImportoPagamento", parola(r, 1)));
    if (tipo == "pdf")
        c.allegati += el("Allegati", el("NomeAttachment", "../../fattura.pdf") +
                                         el("Attachment", base64("%PDF-1.4 " + r)));
}

Foglio leggi(const std::string& righe) {
    Foglio f;
    std::istringstream in(righe);
    for (std::string r; std::getline(in, r);) riga(f, parola(r, 0), dopo(r, 1));
    return f;
}

std::string corpo(const Foglio::Corpo& c) {
    const std::string generali = el("TipoDocumento", c.tipo) + el("Divisa", "EUR") + el("Data", c.data) +
                                 el("Numero", c.numero) + c.ritenute + c.casse + c.totale + c.arrotondamento;
    return el(
        "FatturaElettronicaBody",
        el("DatiGenerali", el("DatiGeneraliDocumento", generali)) +
            el("DatiBeniServizi", c.linee + c.riepiloghi) +
            (c.pagamenti.empty() ? ""
                                 : el("DatiPagamento", el("CondizioniPagamento", "TP02") + c.pagamenti)) +
            c.allegati);
}

std::string busta(const std::string& nome, const std::string& dentro) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<p:" + nome + ">" + dentro + "</p:" + nome + ">\n";
}

}  // namespace

std::string fattura_xml(const std::string& righe) {
    const Foglio f = leggi(righe);
    std::string corpi;
    for (const auto& c : f.corpi) corpi += corpo(c);
    return busta("FatturaElettronica",
                 el("FatturaElettronicaHeader",
                    el("CedentePrestatore", f.fornitore + f.sede) + el("CessionarioCommittente", f.cliente)) +
                     corpi);
}

}  // namespace ambra::storia
