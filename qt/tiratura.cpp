#include "qt/tiratura.h"

#include "qt/replica.h"

namespace ambra {

namespace {

constexpr int kPagineBlocco = 64;  // more hardly gain, and all that wait are in memory

// Counts pages on their way to a device.
class Conta : public Uscita {
  public:
    Conta(Uscita& vera, std::function<void(int)> nuova) : vera_(vera), nuova_(std::move(nuova)) {}
    QPainter* pagina(double larghezza, double altezza) override {
        QPainter* p = vera_.pagina(larghezza, altezza);
        if (p) nuova_(++pagine);
        return p;
    }
    bool fine() override { return vera_.fine(); }

    int pagine = 0;

  private:
    Uscita& vera_;
    std::function<void(int)> nuova_;
};

}  // namespace

bool Tiratura::apri(const QString& percorso) {
    file_ = std::make_unique<QFile>(percorso);
    return file_->open(QIODevice::WriteOnly);
}

void Tiratura::aggiungi(LavoroStampa&& lavoro) {
    Lettera& l = lettere_.emplace_back(Lettera{std::move(lavoro), std::move(file_), true, 0});
    l.riuscita = l.file->isOpen();
    if (l.riuscita) disegna(l);
    if (pagine_ >= kPagineBlocco) fine();
}

void Tiratura::disegna(Lettera& l) {
    if (!uscita_) {
        tutto_ = std::make_unique<QBuffer>();
        uscita_ = uscita_pdf(*tutto_);
    }
    Conta conta(*uscita_, [&](int n) {
        if (avanza) avanza(l.lavoro.titolo, n);
    });
    l.riuscita = dipingi(l.lavoro, conta, facce_);
    l.pagine = conta.pagine;
    pagine_ += l.pagine;
}

bool Tiratura::scrivi(Lettera& l, const QByteArray& byte) const {
    return l.file->write(byte) == byte.size() && l.file->flush();
}

void Tiratura::fine() {
    std::vector<Lettera> lettere = std::exchange(lettere_, {});
    std::vector<LetteraPdf> divise;
    for (const Lettera& l : lettere) divise.push_back({testo_qt(l.lavoro.titolo), l.pagine});
    std::vector<QByteArray> file;
    if (uscita_ && uscita_->fine()) file = dividi(tutto_->data(), divise);
    uscita_.reset();
    pagine_ = 0;
    for (std::size_t i = 0; i < lettere.size(); ++i) {
        Lettera& l = lettere[i];
        const QString percorso = l.file->fileName();
        if (l.riuscita && !file.empty()) l.riuscita = scrivi(l, file[i]);
        l.file->close();
        if (l.riuscita && file.empty()) l.riuscita = scrivi_pdf(l.lavoro, percorso, facce_);
        if (stampato) stampato(l.lavoro.titolo, percorso, l.riuscita);
    }
}

}  // namespace ambra
