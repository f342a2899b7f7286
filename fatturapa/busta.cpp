#include "fatturapa/busta.h"

#include <openssl/bio.h>
#include <openssl/cms.h>
#include <openssl/err.h>

#include <memory>

namespace ambra::fatturapa {

namespace {

struct Libera {
    void operator()(BIO* b) const { BIO_free(b); }
    void operator()(CMS_ContentInfo* c) const { CMS_ContentInfo_free(c); }
};

constexpr std::string_view kFirmato("\x06\x09\x2A\x86\x48\x86\xF7\x0D\x01\x07\x02", 11);
constexpr std::size_t kTesta = 8;  // the longest heading of the outer sequence

}  // namespace

bool sembra_busta(std::string_view byte) {
    return byte.starts_with('\x30') && byte.substr(0, kTesta + kFirmato.size()).find(kFirmato) != byte.npos;
}

std::optional<std::string> contenuto_busta(std::string_view byte) {
    const std::unique_ptr<BIO, Libera> b(BIO_new_mem_buf(byte.data(), static_cast<int>(byte.size())));
    const std::unique_ptr<CMS_ContentInfo, Libera> cms(b ? d2i_CMS_bio(b.get(), nullptr) : nullptr);
    ASN1_OCTET_STRING** dentro = cms ? CMS_get0_content(cms.get()) : nullptr;
    ERR_clear_error();
    if (!dentro || !*dentro) return {};
    return std::string(reinterpret_cast<const char*>(ASN1_STRING_get0_data(*dentro)),
                       static_cast<std::size_t>(ASN1_STRING_length(*dentro)));
}

}  // namespace ambra::fatturapa
