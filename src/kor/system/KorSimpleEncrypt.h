#pragma once

#include <QByteArray>
#include <QObject>
#include <QVector>

/**
 * Keeps the connection settings unreadable on disk. It hides them from a glance, not from someone who has the
 * program: the key is built in.
 */
class KorSimpleEncrypt : public QObject
{
    Q_OBJECT

public:
    enum CompressionMode { CompressionAuto, CompressionAlways, CompressionNever };
    enum ProtectionMode { ProtectionNone, ProtectionChecksum, ProtectionHash };
    enum Error { NoError, NoKeySet, UnknownVersion, IntegrityFailed };

    /** A state with the program's own key. */
    explicit KorSimpleEncrypt(QObject* parent = nullptr);
    KorSimpleEncrypt(quint64 key, QObject* parent);

    [[nodiscard]] static QString encrypt(const QString& plain);
    /** Empty where the text is damaged, from another key, or no cipher text at all. */
    [[nodiscard]] static QString decrypt(const QString& cipher);

    void setKey(quint64 key);
    /** Leaves the state without a key: every operation then fails with NoKeySet. */
    void clearKey() { m_keyBytes.clear(); }
    void setCompressionMode(CompressionMode mode) { m_compressionMode = mode; }
    void setProtectionMode(ProtectionMode mode) { m_protectionMode = mode; }
    [[nodiscard]] Error lastError() const { return m_lastError; }

    [[nodiscard]] QString encipher(const QString& plain);
    [[nodiscard]] QString decipher(const QString& cipher);

private:
    QByteArray fail(Error error, const char* warning);
    QByteArray encipherBytes(QByteArray bytes);
    QByteArray decipherBytes(QByteArray bytes);

    quint64 m_key = 0;
    QVector<char> m_keyBytes;
    CompressionMode m_compressionMode = CompressionAuto;
    ProtectionMode m_protectionMode = ProtectionChecksum;
    Error m_lastError = NoError;
};
