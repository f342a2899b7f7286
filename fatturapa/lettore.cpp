#include "fatturapa/lettore.h"

#include <algorithm>
#include <iterator>

#include "fatturapa/base64.h"
#include "fatturapa/busta.h"
#include "fatturapa/compresso.h"
#include "fatturapa/documento.h"
#include "fatturapa/testo_xml.h"

namespace ambra::fatturapa {

namespace {

constexpr const char *kSconosciuto = "non riconosciuto", *kTroppeVoci = "oltre 2000 voci";
constexpr std::size_t kMinimaVoce = 512;  // bytes of an archive for each invoice in it, hardly ever less

// The entry's path through archives within archives, as the documents tell it.
std::string voce(const Origine& fuori, const std::string& nome) {
    return fuori.voce.empty() ? nome : fuori.voce + "/" + nome;
}

// Takes the wrappers off until an archive or XML stands in `byte`; `casa` holds what was inside. Otherwise
// why there is none.
std::optional<Xml> svolgi(std::string_view& byte, std::string& casa, Origine& origine) {
    for (int buste = 0; !sembra_zip(byte) && !sembra_xml(byte); ++buste) {
        const bool busta = sembra_busta(byte);
        if (!busta && !sembra_base64(byte)) return Xml{Genere::altro, kSconosciuto};
        origine.firma_non_verificata |= busta;
        auto dentro = busta ? contenuto_busta(byte) : da_base64(byte);
        if (!dentro) return Xml{Genere::rifiutato, "busta firmata non leggibile"};
        if (buste >= kMassimeBuste) return Xml{Genere::rifiutato, "troppe buste una dentro l'altra"};
        casa = std::move(*dentro);
        byte = casa;
    }
    return {};
}

// Reads an entry that needs nothing of the others: no archive, which counts its own, and nothing that is
// refused, perhaps because it may take less memory here than in its turn.
void leggi_da_sola(Voce& v, const Origine& fuori) {
    Origine origine = fuori;
    origine.voce = voce(fuori, v.nome);
    origine.massimo = 16 * v.contenuto.size();
    Letta l;
    l.byte = v.contenuto.size();
    std::string_view byte = v.contenuto;
    if (const auto no = svolgi(byte, v.contenuto, origine))
        l.esito = *no;
    else if (!sembra_zip(byte))
        l.esito = leggi_xml(v.contenuto, origine, l.letto);
    else
        return;
    if (l.esito.genere != Genere::rifiutato) v.letta = std::move(l);
}

// One file on its way through its wrappers.
class Giro {
  public:
    // Of an archive only the entry `sola` is looked at, where one is named.
    explicit Giro(FileLetto& letto, const std::string* sola = nullptr) : letto_(letto), sola_(sola) {}

    // What the file is; its documents are read. `casa` is room for the bytes, or where they stand already.
    Xml apri(std::string_view byte, std::string& casa, Origine origine, int livello = 0) {
        if (const auto no = svolgi(byte, casa, origine)) return *no;
        if (sembra_zip(byte)) return zip(byte, origine, livello);
        if (byte.data() != casa.data()) casa = byte.substr(0, kMassimaVoce + 1);
        const std::size_t prima = letto_.fatture.size();
        const Xml esito = leggi_xml(casa, origine, letto_);
        pesa(prima);
        return esito;
    }

    // Why the file as a whole is given up; empty if it is not.
    const std::string& basta() const { return basta_; }
    // What the last entry of another kind was.
    const std::string& saltata() const { return saltata_; }

  private:
    void pesa(std::size_t da) {
        for (std::size_t i = da; i < letto_.fatture.size(); ++i) letto_peso_ += peso(letto_.fatture[i]);
        if (letto_peso_ > kMassimoLetto) basta_ = "troppi documenti in un file";
    }

    Xml unisci(Letta& l) {
        const std::size_t prima = letto_.fatture.size();
        std::ranges::move(l.letto.fatture, std::back_inserter(letto_.fatture));
        std::ranges::move(l.letto.rifiutate, std::back_inserter(letto_.rifiutate));
        pesa(prima);
        return l.esito;
    }

    bool cercata(const std::string& voce) const {
        return !sola_ || voce.empty() || voce == *sola_ || sola_->starts_with(voce + "/");
    }

    Xml zip(std::string_view byte, const Origine& origine, int livello) {
        if (livello >= kMassimiLivelli) return {Genere::rifiutato, "troppi archivi uno dentro l'altro"};
        if (troppe_voci(byte)) return {Genere::rifiutato, kTroppeVoci};
        bool vuoto = true;
        letto_.fatture.reserve(letto_.fatture.size() +
                               std::min<std::size_t>(byte.size() / kMinimaVoce, kMassimeVoci));
        const auto vuole = [&](const std::string& nome) { return cercata(voce(origine, nome)); };
        const auto da_sola = [&](Voce& v) { leggi_da_sola(v, origine); };
        const bool bene = per_ogni_voce(byte, vuole, da_sola, [&](Voce& v) {
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
        byte_ += v.letta ? v.letta->byte : v.contenuto.size();
        if (byte_ > kMassimoFile) basta_ = "oltre 60 MB di contenuto";
        if (!basta_.empty()) return;
        const Xml esito = v.letta ? unisci(*v.letta) : leggi(v, fuori, livello);
        if (esito.genere != Genere::altro) return;
        ++letto_.saltate;
        saltata_ = esito.motivo;
    }

    Xml leggi(Voce& v, const Origine& fuori, int livello) {
        Origine origine = fuori;
        origine.voce = voce(fuori, v.nome);
        const Xml esito = v.intera ? apri(v.contenuto, v.contenuto, origine, livello + 1)
                                   : Xml{tagliata(v.contenuto), v.difetto};
        if (esito.genere == Genere::rifiutato)
            letto_.rifiutate.push_back({origine.file, origine.voce, esito.motivo});
        return esito;
    }

    // What an entry that cannot be read whole would have been.
    static Genere tagliata(std::string_view byte) {
        const bool conta =
            byte.empty() || sembra_zip(byte) || sembra_xml(byte) || sembra_busta(byte) || sembra_base64(byte);
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
    std::string casa;
    const Xml esito = giro.apri(byte, casa, {nome, ""});
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
    std::string casa;
    giro.apri(byte, casa, {.file = f.file, .voce = "", .con_allegati = true});
    for (FatturaLetta& g : letto.fatture)
        if (g.voce == f.voce && g.impronta == f.impronta && g.corpo == f.corpo) return std::move(g);
    return {};
}

}  // namespace ambra::fatturapa
