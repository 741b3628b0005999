#include "pos/printing/printer/AppLinePrinter.h"
#include "pos/printing/spooler/SlipSpooler.h"
#include "support/ModalDriver.h"
#include "support/Rows.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

namespace
{
class Slip final : public AppLinePrinter
{
public:
    Slip(const QString& printer, const QByteArray& body, int copies, const QByteArray& cut)
        : m_printer(printer), m_body(body), m_copies(copies), m_cut(cut)
    {}
    bool print() override { return printCopies(m_printer, "Bill", m_body, m_copies, m_cut); }

private:
    QString m_printer;
    QByteArray m_body;
    int m_copies;
    QByteArray m_cut;
};

/** Limits the file size of this process, which is similar to a full disk. */
class FullDisk final
{
public:
    explicit FullDisk(rlim_t limit)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit full = m_before;
        full.rlim_cur = limit;
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY(FullDisk)

private:
    rlimit m_before = {};
};
} // namespace

class TestControlSequences final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        qputenv("ZAVEL_SPOOL_DIR", QFile::encodeName(m_folder->path()));
    }

    void cleanup() { qunsetenv("ZAVEL_SPOOL_DIR"); }

    void theNotationBecomesBytes_data()
    {
        const auto row = addColumns<QString, QByteArray>("notation", "bytes");

        row("cut", "27#109", QByteArray("\x1B\x6D"));
        row("drawer pulse", "27#112#0#25#250", QByteArray("\x1B\x70\x00\x19\xFA", 5));
        row("letters stand for themselves", "29#V#66#0", QByteArray("\x1D\x56\x42\x00", 4));
        row("a word counts by its first letter", "Cut", QByteArray("C"));
        row("only eight bits fit", "300#-1", QByteArray("\x2C\xFF"));
        row("a digit is a number, never a letter", "7", QByteArray("\x07"));
        row("too large for a number", "99999999999", QByteArray("9"));
        row("Latin letter", QString::fromUtf8("é"), QByteArray("\xE9"));
        row("letter beyond Latin", QString::fromUtf8("Ж"), QByteArray("\0", 1));
        row("trailing sign", "27#", QByteArray("\x1B\x00", 2));
        row("doubled sign", "27##109", QByteArray("\x1B\x00\x6D", 3));
        row("nothing", "", QByteArray("\0", 1));
    }
    void theNotationBecomesBytes()
    {
        QFETCH(QString, notation);
        QTEST(AppLinePrinter::decodeControlSequence(notation), "bytes");
    }

    void columnsArePaddedAndNeverCut_data()
    {
        const auto row = addColumns<QString, int, int, QString>("text", "alignment", "width", "column");

        row("left", "Teh", 0, 6, "Teh   ");
        row("right", "1,500", 1, 8, "   1,500");
        row("centre", "Kopi", 2, 8, "  Kopi  ");
        row("centre, odd", "Kopi", 2, 9, "  Kopi   ");
        row("longer than the column", "Kuitan", 1, 3, "Kuitan");
        row("no width", "Zavel", 2, 0, "Zavel");
        row("nothing to show", "", 0, 3, "   ");
        row("letters count, not bytes", QString::fromUtf8("Café"), 1, 6, QString::fromUtf8("  Café"));
    }
    void columnsArePaddedAndNeverCut()
    {
        QFETCH(QString, text);
        FETCH(int, alignment, width);
        QTEST(AppLinePrinter::justify(text, static_cast<QTextStream::FieldAlignment>(alignment), width), "column");
    }

    void aSeparatorIsAsWideAsThePaper()
    {
        QCOMPARE(AppLinePrinter::repeatChar('-', 5), QString("-----"));
        QCOMPARE(AppLinePrinter::repeatChar('-', 0), QString());
        QCOMPARE(AppLinePrinter::repeatChar('-', -3), QString());
    }

    void aSlipArrivesUpToItsFirstZeroByte()
    {
        Slip slip("Kasir", QByteArray("Total\n\0lost", 11), 1, AppLinePrinter::decodeControlSequence("29#V#66#0"));
        QVERIFY(slip.print());
        QCOMPARE(slips(), QStringList("000001-Kasir-Bill.slip"));
        QCOMPARE(content("000001-Kasir-Bill.slip"), QByteArray("Total\n\x1D\x56\x42"));
    }

    void copiesAreCutOneByOneInOneJob()
    {
        Slip slip("Kasir", "body\n", 3, AppLinePrinter::decodeControlSequence("27#112#0#75#25"));
        QVERIFY(slip.print());
        QCOMPARE(slips().size(), 1);
        QCOMPARE(content(slips().first()), QByteArray("body\n\x1B\x70"
                                                      "body\n\x1B\x70"
                                                      "body\n\x1B\x70"));
        // No copies make an empty job.
        QVERIFY(Slip("Kasir", "body\n", 0, "x").print());
        QCOMPARE(content(slips().value(1)), QByteArray());
    }

    void slipsStandInTheOrderOfPrinting()
    {
        QFile earlier(m_folder->filePath("000998-Dapur-Menu.slip"));
        QVERIFY(earlier.open(QIODevice::WriteOnly));
        for (const char* text : {"first", "second", "third"})
            QVERIFY(Slip("Kasir", text, 1, {}).print());
        QCOMPARE(slips(), QStringList({"000998-Dapur-Menu.slip", "000999-Kasir-Bill.slip", "001000-Kasir-Bill.slip",
                                       "001001-Kasir-Bill.slip"}));
        QCOMPARE(content("000999-Kasir-Bill.slip"), QByteArray("first"));
        QCOMPARE(content("001001-Kasir-Bill.slip"), QByteArray("third"));
    }

    void namesOfPrintersCannotLeaveTheFolder()
    {
        QVERIFY(Slip(QString::fromUtf8("../Küche 1"), "x", 1, {}).print());
        QCOMPARE(slips(), QStringList("000001-.._K_che_1-Bill.slip"));
    }

    void aSlipInProgressIsNotSeen()
    {
        const QStringList finished("*.slip");
        const QDir folder(m_folder->path());
        {
            auto slow = SlipSpooler::create();
            auto quick = SlipSpooler::create();
            QVERIFY(slow->openPrinter("Dapur", "Menu"));
            QVERIFY(slow->write("half"));
            QVERIFY(quick->openPrinter("Kasir", "Bill"));
            QVERIFY(quick->close());
            QCOMPARE(folder.entryList(finished), QStringList("000002-Kasir-Bill.slip"));
            QVERIFY(slow->close());
            QCOMPARE(folder.entryList(finished), QStringList({"000001-Dapur-Menu.slip", "000002-Kasir-Bill.slip"}));
            QVERIFY(slow->openPrinter("Dapur", "Menu"));
        }
        QCOMPARE(slips().size(), 2); // the job that was never closed has left nothing behind
    }

    void anUnknownPrinterIsToldAndPrintsNothing()
    {
        knownPrinters("Kasir\n");
        const ModalDriver person;
        QVERIFY(!Slip("Dapur", "x", 1, {}).print());
        QVERIFY(!Slip("", "x", 1, {}).print());
        QCOMPARE(person.texts(), QStringList({"Error Opening Printer:Dapur", "Error Opening Printer:"}));
        QCOMPARE(person.lastTitle(), QString("Error"));
        QVERIFY(Slip("Kasir", "x", 1, {}).print());
        QCOMPARE(slips(), QStringList({"000001-Kasir-Bill.slip", "printers"}));
    }

    void theFirstKnownPrinterIsTheDefault()
    {
        QVERIFY(SlipSpooler::create()->availablePrinters().isEmpty());
        knownPrinters("Kasir\r\n\n Dapur 1 \n");
        const QList<SlipPrinter> printers = SlipSpooler::create()->availablePrinters();
        QCOMPARE(printers.size(), 2);
        QCOMPARE(printers[0].name, QString("Kasir"));
        QVERIFY(printers[0].isDefault);
        QCOMPARE(printers[1].name, QString("Dapur 1"));
        QVERIFY(!printers[1].isDefault);
    }

    void aFullDiskIsToldOnceAndLeavesNoHalfSlip()
    {
        const ModalDriver person;
        {
            FullDisk disk(16);
            QVERIFY(!Slip("Kasir", "a line longer than the disk has room for\n", 2, "\x1Bm").print());
        }
        QCOMPARE(person.boxes().size(), 1);
        QCOMPARE(person.lastTitle(), QString("Error"));
        QVERIFY2(person.lastText().startsWith(m_folder->path()), qPrintable(person.lastText()));
        QVERIFY(slips().isEmpty());
    }

    void aClosedPrinterTakesNothing()
    {
        Slip slip("Kasir", "x", 1, {});
        QVERIFY(!slip.writeText("x"));
        QVERIFY(!slip.closePrinter());
        QVERIFY(slip.print());
        QVERIFY(!slip.closePrinter());
        const ModalDriver person;
        QVERIFY(!slip.writeText("late"));
        QCOMPARE(person.texts(), QStringList("The printer is not open."));
        QCOMPARE(content(slips().first()), QByteArray("x"));
    }

    void aFolderThatCannotBeMadeIsToldAsAnError()
    {
        knownPrinters("Kasir\n");
        qputenv("ZAVEL_SPOOL_DIR", QFile::encodeName(m_folder->filePath("printers/below")));
        auto spooler = SlipSpooler::create();
        QVERIFY(!spooler->openPrinter("Kasir", "Bill"));
        QVERIFY(!spooler->errorText().isEmpty());
        QVERIFY(!spooler->isOpen());
    }

private:
    [[nodiscard]] QStringList slips() const { return QDir(m_folder->path()).entryList(QDir::Files, QDir::Name); }
    [[nodiscard]] QByteArray content(const QString& name) const
    {
        QFile file(m_folder->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such slip: " + name.toUtf8());
    }

    void knownPrinters(const QByteArray& lines) const
    {
        QFile file(m_folder->filePath("printers"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(lines), qint64(lines.size()));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestControlSequences)
#include "tst_control_sequences.moc"
