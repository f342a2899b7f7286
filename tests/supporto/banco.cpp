#include "tests/supporto/banco.h"

#include "core/testo.h"

namespace ambra {

namespace {

template <class R>
void metti(std::string& file, std::size_t n, const R& r) {
    if (file.size() < n * sizeof r) file.resize(n * sizeof r, '\0');
    file.replace((n - 1) * sizeof r, sizeof r, byte_di(r));
}

}  // namespace

RecFornitore fornitore_vuoto(const std::string& nome) {
    RecFornitore f{};
    for (auto* t : {&f.inte1, &f.inte2, &f.indir, &f.citta, &f.ainte1, &f.ainte2, &f.aindir, &f.acitta,
                    &f.luogonas, &f.statoest})
        *t = "";
    f.cap = f.acap = f.sigla = "";
    for (auto& t : f.tel) t = "";
    f.piva = "";
    f.codfis = "";
    f.email1 = "";
    f.datanas = "";
    f.codest = "";
    f.prov = f.provnas = f.aprov = "";
    f.sesso = "M";
    f.email2 = "";
    f.inte1 = nome;
    return f;
}

RecFattura fattura_vuota() {
    RecFattura f{};
    f.numdoc = "";
    f.datareg = f.datadoc = f.dscarit = f.dverrit = "";
    for (auto& d : f.dsca) d = "";
    for (auto& d : f.dver) d = "";
    f.pdf = "";
    f.addebita = f.riporta = "0";
    return f;
}

std::string& ArchivioProva::file(const std::string& estensione) {
    if (estensione.find('.') != std::string::npos) return memoria.contenuto(kCartella + estensione);
    return memoria.contenuto(nome_file("001", estensione));
}

void ArchivioProva::fornitori(const std::vector<RecFornitore>& tutti) {
    std::size_t n = file("for").size() / sizeof(RecFornitore);
    for (const auto& f : tutti) {
        metti(file("for"), ++n, f);
        RecNome nome{};
        nome.nome = maiuscolo(f.inte1.testo());
        nome.numero = static_cast<int>(n);
        metti(file("srf"), n, nome);
    }
    RecTotali t{};
    t.parola[0] = static_cast<int>(n);
    metti(file("tfr"), 1, t);
    if (file("tfr").size() < 5 * sizeof t) file("tfr").resize(5 * sizeof t, '\0');
}

void ArchivioProva::fatture(const std::vector<RecFattura>& tutte) {
    std::size_t n = file("ftr").size() / sizeof(RecFattura);
    for (const auto& f : tutte) metti(file("ftr"), ++n, f);
    RecTotali t{};
    t.parola[0] = static_cast<int>(n);
    metti(file("tfr"), 2, t);
    if (file("tfr").size() < 5 * sizeof t) file("tfr").resize(5 * sizeof t, '\0');
}

void ArchivioProva::testo(const std::string& nome, const std::vector<std::string>& righe) {
    std::string& f = memoria.contenuto(kCartella + nome);
    f.clear();
    for (const auto& r : righe) f += r + "\r\n";
}

}  // namespace ambra
