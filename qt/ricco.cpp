#include "qt/ricco.h"

#include <QTextDocument>
#include <algorithm>
#include <map>

#include "qt/caratteri.h"
#include "qt/ricco_pagine.h"
#include "qt/ricco_testo.h"

namespace ambra {

namespace {

constexpr double kLatoMinimo = 1000, kLatoMassimo = 60000;
constexpr double kRestaMinimo = 720;  // what margins always leave between them

}  // namespace

struct ImpaginatoRicco::Dentro {
    struct Tratto {
        std::size_t da = 0, a = 0, posto = 0;
        bool c_e = false;
    };

    Dentro(const rtf::Documento& documento, QSizeF carta) : d(documento) {
        foglio = {d.foglio.larghezza > 0 ? std::clamp<double>(d.foglio.larghezza, kLatoMinimo, kLatoMassimo)
                                         : carta.width(),
                  d.foglio.altezza > 0 ? std::clamp<double>(d.foglio.altezza, kLatoMinimo, kLatoMassimo)
                                       : carta.height()};
        sinistra = std::clamp<double>(d.foglio.sinistra, 0, foglio.width() - kRestaMinimo);
        destra = std::clamp<double>(d.foglio.destra, 0, foglio.width() - sinistra - kRestaMinimo);
        dividi();
        sopra = std::max<double>(d.foglio.sopra, fascia(rtf::TipoParte::testata, d.foglio.testata));
        sotto = std::max<double>(d.foglio.sotto, fascia(rtf::TipoParte::piede, d.foglio.piede));
        sopra = std::clamp(sopra, 0.0, foglio.height() - kRestaMinimo);
        sotto = std::clamp(sotto, 0.0, foglio.height() - sopra - kRestaMinimo);
        impagina();
    }

    void dividi() {
        std::size_t par = 0, posto = 0;
        for (const rtf::Parte& p : d.parti) {
            Tratto t{par, std::min(par + p.paragrafi, d.paragrafi.size()), posto, p.paragrafi > 0};
            parti[p.tipo] = t;
            for (; par < t.a; ++par) posto += d.paragrafi[par].n;
        }
    }

    // How far from the edge a header or footer reaches; 0 where there is none.
    double fascia(rtf::TipoParte quale, int dal_bordo) {
        const auto f = parte(quale, {});
        return f ? dal_bordo + f->alta : 0;
    }

    struct Fascia {
        QTextDocument doc;
        std::vector<TabellaPosata> tabelle;
        double sopra = 0, alta = 0;  // of the first paragraph; of the whole
    };
    std::unique_ptr<Fascia> parte(rtf::TipoParte quale, NumeriPagina numeri) const {
        const auto it = parti.find(quale);
        if (it == parti.end() || !it->second.c_e) return nullptr;
        auto f = std::make_unique<Fascia>();
        f->tabelle = componi(f->doc, d, it->second.da, it->second.a, it->second.posto, numeri);
        posa(f->doc, f->tabelle);
        const auto strisce = taglia_pagine(f->doc, d, f->tabelle, foglio.height());
        f->sopra = -strisce.front().da;
        f->alta = f->sopra + std::max(f->doc.size().height(), strisce.back().a);
        return f;
    }

    void posa(QTextDocument& doc, const std::vector<TabellaPosata>& t) const {
        const double larga = foglio.width() - sinistra - destra;
        doc.setTextWidth(larga);
        // The library lays only a part anew by itself.
        if (alza_righe(doc, d, t)) doc.setTextWidth(larga);
    }

    void impagina() {
        const Tratto t = parti[rtf::TipoParte::corpo];
        tabelle = componi(corpo, d, t.da, t.a, t.posto);
        posa(corpo, tabelle);
        fette = taglia_pagine(corpo, d, tabelle, foglio.height() - sopra - sotto);
        pagine = static_cast<int>(fette.size());
    }

    void disegna_fascia(QPainter& p, int n, bool in_alto) const {
        const bool prima = n == 0 && d.foglio.prima_diversa;
        const auto quale = in_alto ? (prima ? rtf::TipoParte::testata_prima : rtf::TipoParte::testata)
                                   : (prima ? rtf::TipoParte::piede_prima : rtf::TipoParte::piede);
        const auto f = parte(quale, {n + 1, pagine});
        if (!f) return;
        p.save();
        p.translate(sinistra, in_alto ? d.foglio.testata : foglio.height() - d.foglio.piede - f->alta);
        p.translate(0, f->sopra);
        Fetta tutta;
        tutta.da = -f->sopra;
        tutta.a = f->alta - f->sopra;
        disegna_sfondi(p, f->doc, d, f->tabelle, tutta);
        disegna_linee(p, f->doc, tutta);
        disegna_bordi(p, f->doc, d, f->tabelle, tutta);
        p.restore();
    }

    rtf::Documento d;
    QSizeF foglio;
    double sinistra = 0, destra = 0, sopra = 0, sotto = 0;
    std::map<rtf::TipoParte, Tratto> parti;
    QTextDocument corpo;
    std::vector<TabellaPosata> tabelle;  // of the body
    std::vector<Fetta> fette;
    int pagine = 1;
};

ImpaginatoRicco::ImpaginatoRicco(const rtf::Documento& documento, QSizeF carta) {
    d_ = std::make_unique<Dentro>(documento, carta);
}

ImpaginatoRicco::~ImpaginatoRicco() = default;

int ImpaginatoRicco::pagine() const {
    return d_->pagine;
}

QSizeF ImpaginatoRicco::foglio() const {
    return d_->foglio;
}

void ImpaginatoRicco::disegna(QPainter& p, int n) const {
    const Fetta& fetta = d_->fette[static_cast<std::size_t>(n)];
    p.save();
    p.translate(d_->sinistra, d_->sopra - fetta.da);
    disegna_sfondi(p, d_->corpo, d_->d, d_->tabelle, fetta);
    disegna_linee(p, d_->corpo, fetta);
    disegna_bordi(p, d_->corpo, d_->d, d_->tabelle, fetta);
    p.restore();
    d_->disegna_fascia(p, n, true);
    d_->disegna_fascia(p, n, false);
}

}  // namespace ambra
