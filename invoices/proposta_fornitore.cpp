#include "invoices/proposta_fornitore.h"

#include <algorithm>
#include <optional>

#include "core/latino.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "records/fornitore.h"

namespace ambra {

namespace {

// The fields of the register.
enum Campo : std::size_t {
    inte1,
    inte2,
    indir,
    cap,
    citta,
    prov,
    codfis,
    piva,
    tel = 14,
    email = 17,
    datanas = 20,
    statoest,
    sigla,
    codest
};
constexpr std::size_t kNome = sizeof(RecFornitore::inte1), kVia = sizeof(RecFornitore::indir),
                      kTelefono = sizeof(RecFornitore::tel[0]), kMail = 50, kCodicePersona = 16,
                      kPartitaIva = sizeof(RecFornitore::piva);

bool cifre(std::string_view s) {
    return !s.empty() && std::ranges::all_of(s, cifra);
}

// Blanks tidied.
std::string ordinato(const std::string& utf8) {
    std::string r;
    for (const char c : vicino(utf8))
        if (c != ' ' || (!r.empty() && r.back() != ' ')) r += c;
    return std::string(rifila(r));
}

void nome(const SoggettoLetto& s, DatiFornitore& d) {
    const std::string tutto = ordinato(s.chiamato());
    if (tutto.size() <= kNome) {
        d.testi[inte1] = tutto;
        return;
    }
    auto taglio = tutto.rfind(' ', kNome);
    const bool parola_lunga = taglio == std::string::npos || taglio == 0;
    if (parola_lunga) taglio = kNome;
    d.testi[inte1] = rifila(sinistra(tutto, taglio));
    d.testi[inte2] = sinistra(rifila(std::string_view(tutto).substr(taglio)), kNome);
}

std::string via(const SoggettoLetto& s) {
    const std::string strada = ordinato(s.indirizzo), numero = ordinato(s.civico);
    if (numero.empty() || strada.empty()) return std::string(sinistra(strada + numero, kVia));
    const std::string coda = ", " + numero;
    if (coda.size() >= kVia) return std::string(sinistra(strada, kVia));
    return std::string(rifila_destra(sinistra(strada, kVia - coda.size()))) + coda;
}

// Digits of a fiscal code may stand as letters.
std::optional<int> cifra_di(char c) {
    constexpr std::string_view kLettere = "LMNPQRSTUV";
    if (cifra(c)) return c - '0';
    const auto i = kLettere.find(c);
    if (i == std::string_view::npos) return {};
    return static_cast<int>(i);
}

std::optional<int> numero(const std::string& codice, std::size_t da) {
    const auto d = cifra_di(codice[da]), u = cifra_di(codice[da + 1]);
    if (!d || !u) return {};
    return *d * 10 + *u;
}

// What the code of a natural person says; nobody registered is born after today.
void persona(const std::string& codice, const Data& oggi, DatiFornitore& d) {
    constexpr std::string_view kMesi = "ABCDEHLMPRST";
    d.fisica = true;
    const auto anno = numero(codice, 6), giorno = numero(codice, 9);
    const auto mese = kMesi.find(codice[8]);
    if (!anno || !giorno || mese == std::string_view::npos) return;
    d.femmina = *giorno > 40;
    Data nato{d.femmina ? *giorno - 40 : *giorno, static_cast<int>(mese) + 1, oggi.anno / 100 * 100 + *anno};
    constexpr int kMaggiore = 18;
    if (nato.anno > oggi.anno - kMaggiore) nato.anno -= 100;
    const std::string testo = testo_data(nato);
    if (data_valida(testo)) d.testi[datanas] = testo;
}

void codici(const SoggettoLetto& s, const Data& oggi, DatiFornitore& d) {
    const std::string iva = ordinato(s.codice_iva), fiscale = maiuscolo(ordinato(s.codice_fiscale));
    const bool italiana = !straniero(s) && iva.size() == kPartitaIva && cifre(iva);
    if (italiana) d.testi[piva] = iva;
    d.testi[codfis] = sinistra(fiscale, kCodicePersona);
    if (fiscale.empty() && italiana && !s.denominazione.empty()) d.testi[codfis] = iva;
    if (fiscale.size() == kCodicePersona) persona(fiscale, oggi, d);
}

void estero(const SoggettoLetto& s, DatiFornitore& d) {
    if (!straniero(s)) return;
    const std::string paese = maiuscolo(ordinato(s.paese_iva.empty() ? s.nazione : s.paese_iva));
    d.nonres = true;
    d.testi[statoest] = nome_stato(paese);
    d.testi[sigla] = sinistra(paese, sizeof(RecFornitore::sigla));
    d.testi[codest] = sinistra(ordinato(s.codice_iva), sizeof(RecFornitore::codest));
    if (d.testi[cap] == "00000") d.testi[cap] = "";
}

}  // namespace

bool straniero(const SoggettoLetto& s) {
    if (!s.paese_iva.empty()) return maiuscolo(s.paese_iva) != "IT";
    return s.codice_fiscale.empty() && !s.nazione.empty() && maiuscolo(s.nazione) != "IT";
}

std::string nome_stato(const std::string& sigla) {
    static const std::pair<const char*, std::string> kStati[] = {
        {"AT", "Austria"},
        {"BE", "Belgio"},
        {"BG", "Bulgaria"},
        {"CH", "Svizzera"},
        {"CY", "Cipro"},
        {"CZ", "Repubblica Ceca"},
        {"DE", "Germania"},
        {"DK", "Danimarca"},
        {"EE", "Estonia"},
        {"EL", "Grecia"},
        {"ES", "Spagna"},
        {"FI", "Finlandia"},
        {"FR", "Francia"},
        {"GB", "Regno Unito"},
        {"GR", "Grecia"},
        {"HR", "Croazia"},
        {"HU", "Ungheria"},
        {"IE", "Irlanda"},
        {"LI", "Liechtenstein"},
        {"LT", "Lituania"},
        {"LU", "Lussemburgo"},
        {"LV", "Lettonia"},
        {"MC", "Monaco"},
        {"MT", "Malta"},
        {"NL", "Paesi Bassi"},
        {"NO", "Norvegia"},
        {"PL", "Polonia"},
        {"PT", "Portogallo"},
        {"RO", "Romania"},
        {"RS", "Serbia"},
        {"SE", "Svezia"},
        {"SI", "Slovenia"},
        {"SK", "Slovacchia"},
        {"SM", "San Marino"},
        {"TR", "Turchia"},
        {"UA", "Ucraina"},
        {"US", "Stati Uniti"},
        {"VA", "Città del Vaticano"_it},
        {"AL", "Albania"},
        {"CN", "Cina"},
        {"BA", "Bosnia-Erzegovina"},
        {"BR", "Brasile"},
        {"CA", "Canada"},
        {"IN", "India"},
        {"IL", "Israele"},
        {"IS", "Islanda"},
        {"JP", "Giappone"},
        {"MA", "Marocco"},
        {"MD", "Moldavia"},
        {"ME", "Montenegro"},
        {"MK", "Macedonia del Nord"},
        {"TN", "Tunisia"},
        {"AU", "Australia"},
        {"AR", "Argentina"},
        {"RU", "Russia"},
    };
    for (const auto& [codice, stato] : kStati)
        if (sigla == codice) return stato;
    return sigla;
}

DatiFornitore dati_fornitore(const SoggettoLetto& s, const Data& oggi) {
    DatiFornitore d;
    nome(s, d);
    d.testi[indir] = via(s);
    d.testi[cap] = sinistra(ordinato(s.cap), sizeof(RecFornitore::cap));
    d.testi[citta] = sinistra(ordinato(s.comune), sizeof(RecFornitore::citta));
    d.testi[prov] = sinistra(maiuscolo(ordinato(s.provincia)), sizeof(RecFornitore::prov));
    codici(s, oggi, d);
    estero(s, d);
    const std::string telefono = ordinato(s.telefono), posta = ordinato(s.email);
    if (telefono.size() <= kTelefono) d.testi[tel] = telefono;
    if (posta.size() <= kMail) d.testi[email] = posta;
    return d;
}

}  // namespace ambra
