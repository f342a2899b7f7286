#include "invoices/proposta.h"

#include <algorithm>

#include "core/date.h"
#include "core/latino.h"
#include "core/testo.h"
#include "invoices/proposta_parti.h"

namespace ambra {

namespace {

using passi::c_e;
using passi::Cantiere;

constexpr std::size_t kCifreImpronta = 8;
const std::string kCartellaAltrimenti = "\\LUMDIR\\PDF\\";

void testata(Cantiere& k) {
    Proposta& p = k.p;
    const std::string intero = p.numero_intero = vicino(k.a.numero);
    p.numero = destra(intero, sizeof(RecFattura::numdoc));
    if (p.numero != intero)
        k.avvisa("numero-accorciato", "Il numero è "_it + intero + ": si registrano gli ultimi 10 caratteri");
    const auto d = data_iso(k.a.data);
    p.datadoc = d ? testo_data(*d) : "";
    p.datareg = k.c.oggi;
    p.nota_credito = k.a.nota_credito;
    p.termine = k.c.termine >= 0 && k.c.termine < kTermini ? k.c.termine : 0;
    for (const std::string& codice : k.a.avvisi) k.avvisa(codice, in_parole(codice, k.f));
    if (k.f.firma_non_verificata) k.avvisa("firma-non-verificata", in_parole("firma-non-verificata", k.f));
}

std::string impedimento(const FatturaLetta& f, const Analisi& a) {
    const struct {
        bool vero;
        std::string perche;
    } casi[] = {
        {a.avvisa("integrazione-o-autofattura"), "documento emesso dal cliente"},
        {!f.divisa.empty() && f.divisa != "EUR", "divisa " + vicino(f.divisa)},
        {a.avvisa("riepilogo-assente"), "senza riepilogo iva"},
        {a.avvisa("importi-fuori-misura"), "importi fuori misura"},
        {a.avvisa("ritenuta-maggiore-del-totale"), "la ritenuta supera il totale"},
        {a.avvisa("base-ritenuta-maggiore-del-documento"), "la base della ritenuta supera il documento"},
        {a.avvisa("netto-negativo"), "netto negativo"},
        {f.fornitore.codice_iva.empty() && f.fornitore.codice_fiscale.empty(),
         "fornitore senza partita iva e codice fiscale"},
    };
    for (const auto& c : casi)
        if (c.vero) return c.perche;
    return "";
}

std::string percorso_pdf(const Contorno& c, const std::string& impronta) {
    const std::string nome = unisci(c.nnn, sinistra(impronta, kCifreImpronta), ".pdf");
    std::string cartella(rifila(c.cartella_pdf));
    if (!cartella.empty() && !cartella.ends_with('\\')) cartella += '\\';
    const bool entra = !cartella.empty() && cartella.size() + nome.size() <= sizeof(RecFattura::pdf);
    return (entra ? cartella : kCartellaAltrimenti) + nome;
}

void allegato(Cantiere& k) {
    const AllegatoLetto* a = k.f.primo_pdf();
    if (!a) return;
    k.p.con_pdf = true;
    if (!a->impronta.empty()) k.p.pdf = percorso_pdf(k.c, a->impronta);
}

void scrivi(std::array<std::string, kCodiciIva>& testi, const std::array<Decimale, kCodiciIva>& importi) {
    for (std::size_t i = 0; i < kCodiciIva; ++i) testi[i] = c_e(importi[i]) ? importi[i].testo() : "";
}

Decimale somma(const std::array<Decimale, kCodiciIva>& importi) {
    Decimale s;
    for (const Decimale x : importi) s += x;
    return s;
}

// What is proposed adds up to what the file says, or a warning says by how much it does not.
void confronta(Cantiere& k) {
    const Decimale totale = somma(k.impon) + somma(k.ivai) + somma(k.esent);
    if (totale != k.a.totale)
        k.avvisa("totale-proposto-diverso", "Il totale proposto è "_it + totale.testo_italiano() +
                                                ", quello del documento " + k.a.totale.testo_italiano());
    const Decimale ritenuta = somma(k.rac);
    if (ritenuta != k.a.ritenuta)
        k.avvisa("ritenuta-proposta-diversa", "La ritenuta proposta è "_it + ritenuta.testo_italiano() +
                                                  ", quella del documento " + k.a.ritenuta.testo_italiano());
    if (!k.p.con_rate && k.a.netto != totale - ritenuta)
        k.avvisa("netto-proposto-diverso", "Il netto da pagare del documento è "_it +
                                               k.a.netto.testo_italiano() + ": correggere le rate");
}

}  // namespace

bool Proposta::avvisa(std::string_view codice) const {
    return std::ranges::find(avvisi, codice, &Avviso::codice) != avvisi.end();
}

Proposta proponi(const FatturaLetta& f, const Contorno& c) {
    Cantiere k{f, c, analizza(f), {}, {}, {}, {}, {}};
    k.p.impedimento = impedimento(f, k.a);
    if (k.p.impedimento.empty()) passi::ritenuta_offerta(k);
    testata(k);
    k.p.totale = k.a.totale;
    k.p.ritenuta = k.a.ritenuta;
    k.p.netto = k.a.netto;
    allegato(k);
    if (!k.p.impedimento.empty()) return std::move(k.p);
    passi::righe_iva(k);
    passi::esenti(k);
    passi::rate_proposte(k);
    scrivi(k.p.impon, k.impon);
    scrivi(k.p.ivai, k.ivai);
    scrivi(k.p.rac, k.rac);
    scrivi(k.p.esent, k.esent);
    confronta(k);
    return std::move(k.p);
}

}  // namespace ambra
