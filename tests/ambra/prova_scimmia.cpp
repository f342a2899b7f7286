// A monkey at the keyboard of `ambra batch`, over an archive of bad bytes: whatever it does the program
// neither falls nor hangs.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <sstream>
#include <streambuf>

#include "ambra/batch.h"
#include "bench/cantiere.h"
#include "qt/tutte.h"
#include "tests/supporto/disco_memoria.h"
#include "tests/supporto/seme.h"

using namespace ambra;

namespace {

using Caso = std::mt19937;

int dado(Caso& c, int facce) {
    return std::uniform_int_distribution<int>(0, facce - 1)(c);
}

std::string a_caso(Caso& c, std::initializer_list<const char*> tra) {
    return *(tra.begin() + dado(c, static_cast<int>(tra.size())));
}

// The script as the monkey writes it: each line fits what is visible when it is asked for.
class Tasti : public std::streambuf {
  public:
    Tasti(Caso& caso, int righe) : caso_(caso), restano_(righe) {}
    Programma* prog = nullptr;

  protected:
    int_type underflow() override {
        if (restano_-- <= 0) return traits_type::eof();
        // Whatever the line makes the program ask is answered.
        riga_ = "answer " + a_caso(caso_, {"yes yes ok", "no no", "yes no"}) +
                "\nfile -\nfont -\ncolour -\nprinter " + a_caso(caso_, {"-", "portrait"}) + "\n" + riga() +
                "\n";
        setg(riga_.data(), riga_.data(), riga_.data() + riga_.size());
        return traits_type::to_int_type(riga_[0]);
    }

  private:
    std::string riga() {
        const int che = dado(caso_, 20);
        if (che == 0) return "open " + foglia();
        if (che == 1) return "today " + a_caso(caso_, {"01/01/2024", "29/02/2024", "31/12/2030"});
        const auto& pila = prog->schermi.pila();
        const Schermo& s = *pila[static_cast<std::size_t>(dado(caso_, static_cast<int>(pila.size())))];
        if (che == 2 && s.nome() != "vexoraf") return "close " + s.nome();
        const auto& tutti = s.controlli();
        const Controllo& c = *tutti[static_cast<std::size_t>(dado(caso_, static_cast<int>(tutti.size())))];
        return azione(s.nome() + "." + c.nome(), c, s.nome() == "vexoraf" && c.nome() == "indice");
    }
    std::string foglia() {
        return a_caso(caso_, {"lumfor",  "lumftem", "mrvtiva", "mrvtpag", "mrvlay",  "mrvteti", "mrvaazz",
                              "mrvaind", "lumpgr",  "lumstca", "lumcer",  "lumstcr", "lumstct", "lumstce",
                              "lumstcs", "lumstcf", "lumstcy", "lumstcx", "lumstcd", "mrvcal",  "mrvanz"});
    }
    std::string azione(const std::string& dove, const Controllo& c, bool uscita) {
        if (uscita || !c.visible() || !c.enabled()) return "leave " + dove;
        switch (c.genere()) {
            case Genere::text:
            case Genere::date:
                return dado(caso_, 4) == 0 ? "enter " + dove : "type " + dove + " " + testo();
            case Genere::list: {
                const auto quante = static_cast<int>(dynamic_cast<const Lista&>(c).voci().size());
                return quante == 0 ? "leave " + dove
                                   : "select " + dove + " " + std::to_string(dado(caso_, quante));
            }
            case Genere::grid:
                return "pick " + dove + " " + std::to_string(dado(caso_, 12)) + " " +
                       std::to_string(dado(caso_, 10));
            case Genere::scroll:
                return "scroll " + dove + " " + std::to_string(dado(caso_, 50) - 5);
            case Genere::progress:
                return "leave " + dove;
            default:
                return "click " + dove;
        }
    }
    std::string testo() {
        return a_caso(caso_, {"", "0", "1", "-1", "100", "1e300", "-99999999999", "abc", "01/01/2024",
                              "1/2/2024", "31/02/2024", "99/99/9999", "à€", "$$$402$$$",
                              "123456789012345678901234567890", "0.005", "32768", "."});
    }

    Caso& caso_;
    int restano_;
    std::string riga_;
};

void guasta(DiscoMemoria& disco, Caso& caso) {
    for (const char* ext : {"tfr", "for", "srf", "ftr", "tot", "cnd", "cns", "cn2", "pia", "mov", "tab"}) {
        std::string& f = disco.contenuto(nome_file("001", ext));
        if (dado(caso, 3) == 0) continue;
        if (dado(caso, 8) == 0)
            f.resize(static_cast<std::size_t>(dado(caso, static_cast<int>(f.size()) + 700)));
        const int quanti = f.empty() ? 0 : dado(caso, 40);
        for (int i = 0; i < quanti; ++i)
            f[static_cast<std::size_t>(dado(caso, static_cast<int>(f.size())))] =
                static_cast<char>(dado(caso, 256));
        // Counters stay within what a list shows in a moment, but for their sign.
        if (std::string_view(ext) == "tfr" && f.size() > 30)
            f[1] = f[29] = static_cast<char>(dado(caso, 2) * 255);
    }
}

TEST(Scimmia, NonCadeENonSiFerma) {
    const char* quante = std::getenv("AMBRA_SCIMMIE");
    const long corse = quante ? std::atol(quante) : 20;
    Caso caso(seme_di_prova());
    long righe = 0;
    for (long i = 0; i < corse; ++i) {
        SCOPED_TRACE(i);
        DiscoMemoria disco;
        cantiere::acquisti(disco, 5, {RecFattura{}, RecFattura{}, RecFattura{}});
        guasta(disco, caso);
        Tasti tasti(caso, 150);
        std::istream script(&tasti);
        std::ostringstream eventi;
        PiattaformaBatch piattaforma(script, eventi);
        piattaforma.oggi({15, 3, 2024});
        Programma prog(disco, piattaforma, "1");
        tasti.prog = &prog;
        registra_tutte(prog.schermi);
        prog.schermi.apri("vexoraf");
        const int stato = piattaforma.esegui(prog);
        const std::string detti = eventi.str();
        righe += static_cast<long>(std::count(detti.begin(), detti.end(), '\n'));
        // A question too many ends the script.
        EXPECT_TRUE(stato == 0 || stato == 2) << stato;
        EXPECT_EQ(prog.arc.sezioni_prese(), 0);
        if (HasFailure()) return;
    }
    EXPECT_GT(righe, corse * 20) << "it gets somewhere";
}

}  // namespace
