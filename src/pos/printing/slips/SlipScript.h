#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/** Consecutive letters of a slip with the same format. Width and height are multiples of the normal letter. */
struct SlipSpan
{
    QString text;
    bool bold = false;
    bool underline = false;
    int width = 1;
    int height = 1;

    [[nodiscard]] bool looksLike(const SlipSpan& other) const;
};

/** One line of a slip, or a paper cut. */
struct SlipLine
{
    enum Alignment { Left, Centre, Right };

    QList<SlipSpan> spans;
    Alignment alignment = Left;
    bool isCut = false;

    [[nodiscard]] QString text() const;
    /** In normal letters. */
    [[nodiscard]] int width() const;
    /** In normal lines. */
    [[nodiscard]] int height() const;
};

/**
 * Parses the bytes of a slip like a slip printer: letters in UTF-8, line feeds, and the common commands for format and
 * cut. Commands that print nothing are skipped.
 */
class SlipScript final
{
public:
    /** The lines from top to bottom. Long lines are wrapped at the columns; 0 columns means no wrapping. */
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
    /** The next byte; 0 at the end. */
    uchar take();
    void skip(int count);

    QByteArray m_bytes;
    int m_columns;
    int m_at = 0;
    // A sequence is sent only up to its first zero byte, so a command may lack parameters. True if the slip's last
    // command lacks them; then all commands of this kind do.
    bool m_cutsShort = false;
    bool m_pulsesShort = false;
    SlipSpan m_style;
    SlipLine::Alignment m_alignment = SlipLine::Left;
    SlipLine m_line;
    int m_column = 0;
    QList<SlipLine> m_lines;
};
