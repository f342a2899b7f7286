#include "reports/riepilogo.h"

#include "core/testo.h"
namespace ambra {

ImportiRiepilogo importi_riepilogo(const RecFattura& f) {
    const int verso = segno(f);
    return {somma(f.impon) * verso, somma(f.ivai) * verso, somma(f.esent) * verso};
}

bool FiltroRiepilogo::prende(const RecFattura& f) const {
    if (f.cancellata != 0) return false;
    const auto nel_periodo = [&](std::string_view data) { return dal <= data && data <= al; };
    const std::string_view data = f.datareg.grezzo();
    return data.find('\0') == data.npos ? nel_periodo(data) : nel_periodo(f.datareg.testo());
}

bool FiltroRiepilogo::esclude(const RecFornitore& f) const {
    return f.cancellata != 0 || (senza_particolari && f.nofelenco == 1) || !nomi.contiene(f);
}

void CampiRiepilogo::monta(Schermo& s) {
    nomi.monta(s, "Dal fornitore", "Al fornitore");
    periodo.monta(s);
    s.aggiungi("Eli", Eli);
}

FiltroRiepilogo CampiRiepilogo::filtro() const {
    return {periodo.dal(), periodo.al(), nomi.intervallo(), Eli.spuntata()};
}

void CampiRiepilogo::invio_al_prossimo(Schermo& s, const std::vector<Controllo*>& altri) {
    std::vector<Controllo*> giro = {&nomi.t_inizio, &nomi.t_fine, &periodo.text1[0], &periodo.text1[1]};
    giro.insert(giro.end(), altri.begin(), altri.end());
    for (std::size_t i = 0; i + 1 < giro.size(); ++i)
        giro[i]->invio = [&s, prossimo = giro[i + 1]] { s.fuoco(*prossimo); };
}

std::vector<std::string> righe_identita(const RecFornitore& f) {
    std::vector<std::string> r = {unisci(f.inte1.rifilato(), " ", f.inte2.rifilato()), f.indir.testo(),
                                  unisci(f.cap.rifilato(), " ", f.citta.testo()),
                                  unisci("Codice fiscale ", f.codfis.testo())};
    if (f.fisica == 1) r.push_back(unisci("Nato a ", f.luogonas.rifilato(), " il ", f.datanas.rifilato()));
    return r;
}

}  // namespace ambra
