// A run of letters into a PDF file each: drawn together, a block at a time, and then divided.
#pragma once

#include <QBuffer>
#include <QFile>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "print/registratore.h"
#include "qt/caratteri.h"
#include "qt/pdf_diviso.h"
#include "qt/uscita.h"

namespace ambra {

class Tiratura {
  public:
    /// Page `n` of a letter begins; a letter is done. As StampanteQt tells them.
    std::function<void(const std::string& titolo, int n)> avanza;
    std::function<void(const std::string& titolo, const QString& file, bool riuscito)> stampato;
    /// Divides a block; what it refuses is drawn letter by letter.
    std::function<std::vector<QByteArray>(const QByteArray&, const std::vector<LetteraPdf>&)> dividi =
        dividi_pdf;

    explicit Tiratura(Facce& facce) : facce_(facce) {}
    ~Tiratura() { fine(); }
    Tiratura(const Tiratura&) = delete;
    Tiratura& operator=(const Tiratura&) = delete;

    /// The file of the letter to come, empty until its block is written. False when it cannot be.
    bool apri(const QString& percorso);
    /// The letter whose file was opened last; told when its block is written, after those before it.
    void aggiungi(LavoroStampa&& lavoro);
    /// Writes what is left.
    void fine();

  private:
    struct Lettera {
        LavoroStampa lavoro;
        std::unique_ptr<QFile> file;
        bool riuscita = true;
        int pagine = 0;
    };

    void disegna(Lettera& l);
    bool scrivi(Lettera& l, const QByteArray& byte) const;

    Facce& facce_;
    std::unique_ptr<QFile> file_;
    std::unique_ptr<QBuffer> tutto_;
    std::unique_ptr<Uscita> uscita_;
    std::vector<Lettera> lettere_;
    int pagine_ = 0;
};

}  // namespace ambra
