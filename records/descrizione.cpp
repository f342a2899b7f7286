#include "records/descrizione.h"

#include <algorithm>
#include <type_traits>

#include "core/recgenerale.h"
#include "records/condomino.h"
#include "records/conto.h"
#include "records/fattura.h"
#include "records/fornitore.h"
#include "records/movimento.h"
#include "records/nome.h"
#include "records/prospetto.h"
#include "records/stabile.h"
#include "records/totali.h"

namespace ambra {

namespace {

template <class T>
constexpr CampoRecord::Tipo tipo_di() {
    if constexpr (std::is_same_v<T, Intero>)
        return CampoRecord::Tipo::intero;
    else if constexpr (std::is_same_v<T, Lungo>)
        return CampoRecord::Tipo::lungo;
    else if constexpr (std::is_same_v<T, Doppio>)
        return CampoRecord::Tipo::doppio;
    else if constexpr (requires { T{}.grezzo(); })
        return CampoRecord::Tipo::testo;
    else
        return CampoRecord::Tipo::grezzo;
}

template <class M>
constexpr CampoRecord descrivi(std::string_view nome, std::size_t posto, int primo = 1) {
    using T = std::remove_all_extents_t<M>;
    return {nome, posto, sizeof(T), tipo_di<T>(), static_cast<int>(sizeof(M) / sizeof(T)), primo};
}

#define CAMPO(R, m) descrivi<decltype(R::m)>(#m, offsetof(R, m))

constexpr CampoRecord kGenerale[] = {CAMPO(RecGenerale, gen),    CAMPO(RecGenerale, riservati),
                                     CAMPO(RecGenerale, col),    CAMPO(RecGenerale, altri),
                                     CAMPO(RecGenerale, pdfdir), CAMPO(RecGenerale, riservato)};

constexpr CampoRecord kStabile[] = {
    CAMPO(RecStabile, nome),    CAMPO(RecStabile, indirizzo), CAMPO(RecStabile, cittastab),
    CAMPO(RecStabile, testo4),  CAMPO(RecStabile, testo5),    CAMPO(RecStabile, testo6),
    CAMPO(RecStabile, testo7),  CAMPO(RecStabile, testo8),    CAMPO(RecStabile, testo9),
    CAMPO(RecStabile, testo10), CAMPO(RecStabile, testo11),   CAMPO(RecStabile, testo12),
    CAMPO(RecStabile, testo13), CAMPO(RecStabile, testo14),   CAMPO(RecStabile, testo15),
    CAMPO(RecStabile, testo16), CAMPO(RecStabile, testo17),   CAMPO(RecStabile, testo18),
    CAMPO(RecStabile, testo19), CAMPO(RecStabile, testo20)};

constexpr CampoRecord kStabile2[] = {
    CAMPO(RecStabile2, codfisc), CAMPO(RecStabile2, testo2), CAMPO(RecStabile2, testo3),
    CAMPO(RecStabile2, testo4),  CAMPO(RecStabile2, testo5), CAMPO(RecStabile2, testo6),
    CAMPO(RecStabile2, testo7),  CAMPO(RecStabile2, testo8), CAMPO(RecStabile2, testo9),
    CAMPO(RecStabile2, testo10), CAMPO(RecStabile2, dodici), CAMPO(RecStabile2, numeri1),
    CAMPO(RecStabile2, testo24), CAMPO(RecStabile2, numeri2)};

constexpr CampoRecord kProspetto[] = {CAMPO(RecProspetto, nomeprosp), CAMPO(RecProspetto, testo2),
                                      CAMPO(RecProspetto, testo3), CAMPO(RecProspetto, byte4),
                                      CAMPO(RecProspetto, numprosp)};

constexpr CampoRecord kFornitore[] = {
    CAMPO(RecFornitore, inte1),     CAMPO(RecFornitore, inte2),    CAMPO(RecFornitore, indir),
    CAMPO(RecFornitore, citta),     CAMPO(RecFornitore, cap),      CAMPO(RecFornitore, ainte1),
    CAMPO(RecFornitore, ainte2),    CAMPO(RecFornitore, aindir),   CAMPO(RecFornitore, acitta),
    CAMPO(RecFornitore, acap),      CAMPO(RecFornitore, tel),      CAMPO(RecFornitore, piva),
    CAMPO(RecFornitore, codfis),    CAMPO(RecFornitore, formapag), CAMPO(RecFornitore, email1),
    CAMPO(RecFornitore, conto),     CAMPO(RecFornitore, luogonas), CAMPO(RecFornitore, datanas),
    CAMPO(RecFornitore, nofelenco), CAMPO(RecFornitore, fisica),   CAMPO(RecFornitore, statoest),
    CAMPO(RecFornitore, sigla),     CAMPO(RecFornitore, codest),   CAMPO(RecFornitore, nonres),
    CAMPO(RecFornitore, prov),      CAMPO(RecFornitore, provnas),  CAMPO(RecFornitore, sesso),
    CAMPO(RecFornitore, email2),    CAMPO(RecFornitore, aprov),    CAMPO(RecFornitore, riservati),
    CAMPO(RecFornitore, cancellata)};

constexpr CampoRecord kNome[] = {CAMPO(RecNome, nome), CAMPO(RecNome, numero)};

constexpr CampoRecord kTotali[] = {
    descrivi<decltype(RecTotali::parola)>("parola", offsetof(RecTotali, parola), 0), CAMPO(RecTotali, resto)};

constexpr CampoRecord kTotaliLedger[] = {CAMPO(RecTotaliLedger, tcondomini), CAMPO(RecTotaliLedger, suite1),
                                         CAMPO(RecTotaliLedger, tmovimenti), CAMPO(RecTotaliLedger, suite2)};

constexpr CampoRecord kFattura[] = {
    CAMPO(RecFattura, numfor),     CAMPO(RecFattura, numdoc),     CAMPO(RecFattura, riservati1),
    CAMPO(RecFattura, datareg),    CAMPO(RecFattura, datadoc),    CAMPO(RecFattura, dsca),
    CAMPO(RecFattura, dver),       CAMPO(RecFattura, impon),      CAMPO(RecFattura, ivai),
    CAMPO(RecFattura, esent),      CAMPO(RecFattura, sca),        CAMPO(RecFattura, ver),
    CAMPO(RecFattura, tipodc),     CAMPO(RecFattura, riservati2), CAMPO(RecFattura, pagata),
    CAMPO(RecFattura, modpag),     CAMPO(RecFattura, pdf),        CAMPO(RecFattura, riservati3),
    CAMPO(RecFattura, riservati4), CAMPO(RecFattura, rac),        CAMPO(RecFattura, dscarit),
    CAMPO(RecFattura, dverrit),    CAMPO(RecFattura, addebita),   CAMPO(RecFattura, riporta),
    CAMPO(RecFattura, riservati5), CAMPO(RecFattura, cancellata)};

constexpr CampoRecord kCondomino[] = {CAMPO(RecCondomino, dnome),     CAMPO(RecCondomino, suite1),
                                      CAMPO(RecCondomino, suite2),    CAMPO(RecCondomino, suite3),
                                      CAMPO(RecCondomino, dmill),     CAMPO(RecCondomino, suite4),
                                      CAMPO(RecCondomino, dquota),    CAMPO(RecCondomino, suite5),
                                      CAMPO(RecCondomino, daddebiti), CAMPO(RecCondomino, dstato)};

constexpr CampoRecord kCondomino2[] = {CAMPO(RecCondomino2, suite1),   CAMPO(RecCondomino2, suite2),
                                       CAMPO(RecCondomino2, dmill),    CAMPO(RecCondomino2, dgiorni),
                                       CAMPO(RecCondomino2, dperiodo), CAMPO(RecCondomino2, suite3)};

constexpr CampoRecord kConto[] = {CAMPO(RecConto, cnome), CAMPO(RecConto, suite1), CAMPO(RecConto, csaldo),
                                  CAMPO(RecConto, suite2)};

constexpr CampoRecord kMovimento[] = {
    CAMPO(RecMovimento, mdata),      CAMPO(RecMovimento, mdesc), CAMPO(RecMovimento, mconto),
    CAMPO(RecMovimento, mcondomino), CAMPO(RecMovimento, zero1), CAMPO(RecMovimento, zero2),
    CAMPO(RecMovimento, mimporto),   CAMPO(RecMovimento, mtipo), CAMPO(RecMovimento, mcontrop),
    CAMPO(RecMovimento, vuoto),      CAMPO(RecMovimento, zero3)};

#undef CAMPO

constexpr FormatoRecord kFormati[] = {
    {"RecGenerale", "lumeria.gnr", sizeof(RecGenerale), kGenerale},
    {"RecStabile", "lumora.tot", sizeof(RecStabile), kStabile},
    {"RecStabile2", "lumora.tt2", sizeof(RecStabile2), kStabile2},
    {"RecProspetto", "lumoral.tot", sizeof(RecProspetto), kProspetto},
    {"RecFornitore", "for", sizeof(RecFornitore), kFornitore},
    {"RecNome", "srf", sizeof(RecNome), kNome},
    {"RecNome", "cns", sizeof(RecNome), kNome},
    {"RecTotali", "tfr", sizeof(RecTotali), kTotali},
    {"RecTotaliLedger", "tot", sizeof(RecTotaliLedger), kTotaliLedger},
    {"RecFattura", "ftr", sizeof(RecFattura), kFattura},
    {"RecFattura", "$$$", sizeof(RecFattura), kFattura},
    {"RecCondomino", "cnd", sizeof(RecCondomino), kCondomino},
    {"RecCondomino2", "cn2", sizeof(RecCondomino2), kCondomino2},
    {"RecConto", "pia", sizeof(RecConto), kConto},
    {"RecMovimento", "mov", sizeof(RecMovimento), kMovimento},
};

// A field after the other, none twice and no byte without one.
constexpr bool senza_buchi(const FormatoRecord& f) {
    std::size_t qui = 0;
    for (const CampoRecord& c : f.campi) {
        if (c.posto != qui) return false;
        qui += c.lungo * static_cast<std::size_t>(c.quanti);
    }
    return qui == f.lunghezza;
}
static_assert(std::ranges::all_of(kFormati, senza_buchi));

}  // namespace

std::span<const FormatoRecord> formati_record() {
    return kFormati;
}

const FormatoRecord* formato_di_file(std::string_view file) {
    for (const auto& f : kFormati)
        if (f.file == file) return &f;
    return nullptr;
}

}  // namespace ambra
