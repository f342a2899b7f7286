#include "reports/quadroac.h"

#include <cmath>

#include "core/filetesto.h"
#include "core/impostazioni.h"
#include "core/lettura.h"
#include "core/numeri.h"
#include "core/testo.h"
#include "print/lavoro.h"

namespace ambra {

namespace {

const std::string kScostamenti = kCartella + "lummmi.dxy";

// The pen over the sheet. A printer fault abandons one operation, and the print goes on with the next.
class Foglio {
  public:
    explicit Foglio(Programma& prog, double punti) : p_(prog.piattaforma.printer()), lavoro_(p_) {
        p_.document_title = "Quadro AC";
        p_.scale_mode(Scala::millimetri);
        p_.font = {"arial", punti, false, false};
        p_.fore_color = 0;
    }
    Foglio(const Foglio&) = delete;
    Foglio& operator=(const Foglio&) = delete;

    void corpo(double punti) {
        if (punti > 0) p_.font.punti = punti;
    }
    void metti(double x_mm, double y_mm, std::string_view testo) {
        passando([&] {
            p_.current_x = x_mm;
            p_.current_y = y_mm;
            p_.print(testo);
        });
    }
    /// `x_mm` is the right end of the text.
    void metti_a_destra(double x_mm, double y_mm, std::string_view testo) {
        passando([&] { metti(x_mm - p_.text_width(testo), y_mm, testo); });
    }
    void pagina() {
        passando([&] { p_.new_page(); });
    }

  private:
    template <class F>
    static void passando(F f) {
        try {
            f();
        } catch (const PrinterFault&) {
            // the sheet lacks this one
        }
    }
    Printer& p_;
    Lavoro lavoro_;  ///< ends with this
};

// A whole amount; the bias of 0.501 is that of the form.
std::string importo_intero(double x) {
    return formatta(std::floor(x + 0.501), Formato::intero);
}

std::string data_spaziata(std::string_view datanas, std::string_view tra) {
    return unisci(medio(datanas, 1, 2), tra, medio(datanas, 4, 2), tra, medio(datanas, 7, 4));
}

// ---- the built-in positions ----

constexpr int kFornitoriFoglio = 5;
constexpr double kPassoBlocchi = 32.5;  // millimetres from one further block to the next

class ModelloFisso {
  public:
    ModelloFisso(Foglio& f, const DatiQuadro& dati, double dx, double dy)
        : foglio_(f), dati_(dati), dx_(dx), dy_(dy) {}

    void testata(int numero) {
        for (std::size_t i = 0; i < 16; ++i)
            foglio_.metti(std::floor(85 + 5 * static_cast<double>(i) + dx_), 23 + dy_,
                          medio(dati_.studio[9], i + 1, 1));
        const std::string due = con_zeri(numero, 2);
        for (std::size_t i = 0; i < 2; ++i) metti(153 + 5 * static_cast<double>(i), 40, medio(due, i + 1, 1));
        metti(41, 55, dati_.stabile2.codfisc.testo());
        metti(90, 55, dati_.stabile.nome.testo());
        metti(41, 66, dati_.stabile.cittastab.testo());
        metti(109, 66, "");
        metti(120, 66, dati_.stabile.indirizzo.testo());
    }

    /// `slot` 0 is the block under the head.
    void fornitore(const RecFornitore& f, const std::string& importo, int slot) {
        // Six lines a block, in millimetres: the first block is more loosely spaced than the others.
        static constexpr double kPrimo[] = {78, 91, 103, 114}, kSeguenti[] = {124, 132, 140, 148};
        std::array<double, 4> y{};
        for (std::size_t i = 0; i < y.size(); ++i)
            y[i] = slot == 0 ? kPrimo[i] : kSeguenti[i] + kPassoBlocchi * (slot - 1);
        metti(41, y[0], f.codfis.testo());
        metti(90, y[0], f.inte1.testo());
        metti(41, y[1], f.inte2.testo());
        if (f.fisica == 1) metti(88, y[1], puliscitesto(f.sesso.grezzo()));
        metti(96, y[1], data_spaziata(puliscitesto(f.datanas.grezzo()), "    "));
        metti(124, y[1], puliscitesto(f.luogonas.grezzo()));
        metti(181, y[1], puliscitesto(f.provnas.grezzo()));
        metti(41, y[2], f.citta.testo());
        metti(104, y[2], puliscitesto(f.prov.grezzo()));
        metti(115, y[2], f.indir.testo());
        if (f.nonres == 1) metti(181, y[2], f.sigla.testo());
        metti(45, y[3], importo);
    }

  private:
    void metti(double x, double y, std::string_view testo) { foglio_.metti(x + dx_, y + dy_, testo); }

