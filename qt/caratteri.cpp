#include "qt/caratteri.h"

#include <QFontDatabase>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cmath>

#include "core/testo.h"
#include "print/metriche.h"

namespace ambra {

namespace {

constexpr double kMinimo = 1, kMassimo = 400;
constexpr std::size_t kFacceMassime = 64;

struct Sostituto {
    const char* nome;
    QStringList altri;
};

std::array<Sostituto, 9> sostituti() {
    const QStringList senza{"Liberation Sans", "Arimo", "Nimbus Sans", "Helvetica", "Arial"};
    const QStringList con{"Liberation Serif", "Tinos", "Nimbus Roman", "Times New Roman", "Times"};
    const QStringList fisso{"Liberation Mono", "Cousine", "Nimbus Mono PS", "Courier New", "Courier"};
    return {{{"Arial", senza},
             {"Helvetica", senza},
             {"MS Sans Serif", senza},
             {"Microsoft Sans Serif", senza},
             {"Times New Roman", con},
             {"Times", con},
             {"Courier New", fisso},
             {"Courier", fisso},
             {"Arial Narrow", {"Liberation Sans Narrow"}}}};
}

// The bitmap faces that Windows still has cannot be drawn at the size of a page.
bool si_disegna(const QString& famiglia) {
    return QFontDatabase::hasFamily(famiglia) && QFontDatabase::isSmoothlyScalable(famiglia);
}

}  // namespace

double punti_stampabili(double punti) {
    if (!(punti > 0)) return kMinimo;
    return std::min(std::max(punti, kMinimo), kMassimo);
}

QHash<QString, QString> famiglie_sostituite(const std::function<bool(const QString&)>& c_e) {
    QHash<QString, QString> scelte;
    for (const auto& s : sostituti()) {
        if (c_e(s.nome)) continue;
        const auto altra = std::find_if(s.altri.begin(), s.altri.end(), c_e);
        if (altra != s.altri.end()) scelte.insert(QString(s.nome).toLower(), *altra);
    }
    return scelte;
}

QString famiglia_da_disegno(const QString& nome) {
    static const QHash<QString, QString> scelte = famiglie_sostituite(si_disegna);
    return scelte.value(nome.toLower(), nome);
}

double interlinea_taciuta(const QRawFont& f) {
    constexpr qsizetype kPostoInterlinea = 8;
    const QByteArray misure = f.fontTable("hhea");
    if (misure.size() < kPostoInterlinea + 2 || f.unitsPerEm() <= 0) return 0;
    const int unita = qFromBigEndian<qint16>(misure.constData() + kPostoInterlinea);
    return std::max(unita * f.pixelSize() / f.unitsPerEm() - f.leading(), 0.0);
}

bool somiglia_ad_arial(std::string_view nome) {
    const std::string n = maiuscolo(rifila(nome));
    return n.empty() || n == "ARIAL" || n == "HELVETICA" || n == "MS SANS SERIF" ||
           n == "MICROSOFT SANS SERIF" || n == "LIBERATION SANS" || n == "NIMBUS SANS" || n == "ARIMO";
}

QColor colore_qt(long rgb) {
    return {static_cast<int>(rgb & 0xFF), static_cast<int>((rgb >> 8) & 0xFF),
            static_cast<int>((rgb >> 16) & 0xFF)};
}

QString testo_qt(std::string_view testo) {
    return QString::fromStdString(a_utf8(testo));
}

std::string testo_di(const QString& s) {
    return da_utf8(s.toStdString());
}

Faccia::Faccia(const Carattere& c)
    : grassetto_(c.grassetto),
      fissa_(somiglia_ad_arial(c.nome)),
      corpo_(punti_stampabili(c.punti) * kTwipPerPunto) {
    const QString nome = testo_qt(rifila(c.nome)).remove(QChar(u'\0'));
    font_ = QFont(famiglia_da_disegno(nome.isEmpty() ? QStringLiteral("Arial") : nome));
    font_.setPixelSize(static_cast<int>(std::lround(corpo_)));
    font_.setBold(c.grassetto);
    font_.setItalic(c.corsivo);
    font_.setHintingPreference(QFont::PreferNoHinting);
    font_.setKerning(false);
    grezza_ = QRawFont::fromFont(font_);
    grezza_.setPixelSize(corpo_);
    ascendente_ = grezza_.ascent();
    altezza_ = fissa_ ? kAltezzaRiga * corpo_
                      : ascendente_ + grezza_.descent() + grezza_.leading() + interlinea_taciuta(grezza_);
    leggi_glifi();
}

void Faccia::leggi_glifi() {
    for (unsigned b = 32; b < 256; ++b) {
        const char byte = static_cast<char>(b);
        const QString s(QChar(static_cast<char16_t>(punto_unicode(static_cast<unsigned char>(b)))));
        const QList<quint32> glifi = grezza_.glyphIndexesForString(s);
        glifi_[b] = glifi.value(0);
        if (fissa_) {
            avanza_[b] = static_cast<double>(larghezza_millesimi({&byte, 1}, grassetto_)) * corpo_ / 1000;
        } else {
            avanza_[b] = grezza_.advancesForGlyphIndexes(glifi).value(0).x();
        }
    }
}

double Faccia::larghezza(std::string_view testo) const {
    if (fissa_) return static_cast<double>(larghezza_millesimi(testo, grassetto_)) * corpo_ / 1000;
    double somma = 0;
    for (const char c : testo) somma += avanza_[static_cast<unsigned char>(c)];
    return somma;
}

bool Faccia::raccogli(Glifi& run, double x, double y, std::string_view testo) const {
    for (const char c : testo)
        if (const auto b = static_cast<unsigned char>(c); b >= 32 && glifi_[b] == 0) return false;
    for (const char c : testo) {
        const auto b = static_cast<unsigned char>(c);
        if (b >= 32) {
            run.quali.append(glifi_[b]);
            run.dove.append({x, y + ascendente_});
        }
        x += avanza_[b];
    }
    return true;
}

void Faccia::disegna_in_prestito(QPainter& p, double x, double y, std::string_view testo) const {
    p.setFont(font_);
    p.drawText(QPointF(x, y + ascendente_), testo_qt(testo));
}

Faccia& Facce::di(const Carattere& c) {
    if (ultima_ && c == ultimo_) return *ultima_;
    if (tutte_.size() > kFacceMassime) tutte_.clear();
    auto& posto = tutte_[{c.nome, punti_stampabili(c.punti), c.grassetto, c.corsivo}];
    if (!posto) posto = std::make_unique<Faccia>(c);
    ultimo_ = c;
    ultima_ = posto.get();
    return *ultima_;
}

}  // namespace ambra
