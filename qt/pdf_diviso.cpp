#include "qt/pdf_diviso.h"

#include <QDateTime>
#include <algorithm>
#include <charconv>
#include <map>
#include <string>
#include <string_view>

namespace ambra {

namespace {

using Vista = std::string_view;

constexpr std::size_t kLungoRiga = 20;  // of the table of objects
constexpr int kInformazioni = 1, kCatalogo = 2, kPagine = 3;

// The number that stands at a place; -1 if there is none.
int numero(Vista s, std::size_t posto) {
    int n = -1;
    if (posto < s.size()) std::from_chars(s.data() + posto, s.data() + s.size(), n);
    return n;
}

// The object that a key of a dictionary refers to; 0 if none.
int oggetto_di(Vista dizionario, Vista chiave) {
    const std::size_t p = dizionario.find(chiave);
    return p == Vista::npos ? 0 : std::max(numero(dizionario, p + chiave.size()), 0);
}

// Past a string in parentheses that begins at `i`.
std::size_t oltre_la_stringa(Vista s, std::size_t i) {
    int dentro = 0;
    for (; i < s.size(); ++i) {
        if (s[i] == '\\') {
            ++i;
        } else if (s[i] == '(') {
            ++dentro;
        } else if (s[i] == ')' && --dentro == 0) {
            return i + 1;
        }
    }
    return i;
}

// Hands `s` over piece by piece: text as it stands, and the numbers of the objects it refers to.
template <class Testo, class Riferimento>
void percorri(Vista s, const Testo& testo, const Riferimento& riferimento) {
    std::size_t scritto = 0, i = 0;
    const auto cifra = [&](std::size_t k) { return k < s.size() && s[k] >= '0' && s[k] <= '9'; };
    while (i < s.size()) {
        if (s[i] == '(') {
            i = oltre_la_stringa(s, i);
        } else if (!cifra(i)) {
            ++i;
        } else {
            std::size_t fine = i;
            while (cifra(fine)) ++fine;
            if (s.substr(fine, 4) == " 0 R") {
                testo(s.substr(scritto, i - scritto));
                riferimento(numero(s, i));
                scritto = fine + 2;
            }
            i = fine;
        }
    }
    testo(s.substr(scritto));
}

// The whole, object by object.
class Intero {
  public:
    explicit Intero(Vista s) : s_(s) {
        const std::size_t p = s.rfind("startxref\n");
        // A whole that is cut off anywhere, be it in its very last line, is none.
        const int tavola = p == Vista::npos || !s.ends_with("\n%%EOF\n") ? -1 : numero(s, p + 10);
        if (tavola < 0 || !leggi_tavola(static_cast<std::size_t>(tavola))) return;
        const int catalogo = oggetto_di(s.substr(static_cast<std::size_t>(tavola)), "/Root ");
        radice_ = oggetto_di(testo(catalogo), "/Pages ");
        const Vista albero = testo(radice_);
        const std::size_t figli = albero.find("/Kids"), fine = albero.find(']', figli);
        if (figli == Vista::npos || fine == Vista::npos) return;
        percorri(
            albero.substr(figli, fine - figli), [](Vista) {}, [&](int n) { pagine_.push_back(n); });
        // A stream that begins elsewhere than behind its dictionary would be taken for text.
        for (std::size_t n = 1; n < oggetti_.size(); ++n)
            if (testo(static_cast<int>(n)).find("\nendstream") != Vista::npos) return;
        buono_ = std::all_of(pagine_.begin(), pagine_.end(), [&](int n) {
            return testo(n).find("/Type /Page\n") != Vista::npos &&
                   oggetto_di(testo(n), "/Parent ") == radice_;
        });
    }

    bool buono() const { return buono_; }
    const std::vector<int>& pagine() const { return pagine_; }
    int radice() const { return radice_; }
    Vista intestazione() const { return s_.substr(0, s_.find("1 0 obj")); }
    /// What an object is, up to `endobj`; nothing where there is none.
    Vista oggetto(int n) const {
        return n > 0 && static_cast<std::size_t>(n) < oggetti_.size() ? oggetti_[static_cast<std::size_t>(n)]
                                                                      : Vista();
    }
    /// The same, without the bytes of its stream.
    Vista testo(int n) const {
        const Vista o = oggetto(n);
        return o.substr(0, o.find(">>\nstream\n"));
    }

