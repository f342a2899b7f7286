#include "parti/parti.h"

#include "core/disco.h"
#include "core/errori.h"
#include "parti/modulo.h"

namespace ambra {

namespace {

class LettoreARichiesta : public LettoreFatture {
  public:
    FileLetto leggi(std::string_view byte, const std::string& nome) override {
        return vero() ? vero()->leggi(byte, nome) : rifiuto(nome);
    }
    FileLetto leggi_file(const std::string& percorso) override {
        return vero() ? vero()->leggi_file(percorso) : rifiuto(percorso);
    }
    std::optional<FatturaLetta> intera(std::string_view byte, const FatturaLetta& f) override {
        return vero() ? vero()->intera(byte, f) : std::nullopt;
    }
    std::optional<FatturaLetta> intera_da_file(const std::string& percorso, const FatturaLetta& f) override {
        return vero() ? vero()->intera_da_file(percorso, f) : std::nullopt;
    }
    std::vector<std::string> file_di(const std::string& percorso) override {
        return vero() ? vero()->file_di(percorso) : std::vector{percorso};
    }

  private:
    LettoreFatture* vero() {
        ParteArchivi* parte = parte_archivi(perche_);
        return parte ? &parte->lettore() : nullptr;
    }
    FileLetto rifiuto(const std::string& nome) const { return {{}, {{nome, "", perche_}}, 0}; }

    std::string perche_;
};

template <class Parte>
Parte* caricata(const char* nome, std::string& perche) {
    const auto crea = reinterpret_cast<Parte* (*)()>(da_modulo(nome, perche));
    return crea ? crea() : nullptr;
}

}  // namespace

ParteArchivi* parte_archivi(std::string& perche) {
    static ParteArchivi* parte = nullptr;
    if (!parte) parte = caricata<ParteArchivi>("ambra_archivi", perche);
    return parte;
}

PartePdf* parte_pdf(std::string& perche) {
    static PartePdf* parte = nullptr;
    if (!parte) parte = caricata<PartePdf>("ambra_pdf", perche);
    return parte;
}

ParteFogli* parte_fogli(std::string& perche) {
    static ParteFogli* parte = nullptr;
    if (!parte) parte = caricata<ParteFogli>("ambra_fogli", perche);
    return parte;
}

std::string manca_pdf() {
    return manca_modulo("ambra_pdf");
}

std::unique_ptr<LettoreFatture> lettore_a_richiesta() {
    return std::make_unique<LettoreARichiesta>();
}

std::string scrivi_xlsx(const Foglio& foglio, const std::string& percorso) {
    std::string byte, perche;
    ParteFogli* parte = parte_fogli(perche);
    if (!parte) return perche;
    int errore = parte->xlsx(foglio, byte);
    if (errore == 0) errore = scrivi_fuori(percorso, byte);
    return errore == 0 ? "" : in_parole(errore);
}

}  // namespace ambra
