// Real documents: files of several programs, printed, beside what a word processor shows for the same files.
// tests/campioni holds both; scripts/campioni makes them.
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <cmath>

#include "print/rtf_lettore.h"
#include "qt/ricco.h"
#include "qt/stampante_qt.h"
#include "tests/qt/pdf_letto.h"

using namespace ambra;

namespace {

constexpr double kTolleranza = 2;  // points, in both directions, for every word
constexpr double kFoglio = 4;      // a sheet a hair off a standard one becomes that one
constexpr int kProgrammiMinimi = 3;
const char* const kCartella = "tests/campioni";

QByteArray contenuto(const QString& percorso) {
    QFile f(percorso);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// The words of each page as `scripts/campioni` writes them: "pagina W H", then "y: x word x word ...".
std::vector<PaginaLetta> attese(const QString& percorso) {
    std::vector<PaginaLetta> pagine;
    for (const QString& riga : QString::fromUtf8(contenuto(percorso)).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList pezzi = riga.split(u' ', Qt::SkipEmptyParts);
        if (pezzi[0] == "pagina") {
            pagine.push_back({pezzi.value(1).toDouble(), pezzi.value(2).toDouble(), {}});
            continue;
        }
        if (pagine.empty()) return {};
        const double y = QString(pezzi[0]).chopped(1).toDouble();
        for (qsizetype i = 1; i + 1 < pezzi.size(); i += 2) {
            const double x = pezzi[i].toDouble();
            pagine.back().parole.push_back({x, y, x, y, pezzi[i + 1]});
        }
    }
    return pagine;
}

// `carta` is the printer's, for a file that names no sheet.
std::vector<PaginaLetta> stampate(const QByteArray& rtf, const QString& nome, const QPageSize& carta) {
    QTemporaryDir provvisoria;
    // The PDFs stay for who wants to look at them.
    const QString resta = qEnvironmentVariable("AMBRA_CAMPIONI_PDF");
    StampanteQt s;
    s.scelta.cartella_pdf = resta.isEmpty() ? provvisoria.path() : resta;
    s.scelta.carta = carta;
    QString dove;
    s.stampato = [&](const std::string&, const QString& f, bool) { dove = f; };
    s.document_title = nome.toStdString();
    s.rich_text(rtf::leggi({rtf.constData(), static_cast<std::size_t>(rtf.size())}));
    s.end_doc();
    return leggi_pdf(dove);
}

QString detta(const Parola& p) {
    return QStringLiteral("%1 (%2, %3)").arg(p.testo).arg(p.x1, 0, 'f', 1).arg(p.y1, 0, 'f', 1);
}

// Half the gap between the cells of a table, in points. A row's left edge is that of its cell: so the format
// has it. The word processor that was looked at has the text there, and its tables stand half a gap further
// left.
double mezzo_spazio(const rtf::Documento& d) {
    int spazio = 0;
    for (const rtf::Riga& r : d.righe) spazio = std::max(spazio, r.spazio);
    return spazio / 20.0;
}

// Bullets of symbol faces have many codes.
QString parola(const Parola& p) {
    return p.testo == u"·" || p.testo == u"\uF0B7" ? QStringLiteral("•") : p.testo;
}

// Words of one page that are not where they should be, each with the nearest equal one.
QStringList fuori_posto(const PaginaLetta& vista, PaginaLetta nostra, double mezzo) {
    QStringList fuori;
    for (const Parola& p : vista.parole) {
        const auto lontana = [&](const Parola& q) { return std::abs(q.x1 - p.x1) + std::abs(q.y1 - p.y1); };
        auto migliore = nostra.parole.end();
        for (auto q = nostra.parole.begin(); q != nostra.parole.end(); ++q)
            if (parola(*q) == parola(p) &&
                (migliore == nostra.parole.end() || lontana(*q) < lontana(*migliore)))
                migliore = q;
        if (migliore == nostra.parole.end()) {
            fuori.append("lacks " + detta(p));
            continue;
        }
        const double dx = migliore->x1 - p.x1, dy = migliore->y1 - p.y1;
        if ((std::abs(dx) > kTolleranza && std::abs(dx - mezzo) > kTolleranza) || std::abs(dy) > kTolleranza)
            fuori.append(detta(p) + " is at " + detta(*migliore));
        nostra.parole.erase(migliore);
    }
    for (const Parola& p : nostra.parole) fuori.append("too much: " + detta(p));
    return fuori;
}

}  // namespace

class Campioni : public QObject {
    Q_OBJECT
  private slots:
    void almeno_tre_programmi() {
        int programmi = 0;
        for (const QString& p : QDir(kCartella).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            programmi +=
                p == "a-mano" || QDir(QString(kCartella) + '/' + p).entryList({"*.rtf"}).isEmpty() ? 0 : 1;
        QVERIFY(programmi >= kProgrammiMinimi);
    }

    void come_il_programma_di_scrittura_data() {
        QTest::addColumn<QString>("base");
        for (const QString& programma : QDir(kCartella).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            for (const QString& f : QDir(QString(kCartella) + '/' + programma).entryList({"*.rtf"})) {
                const QString base = programma + '/' + f.chopped(4);
                QTest::newRow(qPrintable(base)) << base;
            }
    }

    void come_il_programma_di_scrittura() {
        QFETCH(QString, base);
        const QString percorso = QString(kCartella) + '/' + base;
        const auto viste = attese(percorso + ".atteso");
        QVERIFY(!viste.empty());
        const bool a4 = std::abs(viste[0].larghezza - 595.3) < 1;
        const auto nostre = stampate(contenuto(percorso + ".rtf"), QString(base).replace('/', '-'),
                                     QPageSize(a4 ? QPageSize::A4 : QPageSize::Letter));
        const QByteArray rtf = contenuto(percorso + ".rtf");
        const double mezzo =
            mezzo_spazio(rtf::leggi({rtf.constData(), static_cast<std::size_t>(rtf.size())}));
        QStringList fuori;
        for (std::size_t i = 0; i < std::min(viste.size(), nostre.size()); ++i) {
            QVERIFY(std::abs(viste[i].larghezza - nostre[i].larghezza) < kFoglio);
            QVERIFY(std::abs(viste[i].altezza - nostre[i].altezza) < kFoglio);
            for (const QString& s : fuori_posto(viste[i], nostre[i], mezzo))
                fuori.append(QStringLiteral("page %1: %2").arg(i + 1).arg(s));
        }
        QVERIFY2(fuori.isEmpty(), qPrintable('\n' + fuori.join('\n')));
        QCOMPARE(nostre.size(), viste.size());
    }

    // Wherever a file is cut, what is left of it has pages.
    void ogni_taglio_si_stampa_data() { come_il_programma_di_scrittura_data(); }
    void ogni_taglio_si_stampa() {
        QFETCH(QString, base);
        constexpr std::size_t kTagli = 12;
        const std::string rtf = contenuto(QString(kCartella) + '/' + base + ".rtf").toStdString();
        for (std::size_t i = 0; i < kTagli; ++i) {
            const std::string_view resto(rtf.data(), rtf.size() * i / kTagli);
            const ImpaginatoRicco impaginato(rtf::leggi(resto), {11906, 16838});
            QVERIFY(impaginato.pagine() >= 1 && impaginato.pagine() < 10);
            QImage q(100, 141, QImage::Format_RGB32);
            q.fill(Qt::white);
            QPainter p(&q);
            p.scale(1 / 120.0, 1 / 120.0);
            for (int n = 0; n < impaginato.pagine(); ++n) impaginato.disegna(p, n);
        }
    }
};

QTEST_MAIN(Campioni)
#include "campioni.moc"
