#include "fatturapa/percorsi.h"

#include <algorithm>
#include <cstdint>
#include <fstream>

#include "core/testo.h"
#include "fatturapa/lettore.h"
#include "fatturapa/testo_xml.h"

namespace ambra::fatturapa {

namespace fs = std::filesystem;

fs::path da_percorso(const std::string& utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

std::string utf8_del_sistema(const std::filesystem::path& percorso) {
    const auto nome = (percorso.has_filename() ? percorso.filename() : percorso).u8string();
    const std::string s(nome.begin(), nome.end());
    return fatturapa::utf8_valido(s) ? s : a_utf8(s);
}

bool byte_del_file(const fs::path& percorso, std::string& byte) {
    std::error_code ec;
    if (!fs::is_regular_file(percorso, ec)) return false;
    const std::uintmax_t lungo = fs::file_size(percorso, ec);
    if (ec) return false;
    std::ifstream da(percorso, std::ios::binary);
    byte.resize(static_cast<std::size_t>(std::min<std::uintmax_t>(lungo, kMassimoFile)) + 1);
    da.read(byte.data(), static_cast<std::streamsize>(byte.size()));
    byte.resize(static_cast<std::size_t>(da.gcount()));
    return da.is_open() && !da.bad();
}

bool file_della_cartella(const fs::path& cartella, std::vector<fs::path>& file) {
    std::error_code ec;
    fs::directory_iterator i(cartella, ec);
    for (; !ec && i != fs::directory_iterator(); i.increment(ec)) {
        std::error_code di_questo;
        if (i->is_regular_file(di_questo)) file.push_back(i->path());
    }
    std::sort(file.begin(), file.end());
    return !ec;
}

FileLetto Lettore::leggi_file(const std::string& percorso) {
    const fs::path p = da_percorso(percorso);
    const std::string nome = utf8_del_sistema(p);
    std::string byte;
    if (byte_del_file(p, byte)) return leggi(byte, nome);
    return {{}, {{nome, "", "il file manca o non si legge"}}, 0};
}

std::optional<FatturaLetta> Lettore::intera_da_file(const std::string& percorso, const FatturaLetta& f) {
    std::string byte;
    if (!byte_del_file(da_percorso(percorso), byte)) return {};
    return intera(byte, f);
}

std::vector<std::string> Lettore::file_di(const std::string& percorso) {
    const fs::path cartella = da_percorso(percorso);
    std::error_code ec;
    std::vector<fs::path> file;
    if (!fs::is_directory(cartella, ec) || !file_della_cartella(cartella, file)) return {percorso};
    std::vector<std::string> r;
    for (const fs::path& f : file) {
        const std::u8string s = f.u8string();
        r.emplace_back(s.begin(), s.end());
    }
    return r;
}

}  // namespace ambra::fatturapa
