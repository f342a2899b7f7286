// The pages of rich text: as many as a word processor makes, every text, table and picture at its place.
#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "print/rtf_lettore.h"
#include "print/testoricco.h"
#include "qt/replica.h"
#include "qt/ricco.h"
#include "qt/stampante_qt.h"
#include "tests/qt/pdf_letto.h"

using namespace ambra;

namespace {

constexpr double kMargine = 1134 / 20.0;  // points

const std::string kTesta =
    R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\fswiss\fcharset0 Arial;}}{\colortbl;\red255\green0\blue0;})"
    R"(\paperw11906\paperh16838\margl1134\margr1134\margt1134\margb1134\f0\fs20 )";

std::vector<PaginaLetta> su_carta(const std::string& rtf) {
    QTemporaryDir cartella;
    StampanteQt s;
    s.scelta.cartella_pdf = cartella.path();
    QString dove;
    s.stampato = [&](const std::string&, const QString& f, bool) { dove = f; };
    s.document_title = "Lettera";
    s.rich_text(rtf::leggi(rtf));
    s.end_doc();
    return leggi_pdf(dove);
}

// A page at one dot every 10 twips.
QImage disegna(const std::string& rtf) {
    const ImpaginatoRicco impaginato(rtf::leggi(rtf), {11906, 16838});
    QImage q(1191, 1684, QImage::Format_RGB32);
    q.fill(Qt::white);
    QPainter p(&q);
    p.scale(0.1, 0.1);
    impaginato.disegna(p, 0);
    return q;
}

// Upright strokes across a row of dots at `y`: where each begins.
std::vector<int> tratti(const QImage& q, int y) {
    std::vector<int> x;
    for (int i = 1; i < q.width(); ++i)
        if (qGray(q.pixel(i, y)) < 160 && qGray(q.pixel(i - 1, y)) >= 160) x.push_back(i);
    return x;
}

// The same letter in the manner of three programs: terse; with style sheets, lists of everything and
// characters behind Unicode escapes; one group for every run.
const char* const kManiere[] = {
    R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\fswiss\fcharset0 Arial;}}
\paperw11906\paperh16838\margl1134\margr1134\margt1134\margb1134\viewkind4\uc1\pard\f0\fs20
Spett.le \b $$$251$$$\b0\par Citt\'e0\tab fine\par
\trowd\trgaph70\cellx3000\cellx9000\pard\intbl uno\cell due\cell\row\pard dopo\par})",
    R"({\rtf1\adeflang1025\ansi\ansicpg1252\uc1\adeff31507\deff0\stshfdbch31505{\fonttbl{\f0\fbidi \froman\fcharset0\fprq2{\*\panose 02020603050405020304}Times New Roman;}{\f1\fbidi \fswiss\fcharset0\fprq2{\*\panose 020b0604020202020204}Arial;}{\flomajor\f31500\fbidi \froman\fcharset0 Times New Roman;}}{\colortbl;\red0\green0\blue0;}{\*\defchp \fs22}{\stylesheet{\ql \li0\ri0\f1\fs20 \snext0 Normal;}{\*\cs10 \additive Default Paragraph Font;}}{\*\rsidtbl \rsid1\rsid2}{\info{\title x}{\author y}}\paperw11906\paperh16838\margl1134\margr1134\margt1134\margb1134\gutter0\ltrsect \sectd \pard\plain \ltrpar\ql \li0\ri0\f1\fs20 {\rtlch\fcs1 \af1 \ltrch\fcs0 \insrsid1 Spett.le }{\rtlch\fcs1 \b \ltrch\fcs0 \b\insrsid2 $$$2}{\rtlch\fcs1 \ltrch\fcs0 \b\insrsid1 51$$$}{\rtlch\fcs1 \ltrch\fcs0 \insrsid1 \par Citt\u224\'e0\tab fine\par }\trowd \irow0\irowband0\trgaph70\trleft0\trftsWidth1\clvertalt\clftsWidth3\clwWidth3000 \cellx3000\clvertalt\clftsWidth3\clwWidth6000 \cellx9000\pard\plain \ltrpar\ql\intbl\f1\fs20 {\insrsid1 uno\cell due\cell }\pard \ltrpar\intbl {\insrsid1 \trowd \irow0\trgaph70\trleft0\cellx3000\cellx9000\row }\pard\plain \f1\fs20 {\insrsid1 dopo\par }})",
    R"({\rtf1\ansi\deff3\adeflang1025
{\fonttbl{\f0\froman\fprq2\fcharset0 Times New Roman;}{\f3\fswiss\fprq2\fcharset0 Liberation Sans{\*\falt Arial};}}
{\stylesheet{\s0\snext0\f3\fs20 Predefinito;}}{\*\generator Altro;}\deftab720\paperh16838\paperw11906\margl1134\margr1134\margt1134\margb1134\sectd\sbknone
{\*\pgdsctbl{\pgdsc0\pgdscuse451\pgwsxn11906\pghsxn16838 Predefinito;}}\formshade\pard\plain \s0\f3\fs20{\loch Spett.le }{\b\loch $$$251$$$}
\par \pard\plain \s0\f3\fs20{\loch Citt}{\u224\'e0}{\loch \tab fine}
\par \trowd\trql\trleft0\ltrrow\trpaddft3\trpaddt0\trgaph70\cellx3000\cellx9000\pard\plain \s0\intbl\f3\fs20{\loch uno}\cell\pard\plain \s0\intbl\f3\fs20{\loch due}\cell\row\pard\plain \s0\f3\fs20{\loch dopo}\par })"};

}  // namespace

