#include "qt/ricco_testo.h"

#include <QImage>
#include <QImageReader>
#include <QRawFont>
#include <QTextCursor>
#include <QTextTable>
#include <QUrl>
#include <algorithm>
#include <cmath>
#include <vector>

#include "qt/caratteri.h"
#include "qt/ricco_guide.h"
#include "qt/ricco_pagine.h"
#include "qt/ricco_tabella.h"

namespace ambra {

namespace {

constexpr double kTwipPerPixel = 15, kTrascurabile = 0.05;
constexpr double kFiguraMassima = 31680;  // 22 inches

constexpr double kMaiuscoletto = 0.8;
constexpr double kApice = 0.58 * 3 / 2;   // the library takes two thirds of it
constexpr QChar kInvisibile = u'\u00A0';  // which every face has, so that the line has that face's height

// `piccole`: the lower case letters of small capitals.
QTextCharFormat formato_carattere(const rtf::FormatoCarattere& f, bool piccole = false) {
    QTextCharFormat q;
    const double punti =
        punti_stampabili(f.punti) * (piccole ? kMaiuscoletto : 1) * (f.rialzo != 0 ? kApice : 1);
    q.setFontFamilies({famiglia_da_disegno(testo_qt(f.carattere))});
    q.setProperty(QTextFormat::FontPixelSize, static_cast<int>(std::lround(punti * kTwipPerPunto)));
    q.setFontHintingPreference(QFont::PreferNoHinting);
    q.setFontKerning(false);
    q.setFontWeight(f.grassetto ? QFont::Bold : QFont::Normal);
    q.setFontItalic(f.corsivo);
    q.setFontUnderline(f.sottolineato);
    q.setFontStrikeOut(f.barrato);
    if (f.maiuscole || piccole) q.setFontCapitalization(QFont::AllUppercase);
    if (f.rialzo != 0)
        q.setVerticalAlignment(f.rialzo > 0 ? QTextCharFormat::AlignSuperScript
                                            : QTextCharFormat::AlignSubScript);
    q.setForeground(f.colore == rtf::kColoreAutomatico ? QColor(Qt::black) : colore_qt(f.colore));
    if (f.sfondo != rtf::kColoreAutomatico) q.setBackground(colore_qt(f.sfondo));
    return q;
}

Qt::Alignment allineamento(rtf::Verso v) {
    switch (v) {
        case rtf::Verso::sinistra:
            return Qt::AlignLeft | Qt::AlignAbsolute;
        case rtf::Verso::centro:
            return Qt::AlignHCenter;
        case rtf::Verso::destra:
            return Qt::AlignRight | Qt::AlignAbsolute;
        case rtf::Verso::giustificato:
            return Qt::AlignJustify;
    }
    return Qt::AlignLeft;
}

// The stops of a paragraph in their order.
std::vector<rtf::Tabulazione> fermate(const rtf::FormatoParagrafo& f) {
    std::vector<rtf::Tabulazione> tutte = f.tabulazioni;
    // A hanging first line has a stop where the other lines begin.
    if (f.prima_riga < 0) tutte.insert(tutte.begin(), rtf::Tabulazione{.posto = f.sinistra});
    std::stable_sort(tutte.begin(), tutte.end(),
                     [](const auto& a, const auto& b) { return a.posto < b.posto; });
    return tutte;
}

// The library counts stops from where the first line begins, word processors from the margin.
QList<QTextOption::Tab> tabulazioni(const std::vector<rtf::Tabulazione>& proprie, double inizio, int passo) {
    constexpr int kMassime = 200, kPagina = 32000;
    QList<QTextOption::Tab> tutte;
    for (const auto& t : proprie) {
        const auto tipo = t.decimale                      ? QTextOption::DelimiterTab
                          : t.verso == rtf::Verso::destra ? QTextOption::RightTab
                          : t.verso == rtf::Verso::centro ? QTextOption::CenterTab
                                                          : QTextOption::LeftTab;
        tutte.append({double(t.posto), tipo, u','});
    }
    if (inizio == 0) return tutte;
    // Behind the last one stand the usual ones.
    const double ultima = tutte.isEmpty() ? inizio : std::max(tutte.back().position, inizio);
    double posto = (std::floor(ultima / passo) + 1) * passo;
    for (int i = 0; i < kMassime && posto < kPagina; ++i, posto += passo)
        tutte.append({posto, QTextOption::LeftTab});
    for (auto& t : tutte) t.position -= inizio;
    return tutte;
}

QTextBlockFormat formato_blocco(const rtf::FormatoParagrafo& f, int passo) {
    QTextBlockFormat q;
    q.setAlignment(allineamento(f.verso));
    q.setLeftMargin(f.sinistra);
    q.setRightMargin(f.destra);
    q.setTextIndent(f.prima_riga);
    if (f.interlinea_multipla > 0) {
        q.setLineHeight(f.interlinea_multipla * 100, QTextBlockFormat::ProportionalHeight);
    } else if (f.interlinea > 0) {
        q.setLineHeight(f.interlinea, QTextBlockFormat::MinimumHeight);
    } else if (f.interlinea < 0) {
        q.setLineHeight(-f.interlinea, QTextBlockFormat::FixedHeight);
    }
    const auto proprie = fermate(f);
    const auto tab = tabulazioni(proprie, f.sinistra + f.prima_riga, passo);
    if (!tab.isEmpty()) q.setTabPositions(tab);
    QString guide;
    for (const auto& t : proprie) guide += t.guida ? testo_qt({&t.guida, 1}) : QString(QChar());
    ricorda_guide(q, guide);
    return q;
}

// Walks the runs of the document in step with its paragraphs.
class Compositore {
  public:
    Compositore(QTextDocument& doc, const rtf::Documento& d, std::size_t posto, NumeriPagina numeri)
        : doc_(doc), d_(d), cursore_(&doc), posto_(posto), numeri_(numeri) {
        std::size_t passato = 0;
        while (tratto_ < d.tratti.size() && passato + d.tratti[tratto_].n <= posto)
            passato += d.tratti[tratto_++].n;
        consumato_ = posto - passato;
        formati_.resize(d.formati.size());
        righelli_.resize(d.formati.size());
        blocchi_.resize(d.formati_paragrafo.size());
    }

