// A PDF read back by an independent program: the words of each page and where they stand.
#pragma once

#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <optional>
#include <vector>

namespace ambra {

struct Parola {
    double x1, y1, x2, y2;  // points from the upper left corner
    QString testo;
};

struct PaginaLetta {
    double larghezza = 0, altezza = 0;
    std::vector<Parola> parole;

    /// The first word that reads so.
    std::optional<Parola> trova(const QString& testo) const {
        for (const Parola& p : parole)
            if (p.testo == testo) return p;
        return {};
    }
};

inline QString esci(const char* programma, const QStringList& argomenti) {
    QProcess p;
    p.start(QString::fromLatin1(programma), argomenti);
    p.waitForFinished(60000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

inline std::vector<PaginaLetta> leggi_pdf(const QString& percorso) {
    static const QRegularExpression kPagina("<page width=\"([\\d.]+)\" height=\"([\\d.]+)\"");
    static const QRegularExpression kParola(
        "<word xMin=\"([-\\d.]+)\" yMin=\"([-\\d.]+)\" xMax=\"([-\\d.]+)\" yMax=\"([-\\d.]+)\">(.*)</word>");
    std::vector<PaginaLetta> pagine;
    for (const QString& riga : esci("pdftotext", {"-bbox", percorso, "-"}).split(u'\n')) {
        if (const auto m = kPagina.match(riga); m.hasMatch()) {
            pagine.push_back({m.captured(1).toDouble(), m.captured(2).toDouble(), {}});
        } else if (const auto w = kParola.match(riga); w.hasMatch() && !pagine.empty()) {
            QString t = w.captured(5);
            t.replace("&amp;", "&")
                .replace("&lt;", "<")
                .replace("&gt;", ">")
                .replace("&quot;", "\"")
                .replace("&apos;", "'");
            pagine.back().parole.push_back({w.captured(1).toDouble(), w.captured(2).toDouble(),
                                            w.captured(3).toDouble(), w.captured(4).toDouble(), t});
        }
    }
    return pagine;
}

}  // namespace ambra
