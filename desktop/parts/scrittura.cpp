#include "desktop/parts/scrittura.h"

#include <QRegularExpression>

#include "core/date.h"
#include "desktop/parts/testo_qt.h"

namespace ambra {

namespace {

constexpr int kSecolo = 100, kPrimoAnnoCorto = 80;

QString tolto(QString testo, QChar c) {
    return testo.remove(c);
}

bool combacia(const QString& testo, const char* modello) {
    return QRegularExpression(QRegularExpression::anchoredPattern(QString::fromLatin1(modello)))
        .match(testo)
        .hasMatch();
}

// What stands around an amount that was copied from a document.
QString senza_contorno(const QString& testo) {
    return tolto(testo, QChar(0x20AC)).trimmed();
}

}  // namespace

QString cifre_scritte(const QString& testo, Cifre c) {
    if (c == Cifre::testo) return testo;
    const QString t = c == Cifre::importo ? senza_contorno(testo) : testo;
    if (c == Cifre::importo) {
        if (combacia(t, "-?\\d{1,3}(\\.\\d{3})+,\\d*")) return tolto(t, '.').replace(',', '.');
        if (combacia(t, "-?\\d{1,3}(,\\d{3})+\\.\\d*")) return tolto(t, ',');
        if (combacia(t, "-?\\d{1,3}(\\.\\d{3}){2,}")) return tolto(t, '.');
    }
    const qsizetype virgola = t.indexOf(',');
    if (virgola < 0) return t;
    const qsizetype punto = t.indexOf('.');
    if (punto >= 0 && punto < virgola) return tolto(t, ',');
    return t.left(virgola) + '.' + tolto(t.mid(virgola + 1), ',');
}

QString cifre_finite(const QString& testo, Cifre c) {
    if (c == Cifre::importo && combacia(testo, "-?[1-9]\\d{0,2}\\.\\d{3}")) return tolto(testo, '.');
    return cifre_scritte(testo, c);
}

QString data_finita(const QString& testo) {
    static const QRegularExpression forma(
        QStringLiteral("^(\\d{1,2})[/.-](\\d{1,2})[/.-](\\d{4}|\\d{2})$|^(\\d{2})(\\d{2})(\\d{4}|\\d{2})$"));
    const QRegularExpressionMatch m = forma.match(testo.trimmed());
    if (!m.hasMatch()) return testo;
    const int da = m.hasCaptured(4) ? 4 : 1;
    int anno = m.captured(da + 2).toInt();
    if (m.capturedLength(da + 2) == 2) anno += anno < kPrimoAnnoCorto ? 20 * kSecolo : 19 * kSecolo;
    const QString intera = QStringLiteral("%1/%2/%3")
                               .arg(m.captured(da).toInt(), 2, 10, QLatin1Char('0'))
                               .arg(m.captured(da + 1).toInt(), 2, 10, QLatin1Char('0'))
                               .arg(anno, 4, 10, QLatin1Char('0'));
    return data_valida(da_qs(intera)) ? intera : testo;
}

bool data_sbagliata(const QString& testo) {
    const bool cifre = testo.contains(QRegularExpression(QStringLiteral("[0-9A-Za-z]")));
    return cifre && !data_valida(da_qs(testo));
}

}  // namespace ambra
