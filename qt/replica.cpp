#include "qt/replica.h"

#include <QDir>
#include <QFile>
#include <optional>

#include "core/testo.h"
#include "qt/ricco.h"

namespace ambra {

namespace {

// Lays a document out and paints its pages; the last page's painter, or null when the device failed.
QPainter* replica_ricco(const rtf::Documento& documento, QSizeF carta, Uscita& uscita) {
    const ImpaginatoRicco impaginato(documento, carta);
    QPainter* p = nullptr;
    for (int i = 0; i < impaginato.pagine(); ++i) {
        p = uscita.pagina(impaginato.foglio().width(), impaginato.foglio().height());
        if (!p) return nullptr;
        impaginato.disegna(*p, i);
    }
    return p;
}

bool replica_pagina(const PaginaStampa& pagina, Uscita& uscita, Facce& facce) {
    if (pagina.operazioni.empty()) return uscita.pagina(pagina.larghezza, pagina.altezza) != nullptr;
    std::optional<Pittore> pittore;
    for (const OperazioneStampa& o : pagina.operazioni) {
        if (o.documento || !pittore) {
            pittore.reset();  // what it still has belongs onto the page in hand
            QPainter* p = o.documento
                              ? replica_ricco(*o.documento, {pagina.larghezza, pagina.altezza}, uscita)
                              : uscita.pagina(pagina.larghezza, pagina.altezza);
            if (!p) return false;
            pittore.emplace(*p, facce);
        }
        pittore->operazione(o);
    }
    return true;
}

}  // namespace

bool dipingi(const LavoroStampa& lavoro, Uscita& uscita, Facce& facce) {
    for (const PaginaStampa& pagina : lavoro.pagine)
        if (!replica_pagina(pagina, uscita, facce)) return false;
    return true;
}

bool replica(const LavoroStampa& lavoro, Uscita& uscita, Facce& facce) {
    return dipingi(lavoro, uscita, facce) && uscita.fine();
}

bool scrivi_pdf(const LavoroStampa& lavoro, const QString& percorso, Facce& facce) {
    const auto uscita = uscita_pdf(percorso, testo_qt(lavoro.titolo));
    return replica(lavoro, *uscita, facce);
}

QString nome_di_file(std::string_view titolo) {
    constexpr qsizetype kLungo = 80;
    static const QString kVietati = QStringLiteral("<>:\"/\\|?*.");
    QString nome;
    for (const QChar c : testo_qt(titolo)) nome += c.unicode() < 32 || kVietati.contains(c) ? QChar(u' ') : c;
    return nome.simplified().left(kLungo).trimmed();
}

QString pdf_libero(const QString& cartella, const QString& base) {
    const QDir dir(cartella);
    const QString nome = base.isEmpty() ? QStringLiteral("Stampa") : base;
    QString percorso = dir.filePath(nome + QStringLiteral(".pdf"));
    for (int n = 2; QFile::exists(percorso); ++n)
        percorso = dir.filePath(nome + QStringLiteral(" (%1).pdf").arg(n));
    return percorso;
}

}  // namespace ambra