    std::vector<TabellaPosata> componi(std::size_t da, std::size_t a) {
        da_ = da;
        a_ = a;
        cursore_.beginEditBlock();
        bool primo = true;
        for (std::size_t i = da; i < a;) {
            if (d_.paragrafi[i].riga >= 0) {
                // The block at hand goes behind a table that is put into it.
                if (!primo && !dopo_tabella_) cursore_.insertBlock();
                i = tabella(i, a);
                primo = false;
                continue;
            }
            paragrafo(i, !primo && !dopo_tabella_, i == da);
            primo = false;
            dopo_tabella_ = false;
            ++i;
        }
        cursore_.endEditBlock();
        return std::move(tabelle_);
    }

  private:
    const rtf::FormatoParagrafo& formato_di(std::size_t i) const {
        return d_.formati_paragrafo[d_.paragrafi[i].formato];
    }

    // Whether paragraphs `i` and the next one stand in the same cell, or both in none.
    bool vicini(std::size_t i) const {
        return d_.paragrafi[i + 1].riga == d_.paragrafi[i].riga &&
               d_.paragrafi[i + 1].cella == d_.paragrafi[i].cella;
    }
    bool uniti(std::size_t i) const {
        return vicini(i) && !formato_di(i + 1).salto_prima && stessi_bordi(formato_di(i), formato_di(i + 1));
    }

    // The room that borders take between paragraphs.
    static double occupa(const rtf::Bordo& b) { return b.spessore > 0 ? b.spessore + b.spazio : 0; }
    double bordo_sopra(std::size_t i) const {
        return i > da_ && uniti(i - 1) ? 0 : occupa(formato_di(i).bordo_sopra);
    }
    double bordo_sotto(std::size_t i) const {
        return i + 1 < a_ && uniti(i) ? 0 : occupa(formato_di(i).bordo_sotto);
    }
    double sopra(std::size_t i) const { return formato_di(i).sopra + bordo_sopra(i); }

    // Spacing above the next paragraph is laid under this one, so that it vanishes at the top of a page.
    double sotto(std::size_t i) const {
        double s = formato_di(i).sotto + bordo_sotto(i);
        if (i + 1 < a_ && vicini(i) && !formato_di(i + 1).salto_prima) s += sopra(i + 1);
        return s;
    }

    void paragrafo(std::size_t i, bool nuovo, bool in_cima) {
        const rtf::Paragrafo& p = d_.paragrafi[i];
        QTextBlockFormat f = blocco(p.formato);
        const auto& fp = formato_di(i);
        const bool salta = fp.salto_prima && !in_cima && !in_cella_;
        if (salta) f.setTopMargin(sopra(i));
        f.setBottomMargin(sotto(i));
        completa_interlinea(f, fp, p.n);
        ricorda_pagina(f, fp, salta, bordo_sopra(i), bordo_sotto(i));
        ricorda_bordi(f, d_, p.formato, i > da_ && uniti(i - 1), i + 1 < a_ && uniti(i));
        const QTextCharFormat c = carattere(tratto_ < d_.tratti.size() ? d_.tratti[tratto_].formato : 0);
        if (nuovo) {
            cursore_.insertBlock(f, c);
        } else {
            cursore_.setBlockFormat(f);
            formato_iniziale(c);
        }
        // The library shows no empty line behind a table.
        if (dopo_tabella_ && p.n <= 1) cursore_.insertText(QString(kInvisibile), senza_segni(c));
        caratteri(p.n, fp.verso == rtf::Verso::centro || fp.verso == rtf::Verso::destra);
    }

