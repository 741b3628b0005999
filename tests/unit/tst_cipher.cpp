#include "kor/system/KorSimpleEncrypt.h"
#include "support/Rows.h"

namespace
{
char flagByteOf(const QByteArray& bytes) { return bytes.at(1); }

QByteArray bytesOf(const QString& cipher) { return QByteArray::fromBase64(cipher.toLatin1()); }
} // namespace

class TestCipher : public QObject
{
    Q_OBJECT

private slots:
    void whatIsEncipheredComesBackInEveryMode_data()
    {
        const auto row = addColumns<QString>("plain");
        row("nothing", "");
        row("one letter", "x");
        row("the offered password", "Qx7!Rm2z");
        row("an address", "2001:db8::1");
        row("letters of other alphabets", QString::fromUtf8("Kopi ☕ Ω é 料理"));
        row("a text worth compressing", QString(400, 'z'));
    }
    void whatIsEncipheredComesBackInEveryMode()
    {
        QFETCH(QString, plain);
        for (const auto compression : {KorSimpleEncrypt::CompressionAuto, KorSimpleEncrypt::CompressionAlways,
                                       KorSimpleEncrypt::CompressionNever}) {
            for (const auto protection : {KorSimpleEncrypt::ProtectionNone, KorSimpleEncrypt::ProtectionChecksum,
                                          KorSimpleEncrypt::ProtectionHash}) {
                KorSimpleEncrypt state;
                state.setCompressionMode(compression);
                state.setProtectionMode(protection);
                const QString cipher = state.encipher(plain);
                QVERIFY(!cipher.isEmpty());
                QCOMPARE(state.decipher(cipher), plain);
                QCOMPARE(state.lastError(), KorSimpleEncrypt::NoError);
            }
        }
    }

    void theSamePasswordLooksDifferentEachTimeItIsSaved()
    {
        KorSimpleEncrypt state;
        QSet<QString> looks;
        for (int i = 0; i < 20; ++i)
            looks.insert(state.encipher("Qx7!Rm2z"));
        QVERIFY(looks.size() > 1);
        for (const QString& look : qAsConst(looks))
            QCOMPARE(KorSimpleEncrypt::decrypt(look), QString("Qx7!Rm2z"));
    }

    void theHeaderTellsVersionChecksumAndCompression()
    {
        const QByteArray small = bytesOf(KorSimpleEncrypt::encrypt("localhost"));
        QCOMPARE(small.at(0), char(3));
        QCOMPARE(flagByteOf(small), char(2));
        QCOMPARE(small.size(), 2 + 1 + 2 + 9);
        QCOMPARE(flagByteOf(bytesOf(KorSimpleEncrypt::encrypt(QString(400, 'z')))), char(3));
    }

    void theChainIsTheOneThatFormerSettingsWereWrittenWith()
    {
        // Version 3, no flags, then each plain byte XORed with key byte i and the last cipher byte; byte 0 is random.
        KorSimpleEncrypt state(Q_UINT64_C(0x0807060504030201), nullptr);
        state.setProtectionMode(KorSimpleEncrypt::ProtectionNone);
        QCOMPARE(state.decipher(QByteArray::fromHex("0300014262").toBase64()), QString("A#"));
    }

    void oneChangedCharacterIsNoticedWhereverItStands()
    {
        const QString whole = KorSimpleEncrypt::encrypt("db.restaurant.example");
        for (int i = 0; i < whole.size(); ++i) {
            for (const QChar other : {QChar('A'), QChar('b'), QChar('/'), QChar('='), QChar('?')}) {
                if (whole.at(i) == other)
                    continue;
                QString damaged = whole;
                damaged[i] = other;
                KorSimpleEncrypt state;
                const QString plain = state.decipher(damaged);
                QVERIFY2(plain.isEmpty(), qPrintable(QString("%1 at %2").arg(other).arg(i)));
                QVERIFY(state.lastError() == KorSimpleEncrypt::IntegrityFailed ||
                        state.lastError() == KorSimpleEncrypt::UnknownVersion);
            }
        }
    }

    void whatIsNoCipherTextReadsAsNothing_data()
    {
        const auto row = addColumns<QString, int>("cipher", "error");
        row("empty", "", KorSimpleEncrypt::NoError);
        row("plain text", "localhost", KorSimpleEncrypt::UnknownVersion);
        row("too short", "AwI=", KorSimpleEncrypt::UnknownVersion);
        row("another version", "BAIAAAAA", KorSimpleEncrypt::UnknownVersion);
        row("no room for the checksum", "AwIA", KorSimpleEncrypt::IntegrityFailed);
        row("no protection at all", "AwAAAAAA", KorSimpleEncrypt::IntegrityFailed);
        row("unknown flags", "A/8AAAAA", KorSimpleEncrypt::IntegrityFailed);
    }
    void whatIsNoCipherTextReadsAsNothing()
    {
        QFETCH(QString, cipher);
        QFETCH(int, error);
        KorSimpleEncrypt state;
        QCOMPARE(state.decipher(cipher), QString());
        QCOMPARE(int(state.lastError()), error);
    }

    void settingsOfAnotherProgramCannotBeRead()
    {
        KorSimpleEncrypt other(Q_UINT64_C(0x1122334455667788), nullptr);
        KorSimpleEncrypt own;
        QCOMPARE(own.decipher(other.encipher("ZavelPOS")), QString());
        QCOMPARE(own.lastError(), KorSimpleEncrypt::IntegrityFailed);
    }

    void withoutAKeyNothingIsDone()
    {
        KorSimpleEncrypt state;
        const QString cipher = state.encipher("postgres");
        state.clearKey();
        QTest::ignoreMessage(QtWarningMsg, "No key set.");
        QCOMPARE(state.decipher(cipher), QString());
        QCOMPARE(state.lastError(), KorSimpleEncrypt::NoKeySet);
        QTest::ignoreMessage(QtWarningMsg, "No key set.");
        QCOMPARE(state.encipher("postgres"), QString());
    }
};

QTEST_GUILESS_MAIN(TestCipher)
#include "tst_cipher.moc"
