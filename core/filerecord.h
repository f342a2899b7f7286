// Random-access files of fixed records, numbered from 1, and the readers for passes over many of them.
//
// One record is one positioned system call, unbuffered: what was written survives a killed process, and
// other processes see it at once. A record past the end reads as zero bytes; record 0 does not exist
// (error 63); a failed read leaves the caller's record alone. All return whether they worked and set the
// program's error number when not. A write without an open file is told to the disc as refused.
#pragma once

#include <cassert>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/disco.h"
#include "core/errori.h"

namespace ambra {

class FileRecord {
  public:
    /// `numero` is the number of the file in the whole system, `lunghezza` that of a record in bytes.
    FileRecord(Errore& err, int numero, std::size_t lunghezza)
        : err_(err), numero_(numero), lunghezza_(lunghezza) {
        assert(lunghezza > 0);
    }

    /// `disco` must outlive this file, open or not.
    bool apri(Disco& disco, std::string_view percorso, Apertura come = Apertura::scambio);
    void chiudi() { file_.reset(); }
    bool aperto() const { return file_ != nullptr; }

    bool leggi_byte(long n, std::span<std::byte> record);
    bool scrivi_byte(long n, std::span<const std::byte> record);
    /// Writes part of record `n`, from byte `posto` of it on: the rest of the record is not touched.
    bool scrivi_parte(long n, std::size_t posto, std::span<const std::byte> parte);
    /// Many records at once, from record `n`; what lies past the end is zero bytes. For the readers below.
    bool leggi_blocco(long n, std::span<std::byte> record);
    /// Many whole records at once, from record `n`, as one system call.
    bool scrivi_blocco(long n, std::span<const std::byte> record) { return scrivi_byte(n, record); }
    /// What was written since the last call survives a power cut from here on; costs nothing when nothing
    /// was.
    bool consolida();

    /// Whole records in the file, an unfinished last one counted.
    long quanti();
    /// Records that are there to their last byte.
    long interi();
    std::size_t lunghezza_record() const { return lunghezza_; }
    int numero() const { return numero_; }
    Errore& errore_di() { return err_; }

  private:
    bool scrivi_da(long n, std::size_t posto, std::span<const std::byte> che);

    Errore& err_;
    int numero_;
    std::size_t lunghezza_;
    Disco* disco_ = nullptr;
    std::string percorso_;
    std::unique_ptr<FileAperto> file_;
    bool da_consolidare_ = false;
};

/// A file whose records are R: nothing else is read from it or written into it.
template <class R>
class FileDi : public FileRecord {
    static_assert(std::is_trivially_copyable_v<R> && alignof(R) == 1);

  public:
    FileDi(Errore& err, int numero) : FileRecord(err, numero, sizeof(R)) {}
};

/// Reads record `n` whole into its struct.
template <class R>
bool leggi(FileDi<R>& f, long n, std::type_identity_t<R>& record) {
    return f.leggi_byte(n, std::as_writable_bytes(std::span(&record, 1)));
}

/// Writes the struct whole as record `n`.
template <class R>
bool scrivi(FileDi<R>& f, long n, const std::type_identity_t<R>& record) {
    return f.scrivi_byte(n, std::as_bytes(std::span(&record, 1)));
}

/// Writes one field of `record`, a field of it, into record `n`, which must be there, and nothing else: a
/// change that another process made to the other fields meanwhile is not undone.
template <class R, class C>
bool scrivi_campo(FileDi<R>& f, long n, const std::type_identity_t<R>& record, const C& campo) {
    const auto tutto = std::as_bytes(std::span(&record, 1));
    const auto parte = std::as_bytes(std::span(&campo, 1));
    assert(parte.data() >= tutto.data() && parte.data() + parte.size() <= tutto.data() + tutto.size());
    return f.scrivi_parte(n, static_cast<std::size_t>(parte.data() - tutto.data()), parte);
}

/// The sequential reader: a pass over a file in record order, many records a system call, the same bytes.
template <class R>
class Passata {
  public:
    explicit Passata(FileDi<R>& f) : file_(f) {}
    /// Record `n` (ascending), into `record`; false as a plain read would, `record` then left alone.
    bool leggi(long n, R& record) {
        const R* r = vista(n);
        if (r) record = *r;
        return r != nullptr;
    }
    /// The same without the copy: the record inside the block in hand, or nullptr if the read failed. It
    /// stays as it is while later reads fail, and until the next block but one is read.
    const R* vista(long n) {
        if (n < primo_ || n >= primo_ + static_cast<long>(blocco_.size())) {
            if (n < 1) {
                file_.errore_di().numero = errore::numero_record;
                return nullptr;
            }
            prossimo_.resize(kBlocco);
            if (!file_.leggi_blocco(n, std::as_writable_bytes(std::span(prossimo_)))) return nullptr;
            std::swap(blocco_, prossimo_);
            primo_ = n;
        }
        return &blocco_[static_cast<std::size_t>(n - primo_)];
    }

  private:
    static constexpr std::size_t kBlocco = 1 + 131072 / sizeof(R);
    FileDi<R>& file_;
    std::vector<R> blocco_, prossimo_;
    long primo_ = 0;
};

/// The card box: records in any order during one pass, each block of them read once and kept.
template <class R>
class Schedario {
  public:
    explicit Schedario(FileDi<R>& f) : file_(f) {}
    bool leggi(long n, R& record) {
        const R* r = vista(n);
        if (r) record = *r;
        return r != nullptr;
    }
    const R* vista(long n) {
        if (n < 1) {
            file_.errore_di().numero = errore::numero_record;
            return nullptr;
        }
        const long quale = (n - 1) / kBlocco;
        if (quale != ultimo_n_ || !ultimo_) {
            auto& b = blocchi_[quale];
            if (b.empty()) {
                b.resize(kBlocco);
                if (!file_.leggi_blocco(quale * kBlocco + 1, std::as_writable_bytes(std::span(b)))) {
                    b.clear();
                    return nullptr;
                }
            }
            ultimo_ = &b;
            ultimo_n_ = quale;
        }
        return &(*ultimo_)[static_cast<std::size_t>((n - 1) % kBlocco)];
    }

  private:
    static constexpr long kBlocco = 1 + 65536 / static_cast<long>(sizeof(R));
    FileDi<R>& file_;
    std::unordered_map<long, std::vector<R>> blocchi_;
    std::vector<R>* ultimo_ = nullptr;
    long ultimo_n_ = -1;
};

}  // namespace ambra
