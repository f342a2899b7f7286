#include "core/filerecord.h"

#include <array>
#include <cstring>

namespace ambra {

bool FileRecord::apri(Disco& disco, std::string_view percorso, Apertura come) {
    disco_ = &disco;
    percorso_ = percorso;
    std::unique_ptr<FileAperto> f;
    if (!err_.esito(disco.apri(percorso, come, f))) return false;
    file_ = std::move(f);
    return true;
}

bool FileRecord::leggi_byte(long n, std::span<std::byte> record) {
    assert(record.size() == lunghezza_);
    if (!file_) return err_.esito(errore::numero_file);
    if (n < 1) return err_.esito(errore::numero_record);
    std::array<std::byte, 4096> buf;
    if (record.size() > buf.size()) return err_.esito(errore::numero_record);
    const auto qui = std::span(buf).first(record.size());
    std::size_t letti = 0;
    const auto posto = static_cast<std::uint64_t>(n - 1) * lunghezza_;
    if (!err_.esito(file_->leggi(posto, qui, letti))) return false;
    std::memcpy(record.data(), qui.data(), letti);
    std::memset(record.data() + letti, 0, record.size() - letti);
    return true;
}

bool FileRecord::scrivi_da(long n, std::size_t posto, std::span<const std::byte> che) {
    if (!file_) {
        if (disco_) disco_->conta_rifiuto(percorso_, errore::numero_file);
        return err_.esito(errore::numero_file);
    }
    if (n < 1) return err_.esito(errore::numero_record);
    da_consolidare_ = true;
    return err_.esito(file_->scrivi(static_cast<std::uint64_t>(n - 1) * lunghezza_ + posto, che));
}

bool FileRecord::scrivi_byte(long n, std::span<const std::byte> record) {
    assert(!record.empty() && record.size() % lunghezza_ == 0);
    return scrivi_da(n, 0, record);
}

bool FileRecord::scrivi_parte(long n, std::size_t posto, std::span<const std::byte> parte) {
    assert(!parte.empty() && posto + parte.size() <= lunghezza_);
    return scrivi_da(n, posto, parte);
}

bool FileRecord::consolida() {
    if (!file_ || !da_consolidare_) return true;
    da_consolidare_ = false;
    return err_.esito(file_->consolida());
}

bool FileRecord::leggi_blocco(long n, std::span<std::byte> record) {
    assert(record.size() % lunghezza_ == 0);
    if (!file_) return err_.esito(errore::numero_file);
    if (n < 1) return err_.esito(errore::numero_record);
    std::size_t letti = 0;
    const auto posto = static_cast<std::uint64_t>(n - 1) * lunghezza_;
    if (!err_.esito(file_->leggi(posto, record, letti))) return false;
    std::memset(record.data() + letti, 0, record.size() - letti);
    return true;
}

long FileRecord::interi() {
    return file_ ? static_cast<long>(file_->lunghezza() / lunghezza_) : 0;
}

long FileRecord::quanti() {
    if (!file_) return 0;
    return static_cast<long>((file_->lunghezza() + lunghezza_ - 1) / lunghezza_);
}

}  // namespace ambra
