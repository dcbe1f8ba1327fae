#pragma once
#include <QByteArray>
#include <QString>

// Ed25519 check of the manifest's detached signature (the raw 64 bytes, or the
// same in base64 on one line). The manifest is read only when this passes.
enum class SignatureCheck { Valid, Malformed, Invalid, BadKey };

SignatureCheck verifyManifestSignature(const QByteArray& manifest, const QByteArray& signature,
                                       const QByteArray& publicKey);

// The 32-byte public key every manifest must be signed for: fixed when the
// program is built (see update/README.md for why it cannot be changed later).
QByteArray trustedManifestKey();
