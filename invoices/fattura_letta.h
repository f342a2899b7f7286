// One document of an electronic invoice file, as it was read: plain values, nothing judged yet.
//
// Texts are UTF-8 without blanks at their ends, empty where the file says nothing; dates are as in the file,
// cut to yyyy-mm-dd; amounts and rates are decimal text with a point, and every amount that is not empty is
// one that `Decimale::leggi` reads.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace ambra {

/// Supplier or customer.
struct SoggettoLetto {
    std::string denominazione;  ///< of a firm; empty for a person
    std::string nome, cognome, titolo;
    std::string paese_iva, codice_iva;  ///< "IT" and the VAT number, or another country's
    std::string codice_fiscale;
    std::string indirizzo, civico, cap, comune, provincia, nazione;
    std::string telefono, fax, email;
    std::string regime;  ///< RF01 ...; of the supplier alone
    /// Nothing at all was said of it.
    bool assente() const {
        return denominazione.empty() && nome.empty() && cognome.empty() && codice_iva.empty() &&
               codice_fiscale.empty();
    }
    /// The denomination, or surname and name; what a person is called in lists.
    std::string chiamato() const {
        if (!denominazione.empty()) return denominazione;
        return cognome + (cognome.empty() || nome.empty() ? "" : " ") + nome;
    }
};

/// A line. In a simplified invoice `totale` includes the VAT, and `imposta` may say it.
struct RigaLetta {
    std::string numero, descrizione, quantita, unita_misura, prezzo, totale;
    std::string aliquota, natura, imposta;
    bool ritenuta = false;  ///< marked as subject to withholding
};

/// A pension fund's contribution, TC01 ...
struct CassaLetta {
    std::string tipo, percentuale, importo, imponibile, aliquota, natura;
    bool ritenuta = false;  ///< marked as subject to withholding
};

/// A tax or contribution withheld: RT01 and RT02 are the tax, RT03 to RT06 contributions.
struct RitenutaLetta {
    std::string tipo, importo, aliquota, causale;
};

/// One row of the summary by rate.
struct RiepilogoLetto {
    std::string aliquota, natura, imponibile, imposta, arrotondamento, spese_accessorie;
    std::string esigibilita;  ///< I, D, or S for the VAT that the customer pays to the state
    std::string norma;        ///< RiferimentoNormativo
};

/// One instalment.
struct PagamentoLetto {
    std::string condizioni;           ///< TP01 by instalments, TP02 at once, TP03 in advance
    std::string modalita;             ///< MP05 bank transfer ...
    std::string scadenza;             ///< date
    std::string riferimento, giorni;  ///< the term as a date and days from it
    std::string importo, beneficiario, istituto, iban;
};

struct AllegatoLetto {
    std::string nome, formato, descrizione;
    bool pdf = false;  ///< its bytes begin as a PDF does, whatever its name says
    // Of a document read whole alone: a list of many would hold them all.
    std::string contenuto;  ///< its bytes, decoded
    std::string impronta;   ///< SHA-256 of them, 64 lower-case hex digits
};

struct FatturaLetta {
    std::string file;          ///< the name under which the file was handed in
    std::string voce;          ///< the entry of the archive that it came in; "b.zip/c.xml" of nested ones
    std::size_t impronta = 0;  ///< hash of the invoice's bytes without wrappers; 0: it has none
    int corpo = 1, corpi = 1;  ///< this is document 1 of 2 of those bytes
    bool firma_non_verificata = false;  ///< came in a signed envelope; the signature was not looked at
    bool semplificata = false;

    std::string formato;  ///< FPR12, FPA12, FSM10 ...
    std::string tipo;     ///< TD01 ...
    std::string numero, data, divisa;
    std::string totale;          ///< ImportoTotaleDocumento, empty where it is not stated
    std::string arrotondamento;  ///< of the document
    bool bollo = false;          ///< stamp duty is said to be paid
    std::string importo_bollo;
    std::vector<std::string> causali;

    SoggettoLetto fornitore, cliente;
    std::vector<RitenutaLetta> ritenute;
    std::vector<CassaLetta> casse;
    std::vector<RigaLetta> righe;
    std::vector<RiepilogoLetto> riepiloghi;
    std::vector<PagamentoLetto> pagamenti;
    std::vector<AllegatoLetto> allegati;

    /// The first attached PDF, or null.
    const AllegatoLetto* primo_pdf() const {
        const auto a = std::ranges::find_if(allegati, &AllegatoLetto::pdf);
        return a == allegati.end() ? nullptr : &*a;
    }
};

}  // namespace ambra
