#include "tests/insieme/posto.h"

#include <algorithm>

#include "bench/cantiere.h"
#include "core/numeri.h"
#include "ledger/lumincx.h"
#include "worklist/vexoraf.h"

namespace ambra {

Posto::Posto(const ArchivioProva& archivio, std::string chi)
    : memoria(archivio.memoria.altro_programma()), prog(disco, piattaforma, "1"), sigla(std::move(chi)) {
    disco.avviso = [this](const Guasto& g) { avvisi.push_back(g); };
    registra_tutte(prog.schermi);
    prog.schermi.apri("vexoraf");
}

bool Posto::aperto(std::string_view nome) const {
    const Schermo* s = prog.schermi.caricato(nome);
    return s && s->visible();
}

void Posto::clic(const std::string& numero, int colonna) {
    Griglia& elenco = schermo<Vexoraf>("vexoraf").elenco;
    for (int r = 1; r < elenco.righe(); ++r)
        if (elenco.vista(r, 2) == numero) return fai([&] { elenco.scegli(r, colonna); });
}

void Posto::memorizza_l_addebito() {
    const auto prova = [this](std::size_t bottone) {
        if (!prog.schermi.caricato("lumincx")) return;
        premi(schermo<Lumincx>("lumincx").b_fine[bottone]);
        if (bottone == 1 && !prog.schermi.caricato("lumincx")) ++movimenti;
    };
    piattaforma.attese = {[prova] { prova(1); }, [prova] { prova(1); }, [prova] { prova(0); }};
}

bool Posto::detto(const std::string& parole) const {
    return std::any_of(piattaforma.messaggi.begin(), piattaforma.messaggi.end(),
                       [&](const auto& m) { return m.testo.find(parole) != std::string::npos; });
}

namespace {

RecFattura documento(const std::string& numero, const std::string& registrato) {
    RecFattura f = fattura_vuota();
    f.numfor = 1;
    f.numdoc = numero;
    f.datadoc = f.datareg = registrato;
    f.impon[0] = 100;
    f.ivai[0] = 22;
    f.rac[0] = 20;
    f.sca[0] = 102;
    f.dsca[0] = "31012024";  // of all four that the term knows: an amount that changes is split again
    f.dsca[1] = "29022024";
    f.dsca[2] = "31032024";
    f.dsca[3] = "30042024";
    f.dscarit = "16022024";
    return f;
}

template <class R>
std::vector<std::string> record_di(const std::string& file, int quanti) {
    std::vector<std::string> r;
    for (int n = 0; n < quanti; ++n)
        r.push_back(file.substr(static_cast<std::size_t>(n) * sizeof(R), sizeof(R)));
    std::sort(r.begin(), r.end());
    return r;
}

template <class R>
R record_da(const std::string& byte) {
    R r{};
    std::copy_n(byte.data(), std::min(byte.size(), sizeof r), reinterpret_cast<char*>(&r));
    return r;
}

}  // namespace

ArchivioPronto::ArchivioPronto() {
    cantiere::stabile(memoria, 3);
    RecStabile s{};
    s.nome = "CONDOMINIO ROSA";
    memoria.contenuto(kCartella + "lumora.tot") = byte_di(s);
    memoria.contenuto(kCartella + "lumora.tt2") = byte_di(RecStabile2{});
    std::vector<RecFornitore> altri = {fornitore_vuoto("Zeta"), fornitore_vuoto("Beta"),
                                       fornitore_vuoto("\xFFOmega")};
    altri[2].cancellata = 1;
    fornitori(altri);
    file("tfr")[2] = 1;  // out of order
    RecFattura saldata = documento("SALDATA", "20240109");
    saldata.ver[0] = saldata.sca[0];
    saldata.dver[0] = "01022024";
    saldata.pagata = 1;
    RecFattura morta = documento("MORTA", "20240101");
    morta.cancellata = 1;
    fatture({documento("VECCHIA", "20230301"), documento("CAMBIA", "20240310"), documento("PAGA", "20240210"),
             saldata, documento("TOGLI", "20240115"), documento("TOGLI2", "20240305"), morta,
             documento("VERSA", "20240104")});
}

Stato stato_di(ArchivioProva& a) {
    const auto contatori = a.file("tfr");
    const auto t = record_da<RecTotali>(contatori.substr(sizeof(RecTotali)));
    const int quanti = record_da<RecTotali>(contatori).parola[0];
    std::vector<std::string> nomi;
    for (int i = 0; i < quanti; ++i) {
        const auto r =
            record_da<RecNome>(a.file("srf").substr(static_cast<std::size_t>(i) * sizeof(RecNome)));
        const auto suo = static_cast<std::size_t>(r.numero - 1) * sizeof(RecFornitore);
        nomi.push_back(r.nome.testo() + a.file("for").substr(suo, sizeof(RecFornitore::inte1)));
    }
    const auto l = record_da<RecTotaliLedger>(a.file("tot"));
    return {record_di<RecFattura>(a.file("ftr"), t.parola[0]),
            record_di<RecMovimento>(a.file("mov"), l.tmovimenti),
            record_di<RecFornitore>(a.file("for"), quanti),
            nomi,
            contatori,
            a.file("tot"),
            a.file("pia"),
            a.file("cnd")};
}

std::string in_breve(const Stato& s) {
    std::string r;
    for (const std::string& byte : s.documenti) {
        const auto f = record_da<RecFattura>(byte);
        r += std::string(f.numdoc.rifilato()) + " impon " + testo_numero(f.impon[0]) + " ver " +
             testo_numero(somma(f.ver)) + (f.cancellata == 0 ? "" : " tolta") +
             (f.pagata == 0 ? "" : " pagata") + " addebita " + f.addebita.testo() + " dver " +
             f.dver[0].testo() + " dscarit " + f.dscarit.testo() + " dverrit " + f.dverrit.testo() + " pdf " +
             f.pdf.testo().substr(0, 8) + "\n";
    }
    for (const std::string& nome : s.nomi) r += "\"" + nome + "\"\n";
    const auto t = record_da<RecTotali>(s.contatori.substr(sizeof(RecTotali)));
    return r + "counters " + std::to_string(t.parola[0]) + " " + std::to_string(t.parola[1]) + " " +
           std::to_string(t.parola[2]) + ", movements " + std::to_string(s.movimenti.size()) + "\n";
}

}  // namespace ambra