    static QTextCharFormat senza_segni(QTextCharFormat c) {
        c.clearBackground();
        c.setUnderlineStyle(QTextCharFormat::NoUnderline);
        c.setFontStrikeOut(false);
        return c;
    }

    // Gives the lines the gap that their faces want and the library may leave out.
    void completa_interlinea(QTextBlockFormat& f, const rtf::FormatoParagrafo& fp, std::size_t n) {
        const Righello r = righello(n);
        if (r.manca < kTrascurabile || fp.interlinea < 0) return;
        if (fp.interlinea_multipla > 0) {
            f.setLineHeight(fp.interlinea_multipla * 100 * (r.alta + r.manca) / r.alta,
                            QTextBlockFormat::ProportionalHeight);
        } else if (fp.interlinea < r.alta + r.manca) {
            f.setLineHeight(r.manca, QTextBlockFormat::LineDistanceHeight);
        }
    }

    // The tallest face of the next `n` characters, and the most that a line of theirs lacks.
    struct Righello {
        double alta = 0, manca = 0;
    };
    Righello righello(std::size_t n) {
        Righello massimo;
        std::size_t visti = 0;
        for (std::size_t t = tratto_; t < d_.tratti.size() && (visti < n || t == tratto_); ++t) {
            visti += d_.tratti[t].n - (t == tratto_ ? consumato_ : 0);
            Righello& r = righelli_[d_.tratti[t].formato];
            if (r.alta == 0) {
                const QRawFont f = QRawFont::fromFont(carattere(d_.tratti[t].formato).font());
                // The library's lines are a whole number of units high.
                const double alta = f.ascent() + f.descent() + f.leading();
                r = {std::ceil(alta), std::ceil(alta + interlinea_taciuta(f)) - std::ceil(alta)};
            }
            massimo = {std::max(massimo.alta, r.alta), std::max(massimo.manca, r.manca)};
        }
        return massimo;
    }

    // The first block of a cell holds the format of the cell too, which has to stay.
    void formato_iniziale(QTextCharFormat c) {
        if (!in_cella_) {
            cursore_.setBlockCharFormat(c);
            return;
        }
        c.clearBackground();
        c.clearProperty(QTextFormat::TextVerticalAlignment);
        cursore_.mergeBlockCharFormat(c);
    }

    const QTextBlockFormat& blocco(std::uint32_t n) {
        auto& posto = blocchi_[n];
        if (!posto.isValid() || posto.isEmpty())
            posto = formato_blocco(d_.formati_paragrafo[n], std::max(d_.passo_tabulazione, 1));
        return posto;
    }

    const QTextCharFormat& carattere(std::uint32_t n) {
        auto& posto = formati_[n];
        if (posto.isEmpty()) posto = formato_carattere(d_.formati[n]);
        return posto;
    }

    // The `n` characters of a paragraph, without what closes it. `senza_coda`: nor the blanks before that,
    // which count for nothing in a line that ends at its text.
    void caratteri(std::size_t n, bool senza_coda) {
        const std::size_t fine = std::min(posto_ + n, d_.testo.size());
        while (posto_ < fine && tratto_ < d_.tratti.size()) {
            const rtf::Tratto& t = d_.tratti[tratto_];
            const std::size_t quanti = std::min(t.n - consumato_, fine - posto_);
            std::string_view s(d_.testo.data() + posto_, quanti);
            const bool chiude = s.back() == rtf::kFineParagrafo || (in_cella_ && s.back() == rtf::kFineCella);
            if (posto_ + quanti == fine && chiude) s.remove_suffix(1);
            while (senza_coda && posto_ + quanti == fine && s.ends_with(' ') &&
                   d_.formati[t.formato].immagine < 0)
                s.remove_suffix(1);
            scrivi(s, t.formato);
            posto_ += quanti;
            consumato_ += quanti;
            if (consumato_ == t.n) {
                ++tratto_;
                consumato_ = 0;
            }
        }
    }

    void scrivi(std::string_view s, std::uint32_t formato) {
        const rtf::FormatoCarattere& f = d_.formati[formato];
        if (s.empty()) return;
        if (f.immagine >= 0) {
            immagine(f.immagine);
            return;
        }
        QString q = testo_qt(s);
        if (f.campo != rtf::Campo::nessuno && numeri_.pagina > 0)
            q = QString::number(f.campo == rtf::Campo::pagina ? numeri_.pagina : numeri_.pagine);
        q.replace(QChar(u'\v'), QChar(QChar::LineSeparator));
        q.remove(QChar(u'\f'));
        if (f.maiuscoletto && !f.maiuscole) return maiuscoletto(q, formato);
        cursore_.insertText(q, carattere(formato));
    }

