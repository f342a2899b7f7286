#include "fatturapa/lettore.h"

#include "fatturapa/base64.h"
#include "fatturapa/busta.h"
#include "fatturapa/compresso.h"
#include "fatturapa/documento.h"
#include "fatturapa/fogli.h"
#include "fatturapa/testo_xml.h"

namespace ambra::fatturapa {

namespace {

constexpr const char *kSconosciuto = "non riconosciuto", *kTroppeVoci = "oltre 2000 voci";

// One file on its way through its wrappers.
class Giro {
  public:
    explicit Giro(FileLetto& letto) : letto_(letto) {}

    // What the file is; its XML files stand among the documents read only after `finisci`.
    Xml apri(std::string_view byte, FatturaLetta modello, int livello = 0, int buste = 0) {
        if (sembra_zip(byte)) return zip(byte, modello, livello);
        if (sembra_xml(byte)) return xml(std::string(byte.substr(0, kMassimaVoce + 1)), std::move(modello));
        if (sembra_busta(byte)) {
            modello.firma_non_verificata = true;
            const auto dentro = contenuto_busta(byte);
            if (!dentro) return {Genere::rifiutato, "busta firmata non leggibile"};
            return scarta(*dentro, modello, livello, buste);
        }
        if (sembra_base64(byte)) return scarta(da_base64(byte), modello, livello, buste);
        return {Genere::altro, kSconosciuto};
    }

    // Why the file as a whole is given up; empty if it is not.
    const std::string& finisci() {
        fogli_.finisci();
        return basta_;
    }
    // What the last entry of another kind was.
    const std::string& saltata() const { return saltata_; }

  private:
    Xml scarta(const std::string& dentro, const FatturaLetta& modello, int livello, int buste) {
        if (buste >= kMassimeBuste) return {Genere::rifiutato, "troppe buste una dentro l'altra"};
        return apri(dentro, modello, livello, buste + 1);
    }

    Xml xml(std::string byte, FatturaLetta modello) {
        fogli_.aggiungi({std::move(byte), std::move(modello), {}, {}});
        return {Genere::fattura, ""};
    }

    Xml zip(std::string_view byte, const FatturaLetta& modello, int livello) {
        if (livello >= kMassimiLivelli) return {Genere::rifiutato, "troppi archivi uno dentro l'altro"};
        if (troppe_voci(byte)) return {Genere::rifiutato, kTroppeVoci};
        bool vuoto = true;
        const bool bene = per_ogni_voce(byte, [&](Voce& v) {
            vuoto = false;
            prendi(v, modello, livello);
            return basta_.empty();
        });
        if (!bene) return {Genere::rifiutato, "archivio zip non leggibile"};
        if (vuoto) return {Genere::altro, "archivio zip vuoto"};
        return {Genere::fattura, ""};
    }

    void prendi(Voce& v, const FatturaLetta& modello, int livello) {
        if (++voci_ > kMassimeVoci) basta_ = kTroppeVoci;
        byte_ += v.contenuto.size();
        if (byte_ > kMassimoFile) basta_ = "oltre 60 MB di contenuto";
        if (!basta_.empty()) return;
        FatturaLetta m = modello;
        m.voce += (m.voce.empty() ? "" : "/") + v.nome;
        Xml esito;
        if (!v.intera)
            esito = {tagliata(v.contenuto), v.difetto};
        else if (sembra_xml(v.contenuto))
            esito = xml(std::move(v.contenuto), m);
        else
            esito = apri(v.contenuto, m, livello + 1);
        if (esito.genere != Genere::fattura) fogli_.aggiungi({{}, std::move(m), std::move(esito), {}});
    }

    void raccogli(Foglio& f) {
        for (FatturaLetta& l : f.letto.fatture) {
            letto_peso_ += peso(l);
            letto_.fatture.push_back(std::move(l));
        }
        for (FatturaRifiutata& r : f.letto.rifiutate) letto_.rifiutate.push_back(std::move(r));
        if (letto_peso_ > kMassimoLetto) basta_ = "troppi documenti in un file";
        if (f.esito.genere == Genere::altro) {
            ++letto_.saltate;
            saltata_ = f.esito.motivo;
        }
        if (f.esito.genere == Genere::rifiutato)
            letto_.rifiutate.push_back({f.modello.file, f.modello.voce, f.esito.motivo});
    }

    // What an entry that cannot be read whole would have been.
    static Genere tagliata(std::string_view byte) {
        const bool conta = byte.empty() || sembra_zip(byte) || sembra_xml(byte) || sembra_busta(byte);
        return conta ? Genere::rifiutato : Genere::altro;
    }

    FileLetto& letto_;
    Fogli fogli_{[this](Foglio& f) { raccogli(f); }};
    std::string basta_;
    std::string saltata_;
    std::size_t byte_ = 0, letto_peso_ = 0;
    int voci_ = 0;
};

}  // namespace

FileLetto Lettore::leggi(std::string_view byte, const std::string& nome) {
    FileLetto letto;
    FatturaLetta modello;
    modello.file = nome;
    const auto rifiuta = [&](const std::string& motivo) { letto = {{}, {{nome, "", motivo}}, 0}; };
    if (byte.size() > kMassimoFile) {
        rifiuta("oltre 60 MB");
        return letto;
    }
    Giro giro(letto);
    const Xml esito = giro.apri(byte, modello);
    if (const std::string& basta = giro.finisci(); !basta.empty())
        rifiuta(basta);
    else if (esito.genere != Genere::fattura)
        rifiuta(esito.motivo);
    else if (letto.fatture.empty() && letto.rifiutate.empty())
        rifiuta(letto.saltate == 1 ? giro.saltata() : "nessuna fattura nell'archivio");
    return letto;
}

}  // namespace ambra::fatturapa
