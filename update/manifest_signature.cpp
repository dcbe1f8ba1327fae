#include "manifest_signature.h"

#include <openssl/evp.h>

#include <memory>

namespace {

QByteArray rawSignature(const QByteArray& signature)
{
    if (signature.size() == 64)
        return signature;
    const QByteArray text = signature.trimmed();
    if (text.size() != 88)
        return {};
    const auto decoded = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    return decoded && decoded.decoded.size() == 64 ? decoded.decoded : QByteArray();
}

} // namespace

SignatureCheck verifyManifestSignature(const QByteArray& manifest, const QByteArray& signature,
                                       const QByteArray& publicKey)
{
    if (publicKey.size() != 32)
        return SignatureCheck::BadKey;
    const QByteArray sig = rawSignature(signature);
    if (sig.isEmpty())
        return SignatureCheck::Malformed;

    std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(
        EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr,
                                    reinterpret_cast<const unsigned char*>(publicKey.constData()), 32),
        &EVP_PKEY_free);
    if (!key)
        return SignatureCheck::BadKey;
    std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)> ctx(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    if (!ctx || EVP_DigestVerifyInit(ctx.get(), nullptr, nullptr, nullptr, key.get()) != 1)
        return SignatureCheck::BadKey;
    const int ok = EVP_DigestVerify(ctx.get(), reinterpret_cast<const unsigned char*>(sig.constData()),
                                    static_cast<size_t>(sig.size()),
                                    reinterpret_cast<const unsigned char*>(manifest.constData()),
                                    static_cast<size_t>(manifest.size()));
    return ok == 1 ? SignatureCheck::Valid : SignatureCheck::Invalid;
}
