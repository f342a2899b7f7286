// The sequential writer: a run of consecutive records goes to the file in one operation of the platform.
//
// What is in hand when the process dies was not written yet; whoever needs more keeps a copy first.
#pragma once

#include <vector>

#include "core/filerecord.h"

namespace ambra {

template <class R>
class Scrittura {
  public:
    explicit Scrittura(FileDi<R>& f) : file_(f) { blocco_.reserve(kBlocco); }
    ~Scrittura() { svuota(); }
    Scrittura(const Scrittura&) = delete;
    Scrittura& operator=(const Scrittura&) = delete;

    void scrivi(long n, const R& record) {
        if (blocco_.size() == kBlocco || n != primo_ + static_cast<long>(blocco_.size())) svuota();
        if (blocco_.empty()) primo_ = n;
        blocco_.push_back(record);
    }
    /// Writes what is in hand. A block that fails goes record by record, so that a bad place costs only the
    /// records that lie on it; the error number is then that of the last one refused.
    void svuota() {
        if (blocco_.empty()) return;
        const Errore prima = file_.errore_di();
        if (!file_.scrivi_byte(primo_, std::as_bytes(std::span(blocco_)))) {
            file_.errore_di() = prima;
            for (std::size_t i = 0; i < blocco_.size(); ++i)
                ambra::scrivi(file_, primo_ + static_cast<long>(i), blocco_[i]);
        }
        blocco_.clear();
    }

  private:
    static constexpr std::size_t kBlocco = 1 + 131072 / sizeof(R);
    FileDi<R>& file_;
    std::vector<R> blocco_;
    long primo_ = 0;
};

}  // namespace ambra
