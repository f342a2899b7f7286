#include "qt/stampante_qt.h"

#include <QDir>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <cmath>
#include <utility>

#include "print/rtf.h"
#include "qt/pittore.h"
#include "qt/replica.h"
#include "qt/ricco.h"
#include "qt/tiratura.h"

namespace ambra {

QString cartella_pdf(const SceltaStampa& scelta) {
    if (!scelta.cartella_pdf.isEmpty()) return scelta.cartella_pdf;
    const QString documenti = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return documenti.isEmpty() ? QDir::homePath() : documenti;
}

QSizeF misura_foglio(const QPageSize& carta) {
    const QSizeF mm = carta.size(QPageSize::Millimeter);
    return {std::round(mm.width() * kTwipPerMm), std::round(mm.height() * kTwipPerMm)};
}

bool su_pdf(const SceltaStampa& scelta) {
    return scelta.stampante.isEmpty() || QPrinterInfo::printerInfo(scelta.stampante).isNull();
}

QString prossimo_pdf(const SceltaStampa& scelta, const std::string& titolo) {
    const QString cartella = cartella_pdf(scelta);
    QDir().mkpath(cartella);
    return pdf_libero(cartella, nome_di_file(titolo));
}

std::unique_ptr<Uscita> apri_uscita(const SceltaStampa& scelta, const std::string& titolo, QString& file) {
    file.clear();
    if (!su_pdf(scelta))
        return uscita_stampante(
            std::make_unique<QPrinter>(QPrinterInfo::printerInfo(scelta.stampante), QPrinter::HighResolution),
            testo_qt(titolo));
    file = prossimo_pdf(scelta, titolo);
    return uscita_pdf(file, testo_qt(titolo));
}

StampanteQt::StampanteQt() = default;
StampanteQt::~StampanteQt() = default;

double StampanteQt::width() const {
    const QSizeF m = misura_foglio(scelta.carta);
    return orientation() == Orientamento::verticale ? m.width() : m.height();
}

double StampanteQt::height() const {
    const QSizeF m = misura_foglio(scelta.carta);
    return orientation() == Orientamento::verticale ? m.height() : m.width();
}

void StampanteQt::inizia_lavoro() {
    if (in_lavoro_) return;
    in_lavoro_ = true;
    guasta_ = false;
    pagine_ = 0;
    titolo_ = document_title;
    mostra_ = scelta.anteprima && da_mostrare;
    lavoro_ = {};
    lavoro_.titolo = titolo_;
    lavoro_.orientamento = orientation();
    registra_ = mostra_ || tiratura_;
    if (!registra_) uscita_ = apri_uscita(scelta, titolo_, file_);
    if (!mostra_ && tiratura_) guasta_ = !tiratura_->apri(prossimo_pdf(scelta, titolo_));
}

void StampanteQt::nuova_pagina(double larghezza, double altezza) {
    inizia_lavoro();
    if (guasta_) throw PrinterFault{};
    if (registra_) {
        lavoro_.pagine.push_back({larghezza, altezza, {}});
    } else {
        pittore_.reset();
        painter_ = uscita_->pagina(larghezza, altezza);
        guasta_ = painter_ == nullptr;
        if (guasta_) throw PrinterFault{};
        pittore_ = std::make_unique<Pittore>(*painter_, facce_);
    }
    ++pagine_;
    // What is drawn later is told of then.
    if (avanza && (mostra_ || !registra_)) avanza(titolo_, pagine_);
}

void StampanteQt::apri_pagina() {
    if (in_pagina_) return;
    nuova_pagina(width(), height());
    in_pagina_ = true;
}

double StampanteQt::text_width(std::string_view testo) {
    return facce_.di(font).larghezza(testo) / twip_per_unita();
}

double StampanteQt::altezza_riga() {
    return facce_.di(font).altezza_riga();
}

void StampanteQt::operazione(OperazioneStampa&& o) {
    apri_pagina();
    if (registra_) {
        lavoro_.pagine.back().operazioni.push_back(std::move(o));
    } else {
        pittore_->operazione(o);
    }
}

// Most of a list is texts: straight to the device, without an operation for each.
void StampanteQt::scrivi(std::string_view testo) {
    apri_pagina();
    if (registra_) return StampanteAOperazioni::scrivi(testo);
    const double k = twip_per_unita();
    pittore_->testo(current_x * k, current_y * k, testo, font, fore_color);
}

void StampanteQt::rich_text(const rtf::Documento& documento) {
    in_pagina_ = false;
    inizia_lavoro();
    if (registra_) {
        nuova_pagina(width(), height());
        OperazioneStampa o;
        o.tipo = OperazioneStampa::Tipo::testo_ricco;
        o.documento = std::make_shared<const rtf::Documento>(documento);
        lavoro_.pagine.back().operazioni.push_back(std::move(o));
    } else {
        const ImpaginatoRicco impaginato(documento, {width(), height()});
        for (int i = 0; i < impaginato.pagine(); ++i) {
            nuova_pagina(impaginato.foglio().width(), impaginato.foglio().height());
            impaginato.disegna(*painter_, i);
        }
    }
    in_pagina_ = true;
}

void StampanteQt::new_page() {
    current_x = current_y = 0;
    // A device that failed takes no more pages, but the job can still be ended.
    if (in_lavoro_ && guasta_) return;
    apri_pagina();
    in_pagina_ = false;
}

void StampanteQt::end_doc() {
    in_pagina_ = false;
    current_x = current_y = 0;
    document_title.clear();
    if (!std::exchange(in_lavoro_, false)) return;
    pittore_.reset();
    painter_ = nullptr;
    if (mostra_) {
        da_mostrare(std::exchange(lavoro_, {}));
        return;
    }
    if (registra_) return tiratura_->aggiungi(std::exchange(lavoro_, {}));
    const bool riuscito = uscita_->fine() && !guasta_;
    uscita_.reset();
    if (stampato) stampato(titolo_, file_, riuscito);
}

void StampanteQt::begin_run() {
    if ((scelta.anteprima && da_mostrare) || !su_pdf(scelta)) return;
    tiratura_ = std::make_unique<Tiratura>(facce_);
    tiratura_->avanza = avanza;
    tiratura_->stampato = stampato;
}

void StampanteQt::end_run() {
    tiratura_.reset();
}

}  // namespace ambra
