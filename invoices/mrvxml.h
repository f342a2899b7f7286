// mrvxml, the electronic invoices: files are read into a list, and a chosen document is carried to the
// invoice screen, where the user confirms it. Opening it and reading files writes nothing.
//   mrvxml.cpp            controls, files, the chosen row
//   mrvxml_stato.cpp      what stands in the way of each document
//   mrvxml_registra.cpp   into the supplier register and the invoice screen
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "invoices/anagrafe.h"
#include "invoices/lettore_fatture.h"
#include "invoices/proposta.h"
#include "invoices/registrate.h"
#include "invoices/stabili_drive.h"
#include "screen/schermo.h"

namespace ambra {

/// A document of the list, or a file that could not be read.
struct RigaFattura {
    enum class Stato { nuova, fornitore_nuovo, registrata, altro_stabile, non_registrabile, non_leggibile };

    FatturaLetta fattura;
    std::string percorso;  ///< of its file, UTF-8
    std::string motivo;    ///< why it cannot be read; empty if it could
    int saltate = 0;       ///< entries of another kind in its file
    bool perduta = false;  ///< its file was gone, or another one, when it was to be read again
    bool applica_ritenuta = false;
    std::optional<std::size_t> esenzione;
    std::string avviso_pdf;  ///< the attached PDF could not be written

    Stato stato = Stato::non_leggibile;
    std::string testo_stato;
    long fornitore = 0;   ///< his record, 0 if he is not in the register
    long registrata = 0;  ///< the same document in the archive
    Proposta proposta;
    std::vector<std::string> avvisi;  ///< in words

    bool registrabile() const { return stato <= Stato::registrata; }
};

/// The files that "Apri file" offers.
constexpr const char* kModelloFatture = "*.xml *.p7m *.zip";

class Mrvxml : public Schermo {
  public:
    explicit Mrvxml(Programma& p);

    Bottone apri, cartella;
    Griglia elenco, avvisi;
    Casella ritenuta;
    Lista esenzione;
    Bottone registra, indice;
    Progresso letti;  ///< files read of those to read; for the view alone

    /// What "Apri file" asks: paths in UTF-8. A window that lets several be picked puts its own here.
    std::function<std::vector<std::string>()> chiedi_file;
    /// Adds the documents of files, and of the files of folders (UTF-8 paths).
    void aggiungi_percorsi(const std::vector<std::string>& percorsi);
    /// The chosen row, or null.
    const RigaFattura* scelta() const;
    int riga_scelta() const { return scelta_; }  ///< its row in the grid, 0 for none
    /// The chosen document's attached PDF, read once more from its file; nothing if it has none, or after a
    /// message if the file is gone or another one by now.
    std::optional<AllegatoLetto> pdf_della_scelta();
    /// The attached PDF of the invoice of those bytes could not be written.
    void pdf_non_scritto(std::size_t impronta, const std::string& percorso);

  private:
    using Stato = RigaFattura::Stato;
    /// What the states are judged by, as it stands at an activation.
    struct Archivi {
        TabellaIva iva;
        TabellaPagamenti pagamenti;
        Anagrafe anagrafe;
        StabiliDrive drive;
    };

    /// A supplier who is stored in the register while the list stands beside it is known from there on.
    class Rubrica : public Osservatore {
      public:
        explicit Rubrica(Mrvxml& s) : Osservatore(s.prog.arc), schermo_(s) {}
        void fornitore_scritto(long, const RecFornitore&, const RecFornitore&) override;

      private:
        Mrvxml& schermo_;
    };

    void prepara_elenco();
    void collega();
    void leggi_percorso(const std::string& percorso);
    RigaFattura* in_elenco(const FatturaLetta& f) const;
    bool gia_rifiutata(const std::string& percorso) const;
    void aggiungi_riga(std::unique_ptr<RigaFattura> r);
    RigaFattura* corrente();
    void scegli(int riga);
    void mostra_scelta();
    void mostra_esenzioni(const RigaFattura& r);
    void mostra_riga(int riga);

    void rivaluta();
    void rivedi();
    void valuta(RigaFattura& r);
    void giudica(RigaFattura& r);
    std::string altro_stabile(const SoggettoLetto& cliente, bool& noto) const;
    Contorno contorno(const RigaFattura& r, RecFattura& ultima);
    void raccogli_avvisi(RigaFattura& r, bool cliente_noto);

    void registra_scelta();
    void apri_fornitore(const RigaFattura& r);
    void apri_documento(RigaFattura& r);
    std::optional<FatturaLetta> intera(RigaFattura& r);
    void dopo_il_documento(const RigaFattura& r, const std::string& percorso, const AllegatoLetto* pdf);

    std::vector<std::unique_ptr<RigaFattura>> righe_;  // by row of the grid, from 1
    std::unique_ptr<Archivi> archivi_;
    int scelta_ = 0;
    Rubrica rubrica_{*this};
};

}  // namespace ambra
