#include "fatturapa/testo_xml.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include "core/testo.h"

namespace ambra::fatturapa {

namespace {

constexpr std::string_view kBianchi = " \t\r\n";
constexpr std::string_view kBomUtf8 = "\xEF\xBB\xBF";
constexpr std::string_view kDoctype = "<!doctype";
constexpr std::size_t kDichiarazione = 256;  // the declaration stands within these bytes

enum class Codifica { utf8, utf16_basso, utf16_alto, iso1, iso15 };

unsigned byte_di(std::string_view s, std::size_t i) {
    return static_cast<unsigned char>(s[i]);
}

std::string_view da_non_bianco(std::string_view s) {
    const std::size_t i = s.find_first_not_of(kBianchi);
    return i == s.npos ? std::string_view() : s.substr(i);
}

// Lower-case value of encoding="..." in the declaration; empty where there is none.
std::string codifica_dichiarata(std::string_view byte) {
    const std::string_view inizio = da_non_bianco(byte).substr(0, kDichiarazione);
    const std::string s = minuscolo(inizio.substr(0, inizio.find("?>")));
    const std::size_t i = s.starts_with("<?xml") ? s.find("encoding") : s.npos;
    if (i == s.npos) return "";
    const std::size_t da = s.find_first_of("\"'", i);
    if (da == s.npos) return "";
    return s.substr(da + 1, s.find(s[da], da + 1) - da - 1);
}

Codifica codifica(std::string_view& byte) {
    if (byte.starts_with(kBomUtf8)) {
        byte.remove_prefix(kBomUtf8.size());
        return Codifica::utf8;
    }
    const bool basso = byte.starts_with("\xFF\xFE"), alto = byte.starts_with("\xFE\xFF");
    if (basso || alto) {
        byte.remove_prefix(2);
        return basso ? Codifica::utf16_basso : Codifica::utf16_alto;
    }
    if (byte.starts_with(std::string_view("<\0", 2))) return Codifica::utf16_basso;
    if (byte.starts_with(std::string_view("\0<", 2))) return Codifica::utf16_alto;
    const std::string detta = codifica_dichiarata(byte);
    if (detta == "iso-8859-15" || detta == "latin-9") return Codifica::iso15;
    for (const char* n : {"iso-8859-1", "windows-1252", "cp1252", "latin1", "latin-1"})
        if (detta == n) return Codifica::iso1;
    return Codifica::utf8;
}

void aggiungi(std::string& r, std::uint32_t c) {
    const auto metti = [&r](std::uint32_t b) { r += static_cast<char>(b); };
    if (c < 0x80) {
        metti(c);
    } else if (c < 0x800) {
        metti(0xC0 | c >> 6);
        metti(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        metti(0xE0 | c >> 12);
        metti(0x80 | (c >> 6 & 0x3F));
        metti(0x80 | (c & 0x3F));
    } else {
        metti(0xF0 | c >> 18);
        metti(0x80 | (c >> 12 & 0x3F));
        metti(0x80 | (c >> 6 & 0x3F));
        metti(0x80 | (c & 0x3F));
    }
}

std::string da_utf16(std::string_view s, bool alto) {
    const auto unita = [&](std::size_t i) {
        return alto ? byte_di(s, i) << 8 | byte_di(s, i + 1) : byte_di(s, i + 1) << 8 | byte_di(s, i);
    };
    std::string r;
    r.reserve(s.size());
    for (std::size_t i = 0; i + 1 < s.size(); i += 2) {
        std::uint32_t c = unita(i);
        if (c >= 0xD800 && c < 0xE000) {  // half of a pair, or a stray one
            const std::uint32_t d = c < 0xDC00 && i + 3 < s.size() ? unita(i + 2) : 0;
            const bool coppia = d >= 0xDC00 && d < 0xE000;
            c = coppia ? 0x10000 + ((c - 0xD800) << 10) + (d - 0xDC00) : '?';
            if (coppia) i += 2;
        }
        aggiungi(r, c);
    }
    return r;
}

// The eight characters in which ISO-8859-15 is not Windows-1252, given with the byte that Windows-1252 has
// for them.
std::string da_iso15(std::string_view s) {
    std::string r(s);
    for (char& c : r) switch (static_cast<unsigned char>(c)) {
            case 0xA4:
                c = '\x80';
                break;
            case 0xA6:
                c = '\x8A';
                break;
            case 0xA8:
                c = '\x9A';
                break;
            case 0xB4:
                c = '\x8E';
                break;
            case 0xB8:
                c = '\x9E';
                break;
            case 0xBC:
                c = '\x8C';
                break;
            case 0xBD:
                c = '\x9C';
                break;
            case 0xBE:
                c = '\x9F';
                break;
            default:
                break;
        }
    return a_utf8(r);
}

// Length of the well-formed character at `i`, 0 if it is none.
std::size_t carattere(std::string_view s, std::size_t i) {
    const unsigned a = byte_di(s, i);
    const std::size_t n = a < 0x80 ? 1 : a < 0xC2 ? 0 : a < 0xE0 ? 2 : a < 0xF0 ? 3 : a < 0xF5 ? 4 : 0;
    if (n == 0 || i + n > s.size()) return 0;
    for (std::size_t k = 1; k < n; ++k)
        if ((byte_di(s, i + k) & 0xC0) != 0x80) return 0;
    const unsigned b = n > 1 ? byte_di(s, i + 1) : 0;
    if ((a == 0xE0 && b < 0xA0) || (a == 0xED && b > 0x9F)) return 0;
    if ((a == 0xF0 && b < 0x90) || (a == 0xF4 && b > 0x8F)) return 0;
    return n;
}

constexpr std::size_t kTratto = 32;  // bytes looked at together

bool ascii(const char* tratto) {
    std::array<std::uint64_t, kTratto / 8> t;
    std::memcpy(t.data(), tratto, kTratto);
    return ((t[0] | t[1] | t[2] | t[3]) & 0x8080808080808080ULL) == 0;
}

// Past what stands for nothing before the root: blanks, comments, instructions.
std::size_t prossimo_segno(std::string_view s, std::size_t i) {
    for (;;) {
        i = s.find_first_not_of(kBianchi, i);
        if (i == s.npos) return s.size();
        const std::string_view chiude = s.substr(i).starts_with("<?")     ? "?>"
                                        : s.substr(i).starts_with("<!--") ? "-->"
                                                                          : "";
        if (chiude.empty()) return i;
        const std::size_t fine = s.find(chiude, i + 2);
        if (fine == s.npos) return s.size();
        i = fine + chiude.size();
    }
}

std::string parola(std::string_view s, std::size_t i) {
    const std::size_t fine = std::min(s.size(), s.find_first_of(" \t\r\n/>[", i));
    return std::string(s.substr(i, fine - i));
}

}  // namespace

bool utf8_valido(std::string_view s) {
    for (std::size_t i = 0; i < s.size();) {
        while (i + kTratto <= s.size() && ascii(s.data() + i)) i += kTratto;
        for (const std::size_t fine = std::min(i + kTratto, s.size()); i < fine;) {
            const std::size_t n = carattere(s, i);
            if (n == 0) return false;
            i += n;
        }
    }
    return true;
}

// Every byte is written, changed or not: without a branch the compiler does many at a time.
void senza_controlli(std::string& s, char al_posto) {
    for (char& c : s) {
        const bool controllo = static_cast<unsigned char>(c) < 0x20;
        const bool ammesso = (c == '\t') | (c == '\n') | (c == '\r');
        c = (controllo & !ammesso) ? al_posto : c;
    }
}

bool sembra_xml(std::string_view byte) {
    const Codifica c = codifica(byte);
    if (c == Codifica::utf16_basso || c == Codifica::utf16_alto)
        return da_non_bianco(da_utf16(byte.substr(0, kDichiarazione), c == Codifica::utf16_alto))
            .starts_with('<');
    return da_non_bianco(byte).starts_with('<');
}

void decodifica(std::string& byte) {
    std::string_view s = byte;
    const Codifica come = codifica(s);
    if (come == Codifica::utf8 && utf8_valido(s))
        byte.erase(0, byte.size() - s.size());
    else if (come == Codifica::utf16_basso || come == Codifica::utf16_alto)
        byte = da_utf16(s, come == Codifica::utf16_alto);
    else
        byte = come == Codifica::iso15 ? da_iso15(s) : a_utf8(s);
    senza_controlli(byte);
}

Prologo prologo(std::string_view testo) {
    Prologo p;
    p.fine = testo.size();
    p.inizio = prossimo_segno(testo, 0);
    const std::string_view qui = testo.substr(p.inizio);
    if (minuscolo(qui.substr(0, kDoctype.size())) == kDoctype) {
        p.doctype = true;
        p.tipo = parola(
            testo, std::min(testo.size(), testo.find_first_not_of(kBianchi, p.inizio + kDoctype.size())));
        return p;
    }
    if (!qui.starts_with('<')) return p;
    p.radice = parola(testo, p.inizio + 1);
    const std::size_t chiusura = testo.rfind("</" + p.radice);
    const bool chiusa = chiusura != testo.npos && chiusura > p.inizio;
    const std::size_t fine = chiusa ? testo.find('>', chiusura) : testo.npos;
    if (fine != testo.npos) p.fine = fine + 1;
    return p;
}

std::string_view senza_prefisso(std::string_view nome) {
    const std::size_t i = nome.rfind(':');
    return i == nome.npos ? nome : nome.substr(i + 1);
}

}  // namespace ambra::fatturapa
