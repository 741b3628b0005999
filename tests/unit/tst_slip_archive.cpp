#include "pos/printing/slips/SlipArchive.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace
{
SlipArchive* archive() { return SlipArchive::instance(); }

QList<KeptSlip> all() { return archive()->slips(QDate(2000, 1, 1), QDate::currentDate().addDays(1)); }

QString add(const QByteArray& bytes, const QString& number = QString())
{
    KeptSlip slip;
    slip.kind = KeptSlip::Bill;
    slip.number = number;
    slip.place = QString::fromUtf8("Meja \"é\"\t7");
    slip.user = "sari";
    slip.title = "Bill";
    slip.printer = "Kasir";
    slip.columns = 40;
    QList<SlipArchive::Entry> entries{{slip, bytes}};
    archive()->add(entries);
    return entries.first().slip.id;
}
} // namespace

/// The folder of kept slips: its content after every kind of interruption, and its limits.
class TestSlipArchive final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        open();
    }

    void cleanup() { archive()->setFolder(QString()); }

    void everyByteAndWordComesBack()
    {
        QByteArray bytes;
        for (int byte = 0; byte < 256; ++byte)
            bytes.append(char(byte));
        const QString id = add(bytes, "TRD11260012");
        archive()->begin(id, "17");
        archive()->settle(id, KeptSlip::Failed, "no \"paper\"\n");
        open();
        QCOMPARE(all().size(), 1);
        const KeptSlip slip = all().first();
        QCOMPARE(archive()->bytes(slip.id), bytes);
        QCOMPARE(slip.number, QString("TRD11260012"));
        QCOMPARE(slip.place, QString::fromUtf8("Meja \"é\"\t7"));
        QCOMPARE(slip.user, QString("sari"));
        QCOMPARE(slip.columns, 40);
        QCOMPARE(slip.state, KeptSlip::Failed);
        QCOMPARE(slip.reason, QString("no \"paper\"\n"));
        QVERIFY(qAbs(slip.at.secsTo(QDateTime::currentDateTime())) < 10);
    }

    void nobodyElseMayReadIt()
    {
        add("bill");
        const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                            QFile::WriteOther | QFile::ExeOther;
        QVERIFY(!(QFile::permissions(folder()) & others));
        const QFileInfoList files = QDir(folder()).entryInfoList(QDir::Files);
        QVERIFY(!files.isEmpty());
        for (const QFileInfo& file : files)
            QVERIFY2(!(file.permissions() & others), qPrintable(file.fileName()));
    }

    void aTornLineSpoilsNoOtherSlip()
    {
        archive()->settle(add("first slip"), KeptSlip::Printed, QString());
        const QString path = fileOf(QDate::currentDate());
        const qint64 whole = QFileInfo(path).size();
        add("second slip");
        const qint64 both = QFileInfo(path).size();
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        file.close();
        // For each byte at which writing the second slip may be interrupted.
        for (qint64 size = whole; size < both - 1; ++size) {
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write(text.left(int(size)));
            file.close();
            open();
            QCOMPARE(all().size(), 1);
            QCOMPARE(all().first().state, KeptSlip::Printed);
            add("third slip");
            open();
            QCOMPARE(all().size(), 2);
            QCOMPARE(archive()->bytes(all().first().id), QByteArray("third slip"));
            QCOMPARE(archive()->bytes(all().last().id), QByteArray("first slip"));
        }
    }

    void whatIsTooOldOrTooMuchGoes()
    {
        const QDate today = QDate::currentDate();
        for (const int age : {40, 20, 10}) {
            for (int i = 0; i < 4; ++i)
                add("slip", QString::number(age));
            moveDay(today, today.addDays(-age));
        }
        add("slip", "0");
        open();
        QVERIFY(!QFile::exists(fileOf(today.addDays(-40))));
        QCOMPARE(all().size(), 9);
        SlipArchive::Limits few;
        few.slips = 5;
        open(few);
        QVERIFY(!QFile::exists(fileOf(today.addDays(-20))));
        QCOMPARE(all().size(), 5);
        few.slips = 3; // within a day
        open(few);
        QCOMPARE(all().size(), 3);
        QCOMPARE(all().first().number, QString("0"));
    }

    void aLivingProgramsSlipsAreItsOwn()
    {
        const QString id = add("order");
        archive()->begin(id, "5");
        QVERIFY(archive()->adopt().isEmpty()); // its own
        open();                                // another program, the first one is gone
        const QList<SlipArchive::Orphan> orphans = archive()->adopt();
        QCOMPARE(orphans.size(), 1);
        QCOMPARE(orphans.first().bytes, QByteArray("order"));
        QVERIFY(orphans.first().begun);
        QCOMPARE(orphans.first().reference, QString("5"));
        QVERIFY(archive()->adopt().isEmpty());
        archive()->settle(id, KeptSlip::Printed, QString());
        open();
        QVERIFY(archive()->adopt().isEmpty());
    }

    void aFolderThatCannotBeWrittenKeepsThemInMemory()
    {
        QFile file(m_folder->filePath("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        archive()->setFolder(m_folder->filePath("file/slips"));
        const QString id = add("bill");
        archive()->settle(id, KeptSlip::Printed, QString());
        QCOMPARE(all().size(), 1);
        QCOMPARE(all().first().state, KeptSlip::Printed);
        QCOMPARE(archive()->bytes(id), QByteArray("bill"));
    }

private:
    [[nodiscard]] QString folder() const { return m_folder->filePath("slips"); }
    [[nodiscard]] QString fileOf(const QDate& day) const
    {
        return folder() + '/' + day.toString("yyyyMMdd") + ".slips";
    }
    /** Like a program that starts again. */
    void open(SlipArchive::Limits limits = SlipArchive::Limits()) const { archive()->setFolder(folder(), limits); }
    /** Puts the slips of a day on another one. */
    void moveDay(const QDate& from, const QDate& to) const
    {
        QFile file(fileOf(from));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray former = "\"" + from.toString("yyyyMMdd").toLatin1();
        const QByteArray text = file.readAll().replace(former, "\"" + to.toString("yyyyMMdd").toLatin1());
        file.remove();
        QFile moved(fileOf(to));
        QVERIFY(moved.open(QIODevice::WriteOnly));
        moved.write(text);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestSlipArchive)
#include "tst_slip_archive.moc"
