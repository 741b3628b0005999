#include "kor/system/KorSimpleEncrypt.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDateTime>
#include <QDebug>

namespace
{
constexpr quint64 programKey = Q_UINT64_C(0x5a41d17e93c60b28);
constexpr char cipherVersion = 3;
constexpr int sha1Size = 20;

enum Flag : char { Compressed = 1, Checksum = 2, Hash = 4 };

QByteArray checksumOf(const QByteArray& bytes)
{
    QByteArray checksum;
    QDataStream stream(&checksum, QIODevice::WriteOnly);
    stream << static_cast<qint16>(qChecksum(bytes.constData(), static_cast<uint>(bytes.size())));
    return checksum;
}

QByteArray sha1Of(const QByteArray& bytes) { return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1); }
} // namespace

KorSimpleEncrypt::KorSimpleEncrypt(QObject* parent) : KorSimpleEncrypt(programKey, parent) {}

KorSimpleEncrypt::KorSimpleEncrypt(quint64 key, QObject* parent) : QObject(parent)
{
    qsrand(static_cast<uint>(QDateTime::currentMSecsSinceEpoch() & 0xffff));
    setKey(key);
}

void KorSimpleEncrypt::setKey(quint64 key)
{
    m_key = key;
    m_keyBytes.resize(8);
    for (int i = 0; i < 8; ++i)
        m_keyBytes[i] = static_cast<char>(m_key >> (8 * i));
}

QString KorSimpleEncrypt::encrypt(const QString& plain) { return KorSimpleEncrypt().encipher(plain); }

QString KorSimpleEncrypt::decrypt(const QString& cipher) { return KorSimpleEncrypt().decipher(cipher); }

QString KorSimpleEncrypt::encipher(const QString& plain)
{
    return QString::fromLatin1(encipherBytes(plain.toUtf8()).toBase64());
}

QString KorSimpleEncrypt::decipher(const QString& cipher)
{
    const QByteArray text = cipher.toLatin1();
    const QByteArray bytes = QByteArray::fromBase64(text);
    // The decoder ignores stray characters and unused bits. A text that does not encode back to itself was changed.
    if (bytes.toBase64() != text) {
        fail(UnknownVersion, "Invalid version or not a cyphertext.");
        return {};
    }
    return QString::fromUtf8(decipherBytes(bytes));
}

QByteArray KorSimpleEncrypt::fail(Error error, const char* warning)
{
    if (warning)
        qWarning("%s", warning);
    m_lastError = error;
    return {};
}

QByteArray KorSimpleEncrypt::encipherBytes(QByteArray bytes)
{
    if (m_keyBytes.isEmpty())
        return fail(NoKeySet, "No key set.");

    char flags = 0;
    if (m_compressionMode != CompressionNever) {
        const QByteArray compressed = qCompress(bytes, 9);
        if (m_compressionMode == CompressionAlways || compressed.size() < bytes.size()) {
            bytes = compressed;
            flags |= Compressed;
        }
    }
    if (m_protectionMode == ProtectionChecksum) {
        bytes.prepend(checksumOf(bytes));
        flags |= Checksum;
    } else if (m_protectionMode == ProtectionHash) {
        bytes.prepend(sha1Of(bytes));
        flags |= Hash;
    }

    // The random byte affects every byte after it, so that equal settings look different in the file.
    bytes.prepend(static_cast<char>(qrand() & 0xff));
    char last = 0;
    for (int i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(last ^ m_keyBytes[i % 8] ^ bytes.at(i));
        last = bytes.at(i);
    }
    bytes.prepend(flags);
    bytes.prepend(cipherVersion);
    m_lastError = NoError;
    return bytes;
}

QByteArray KorSimpleEncrypt::decipherBytes(QByteArray bytes)
{
    if (m_keyBytes.isEmpty())
        return fail(NoKeySet, "No key set.");
    if (bytes.isEmpty())
        return {};
    if (bytes.size() < 3 || bytes.at(0) != cipherVersion)
        return fail(UnknownVersion, "Invalid version or not a cyphertext.");

    // The checksum does not cover the flags. A protection that is never written means damage.
    const char flags = bytes.at(1);
    const char protection = m_protectionMode == ProtectionChecksum ? Checksum
                            : m_protectionMode == ProtectionHash   ? Hash
                                                                   : 0;
    if ((flags & ~Compressed) != protection)
        return fail(IntegrityFailed, nullptr);

    bytes.remove(0, 2);
    char last = 0;
    for (int i = 0; i < bytes.size(); ++i) {
        const char current = bytes.at(i);
        bytes[i] = static_cast<char>(last ^ m_keyBytes[i % 8] ^ current);
        last = current;
    }
    bytes.remove(0, 1);

    const int guard = (flags & Checksum) ? 2 : (flags & Hash) ? sha1Size : 0;
    if (bytes.size() < guard)
        return fail(IntegrityFailed, nullptr);
    const QByteArray stored = bytes.left(guard);
    bytes.remove(0, guard);
    if (((flags & Checksum) && stored != checksumOf(bytes)) ||
        (!(flags & Checksum) && (flags & Hash) && stored != sha1Of(bytes)))
        return fail(IntegrityFailed, nullptr);

    if (flags & Compressed) {
        // Empty data compresses to 4 zero bytes; for anything else an empty result is an error.
        const bool hadData = !bytes.isEmpty() && bytes != QByteArray(4, 0);
        bytes = qUncompress(bytes);
        if (hadData && bytes.isEmpty())
            return fail(IntegrityFailed, nullptr);
    }
    m_lastError = NoError;
    return bytes;
}
