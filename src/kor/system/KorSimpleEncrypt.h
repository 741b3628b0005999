#pragma once

#include <QByteArray>
#include <QObject>
#include <QVector>

/** Obscures the connection settings on disk. It only stops casual reading: the key is built into the program. */
class KorSimpleEncrypt : public QObject
{
    Q_OBJECT

public:
    enum CompressionMode { CompressionAuto, CompressionAlways, CompressionNever };
    enum ProtectionMode { ProtectionNone, ProtectionChecksum, ProtectionHash };
    enum Error { NoError, NoKeySet, UnknownVersion, IntegrityFailed };

    /** Uses the program's own key. */
    explicit KorSimpleEncrypt(QObject* parent = nullptr);
    KorSimpleEncrypt(quint64 key, QObject* parent);

    [[nodiscard]] static QString encrypt(const QString& plain);
    /** Empty if the text is damaged, made with another key, or not encrypted. */
    [[nodiscard]] static QString decrypt(const QString& cipher);

    void setKey(quint64 key);
    /** Removes the key: every operation then fails with NoKeySet. */
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
