// The accounts of the demo: chart, headings, owners, and a movement for each document charged.
#include "ambra/demo.h"
#include "archivio/archivio.h"
#include "core/filetesto.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "ledger/quote.h"
#include "records/condomino.h"
#include "records/movimento.h"
#include "records/nome.h"
#include "records/totali.h"

namespace ambra::demo {

namespace {

struct Voce {
    const char* nome;
    const char* conti[6];
};
constexpr Voce kVoci[] = {
    {"Spese generali",
     {"Compenso amministratore", "Cancelleria e postali", "Assicurazione fabbricato", "Spese bancarie",
      "Consulenze legali", "Imposte e tasse"}},
    {"Pulizie", {"Impresa di pulizie", "Materiali di consumo", "Disinfestazioni"}},
    {"Ascensore scala A",
     {"Manutenzione ascensore A", "Energia elettrica ascensore A", "Verifiche periodiche A"}},
    {"Ascensore scala B",
     {"Manutenzione ascensore B", "Energia elettrica ascensore B", "Verifiche periodiche B"}},
    {"Riscaldamento", {"Combustibile", "Conduzione caldaia", "Manutenzione centrale termica"}},
    {"Acqua potabile", {"Consumi acqua", "Letture contatori"}},
    {"Energia elettrica parti comuni", {"Illuminazione scale", "Illuminazione cortile"}},
    {"Giardino", {"Giardinaggio", "Potature", "Irrigazione"}},
    {"Manutenzioni ordinarie", {"Idraulico", "Elettricista", "Fabbro", "Muratore"}},
    {"Manutenzioni straordinarie", {"Rifacimento facciata", "Impermeabilizzazione tetto"}},
    {"Antenna e citofoni", {"Antenna centralizzata", "Impianto citofonico"}},
    {"Autorimessa", {"Cancello automatico", "Pulizia corsello", "Estintori"}},
};
constexpr const char* kAddebiti[] = {"Addebiti personali", "Spese legali individuali",
                                     "Lavori in proprietà esclusiva"};
constexpr const char* kContropartite[] = {"Banca c/c ordinario", "Banca c/c lavori", "Posta", "Fondo cassa"};
constexpr const char* kCognomi[] = {"ALBERTI", "BASSO", "CALÒ",  "DONATI", "ELIA",   "FERRI",  "GUIDI",
                                    "IORIO",   "LUPO",  "MAGRÌ", "NERI",   "ORSINI", "PACE",   "QUARTI",
                                    "RIVA",    "SALA",  "TESTA", "URSO",   "VILLA",  "ZANETTI"};

double quota_di(const Cantiere& c, int condomino) {
    // Thousandths that add up to 1000 exactly: the last owner takes the rest.
    const int n = c.stabile.condomini;
    const double parte = 1000 / n;
    return condomino < n ? parte : 1000 - parte * (n - 1);
}

std::vector<RecConto> piano() {
    std::vector<RecConto> pia(kConti);
    for (auto& r : pia) r.cnome = "";
    for (std::size_t v = 0; v < std::size(kVoci); ++v)
        for (int k = 0; k < 6 && kVoci[v].conti[k]; ++k)
            pia[static_cast<std::size_t>(idconto(static_cast<int>(v) + 1, k + 1) - 1)].cnome =
                kVoci[v].conti[k];
    for (int k = 0; k < 3; ++k)
        pia[static_cast<std::size_t>(idconto(kVoceAddebiti, k + 1) - 1)].cnome = da_utf8(kAddebiti[k]);
    for (int k = 0; k < 4; ++k)
        pia[static_cast<std::size_t>(kBaseContropartite + k)].cnome = kContropartite[k];
    return pia;
}

struct Registrazione {
    std::vector<RecConto> pia;
    std::vector<RecMovimento> mov;
    std::vector<RecCondomino> condomini;
};

// One movement, the two balances and the owner's charges, as a posting of the program leaves them.
void registra(Registrazione& r, const Cantiere& c, const RecFattura& f, const RecFornitore& chi,
              int condomino) {
    const bool singolo = f.riporta.grezzo() == "1";
    const double importo = somma(f.sca) * segno(f);
    if (importo == 0 || r.mov.size() >= 32767) return;
    const int conto = singolo ? idconto(kVoceAddebiti, 1) : chi.conto > 0 ? int(chi.conto) : c.conti[0];
    RecMovimento m{};
    const std::string reg = f.datareg.testo();
    m.mdata = reg.substr(2, 6);
    m.mdesc[0] = chi.inte1.testo();
    m.mdesc[1] = unisci(f.tipodc == 1 ? "Nota credito " : "Fattura ", f.numdoc.rifilato(), " del ",
                        mostra_aaaammgg(f.datadoc.testo()));
    m.mdesc[2] = "";
    m.mconto = conto;
    m.mcondomino = singolo ? condomino : 0;
    m.mimporto = leggi_numero(testo_numero(importo));
    m.mtipo = singolo ? 2 : 0;
    m.mcontrop = 1;
    r.mov.push_back(m);
    auto& dare = r.pia[static_cast<std::size_t>(conto - 1)];
    auto& avere = r.pia[static_cast<std::size_t>(kBaseContropartite)];
    dare.csaldo = arrotonda(c.cambio, dare.csaldo + m.mimporto);
    avere.csaldo = arrotonda(c.cambio, avere.csaldo - m.mimporto);
    if (singolo) {
        auto& chi_paga = r.condomini[static_cast<std::size_t>(condomino - 1)];
        chi_paga.daddebiti = arrotonda(c.cambio, chi_paga.daddebiti + m.mimporto);
    }
}

std::vector<RecCondomino> proprietari(const Cantiere& c, std::vector<RecCondomino2>& due) {
    std::vector<RecCondomino> tutti(static_cast<std::size_t>(c.stabile.condomini));
    due.resize(tutti.size());
    for (std::size_t i = 0; i < tutti.size(); ++i) {
        const std::string nome =
            std::string(kCognomi[i % std::size(kCognomi)]) + " INT. " + std::to_string(i + 1);
        tutti[i].dnome = da_utf8(nome);
        for (std::size_t v = 0; v < std::size(kVoci); ++v)
            tutti[i].dmill[v] = quota_di(c, static_cast<int>(i) + 1);
        if (i % 19 == 7) tutti[i].dstato = 1;
        due[i].dgiorni = 365;
        if (i % 23 == 11) {
            due[i].dgiorni = 120;
            due[i].dperiodo = 1;
        }
    }
    return tutti;
}

bool scrivi_tabella_voci(const Cantiere& c) {
    std::vector<std::string> righe;
    for (int voce = 1; voce <= 40; ++voce)
        for (const auto& r : c.voci.riga[static_cast<std::size_t>(voce)]) righe.push_back(r);
    righe.resize(654);
    Errore err;
    return scrivi_righe(c.disco, err, nome_file(con_zeri(c.stabile.numero, 3), "tab"), righe);
}

}  // namespace

void fai_conti(Cantiere& c, Caso&) {
    for (std::size_t v = 0; v < std::size(kVoci); ++v) {
        c.voci.riga[v + 1][0] = kVoci[v].nome;
        c.voci.riga[v + 1][2] = "1000";
        for (int k = 0; k < 6 && kVoci[v].conti[k]; ++k)
            c.conti.push_back(idconto(static_cast<int>(v) + 1, k + 1));
    }
}

bool scrivi_ledger(Cantiere& c, Caso& caso) {
    Registrazione r;
    std::vector<RecCondomino2> due;
    r.pia = piano();
    r.condomini = proprietari(c, due);
    for (const RecFattura& f : c.fatture)
        if (f.addebita.grezzo() == "1")
            registra(r, c, f, c.fornitori[static_cast<std::size_t>(int(f.numfor) - 1)],
                     caso.fra(1, c.stabile.condomini));
    SaldiVoci saldi;
    for (int voce = 1; voce <= kVociSpesa; ++voce) {
        saldi.totale[static_cast<std::size_t>(voce)] = c.voci.totale(voce);
        for (int k = 1; k <= kContiPerVoce; ++k)
            saldi.saldo[static_cast<std::size_t>(voce)] +=
                r.pia[static_cast<std::size_t>(idconto(voce, k) - 1)].csaldo;
    }
    std::vector<RecNome> nomi(r.condomini.size());
    for (std::size_t i = 0; i < r.condomini.size(); ++i) {
        r.condomini[i].dquota = quota_condomino(c.cambio, saldi, r.condomini[i], due[i]);
        nomi[i].nome = r.condomini[i].dnome.testo();
        nomi[i].numero = static_cast<int>(i) + 1;
    }
    std::vector<RecTotaliLedger> totali(1);
    totali[0].tcondomini = c.stabile.condomini;
    totali[0].tmovimenti = static_cast<int>(r.mov.size());
    const std::string nnn = con_zeri(c.stabile.numero, 3);
    const std::pair<const char*, std::string> file[] = {
        {"pia", byte_di(r.pia)}, {"mov", byte_di(r.mov)}, {"cnd", byte_di(r.condomini)},
        {"cn2", byte_di(due)},   {"cns", byte_di(nomi)},  {"tot", byte_di(totali)}};
    bool bene = scrivi_tabella_voci(c);
    for (const auto& [estensione, byte] : file)
        bene = c.disco.scrivi_tutto(nome_file(nnn, estensione), byte) == 0 && bene;
    return bene;
}

}  // namespace ambra::demo
