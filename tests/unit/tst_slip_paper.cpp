#include "pos/printing/printer/PaperCut.h"
#include "pos/printing/slips/SlipPaper.h"
#include "support/Rows.h"

#include <QScrollBar>

namespace
{
/** Lines as text: "<" centred, ">" right, "*bold*", "_underlined_", "2x3" before larger letters, "---" for a cut. */
QString inWords(const SlipLine& line)
{
    if (line.isCut)
        return "---";
    QString words = line.alignment == SlipLine::Centre ? "<" : line.alignment == SlipLine::Right ? ">" : "";
    for (const SlipSpan& span : line.spans) {
        QString text = span.text;
        if (span.bold)
            text = '*' + text + '*';
        if (span.underline)
            text = '_' + text + '_';
        if (span.width > 1 || span.height > 1)
            text = QString("%1x%2 %3").arg(span.width).arg(span.height).arg(text);
        words += text;
    }
    return words;
}
} // namespace

class TestSlipPaper final : public QObject
{
    Q_OBJECT

private slots:
    void thePaperShowsWhatThePrinterPrints_data()
    {
        const auto row = addColumns<QByteArray, int, QStringList>("bytes", "columns", "lines");
        using B = QByteArray;

        row("lines", "one\ntwo\r\n\nthree", 20, {"one", "two", "", "three"});
        row("letters of two bytes", B("Café é\n"), 6, {QString::fromUtf8("Café é")});
        row("half a letter", B("x\xC3\ny\n"), 20, {QString("x") + QChar(0xFFFD), "y"});
        row("a long line goes on", "1234567\n89\n", 5, {"12345", "67", "89"});
        row("a full line and its line feed are one", "12345\n6\n", 5, {"12345", "6"});
        row("no width", "1234567\n", 0, {"1234567"});
        row("tab", "a\tb\n", 20, {"a       b"});

        row("bold",
            B("a\x1B"
              "E1b\x1B"
              "E0c\n"),
            20, {"a*b*c"});
        row("double strike", B("\x1BG\x01x\x1BG\x00y\n", 8), 20, {"*x*y"});
        row("underline", B("\x1B-1x\x1B-0y\n"), 20, {"_x_y"});
        row("mode", B("\x1B!\x39x\x1B!\x00y\n", 9), 20, {"2x2 *x*y"});
        row("size", B("\x1D!\x21x\x1D!\x00y\n", 9), 20, {"3x2 xy"});
        row("large letters wrap by their width",
            B("\x1D!\x10"
              "abc\n"),
            4, {"2x1 ab", "2x1 c"});
        row("alignment",
            B("\x1B"
              "a1mid\n\x1B"
              "a\x02right\n\x1B@left\n"),
            20, {"<mid", ">right", "left"});
        row("reset",
            B("\x1B"
              "E1\x1B-1x\x1B@y\n"),
            20, {"_*x*_y"});
        row("feed",
            B("x\x1B"
              "d\x02y\n"),
            20, {"x", "", "y"});

        row("cut m", "x\n\x1Bm", 20, {"x", "---"});
        row("cut i, two copies", "x\n\x1Bix\n\x1Bi", 20, {"x", "---", "x", "---"});
        row("cut V 1", B("x\n\x1DV\x01y"), 20, {"x", "---", "y"});
        row("cut V as a digit", "x\n\x1DV1y", 20, {"x", "---", "y"});
        row("cut with its parameter", B("x\n\x1DV\x42\x01y\n\x1DV\x42\x01"), 20, {"x", "---", "y", "---"});
        row("cut without its parameter, two copies", "x\n\x1DVBy\n\x1DVB", 20, {"x", "---", "y", "---"});
        row("cut by a pulse that ends early", "x\n\x1Bpy\n\x1Bp", 20, {"x", "---", "y", "---"});
        row("cut in a line", "x\x1Bmy", 20, {"x", "---", "y"});

        row("drawer",
            B("a\x1Bp\x00\x19\xFA"
              "b\x1Bp0<xc\n",
              14),
            20, {"abc"});
        row("commands without a trace",
            B("\x1Bt\x02\x1BR0\x1B"
              "3\x20\x1DL\x41\x41\x1C.\x1D"
              "a\xFF"
              "ok\n"),
            20, {"ok"});
        row("tabs set anew",
            B("\x1B"
              "D\x08\x10\x00ok\n",
              8),
            20, {"ok"});
        row("picture", B("\x1Dv0\x00\x01\x00\x02\x00QQok\n", 13), 20, {"ok"});
        row("bar code", B("\x1Dk\x49\x03QQQok\n"), 20, {"ok"});
        row("unknown", B("\x01\x1B\x05\x1Bz\x7Fok\x02\n"), 20, {"ok"});
        row("a command without its end", B("ok\n\x1B"), 20, {"ok"});
    }
    void thePaperShowsWhatThePrinterPrints()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, columns);
        QStringList lines;
        for (const SlipLine& line : SlipScript::read(bytes, columns))
            lines.append(inWords(line));
        QTEST(lines, "lines");
    }

    void anyBytesAreReadToTheirEnd()
    {
        // For all bytes of a type's sequence and all ends of a slip.
        for (int first : {0x1B, 0x1C, 0x1D, 0x10}) {
            for (int letter = 0; letter < 256; ++letter) {
                QByteArray bytes("x");
                bytes.append(char(first)).append(char(letter));
                for (int parameters = 0; parameters < 6; ++parameters) {
                    QVERIFY(SlipScript::read(bytes, 20).value(0).text().startsWith('x'));
                    bytes.append(char(0xFF));
                }
            }
        }
    }

    void theWidgetScalesAndScrolls()
    {
        SlipPaper paper;
        paper.showSlip(QByteArray("1234567890123456789012345678901234567890\n").repeated(90), 40);
        paper.resize(900, 300);
        paper.show();
        QVERIFY(QTest::qWaitForWindowExposed(&paper));
        QVERIFY(paper.verticalScrollBar()->maximum() > 0);
        QCOMPARE(paper.horizontalScrollBar()->maximum(), 0);
        QTest::keyClick(&paper, Qt::Key_End);
        QCOMPARE(paper.verticalScrollBar()->value(), paper.verticalScrollBar()->maximum());
        const int tall = paper.verticalScrollBar()->maximum();
        paper.resize(280, 300);
        QVERIFY(paper.verticalScrollBar()->maximum() < tall);
        QCOMPARE(paper.horizontalScrollBar()->maximum(), 0);

        paper.showNothing("no slip");
        QCOMPARE(paper.verticalScrollBar()->maximum(), 0);
        QCOMPARE(paper.text(), QString());
    }

    void aCutIsTold_data()
    {
        const auto row = addColumns<QString, QString>("notation", "begins");
        row("feeds, partial", "29#V#66#1", "Feeds the paper to the knife, cuts it and leaves");
        row("feeds, full", "29#V#65#1", "Feeds the paper to the knife and cuts it through");
        row("partial", "29#V#49", "Cuts the paper and leaves");
        row("full", "27#105", "Cuts the paper through");
        row("ends early", "29#V#66#0", "This type's cut lacks its end");
        row("ends early too", "27#112#0#75#25", "This type's cut lacks its end");
        row("none", "", "This type cuts nothing");
        row("another", "27#100#5", "Sends the bytes 1B 64 05");
    }
    void aCutIsTold()
    {
        FETCH(QString, notation, begins);
        const QString told = PaperCut(notation).description();
        QVERIFY2(told.startsWith(begins), qPrintable(told));
    }
};

QTEST_MAIN(TestSlipPaper)
#include "tst_slip_paper.moc"
