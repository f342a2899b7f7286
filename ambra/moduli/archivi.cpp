// Compressed archives, and the reader of electronic invoices: all that stands on their libraries.
#include <archive.h>
#include <archive_entry.h>

#include <cerrno>
#include <memory>

#include "core/percorso.h"
#include "core/testo.h"
#include "fatturapa/lettore.h"
#include "parti/parti.h"

namespace ambra {

namespace {

constexpr const char *kNonScritto = "non si può scrivere", *kDanneggiato = "archivio tronco o danneggiato";

struct Chiudi {
    void operator()(archive* a) const { archive_read_free(a); }
    void operator()(archive_entry* e) const { archive_entry_free(e); }
};
struct ChiudiScrittura {
    void operator()(archive* a) const { archive_write_free(a); }
};
using Lettura = std::unique_ptr<archive, Chiudi>;
using Scrittura = std::unique_ptr<archive, ChiudiScrittura>;
using Voce = std::unique_ptr<archive_entry, Chiudi>;

// The word of the library is English: it stands behind ours, for whoever is asked for help.
std::string perche(const std::string& nostro, archive* a) {
    const char* s = archive_error_string(a);
    return s ? nostro + " (" + s + ")" : nostro;
}

// A file is opened by a name as the platform has it.
[[maybe_unused]] int apri_lettura(archive* a, const char* nome) {
    return archive_read_open_filename(a, nome, 1 << 16);
}
[[maybe_unused]] int apri_lettura(archive* a, const wchar_t* nome) {
    return archive_read_open_filename_w(a, nome, 1 << 16);
}

// Whether the file itself, not what is in it, was the reason of a failed opening.
bool non_apribile(archive* a) {
    const int e = archive_errno(a);
    return e == ENOENT || e == ENOTDIR || e == EACCES || e == EISDIR;
}

bool aggiungi(archive* a, const FileSalvato& f) {
    const Voce e(archive_entry_new());
    archive_entry_set_pathname(e.get(), a_utf8(f.nome).c_str());
    archive_entry_set_size(e.get(), static_cast<la_int64_t>(f.contenuto.size()));
    archive_entry_set_filetype(e.get(), AE_IFREG);
    archive_entry_set_perm(e.get(), 0644);
    archive_entry_set_mtime(e.get(), 0, 0);
    return archive_write_header(a, e.get()) == ARCHIVE_OK &&
           archive_write_data(a, f.contenuto.data(), f.contenuto.size()) ==
               static_cast<la_ssize_t>(f.contenuto.size());
}

la_ssize_t in_memoria(archive*, void* dove, const void* che, std::size_t quanti) {
    static_cast<std::string*>(dove)->append(static_cast<const char*>(che), quanti);
    return static_cast<la_ssize_t>(quanti);
}

std::string comprimi_tutti(const std::vector<FileSalvato>& file, std::string& byte) {
    const Scrittura a(archive_write_new());
    archive_write_add_filter_gzip(a.get());
    archive_write_set_format_ustar(a.get());
    archive_write_set_options(a.get(), "gzip:!timestamp");
    // No padding behind the end: a byte that is missing is then always a byte that matters.
    archive_write_set_bytes_in_last_block(a.get(), 1);
    if (archive_write_open(a.get(), &byte, nullptr, in_memoria, nullptr) != ARCHIVE_OK)
        return perche(kNonScritto, a.get());
    for (const auto& f : file)
        if (!aggiungi(a.get(), f)) return perche(kNonScritto, a.get());
    return archive_write_close(a.get()) == ARCHIVE_OK ? "" : perche(kNonScritto, a.get());
}

std::string leggi_voce(archive* a, archive_entry* e, FileSalvato& f) {
    if (archive_entry_filetype(e) != AE_IFREG || archive_entry_hardlink(e)) return "non contiene solo file";
    const char* nome = archive_entry_pathname(e);
    f.nome = da_utf8(nome ? nome : "");
    std::string buf(1 << 16, '\0');
    for (;;) {
        const la_ssize_t n = archive_read_data(a, buf.data(), buf.size());
        if (n < 0) return perche(kDanneggiato, a);
        if (n == 0) return "";
        f.contenuto.append(buf, 0, static_cast<std::size_t>(n));
        if (f.contenuto.size() > kMassimoFile) return "un file troppo grande";
    }
}

std::string espandi_tutto(const std::string& percorso, std::vector<FileSalvato>& file) {
    const Lettura a(archive_read_new());
    archive_read_support_filter_gzip(a.get());
    archive_read_support_format_tar(a.get());
    if (apri_lettura(a.get(), percorso_utf8(percorso).c_str()) != ARCHIVE_OK)
        return perche(non_apribile(a.get()) ? "manca o non si legge" : kDanneggiato, a.get());
    std::size_t tutto = 0;
    for (;;) {
        archive_entry* e = nullptr;
        const int r = archive_read_next_header(a.get(), &e);
        if (r == ARCHIVE_EOF) return "";
        if (r != ARCHIVE_OK) return perche(kDanneggiato, a.get());
        file.emplace_back();
        if (std::string male = leggi_voce(a.get(), e, file.back()); !male.empty()) return male;
        tutto += file.back().contenuto.size();
        if (tutto > kMassimoTutto || file.size() > kMassimoQuanti) return "un archivio troppo grande";
    }
}

class Archivi : public ParteArchivi {
  public:
    std::string comprimi(const std::vector<FileSalvato>& file, std::string& byte) override {
        return comprimi_tutti(file, byte);
    }
    std::string espandi(const std::string& percorso, std::vector<FileSalvato>& file) override {
        return espandi_tutto(percorso, file);
    }
    LettoreFatture& lettore() override { return lettore_; }

  private:
    fatturapa::Lettore lettore_;
};

}  // namespace

ParteArchivi* ambra_archivi() {
    static Archivi parte;
    return &parte;
}

}  // namespace ambra
