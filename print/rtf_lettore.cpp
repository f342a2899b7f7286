#include "print/rtf_lettore.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "core/testo.h"
#include "print/rtf_codici.h"
#include "print/rtf_stato.h"

namespace ambra::rtf {

namespace {

constexpr std::size_t kProfonditaMassima = 20000;
constexpr std::size_t kParolaMassima = 32;

bool lettera(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Splits the file into groups, control words and characters.
class Lettore {
  public:
    explicit Lettore(std::string_view s) : s_(s) {}

    Documento leggi() {
        while (i_ < s_.size() && !finito_) passo();
        return stato_.termina();
    }

  private:
    void passo() {
        const char c = s_[i_];
        if (c == '{') {
            ++i_;
            if (aperti_++ < kProfonditaMassima) stato_.apri();
        } else if (c == '}') {
            ++i_;
            if (aperti_ == 0) return;
            if (aperti_-- <= kProfonditaMassima) stato_.chiudi();
            finito_ = aperti_ == 0;
        } else if (c == '\\') {
            ++i_;
            comando();
        } else if (c == '\r' || c == '\n') {
            ++i_;
        } else {
            testo();
        }
    }

    // A stretch of plain characters.
    void testo() {
        const std::size_t da = i_;
        i_ = std::min(s_.find_first_of("{}\\\r\n", i_), s_.size());
        stato_.testo(s_.substr(da, i_ - da));
    }

    void comando() {
        if (i_ >= s_.size()) return;
        const char c = s_[i_];
        if (c == '\'') {
            esadecimale();
        } else if (lettera(c)) {
            parola();
        } else {
            ++i_;
            stato_.simbolo(c);
        }
    }

    void esadecimale() {
        const int alta = i_ + 1 < s_.size() ? cifra_esadecimale(s_[i_ + 1]) : -1;
        const int bassa = i_ + 2 < s_.size() ? cifra_esadecimale(s_[i_ + 2]) : -1;
        if (alta < 0 || bassa < 0) {
            ++i_;
            return;
        }
        i_ += 3;
        stato_.byte(static_cast<unsigned char>(alta * 16 + bassa));
    }

    void parola() {
        const std::size_t da = i_;
        while (i_ < s_.size() && lettera(s_[i_])) ++i_;
        const std::string_view nome = s_.substr(da, std::min(i_ - da, kParolaMassima));
        std::optional<int> numero;
        const std::size_t inizio = i_;
        if (i_ < s_.size() && s_[i_] == '-') ++i_;
        while (i_ < s_.size() && cifra(s_[i_])) ++i_;
        if (i_ > inizio) {
            int n = 0;
            const auto r = std::from_chars(s_.data() + inizio, s_.data() + i_, n);
            if (r.ec == std::errc::invalid_argument) {
                i_ = inizio;  // a hyphen that belongs to the text
            } else {
                numero = r.ec == std::errc{} ? n : 0;
            }
        }
        if (i_ < s_.size() && s_[i_] == ' ') ++i_;
        if (nome == "bin") {
            const auto n =
                std::min(static_cast<std::size_t>(std::max(numero.value_or(0), 0)), s_.size() - i_);
            stato_.binario(s_.substr(i_, n));
            i_ += n;
            return;
        }
        stato_.parola(nome, numero);
    }

    std::string_view s_;
    std::size_t i_ = 0, aperti_ = 0;
    bool finito_ = false;
    StatoLettura stato_;
};

// A file that is no RTF: its lines are paragraphs.
Documento testo_semplice(std::string_view s) {
    std::string testo;
    if (s.starts_with("\xEF\xBB\xBF")) {
        testo = da_utf8(s.substr(3));
        s = testo;
    }
    Costruttore c;
    c.facce[0] = "Arial";
    const StatoCarattere f{.mezzi_punti = 20};
    for (std::size_t i = 0; i < s.size(); ++i) {
        const char b = s[i];
        if (b == '\r' && i + 1 < s.size() && s[i + 1] == '\n') continue;
        if (b == '\r' || b == '\n') {
            c.fine_paragrafo({}, f, false);
        } else if (b == '\f') {
            c.salto_pagina({}, f);
        } else if (static_cast<unsigned char>(b) >= 32 || b == '\t') {
            c.carattere(b, f);
        }
    }
    return c.termina({}, 720);
}

}  // namespace

Documento leggi(std::string_view byte) {
    std::string_view s = byte;
    if (s.starts_with("\xEF\xBB\xBF")) s.remove_prefix(3);
    const std::size_t inizio = std::min(s.find_first_not_of(" \t\r\n"), s.size());
    s.remove_prefix(inizio);
    if (!s.starts_with("{\\rtf")) return testo_semplice(byte);
    return Lettore(s).leggi();
}

}  // namespace ambra::rtf
