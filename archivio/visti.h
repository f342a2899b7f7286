// What a list or a screen last saw of the documents that it shows, and where they stand now.
//
// A record number is no name: a reorganisation, here or on another machine, moves documents. Each row keeps
// the marks of its document; before anything is done to it, it is found again by them.
#pragma once

#include <vector>

#include "archivio/archivio.h"

namespace ambra {

class DocumentiVisti : public Osservatore {
  public:
    explicit DocumentiVisti(Archivio& arc) : Osservatore(arc) {}

    void svuota() { voci_.clear(); }
    void riserva(int quante) { voci_.reserve(static_cast<std::size_t>(quante < 0 ? 0 : quante)); }
    /// Takes over what another list saw, of the same files, and gives it its own.
    void scambia(DocumentiVisti& altri) { voci_.swap(altri.voci_); }
    /// Remembers a document as seen in record `n`; gives its key, from 1.
    int aggiungi(long n, const RecFattura& f);
    /// Where the document was last found; 0 for an unknown key, and for one that this program took away.
    long posto(int chiave) const;
    /// Finds the document again and reads it into `f`: in its place, else, by number, date and supplier, and
    /// among several by the whole record, anywhere. Gives its record number, or 0 if it is not to be found
    /// just once; `f` is then whatever was read last.
    long ritrova(int chiave, RecFattura& f);

    void scritta(long n, const RecFattura& prima, const RecFattura& dopo) override;
    void spostate(std::span<const Impronta> vecchi, std::span<const long> nuovi) override;

  private:
    struct Voce {
        long posto = 0;
        Impronta impronta;
    };
    long cerca(const Impronta& i, long quante) const;

    std::vector<Voce> voci_;
};

}  // namespace ambra
