// zuvo-sign-manifest: makes and checks the Ed25519 signatures of update manifests.
//
//   zuvo-sign-manifest genkey PRIVATE.pem        new key pair; prints the public key (hex)
//   zuvo-sign-manifest pubkey PRIVATE.pem        prints the public key (hex)
//   zuvo-sign-manifest sign PRIVATE.pem MANIFEST [SIG]    writes MANIFEST.sig (64 raw bytes)
//   zuvo-sign-manifest verify PUBHEX MANIFEST [SIG]       exit 0 when the signature is good
//
// The hex public key is what the build takes as ZUVO_UPDATE_PUBKEY.
#include <openssl/evp.h>
#include <openssl/pem.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace {

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Ctx = std::unique_ptr<EVP_MD_CTX, decltype(&EVP_MD_CTX_free)>;

bool readFile(const std::string& path, std::vector<unsigned char>* out)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return false;
    out->assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    return !in.bad();
}

bool writeFile(const std::string& path, const unsigned char* data, size_t size)
{
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    return static_cast<bool>(out);
}

Key loadPrivate(const std::string& path)
{
    FILE* f = std::fopen(path.c_str(), "rb");
    if (!f)
        return Key(nullptr, &EVP_PKEY_free);
    Key key(PEM_read_PrivateKey(f, nullptr, nullptr, nullptr), &EVP_PKEY_free);
    std::fclose(f);
    if (key && EVP_PKEY_get_id(key.get()) != EVP_PKEY_ED25519)
        key.reset();
    return key;
}

int printPublic(EVP_PKEY* key)
{
    unsigned char pub[32];
    size_t len = sizeof(pub);
    if (EVP_PKEY_get_raw_public_key(key, pub, &len) != 1 || len != 32)
        return 1;
    for (unsigned char b : pub)
        std::printf("%02x", b);
    std::printf("\n");
    return 0;
}

int genkey(const std::string& path)
{
    Key key(EVP_PKEY_Q_keygen(nullptr, nullptr, "ED25519"), &EVP_PKEY_free);
    if (!key)
        return 1;
    const mode_t old = umask(077); // the private key is readable by its owner only
    FILE* f = std::fopen(path.c_str(), "wb");
    umask(old);
    if (!f || PEM_write_PrivateKey(f, key.get(), nullptr, nullptr, 0, nullptr, nullptr) != 1) {
        if (f)
            std::fclose(f);
        std::fprintf(stderr, "cannot write %s\n", path.c_str());
        return 1;
    }
    std::fclose(f);
    return printPublic(key.get());
}

int sign(const std::string& keyPath, const std::string& manifest, const std::string& sigPath)
{
    Key key = loadPrivate(keyPath);
    if (!key) {
        std::fprintf(stderr, "%s is not an Ed25519 private key\n", keyPath.c_str());
        return 1;
    }
    std::vector<unsigned char> data;
    if (!readFile(manifest, &data)) {
        std::fprintf(stderr, "cannot read %s\n", manifest.c_str());
        return 1;
    }
    Ctx ctx(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    unsigned char sig[64];
    size_t sigLen = sizeof(sig);
    if (!ctx || EVP_DigestSignInit(ctx.get(), nullptr, nullptr, nullptr, key.get()) != 1
        || EVP_DigestSign(ctx.get(), sig, &sigLen, data.data(), data.size()) != 1 || sigLen != 64) {
        std::fprintf(stderr, "signing failed\n");
        return 1;
    }
    if (!writeFile(sigPath, sig, sigLen)) {
        std::fprintf(stderr, "cannot write %s\n", sigPath.c_str());
        return 1;
    }
    return 0;
}

int verify(const std::string& pubHex, const std::string& manifest, const std::string& sigPath)
{
    if (pubHex.size() != 64)
        return 2;
    unsigned char pub[32];
    for (int i = 0; i < 32; ++i) {
        unsigned int v = 0;
        if (std::sscanf(pubHex.c_str() + 2 * i, "%2x", &v) != 1)
            return 2;
        pub[i] = static_cast<unsigned char>(v);
    }
    Key key(EVP_PKEY_new_raw_public_key(EVP_PKEY_ED25519, nullptr, pub, 32), &EVP_PKEY_free);
    std::vector<unsigned char> data, sig;
    if (!key || !readFile(manifest, &data) || !readFile(sigPath, &sig))
        return 2;
    Ctx ctx(EVP_MD_CTX_new(), &EVP_MD_CTX_free);
    const bool ok = ctx && EVP_DigestVerifyInit(ctx.get(), nullptr, nullptr, nullptr, key.get()) == 1
                    && EVP_DigestVerify(ctx.get(), sig.data(), sig.size(), data.data(), data.size()) == 1;
    std::printf(ok ? "good signature\n" : "BAD signature\n");
    return ok ? 0 : 1;
}

int usage()
{
    std::fprintf(stderr, "usage: zuvo-sign-manifest genkey PRIVATE.pem | pubkey PRIVATE.pem |\n"
                         "       sign PRIVATE.pem MANIFEST [SIG] | verify PUBHEX MANIFEST [SIG]\n");
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3)
        return usage();
    const std::string cmd = argv[1];
    if (cmd == "genkey" && argc == 3)
        return genkey(argv[2]);
    if (cmd == "pubkey" && argc == 3) {
        Key key = loadPrivate(argv[2]);
        return key ? printPublic(key.get()) : 1;
    }
    if ((cmd == "sign" || cmd == "verify") && (argc == 4 || argc == 5)) {
        const std::string sigPath = argc == 5 ? argv[4] : std::string(argv[3]) + ".sig";
        return cmd == "sign" ? sign(argv[2], argv[3], sigPath) : verify(argv[2], argv[3], sigPath);
    }
    return usage();
}
