// The documents of the demo: three years of invoices and credit notes in every state.
#include <algorithm>
#include <cmath>
#include <set>

#include "ambra/demo.h"
#include "archivio/archivio.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "invoices/calcolo.h"
#include "ledger/scadenza_ritenuta.h"

namespace ambra::demo {

namespace {

constexpr int kAnni = 3;

// An amount with the cents that real bills have.
double importo_qualsiasi(Caso& caso) {
    const int grande = caso.fra(1, 100);
    const double unita = grande <= 60   ? caso.fra(40, 600)
                         : grande <= 90 ? caso.fra(600, 4000)
                                        : caso.fra(4000, 28000);
    return caso.su(50) ? unita : unita + caso.fra(1, 99) / 100.0;
}

void metti_riga(RecFattura& f, const Cantiere& c, std::size_t codice, double imponibile) {
    const auto& t = c.iva.codice[codice];
    const RigaIva r = riga_iva(c.cambio, leggi_numero(t.aliquota), leggi_numero(t.ritenuta), imponibile);
    f.impon[codice - 1] = imponibile;
    f.ivai[codice - 1] = r.iva;
    if (r.ritenuta) f.rac[codice - 1] = *r.ritenuta;
}

void importi_di(RecFattura& f, const Cantiere& c, Caso& caso, const RecFornitore& fornitore) {
    constexpr std::size_t kCodici[] = {1, 1, 1, 2, 2, 3, 5, 5, 6, 7};
    if (fornitore.fisica == 1) {
        metti_riga(f, c, 4, importo_qualsiasi(caso));
        if (caso.su(50)) f.esent[7] = std::floor(double(f.impon[3]) * 4) / 100;
    } else {
        metti_riga(f, c, caso.uno(kCodici), importo_qualsiasi(caso));
        if (caso.su(15)) metti_riga(f, c, 2, importo_qualsiasi(caso));
        if (caso.su(10)) f.esent[static_cast<std::size_t>(caso.fra(0, 5))] = importo_qualsiasi(caso);
    }
}

void scadenze_di(RecFattura& f, const Cantiere& c, const Data& emessa) {
    const Termine t = termine_di(c.pagamenti.termine[static_cast<std::size_t>(int(f.modpag)) + 1].codice);
    const double totale = somma(f.impon) + somma(f.ivai) + somma(f.esent);
    const Importi rate = calcrate(c.cambio, t, totale - somma(f.rac));
    const Scadenze date = calcscad(t, emessa);
    for (std::size_t k = 0; k < kRate; ++k) {
        if (rate[k]) f.sca[k] = leggi_numero(testo_numero(*rate[k]));
        if (date[k]) f.dsca[k] = in_ggmmaaaa(*date[k]);
    }
}

// What has fallen due is mostly paid; some of it in part, some late, some not at all.
void pagamenti_di(RecFattura& f, Caso& caso, const std::string& oggi) {
    for (std::size_t k = 0; k < 4; ++k) {
        if (f.sca[k] == 0) continue;
        const std::string scade = da_ggmmaaaa_a_aaaammgg(f.dsca[k].testo());
        if (scade > oggi || !caso.su(88)) continue;
        f.ver[k] = caso.su(94) ? double(f.sca[k]) : std::floor(double(f.sca[k]) * 50) / 100;
        f.dver[k] = f.dsca[k].testo();
    }
    f.pagata = somma(f.sca) == somma(f.ver) ? 1 : 0;
    const std::string prima = f.dver[0].testo();
    if (somma(f.rac) == 0 || prima[0] == ' ') return;
    const std::string scade = in_ggmmaaaa(scadenza_ritenuta(mostra_ggmmaaaa(prima)));
    f.dscarit = scade;
    if (da_ggmmaaaa_a_aaaammgg(scade) <= oggi && caso.su(85)) f.dverrit = scade;
}

// A supplier gives a number once a year: one that is taken becomes "123/A", "123/B".
void mai_due_volte(RecFattura& f, std::set<std::string>& usati) {
    const std::string di_chi = unisci(std::to_string(int(f.numfor)), " ", std::to_string(int(f.tipodc)), " ",
                                      sinistra(f.datadoc.grezzo(), 4), " ");
    const std::string numero(f.numdoc.rifilato());
    for (char lettera = 'A'; !usati.insert(di_chi + std::string(f.numdoc.rifilato())).second; ++lettera)
        f.numdoc = unisci(numero, "/", std::string(1, lettera));
}

RecFattura bianca() {
    RecFattura f{};
    f.numdoc = "";
    for (auto& d : f.dsca) d = "";
    for (auto& d : f.dver) d = "";
    f.dscarit = "";
    f.dverrit = "";
    f.pdf = "";
    f.addebita = "0";
    f.riporta = "0";
    return f;
}

constexpr int kPrimaPagina = 25;

}  // namespace

void fai_fatture(Cantiere& c, Caso& caso) {
    const std::string oggi = in_aaaammgg(testo_data(c.oggi));
    const Data inizio = {1, 1, c.oggi.anno - kAnni + 1};
    const int giorni = 365 * (kAnni - 1) + (c.oggi.mese - 1) * 30 + c.oggi.giorno;
    std::set<std::string> usati;
    for (int n = 0; n < c.stabile.fatture; ++n) {
        const int quando = static_cast<int>(static_cast<long>(n) * giorni / c.stabile.fatture);
        const Data emessa = piu_giorni(inizio, quando);
        const Data registrata = piu_giorni(emessa, caso.fra(0, 6));
        RecFattura f = bianca();
        int fornitore = caso.fra(1, c.stabile.fornitori);
        // The first page of the list is the first that a newcomer sees: no marks of deletion there.
        while (n < kPrimaPagina && c.fornitori[static_cast<std::size_t>(fornitore - 1)].cancellata != 0)
            fornitore = fornitore % c.stabile.fornitori + 1;
        const RecFornitore& chi = c.fornitori[static_cast<std::size_t>(fornitore - 1)];
        f.numfor = fornitore;
        f.numdoc =
            std::to_string(caso.fra(1, 999)) + (caso.su(30) ? "/" + std::to_string(emessa.anno % 100) : "");
        f.datadoc = in_aaaammgg(testo_data(emessa));
        f.datareg = std::min(in_aaaammgg(testo_data(registrata)), oggi);
        f.modpag = int(chi.formapag);
        f.tipodc = caso.su(6) ? 1 : 0;
        f.riporta = caso.su(8) ? "1" : "0";
        importi_di(f, c, caso, chi);
        scadenze_di(f, c, emessa);
        pagamenti_di(f, caso, oggi);
        if (caso.su(12)) f.pdf = "\\LUMDIR\\PDF\\F" + con_zeri(n + 1, 6) + ".PDF";
        if (caso.su(70)) f.addebita = "1";
        if (caso.su(4)) f.cancellata = 1;
        mai_due_volte(f, usati);
        c.fatture.push_back(f);
    }
}

bool scrivi_fatture(const Cantiere& c) {
    return c.disco.scrivi_tutto(nome_file(con_zeri(c.stabile.numero, 3), "ftr"), byte_di(c.fatture)) == 0;
}

}  // namespace ambra::demo
