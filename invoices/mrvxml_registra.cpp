// The way of a document into the archive: through the supplier register and the invoice screen, as the user
// would go it. Nothing is stored but by the user's "Conferma" there.
#include "core/latino.h"
#include "core/testo.h"
#include "invoices/mano.h"
#include "invoices/mrvxml.h"
#include "invoices/proposta_fornitore.h"
#include "screen/programma.h"
#include "suppliers/lumfor.h"
#include "suppliers/lumftem.h"

namespace ambra {

namespace {

std::string non_piu(const RigaFattura& r) {
    return unisci("Il file ", vicino(r.fattura.file), " non c'è più o è cambiato: "_it);
}

// Every field is typed, the empty ones too: what the screen proposes by itself must not stand beside the
// file.
void digita(Mano mano, const Proposta& p) {
    mano.digita("Text2(0)", p.numero);
    mano.digita("text1(0)", p.datadoc);
    mano.digita("text1(1)", p.datareg);
    mano.clicca(nome_elemento("tipodc", p.nota_credito ? 1 : 0));
    mano.scegli("Combo1", p.termine);
    for (std::size_t i = 0; i < kCodiciIva; ++i) mano.digita(nome_elemento("impon", i), p.impon[i]);
    for (std::size_t i = 0; i < kCodiciIva; ++i) mano.digita(nome_elemento("ivai", i), p.ivai[i]);
    for (std::size_t i = 0; i < kCodiciIva; ++i) mano.digita(nome_elemento("rac", i), p.rac[i]);
    for (std::size_t i = 0; i < kCodiciIva; ++i) mano.digita(nome_elemento("esent", i), p.esent[i]);
    for (std::size_t k = 0; p.con_rate && k < kRate; ++k) {
        mano.digita(nome_elemento("sca", k), p.sca[k]);
        mano.digita(nome_elemento("dsca", k), p.dsca[k]);
    }
    mano.digita("pdf", p.pdf);
}

}  // namespace

void Mrvxml::registra_scelta() {
    prog.err.azzera();
    RigaFattura* r = corrente();
    if (!r) return;
    rivedi();
    if (!r->registrabile()) return;
    if (r->stato == Stato::fornitore_nuovo)
        apri_fornitore(*r);
    else
        apri_documento(*r);
}

// A register in which somebody is at work only comes to the front.
void Mrvxml::apri_fornitore(const RigaFattura& r) {
    auto* aperto = static_cast<Lumfor*>(prog.schermi.caricato("lumfor"));
    if (aperto && aperto->stato != Lumfor::kSfoglia) return prog.schermi.porta_davanti(*aperto);
    prog.schermi.apri_foglia("lumfor");
    Schermo* s = prog.schermi.caricato("lumfor");
    if (!s) return;
    const DatiFornitore d = dati_fornitore(r.fattura.fornitore, prog.piattaforma.today());
    Mano mano(*s);
    mano.clicca("b_ins");
    for (std::size_t i = 0; i < d.testi.size(); ++i) mano.digita(nome_elemento("Text2", i), d.testi[i]);
    mano.spunta("indeti(0)", d.fisica);
    mano.spunta("indeti(1)", d.nonres);
    mano.clicca(nome_elemento("Sesso", d.femmina ? 1 : 0));
}

std::optional<FatturaLetta> Mrvxml::intera(RigaFattura& r) {
    auto letta = prog.lettore ? prog.lettore->intera_da_file(r.percorso, r.fattura) : std::nullopt;
    r.perduta = !letta;
    return letta;
}

std::optional<AllegatoLetto> Mrvxml::pdf_della_scelta() {
    RigaFattura* r = corrente();
    if (!r || !r->proposta.con_pdf) return {};
    const auto f = intera(*r);
    if (f && f->primo_pdf()) return *f->primo_pdf();
    prog.ferma(non_piu(*r) + "il PDF allegato non si può aprire"_it);
    return {};
}

void Mrvxml::apri_documento(RigaFattura& r) {
    Schermo* aperto = prog.schermi.caricato("lumftea");
    if (aperto && aperto->in_attesa()) return prog.schermi.porta_davanti(*aperto);
    Proposta p = r.proposta;  // a copy: the opening may judge this row anew
    std::optional<FatturaLetta> letta;
    if (p.con_pdf) {
        letta = intera(r);
        if (!letta && !prog.chiedi_prudente(non_piu(r) + "registrare senza il PDF allegato?", "Attenzione"))
            return;
        RecFattura ultima{};
        if (letta) p = proponi(*letta, contorno(r, ultima));
    }
    nuova_fattura(prog);
    prog.recfornitore = static_cast<int>(r.fornitore);
    dopo_il_documento(r, p.pdf, letta ? letta->primo_pdf() : nullptr);
    prog.schermi.apri("lumftea");
    if (Schermo* s = prog.schermi.caricato("lumftea")) digita(Mano(*s), p);
}

// The attached PDF is taken out only once its document is stored, and only where the user left its path.
void Mrvxml::dopo_il_documento(const RigaFattura& r, const std::string& percorso, const AllegatoLetto* pdf) {
    prog.dopo_memorizzata = nullptr;
    if (!pdf) return;
    Programma& p = prog;
    prog.dopo_memorizzata = [&p, percorso, byte = pdf->contenuto,
                             impronta = r.fattura.impronta](const RecFattura& f) {
        if (f.pdf.rifilato() != percorso) return;
        p.disco.crea_cartella(percorso.substr(0, percorso.find_last_of('\\')));
        std::string prima;
        if (p.disco.leggi_tutto(percorso, prima) == 0 && prima == byte) return;
        if (p.disco.scrivi_tutto(percorso, byte) == 0) return;
        if (auto* s = static_cast<Mrvxml*>(p.schermi.caricato("mrvxml")))
            s->pdf_non_scritto(impronta, percorso);
    };
}

void Mrvxml::pdf_non_scritto(std::size_t impronta, const std::string& percorso) {
    for (auto& r : righe_)
        if (r->fattura.impronta == impronta)
            r->avviso_pdf = unisci("Il PDF allegato non si è potuto scrivere in "_it, percorso);
}

}  // namespace ambra
