#include "manifest_signature.h"

#include <QByteArray>

#ifndef ZUVO_UPDATE_PUBKEY_HEX
#error "ZUVO_UPDATE_PUBKEY_HEX must be defined by the build"
#endif

QByteArray trustedManifestKey()
{
#ifdef ZUVO_UPDATE_TEST_HOOKS
    // Test builds only: the end-to-end tests sign with a key they generate.
    // Release builds do not contain this branch, so nothing in the
    // environment can replace the key there.
    const QByteArray testKey = qgetenv("ZUVO_UPDATE_TEST_PUBKEY");
    if (!testKey.isEmpty())
        return QByteArray::fromHex(testKey);
#endif
    return QByteArray::fromHex(QByteArrayLiteral(ZUVO_UPDATE_PUBKEY_HEX));
}