    void maiuscoletto(const QString& s, std::uint32_t formato) {
        const QTextCharFormat piccole = formato_carattere(d_.formati[formato], true);
        for (qsizetype i = 0, fine = 0; i < s.size(); i = fine) {
            const bool minuscola = s[i].isLower();
            while (fine < s.size() && s[fine].isLower() == minuscola) ++fine;
            cursore_.insertText(s.mid(i, fine - i), minuscola ? piccole : carattere(formato));
        }
    }

    void immagine(int n) {
        if (static_cast<std::size_t>(n) >= d_.immagini.size()) return;
        const rtf::Immagine& im = *d_.immagini[static_cast<std::size_t>(n)];
        const QImage q =
            QImage::fromData(QByteArrayView(im.byte.data(), static_cast<qsizetype>(im.byte.size())));
        if (q.isNull()) return;
        const QUrl url(QStringLiteral("immagine:%1").arg(n));
        doc_.addResource(QTextDocument::ImageResource, url, q);
        QTextImageFormat f;
        f.setName(url.toString());
        const QSizeF vuole(im.larghezza > 0 ? im.larghezza : q.width() * kTwipPerPixel,
                           im.altezza > 0 ? im.altezza : q.height() * kTwipPerPixel);
        const bool entra = vuole.width() <= kFiguraMassima && vuole.height() <= kFiguraMassima;
        const QSizeF e = entra ? vuole : vuole.scaled(kFiguraMassima, kFiguraMassima, Qt::KeepAspectRatio);
        f.setWidth(e.width());
        f.setHeight(e.height());
        cursore_.insertImage(f);
    }

    // An empty paragraph of a cell that goes on with the one above or on its left: it adds no line to that.
    bool resto_vuoto(std::size_t i) const {
        const rtf::Paragrafo& p = d_.paragrafi[i];
        const auto& celle = d_.righe[static_cast<std::size_t>(p.riga)].celle;
        const auto c = static_cast<std::size_t>(p.cella);
        return p.n <= 1 && (p.assorbito || (c < celle.size() && celle[c].continua));
    }

    // A table: the rows from paragraph `i` on. Returns the first paragraph after it.
    std::size_t tabella(std::size_t i, std::size_t a) {
        std::size_t fine = i;
        while (fine < a && d_.paragrafi[fine].riga >= 0) ++fine;
        const auto prima = d_.paragrafi[i].riga, ultima = d_.paragrafi[fine - 1].riga;
        const TabellaComposta t(cursore_, d_, prima, ultima);
        tabelle_.push_back(t.posata());
        in_cella_ = true;
        while (i < fine) {
            const auto riga = d_.paragrafi[i].riga, cella = d_.paragrafi[i].cella;
            cursore_ = t.cella(riga, cella);
            bool nuovo = false;
            t.spazio_sopra(riga, cella, sopra(i));
            for (; i < fine && d_.paragrafi[i].riga == riga && d_.paragrafi[i].cella == cella; ++i) {
                if (resto_vuoto(i)) {
                    caratteri(d_.paragrafi[i].n, true);
                    continue;
                }
                paragrafo(i, nuovo, !nuovo);
                nuovo = true;
            }
        }
        in_cella_ = false;
        cursore_ = t.dopo();
        if (fine < a && !formato_di(fine).salto_prima) t.spazio_sotto(sopra(fine));
        dopo_tabella_ = true;
        return fine;
    }

    QTextDocument& doc_;
    const rtf::Documento& d_;
    QTextCursor cursore_;
    std::size_t posto_, tratto_ = 0, consumato_ = 0;
    std::size_t da_ = 0, a_ = 0;  // the paragraphs in hand
    NumeriPagina numeri_;
    bool in_cella_ = false, dopo_tabella_ = false;
    std::vector<QTextCharFormat> formati_;
    std::vector<Righello> righelli_;  // of each format
    std::vector<QTextBlockFormat> blocchi_;
    std::vector<TabellaPosata> tabelle_;
};

}  // namespace

std::vector<TabellaPosata> componi(QTextDocument& doc, const rtf::Documento& d, std::size_t da, std::size_t a,
                                   std::size_t posto, NumeriPagina numeri) {
    doc.setUndoRedoEnabled(false);
    doc.setDocumentMargin(0);
    doc.setUseDesignMetrics(true);
    QTextOption opzioni = doc.defaultTextOption();
    opzioni.setTabStopDistance(std::max(d.passo_tabulazione, 1));
    doc.setDefaultTextOption(opzioni);
    return Compositore(doc, d, posto, numeri).componi(da, a);
}

}  // namespace ambra
