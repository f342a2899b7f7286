#include "fatturapa/lettore.h"

#include "fatturapa/base64.h"
#include "fatturapa/busta.h"
#include "fatturapa/compresso.h"
#include "fatturapa/documento.h"
#include "fatturapa/testo_xml.h"

namespace ambra::fatturapa {

namespace {

constexpr const char *kSconosciuto = "non riconosciuto", *kTroppeVoci = "oltre 2000 voci";

// One file on its way through its wrappers.
class Giro {
  public:
    // Of an archive only the entry `sola` is looked at, where one is named.
    explicit Giro(FileLetto& letto, const std::string* sola = nullptr) : letto_(letto), sola_(sola) {}

    // What the file is; its documents are read.
    Xml apri(std::string_view byte, Origine origine, int livello = 0, int buste = 0) {
        if (sembra_zip(byte)) return zip(byte, origine, livello);
        if (sembra_xml(byte)) {
            std::string copia(byte.substr(0, kMassimaVoce + 1));
            return xml(copia, origine);
        }
        if (sembra_busta(byte)) {
            origine.firma_non_verificata = true;
            const auto dentro = contenuto_busta(byte);
            if (!dentro) return {Genere::rifiutato, "busta firmata non leggibile"};
            return scarta(*dentro, origine, livello, buste);
        }
        if (sembra_base64(byte)) return scarta(da_base64(byte), origine, livello, buste);
        return {Genere::altro, kSconosciuto};
    }

    // Why the file as a whole is given up; empty if it is not.
    const std::string& basta() const { return basta_; }
    // What the last entry of another kind was.
    const std::string& saltata() const { return saltata_; }

  private:
    Xml scarta(const std::string& dentro, const Origine& origine, int livello, int buste) {
        if (buste >= kMassimeBuste) return {Genere::rifiutato, "troppe buste una dentro l'altra"};
        return apri(dentro, origine, livello, buste + 1);
    }

    Xml xml(std::string& byte, const Origine& origine) {
        const std::size_t prima = letto_.fatture.size();
        const Xml esito = leggi_xml(byte, origine, letto_);
        for (std::size_t i = prima; i < letto_.fatture.size(); ++i) letto_peso_ += peso(letto_.fatture[i]);
        if (letto_peso_ > kMassimoLetto) basta_ = "troppi documenti in un file";
        return esito;
    }

    // The entry's path through archives within archives, as the documents tell it.
    static std::string voce(const Origine& fuori, const std::string& nome) {
        return fuori.voce.empty() ? nome : fuori.voce + "/" + nome;
    }

    bool cercata(const std::string& voce) const {
        return !sola_ || voce.empty() || voce == *sola_ || sola_->starts_with(voce + "/");
    }

    Xml zip(std::string_view byte, const Origine& origine, int livello) {
        if (livello >= kMassimiLivelli) return {Genere::rifiutato, "troppi archivi uno dentro l'altro"};
        if (troppe_voci(byte)) return {Genere::rifiutato, kTroppeVoci};
        bool vuoto = true;
        const auto vuole = [&](const std::string& nome) { return cercata(voce(origine, nome)); };
        const bool bene = per_ogni_voce(byte, vuole, [&](Voce& v) {
            vuoto = false;
            prendi(v, origine, livello);
            return basta_.empty();
        });
        if (!bene) return {Genere::rifiutato, "archivio zip non leggibile"};
        if (vuoto) return {Genere::altro, "archivio zip vuoto"};
        return {Genere::fattura, ""};
    }

    void prendi(Voce& v, const Origine& fuori, int livello) {
        if (++voci_ > kMassimeVoci) basta_ = kTroppeVoci;
        byte_ += v.contenuto.size();
        if (byte_ > kMassimoFile) basta_ = "oltre 60 MB di contenuto";
        if (!basta_.empty()) return;
        Origine origine = fuori;
        origine.voce = voce(fuori, v.nome);
        Xml esito;
        if (!v.intera)
            esito = {tagliata(v.contenuto), v.difetto};
        else if (sembra_xml(v.contenuto))
            esito = xml(v.contenuto, origine);
        else
            esito = apri(v.contenuto, origine, livello + 1);
        if (esito.genere == Genere::altro) {
            ++letto_.saltate;
            saltata_ = esito.motivo;
        }
        if (esito.genere == Genere::rifiutato)
            letto_.rifiutate.push_back({origine.file, origine.voce, esito.motivo});
    }

    // What an entry that cannot be read whole would have been.
    static Genere tagliata(std::string_view byte) {
        const bool conta = byte.empty() || sembra_zip(byte) || sembra_xml(byte) || sembra_busta(byte);
        return conta ? Genere::rifiutato : Genere::altro;
    }

    FileLetto& letto_;
    const std::string* sola_;
    std::string basta_;
    std::string saltata_;
    std::size_t byte_ = 0, letto_peso_ = 0;
    int voci_ = 0;
};

}  // namespace

FileLetto Lettore::leggi(std::string_view byte, const std::string& nome) {
    FileLetto letto;
    const auto rifiuta = [&](const std::string& motivo) { letto = {{}, {{nome, "", motivo}}, 0}; };
    if (byte.size() > kMassimoFile) {
        rifiuta("oltre 60 MB");
        return letto;
    }
    Giro giro(letto);
    const Xml esito = giro.apri(byte, {nome, "", false, false});
    if (!giro.basta().empty())
        rifiuta(giro.basta());
    else if (esito.genere != Genere::fattura)
        rifiuta(esito.motivo);
    else if (letto.fatture.empty() && letto.rifiutate.empty())
        rifiuta(letto.saltate == 1 ? giro.saltata() : "nessuna fattura nell'archivio");
    return letto;
}

std::optional<FatturaLetta> Lettore::intera(std::string_view byte, const FatturaLetta& f) {
    if (byte.size() > kMassimoFile) return {};
    FileLetto letto;
    Giro giro(letto, &f.voce);
    giro.apri(byte, {f.file, "", false, true});
    for (FatturaLetta& g : letto.fatture)
        if (g.voce == f.voce && g.impronta == f.impronta && g.corpo == f.corpo) return std::move(g);
    return {};
}

}  // namespace ambra::fatturapa