  private:
    bool leggi_tavola(std::size_t tavola) {
        if (s_.substr(tavola, 7) != "xref\n0 ") return false;
        const int quanti = numero(s_, tavola + 7);
        const std::size_t prima = s_.find('\n', tavola + 7) + 1;
        if (quanti < 1 || s_.size() < prima + static_cast<std::size_t>(quanti) * kLungoRiga) return false;
        std::map<std::size_t, std::size_t> dove;  // numbers by their place
        for (std::size_t i = 0; i < static_cast<std::size_t>(quanti); ++i) {
            const Vista riga = s_.substr(prima + i * kLungoRiga, kLungoRiga);
            if (riga[17] == 'n')
                dove[static_cast<std::size_t>(std::max(numero(riga, riga.find_first_not_of('0')), 0))] = i;
        }
        oggetti_.resize(static_cast<std::size_t>(quanti));
        for (auto it = dove.begin(); it != dove.end(); ++it) {
            const std::size_t fine = std::next(it) == dove.end() ? tavola : std::next(it)->first;
            const std::string inizio = std::to_string(it->second) + " 0 obj\n";
            if (fine > tavola || s_.substr(it->first, inizio.size()) != inizio) return false;
            oggetti_[it->second] = s_.substr(it->first + inizio.size(), fine - it->first - inizio.size());
        }
        return true;
    }

    Vista s_;
    std::vector<Vista> oggetti_;
    std::vector<int> pagine_;
    int radice_ = 0;
    bool buono_ = false;
};

std::string esadecimale(const QString& s) {
    QByteArray byte("\xFE\xFF", 2);
    for (const QChar c : s)
        byte.append(static_cast<char>(c.unicode() >> 8)).append(static_cast<char>(c.unicode() & 255));
    return '<' + byte.toHex().toStdString() + '>';
}

// One file on its way out.
class Singolo {
  public:
    explicit Singolo(const Intero& intero) : intero_(intero), s_(intero.intestazione()) {
        nuovi_[intero.radice()] = kPagine;
        posti_.resize(kPagine + 1);
    }

    QByteArray scrivi(const int* pagine, const LetteraPdf& lettera) {
        std::string figli;
        for (int i = 0; i < lettera.pagine; ++i) figli += std::to_string(nuovo(pagine[i])) + " 0 R ";
        aggiungi(
            kInformazioni,
            "<< /Title " + esadecimale(lettera.titolo) + " /Creator (Kit Ambra) /Producer (Qt " + qVersion() +
                ") /CreationDate (D:" +
                QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMddHHmmss")).toStdString() +
                "Z) >>\nendobj\n");
        aggiungi(kCatalogo, "<< /Type /Catalog /Pages 3 0 R >>\nendobj\n");
        aggiungi(kPagine, "<< /Type /Pages /Kids [" + figli + "] /Count " + std::to_string(lettera.pagine) +
                              " >>\nendobj\n");
        for (std::size_t i = 0; i < da_scrivere_.size(); ++i) copia(da_scrivere_[i]);
        chiudi();
        return QByteArray::fromStdString(s_);
    }

  private:
    // The number of an object in this file; one that was not met before is written in its turn.
    int nuovo(int vecchio) {
        const auto [it, prima_volta] = nuovi_.try_emplace(vecchio, static_cast<int>(posti_.size()));
        if (prima_volta) {
            posti_.push_back(0);
            da_scrivere_.push_back(vecchio);
        }
        return it->second;
    }

    void apri(int n) {
        posti_[static_cast<std::size_t>(n)] = s_.size();
        s_ += std::to_string(n) + " 0 obj\n";
    }

    void aggiungi(int n, const std::string& che) {
        apri(n);
        s_ += che;
    }

    void copia(int vecchio) {
        apri(nuovi_[vecchio]);
        const Vista testo = intero_.testo(vecchio);
        percorri(
            testo, [&](Vista t) { s_ += t; }, [&](int n) { s_ += std::to_string(nuovo(n)) + " 0"; });
        s_ += intero_.oggetto(vecchio).substr(testo.size());
    }

    void chiudi() {
        const std::size_t tavola = s_.size();
        const std::string quanti = std::to_string(posti_.size());
        s_ += "xref\n0 " + quanti + "\n0000000000 65535 f \n";
        for (std::size_t i = 1; i < posti_.size(); ++i) {
            const std::string posto = std::to_string(posti_[i]);
            s_ += std::string(10 - std::min<std::size_t>(posto.size(), 10), '0') + posto + " 00000 n \n";
        }
        s_ += "trailer\n<< /Size " + quanti + " /Info 1 0 R /Root 2 0 R >>\nstartxref\n" +
              std::to_string(tavola) + "\n%%EOF\n";
    }

    const Intero& intero_;
    std::string s_;
    std::map<int, int> nuovi_;
    std::vector<int> da_scrivere_;
    std::vector<std::size_t> posti_;  // of the objects, by their number
};

}  // namespace

std::vector<QByteArray> dividi_pdf(const QByteArray& tutto, const std::vector<LetteraPdf>& lettere) {
    const Intero intero(Vista(tutto.constData(), static_cast<std::size_t>(tutto.size())));
    std::size_t pagine = 0;
    for (const LetteraPdf& l : lettere) pagine += static_cast<std::size_t>(l.pagine);
    if (!intero.buono() || pagine != intero.pagine().size()) return {};
    std::vector<QByteArray> file;
    const int* prossima = intero.pagine().data();
    for (const LetteraPdf& l : lettere) {
        file.push_back(Singolo(intero).scrivi(prossima, l));
        prossima += l.pagine;
    }
    return file;
}

}  // namespace ambra