class Ricco : public QObject {
    Q_OBJECT
  private slots:
    void tre_programmi_la_stessa_lettera() {
        std::vector<PaginaLetta> prima;
        for (const char* rtf : kManiere) {
            QTemporaryDir cartella;
            StampanteQt s;
            s.scelta.cartella_pdf = cartella.path();
            QString dove;
            s.stampato = [&](const std::string&, const QString& f, bool) { dove = f; };
            s.document_title = "x";
            TestoRicco t;
            t.carica(rtf);
            QCOMPARE(t.sostituisci("$$$251$$$", "ROSSI"), std::size_t(1));
            t.sel_print(s);
            s.end_doc();
            const auto pagine = leggi_pdf(dove);
            QCOMPARE(pagine.size(), std::size_t(1));
            if (prima.empty()) prima = pagine;
            for (const char* parola : {"Spett.le", "ROSSI", "Citt\u00e0", "fine", "uno", "due", "dopo"}) {
                const auto p = pagine[0].trova(QString::fromUtf8(parola));
                QVERIFY2(p, parola);
                const auto q = prima[0].trova(QString::fromUtf8(parola));
                QVERIFY2(std::abs(p->x1 - q->x1) < 1 && std::abs(p->y1 - q->y1) < 1.5, parola);
            }
        }
        QVERIFY(std::abs(prima[0].trova("Spett.le")->x1 - kMargine) < 1);
        QVERIFY(std::abs(prima[0].trova("fine")->x1 - kMargine - 36) < 1);
        QVERIFY(std::abs(prima[0].trova("due")->x1 - kMargine - 150 - 3.5) < 1);
    }

    void pagine() {
        QCOMPARE(su_carta(kTesta + "una}").size(), std::size_t(1));
        const auto due = su_carta(kTesta + R"(una\page altra\par})");
        QCOMPARE(due.size(), std::size_t(2));
        QVERIFY(due[1].trova("altra") && !due[0].trova("altra"));
        // 14570 twips between the margins take 63 lines of 230.
        for (const int righe : {62, 63, 64}) {
            std::string s = kTesta;
            for (int i = 1; i < righe; ++i) s += "riga" + std::to_string(i) + "\\par ";
            QCOMPARE(su_carta(s + "ultima}").size(), std::size_t(righe > 63 ? 2 : 1));
        }
    }

    // Behind a table as anywhere else.
    void una_riga_vuota_e_alta_come_le_altre() {
        const auto pagine = su_carta(
            kTesta +
            R"(\trowd\cellx3000\pard\intbl in tabella\cell\row\pard\par uno\par due\par\par tre\par})");
        const auto y = [&](const char* parola) { return pagine.at(0).trova(parola)->y1; };
        const double riga = y("due") - y("uno");
        QVERIFY(std::abs(y("tre") - y("due") - 2 * riga) < 0.1);
        const auto senza =
            su_carta(kTesta + R"(\trowd\cellx3000\pard\intbl in tabella\cell\row\pard uno\par})");
        QVERIFY(std::abs(y("uno") - senza.at(0).trova("uno")->y1 - riga) < 0.1);
    }

