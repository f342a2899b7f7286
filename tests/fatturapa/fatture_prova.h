// Invoices and wrappers written here, with the oddities that files of the world have.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace ambra::prova {

/// What an invoice of these tests says; `corpo` may be given more than once.
struct Pezzi {
    std::string fornitore =
        "<DatiAnagrafici><IdFiscaleIVA><IdPaese>IT</IdPaese><IdCodice>01234567897</IdCodice></IdFiscaleIVA>"
        "<CodiceFiscale>01234567897</CodiceFiscale><Anagrafica><Denominazione>IDRAULICA BRUNI "
        "SRL</Denominazione>"
        "</Anagrafica><RegimeFiscale>RF01</RegimeFiscale></DatiAnagrafici><Sede><Indirizzo>Via Po</Indirizzo>"
        "<NumeroCivico>3</NumeroCivico><CAP>20100</CAP><Comune>Milano</Comune><Provincia>MI</Provincia>"
        "<Nazione>IT</Nazione></Sede><Contatti><Telefono>02 123</Telefono><Email>a@b.it</Email></Contatti>";
    std::string generali =
        "<TipoDocumento>TD01</TipoDocumento><Divisa>EUR</Divisa><Data>2026-10-05</Data><Numero>12/A</Numero>";
    std::string beni =
        "<DettaglioLinee><NumeroLinea>1</NumeroLinea><Descrizione>Riparazione</Descrizione>"
        "<PrezzoUnitario>100.00</PrezzoUnitario><PrezzoTotale>100.00</PrezzoTotale><AliquotaIVA>22.00</"
        "AliquotaIVA>"
        "<Ritenuta>SI</Ritenuta></DettaglioLinee><DatiRiepilogo><AliquotaIVA>22.00</AliquotaIVA>"
        "<ImponibileImporto>100.00</ImponibileImporto><Imposta>22.00</Imposta></DatiRiepilogo>";
    std::string pagamento =
        "<CondizioniPagamento>TP02</CondizioniPagamento><DettaglioPagamento><ModalitaPagamento>MP05"
        "</ModalitaPagamento><DataScadenzaPagamento>2026-11-30</"
        "DataScadenzaPagamento><ImportoPagamento>122.00"
        "</ImportoPagamento><IBAN>IT60X0542811101000000123456</IBAN></DettaglioPagamento>";
    std::string in_fondo;  ///< attachments
    int corpi = 1;
    std::string prefisso = "p:", dichiarazione = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
};

inline std::string elemento(const std::string& nome, const std::string& dentro) {
    return "<" + nome + ">" + dentro + "</" + nome + ">";
}

/// The XML of an ordinary invoice.
inline std::string fattura(const Pezzi& p = {}) {
    const std::string cliente = elemento(
        "CessionarioCommittente",
        "<DatiAnagrafici><CodiceFiscale>97012340158</CodiceFiscale><Anagrafica><Denominazione>CONDOMINIO"
        "</Denominazione></Anagrafica></DatiAnagrafici>");
    const std::string corpo = elemento(
        "FatturaElettronicaBody", elemento("DatiGenerali", elemento("DatiGeneraliDocumento", p.generali)) +
                                      elemento("DatiBeniServizi", p.beni) +
                                      elemento("DatiPagamento", p.pagamento) + p.in_fondo);
    std::string r =
        p.dichiarazione + "<" + p.prefisso + "FatturaElettronica versione=\"FPR12\">" +
        elemento("FatturaElettronicaHeader",
                 elemento("DatiTrasmissione", "<FormatoTrasmissione>FPR12</FormatoTrasmissione>") +
                     elemento("CedentePrestatore", p.fornitore) + cliente);
    for (int i = 0; i < p.corpi; ++i) r += corpo;
    return r + "</" + p.prefisso + "FatturaElettronica>";
}

/// The XML of a simplified invoice.
std::string semplificata(const std::string& beni);

using Voci = std::vector<std::pair<std::string, std::string>>;
/// A zip of entries by name and content; `cifrato` protects them by a word.
std::string zip(const Voci& voci, bool cifrato = false);

/// A signed envelope without signers: definite lengths (DER), or indefinite ones with the content in pieces
/// (BER).
std::string busta_der(const std::string& contenuto);
std::string busta_ber(const std::string& contenuto, std::size_t pezzo = 100);
/// Base64, with a line end each 64 letters or in one line.
std::string base64(const std::string& byte, bool a_righe = true);

}  // namespace ambra::prova
