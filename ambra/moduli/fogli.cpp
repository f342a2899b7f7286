// A table as an Excel workbook of one sheet, through the library of workbooks.
#include <xlsxwriter.h>

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <clocale>
#include <string>

#include "core/errori.h"
#include "core/testo.h"
#include "parti/parti.h"

namespace ambra {

namespace {

constexpr std::size_t kLargaMassima = 60;  // characters of a column
constexpr Data kPrimaData{1, 3, 1900};     // before it spreadsheets do not agree on the day's number
constexpr int kDecimaliMassimi = 6;
constexpr std::size_t kCifreEsatte = 15;  // more than these a spreadsheet does not keep

bool prima(const Data& a, const Data& b) {
    return std::array{a.anno, a.mese, a.giorno} < std::array{b.anno, b.mese, b.giorno};
}

// The library writes numbers as the process's locale does, which is the user's: a comma spoils the file.
class NumeriColPunto {
  public:
    NumeriColPunto() : prima_(std::setlocale(LC_NUMERIC, nullptr)) { std::setlocale(LC_NUMERIC, "C"); }
    ~NumeriColPunto() { std::setlocale(LC_NUMERIC, prima_.c_str()); }
    NumeriColPunto(const NumeriColPunto&) = delete;
    NumeriColPunto& operator=(const NumeriColPunto&) = delete;

  private:
    std::string prima_;
};

class Quaderno {
  public:
    Quaderno(const QByteArray& file, QByteArray cartella) : cartella_(std::move(cartella)) {
        lxw_workbook_options o{};
        o.tmpdir = cartella_.data();
        libro_ = workbook_new_opt(file.constData(), &o);
        if (!libro_) return;
        foglio_ = workbook_add_worksheet(libro_, nullptr);
        testata_[0] = formato(nullptr, true, LXW_ALIGN_LEFT);
        testata_[1] = formato(nullptr, true, LXW_ALIGN_RIGHT);
        testata_[2] = formato(nullptr, true, LXW_ALIGN_CENTER);
        testo_[1] = formato(nullptr, false, LXW_ALIGN_RIGHT);
        testo_[2] = formato(nullptr, false, LXW_ALIGN_CENTER);
        data_ = formato("dd/mm/yyyy", false, LXW_ALIGN_LEFT);
        for (int d = 0; d <= kDecimaliMassimi; ++d) {
            const std::string coda = d == 0 ? "" : "." + std::string(static_cast<std::size_t>(d), '0');
            importi_[static_cast<std::size_t>(d)] = {
                formato(("0" + coda).c_str(), false, LXW_ALIGN_RIGHT),
                formato(("#,##0" + coda).c_str(), false, LXW_ALIGN_RIGHT)};
        }
    }

    bool scrivi(const Foglio& f) {
        if (!libro_) return false;
        worksheet_freeze_panes(foglio_, 1, 0);
        std::vector<std::size_t> larghe(f.colonne.size(), 6);
        for (std::size_t r = 0; r < f.righe(); ++r)
            for (std::size_t c = 0; c < f.colonne.size(); ++c) {
                const CellaFoglio& x = f.cella(r, c);
                larghe[c] = std::max(larghe[c], std::min(x.testo.size() + 2, kLargaMassima));
                if (!x.testo.empty() && !cella(r, c, x, f.colonne[c].verso)) sana_ = false;
            }
        for (std::size_t c = 0; c < larghe.size(); ++c) {
            const auto n = static_cast<lxw_col_t>(c);
            worksheet_set_column(foglio_, n, n, static_cast<double>(larghe[c]), nullptr);
        }
        return sana_;
    }
    bool chiudi() { return libro_ && workbook_close(libro_) == LXW_NO_ERROR; }

  private:
    lxw_format* formato(const char* numero, bool grassetto, lxw_format_alignments verso) {
        lxw_format* f = workbook_add_format(libro_);
        if (numero) format_set_num_format(f, numero);
        if (grassetto) format_set_bold(f);
        format_set_align(f, static_cast<std::uint8_t>(verso));
        return f;
    }

    bool cella(std::size_t r, std::size_t c, const CellaFoglio& x, Allineamento verso) {
        const auto riga = static_cast<lxw_row_t>(r);
        const auto colonna = static_cast<lxw_col_t>(c);
        using Tipo = CellaFoglio::Tipo;
        if (x.tipo == Tipo::importo && x.decimali <= kDecimaliMassimi && x.testo.size() <= kCifreEsatte + 2) {
            const bool gruppi = x.testo.find('.') != std::string::npos;
            lxw_format* come = importi_[static_cast<std::size_t>(x.decimali)][gruppi ? 1 : 0];
            return worksheet_write_number(foglio_, riga, colonna, x.valore, come) == LXW_NO_ERROR;
        }
        if (x.tipo == Tipo::data && !prima(x.data, kPrimaData)) {
            lxw_datetime d{};
            d.year = x.data.anno;
            d.month = x.data.mese;
            d.day = x.data.giorno;
            return worksheet_write_datetime(foglio_, riga, colonna, &d, data_) == LXW_NO_ERROR;
        }
        lxw_format* come = (r == 0 ? testata_ : testo_)[static_cast<std::size_t>(verso)];
        return worksheet_write_string(foglio_, riga, colonna, a_utf8(x.testo).c_str(), come) == LXW_NO_ERROR;
    }

    QByteArray cartella_;
    lxw_workbook* libro_ = nullptr;
    lxw_worksheet* foglio_ = nullptr;
    std::array<lxw_format*, 3> testata_{}, testo_{};  // by Allineamento
    std::array<std::array<lxw_format*, 2>, kDecimaliMassimi + 1> importi_{};
    lxw_format* data_ = nullptr;
    bool sana_ = true;
};

class Fogli : public ParteFogli {
  public:
    int xlsx(const Foglio& f, std::string& byte) override {
        // The library writes by name alone, in the system's own letters.
        const QTemporaryDir apparte;
        if (!apparte.isValid()) return errore::dispositivo;
        const NumeriColPunto punto;
        QFile file(apparte.filePath(QStringLiteral("foglio.xlsx")));
        Quaderno quaderno(file.fileName().toLocal8Bit(), apparte.path().toLocal8Bit());
        const bool scritto = quaderno.scrivi(f);
        if (!quaderno.chiudi() || !scritto || !file.open(QIODevice::ReadOnly)) return errore::dispositivo;
        byte = file.readAll().toStdString();
        return 0;
    }
};

}  // namespace

ParteFogli* ambra_fogli() {
    static Fogli parte;
    return &parte;
}

}  // namespace ambra