    void tabulazioni_e_versi() {
        const auto p =
            su_carta(kTesta + R"(\pard\tx2000\tqr\tx6000\tqdec\tx8000 a\tab bb\tab ccc\tab 12,50\par
\pard\qr destra\par\pard\li1000\fi-500 sporge\par})")[0];
        QVERIFY(std::abs(p.trova("bb")->x1 - kMargine - 100) < 1);
        QVERIFY(std::abs(p.trova("ccc")->x2 - kMargine - 300) < 1);
        QVERIFY(p.trova("12,50")->x1 < kMargine + 400 && p.trova("12,50")->x2 > kMargine + 400);
        QVERIFY(std::abs(p.trova("destra")->x2 - (595.3 - kMargine)) < 1);
        QVERIFY(std::abs(p.trova("sporge")->x1 - kMargine - 25) < 1);
    }

    // Dots lead up to their stop, and not to a stop without any.
    void guide_delle_tabulazioni() {
        const auto p = su_carta(kTesta + R"(\pard\tx2000\tqr\tldot\tx6000 Totale\tab lordo\tab 12,50\par
\pard\tlul\tx7000 Firma\tab\par\pard\tx3000 senza\tab nulla\par})")[0];
        const auto filo = [&](QChar c) {
            for (const Parola& w : p.parole)
                if (w.testo == QString(w.testo.size(), c)) return w;
            return Parola{};
        };
        const Parola punti = filo(u'.'), riga = filo(u'_');
        QVERIFY(punti.testo.size() > 20 && riga.testo.size() > 20);
        QVERIFY(punti.x1 >= p.trova("lordo")->x2 && punti.x1 < p.trova("lordo")->x2 + 4);
        QVERIFY(std::abs(punti.x2 - p.trova("12,50")->x1) < 1);
        QVERIFY(std::abs(punti.y2 - p.trova("12,50")->y2) < 1);
        QVERIFY(riga.x1 >= p.trova("Firma")->x2 && std::abs(riga.x2 - kMargine - 350) < 1);
        QCOMPARE(p.parole.size(), std::size_t(8));
    }

    // Borders where the cells end, none where a cell has none, rows as tall as told.
    void bordi_delle_celle() {
        const std::string lati =
            R"(\clbrdrt\brdrs\brdrw20\clbrdrl\brdrs\brdrw20\clbrdrb\brdrs\brdrw20\clbrdrr\brdrs\brdrw20)";
        const QImage q = disegna(kTesta + R"(\trowd\trgaph70\trrh1000)" + lati + R"(\cellx3000)" + lati +
                                 R"(\cellx9000\pard\intbl\cell\cell\row
\trowd\trgaph70\trrh1000\cellx3000\cellx9000\pard\intbl\cell\cell\row\pard})");
        const auto x = tratti(q, 160);
        QCOMPARE(x.size(), std::size_t(3));
        for (std::size_t i = 0; i < 3; ++i)
            QVERIFY2(std::abs(x[i] - (113 + std::vector<int>{0, 300, 900}[i])) <= 2,
                     std::to_string(x[i]).c_str());
        QVERIFY(tratti(q, 260).empty());
        int righe = 0, ultima = 0;
        for (int y = 1; y < q.height(); ++y) {
            if (qGray(q.pixel(200, y)) < 160 && qGray(q.pixel(200, y - 1)) >= 160) ++righe, ultima = y;
        }
        QCOMPARE(righe, 2);
        QVERIFY2(std::abs(ultima - 213) <= 2, std::to_string(ultima).c_str());
    }

    void bordo_di_un_paragrafo() {
        const QImage q = disegna(kTesta + R"(\pard\brdrb\brdrs\brdrw20 {x}\par\pard y\par})");
        int y = 100;
        while (y < 200 && qGray(q.pixel(900, y)) > 160) ++y;
        QVERIFY2(std::abs(y - 136) <= 3, std::to_string(y).c_str());
    }

    void figura() {
        QImage rossa(10, 10, QImage::Format_RGB32);
        rossa.fill(Qt::red);
        QByteArray png;
        QBuffer b(&png);
        rossa.save(&b, "PNG");
        const QImage q = disegna(kTesta + R"({\pict\pngblip\picw10\pich10\picwgoal2000\pichgoal1000 )" +
                                 png.toHex().toStdString() + "}\\par}");
        QCOMPARE(QColor(q.pixel(120, 120)), QColor(Qt::red));
        QCOMPARE(QColor(q.pixel(113 + 195, 120)), QColor(Qt::red));
        QCOMPARE(QColor(q.pixel(113 + 205, 120)), QColor(Qt::white));
    }
};

QTEST_MAIN(Ricco)
#include "ricco.moc"
