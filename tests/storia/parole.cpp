#include "tests/storia/parole.h"

#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "core/testo.h"

namespace fs = std::filesystem;

namespace ambra::storia {

namespace {

// The value that begins at s[i], after the equals sign; `i` is then behind it.
std::string valore(const std::string& s, std::size_t& i) {
    std::string v;
    if (i >= s.size() || s[i] != '"') {
        while (i < s.size() && s[i] != ' ') v += s[i++];
        return v;
    }
    for (++i; i < s.size() && s[i] != '"'; ++i) {
        if (s[i] == '\\' && i + 1 < s.size()) {
            if (s[i + 1] == 'x' && i + 3 < s.size()) {
                // a raw byte, written as its Unicode twin so that the conversion gives it back
                v += a_utf8(std::string(1, static_cast<char>(std::stoi(s.substr(i + 2, 2), nullptr, 16))));
                i += 3;
                continue;
            }
            ++i;
        }
        v += s[i];
    }
    ++i;
    return v;
}

}  // namespace

void male(const std::string& testo) {
    throw std::runtime_error(testo);
}

std::string parola(const std::string& s, int quale) {
    std::istringstream in(s);
    std::string p;
    for (int i = 0; i <= quale; ++i) in >> p;
    return p;
}

std::string dopo(const std::string& s, int parole) {
    std::istringstream in(s);
    std::string p;
    for (int i = 0; i < parole; ++i) in >> p;
    p.clear();
    std::getline(in >> std::ws, p);
    return p;
}

std::string da_hex(const std::string& h) {
    std::string r;
    std::string pulito;
    for (char c : h)
        if (!std::isspace(static_cast<unsigned char>(c))) pulito += c;
    for (std::size_t i = 0; i + 1 < pulito.size(); i += 2)
        r += static_cast<char>(std::stoi(pulito.substr(i, 2), nullptr, 16));
    return r;
}

std::string in_hex(std::string_view s) {
    std::string r;
    char b[3];
    for (char c : s) {
        std::snprintf(b, sizeof b, "%02x", static_cast<unsigned char>(c));
        r += b;
    }
    return r;
}

std::string leggi_file(const fs::path& p) {
    std::ifstream f(p, std::ios::binary);
    if (!f) male("no such file: " + p.filename().string());
    return {std::istreambuf_iterator<char>(f), {}};
}

void scrivi_file(const fs::path& p, const std::string& s) {
    fs::create_directories(p.parent_path());
    std::ofstream f(p, std::ios::binary);
    f << s;
    if (!f) male("cannot write " + p.string());
}

std::vector<Assegnazione> assegnazioni(const std::string& s, long n) {
    std::vector<Assegnazione> r;
    for (std::size_t i = 0; i < s.size();) {
        if (s[i] == ' ') {
            ++i;
            continue;
        }
        Assegnazione a;
        while (i < s.size() && s[i] != '=' && s[i] != '(') a.campo += s[i++];
        if (i < s.size() && s[i] == '(') {
            a.indice = std::atoi(s.c_str() + i + 1);
            i = s.find(')', i) + 1;
        }
        if (i >= s.size() || s[i] != '=') male("expected '=' after " + a.campo);
        a.valore = valore(s, ++i);
        if (const auto p = a.valore.find("$n"); p != std::string::npos)
            a.valore.replace(p, 2, std::to_string(n));
        r.push_back(a);
    }
    return r;
}

Intervallo intervallo(const std::string& s) {
    const auto punti = s.find("..");
    const long da = std::stol(s);
    return {da, punti == std::string::npos ? da : std::stol(s.substr(punti + 2))};
}

}  // namespace ambra::storia