    Foglio& foglio_;
    const DatiQuadro& dati_;
    double dx_, dy_;
};

// ---- the user's positions ----

constexpr std::size_t kRigaImporto = 25, kRigaFoglio = 26;
constexpr std::size_t kBaseFronte = 97, kBaseRetro = 98, kPasso = 99;
constexpr int kFronte = 4, kFornitoriModulo = 10;  // suppliers on a sheet's first page, on the whole sheet

using ValoriModulo = std::array<std::string, kRigaFoglio + 1>;  // by row of the layout

ValoriModulo valori_fissi(const DatiQuadro& d) {
    ValoriModulo v;
    static constexpr std::size_t kRigheStudio[] = {1, 2, 3, 6, 9};
    for (std::size_t i = 0; i < std::size(kRigheStudio); ++i)
        v[i + 1] = std::string(rifila(d.studio[kRigheStudio[i]]));
    v[6] = d.stabile.nome.rifilato();
    v[7] = d.stabile.indirizzo.rifilato();
    v[8] = d.stabile.cittastab.rifilato();
    // The tax code stands in the row that the editor calls the province, and row 10 stays empty.
    v[9] = d.stabile2.codfisc.rifilato();
    return v;
}

void metti_fornitore(ValoriModulo& v, const RecFornitore& f, const std::string& importo) {
    const bool fisica = f.fisica == 1, estero = f.nonres == 1;
    v[11] = f.inte1.rifilato();
    v[12] = f.inte2.rifilato();
    v[13] = f.indir.rifilato();
    v[14] = f.citta.rifilato();
    v[15] = f.prov.rifilato();
    v[16] = f.codfis.rifilato();
    v[17] = fisica ? f.sesso.rifilato() : "";
    v[18] = fisica ? data_spaziata(f.datanas.testo(), "  ") : "";
    v[19] = fisica ? f.luogonas.rifilato() : "";
    v[20] = fisica ? f.provnas.rifilato() : "";
    v[21] = estero ? "X" : "";
    v[22] = estero ? f.statoest.rifilato() : "";
    v[23] = estero ? f.sigla.rifilato() : "";
    v[24] = estero ? f.codest.rifilato() : "";
    v[25] = importo;
}

// A row at x 0 or y 0 is switched off. A right-aligned value prints only if it is not zero.
void piazza(Foglio& foglio, const CampoLayout& c, const std::string& valore, bool a_destra, double giu_mm) {
    const double x = c.x_mm(), y = c.y_mm();
    if (x == 0 || y == 0) return;
    foglio.corpo(leggi_numero(c.corpo) + 5);
    if (!a_destra) return foglio.metti(x, y + giu_mm, valore);
    if (leggi_numero(valore) != 0) foglio.metti_a_destra(x, y + giu_mm, valore);
}

double misura(const Layout& l, std::size_t riga) {
    return leggi_numero(l.campo[riga].orizzontale());
}

}  // namespace

DatiQuadro carica_quadro(Programma& prog) {
    DatiQuadro d;
    leggi_o_resta(prog.arc.edifici, prog.numero_stabile(), d.stabile);
    leggi_o_resta(prog.arc.edifici2, prog.numero_stabile(), d.stabile2);
    CampoLayout spento;
    spento.corpo = "4";
    carica_layout(prog.disco, prog.err, file_ministeriale(), spento, d.coordinate);
    LettoreTesto f(prog.err);
    f.apri(prog.disco, kCartella + "lumora.int");
    for (std::size_t i = 1; i < d.studio.size(); ++i) f.riga(d.studio[i]);
    return d;
}

Scostamenti carica_scostamenti(Programma& prog) {
    Scostamenti s;
    LettoreTesto f(prog.err);
    f.apri(prog.disco, kScostamenti);
    if (!f.riga(s.orizzontale) || !f.riga(s.verticale)) return {};
    return {std::string(rifila(s.orizzontale)), std::string(rifila(s.verticale))};
}

void salva_scostamenti(Programma& prog, const Scostamenti& s) {
    const std::array<std::string, 2> righe = {s.orizzontale, s.verticale};
    scrivi_righe(prog.disco, prog.err, kScostamenti, righe);
}

void stampamin(Programma& prog, const DatiQuadro& dati, const std::vector<RigaQuadro>& righe, double dx_mm,
               double dy_mm) {
    Clessidra attesa(prog);
    Foglio foglio(prog, 10);
    ModelloFisso modello(foglio, dati, dx_mm, dy_mm);
    Schedario<RecFornitore> schede(prog.arc.fornitori);
    RecFornitore f{};
    int numero = 1, quanti = 0;
    for (const RigaQuadro& r : righe) {
        leggi_o_resta(schede, r.fornitore, f);
        if (quanti == 0) modello.testata(numero);
        modello.fornitore(f, importo_intero(valimporto_di(r.importo)), quanti);
        if (++quanti == kFornitoriFoglio) {
            ++numero;
            quanti = 0;
            foglio.pagina();
        }
    }
    if (quanti > 0) foglio.pagina();
}

void stampamod(Programma& prog, const DatiQuadro& dati, const std::vector<RigaQuadro>& righe) {
    Clessidra attesa(prog);
    Foglio foglio(prog, 9);
    const auto& campo = dati.coordinate.campo;
    const double fronte = misura(dati.coordinate, kBaseFronte), retro = misura(dati.coordinate, kBaseRetro),
                 passo = misura(dati.coordinate, kPasso);
    ValoriModulo valori = valori_fissi(dati);
    Schedario<RecFornitore> schede(prog.arc.fornitori);
    RecFornitore f{};
    int numero = 0, slot = 0;
    for (const RigaQuadro& r : righe) {
        leggi_o_resta(schede, r.fornitore, f);
        // The plain reading stops at the decimal comma and takes the thousands point for a decimal one.
        metti_fornitore(valori, f, importo_intero(leggi_numero(r.importo)));
        if (slot == 0) {
            valori[kRigaFoglio] = testo_numero(++numero);
            piazza(foglio, campo[kRigaFoglio], valori[kRigaFoglio], true, 0);
            for (std::size_t i = 1; i <= 10; ++i) piazza(foglio, campo[i], valori[i], false, 0);
        }
        const double giu = slot < kFronte ? passo * slot + fronte : passo * (slot - kFronte) + retro;
        for (std::size_t i = 11; i <= kRigaImporto; ++i)
            piazza(foglio, campo[i], valori[i], i == kRigaImporto, giu);
        ++slot;
        if (slot == kFronte || slot == kFornitoriModulo) foglio.pagina();
        if (slot == kFornitoriModulo) slot = 0;
    }
    if (slot > 0 && slot != kFronte) foglio.pagina();
}

}  // namespace ambra
