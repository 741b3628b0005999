#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/** Letters of a slip that look alike. Width and height count in letters of the printer's usual size. */
struct SlipSpan
{
    QString text;
    bool bold = false;
    bool underline = false;
    int width = 1;
    int height = 1;

    [[nodiscard]] bool looksLike(const SlipSpan& other) const;
};

/** One line of a slip, or the place where the paper is cut. */
struct SlipLine
{
    enum Alignment { Left, Centre, Right };

    QList<SlipSpan> spans;
    Alignment alignment = Left;
    bool isCut = false;

    [[nodiscard]] QString text() const;
    /** In letters of the usual size. */
    [[nodiscard]] int width() const;
    /** In lines of the usual size. */
    [[nodiscard]] int height() const;
};

/**
 * Reads the bytes of a slip the way a slip printer does: letters in UTF-8, line feeds, and the usual commands for how
 * letters look and where the paper is cut. Commands that leave nothing on the paper are passed over.
 */
class SlipScript final
{
public:
    /** The lines from top to bottom. A longer line goes on in the next one; without columns (0) lines do not break. */
    [[nodiscard]] static QList<SlipLine> read(const QByteArray& bytes, int columns);

private:
    SlipScript(const QByteArray& bytes, int columns);

    void run();
    void command();
    void escape(uchar letter);
    void groupSeparator(uchar letter);
    void paperCut();
    void drawer();
    void text();
    void append(const QString& letters);
    void appendLetter(const QString& letter);
    void tabulate();
    void feed(int lines);
    void cut();
    void endLine();
    void reset();

    [[nodiscard]] int peek(int ahead = 0) const;
    /** The next byte; 0 behind the end. */
    uchar take();
    void skip(int count);

    QByteArray m_bytes;
    int m_columns;
    int m_at = 0;
    // A type's sequence ends at its first zero byte, and so may a command: what the last one of a slip lacks, all lack.
    bool m_cutsShort = false;
    bool m_pulsesShort = false;
    SlipSpan m_style;
    SlipLine::Alignment m_alignment = SlipLine::Left;
    SlipLine m_line;
    int m_column = 0;
    QList<SlipLine> m_lines;
};
