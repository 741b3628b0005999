#include "pos/printing/slips/SlipScript.h"

#include <QHash>
#include <QVector>

#include <algorithm>

namespace
{
constexpr uchar tabSign = 0x09;
constexpr uchar lineFeed = 0x0A;
constexpr uchar formFeed = 0x0C;
constexpr uchar realTime = 0x10;
constexpr uchar escapeSign = 0x1B;
constexpr uchar fieldSeparator = 0x1C;
constexpr uchar groupSign = 0x1D;
constexpr uchar firstLetter = 0x20;
constexpr uchar deleteSign = 0x7F;
constexpr int tabWidth = 8;

bool isLetter(int byte) { return byte >= firstLetter && byte != deleteSign; }

/** A parameter may be a number or its digit: 1 and '1' mean the same. */
int digit(uchar parameter) { return parameter >= '0' && parameter <= '9' ? parameter - '0' : parameter; }

SlipLine::Alignment alignmentOf(int parameter)
{
    return parameter == 1 ? SlipLine::Centre : parameter == 2 ? SlipLine::Right : SlipLine::Left;
}

// The number of parameter bytes of commands that print nothing; 0 for unknown ones.
int escapeParameters(uchar letter)
{
    static const QHash<uchar, int> counts{{' ', 1},  {'$', 2}, {'%', 1}, {'3', 1}, {'=', 1}, {'?', 1}, {'A', 1},
                                          {'M', 1},  {'R', 1}, {'T', 1}, {'V', 1}, {'W', 8}, {'K', 1}, {'e', 1},
                                          {'\\', 2}, {'c', 2}, {'r', 1}, {'t', 1}, {'u', 1}, {'U', 1}, {'{', 1}};
    return counts.value(letter);
}

int groupParameters(uchar letter)
{
    static const QHash<uchar, int> counts{{'$', 2}, {'/', 1}, {'B', 1}, {'H', 1},  {'I', 1}, {'L', 2},
                                          {'P', 2}, {'T', 1}, {'W', 2}, {'\\', 2}, {'^', 3}, {'a', 1},
                                          {'b', 1}, {'f', 1}, {'h', 1}, {'r', 1},  {'w', 1}};
    return counts.value(letter);
}

int fieldParameters(uchar letter)
{
    static const QHash<uchar, int> counts{{'!', 1}, {'-', 1}, {'C', 1}, {'S', 2}, {'W', 1}, {'p', 2}};
    return counts.value(letter);
}

int realTimeParameters(uchar letter)
{
    static const QHash<uchar, int> counts{{0x04, 1}, {0x05, 1}, {0x14, 3}};
    return counts.value(letter);
}
} // namespace

bool SlipSpan::looksLike(const SlipSpan& other) const
{
    return bold == other.bold && underline == other.underline && width == other.width && height == other.height;
}

QString SlipLine::text() const
{
    QString all;
    for (const SlipSpan& span : spans)
        all += span.text;
    return all;
}

int SlipLine::width() const
{
    int letters = 0;
    for (const SlipSpan& span : spans)
        letters += span.text.toUcs4().size() * span.width;
    return letters;
}

int SlipLine::height() const
{
    int lines = 1;
    for (const SlipSpan& span : spans)
        lines = std::max(lines, span.height);
    return lines;
}

QList<SlipLine> SlipScript::read(const QByteArray& bytes, int columns)
{
    SlipScript script(bytes, columns);
    script.run();
    return script.m_lines;
}

SlipScript::SlipScript(const QByteArray& bytes, int columns)
    : m_bytes(bytes), m_columns(columns), m_cutsShort(bytes.endsWith("\x1DVA") || bytes.endsWith("\x1DVB")),
      m_pulsesShort(bytes.endsWith("\x1Bp"))
{}

int SlipScript::peek(int ahead) const
{
    return m_at + ahead < m_bytes.size() ? static_cast<uchar>(m_bytes.at(m_at + ahead)) : -1;
}

uchar SlipScript::take() { return m_at < m_bytes.size() ? static_cast<uchar>(m_bytes.at(m_at++)) : 0; }

void SlipScript::skip(int count) { m_at = std::min(m_at + count, m_bytes.size()); }

void SlipScript::run()
{
    while (m_at < m_bytes.size()) {
        if (isLetter(peek()))
            text();
        else
            command();
    }
    if (!m_line.spans.isEmpty())
        endLine();
}

void SlipScript::command()
{
    switch (take()) {
    case tabSign:
        tabulate();
        break;
    case lineFeed:
    case formFeed:
        endLine();
        break;
    case escapeSign:
        if (isLetter(peek()))
            escape(take());
        break;
    case groupSign:
        if (isLetter(peek()))
            groupSeparator(take());
        break;
    case fieldSeparator:
        if (isLetter(peek()))
            skip(fieldParameters(take()));
        break;
    case realTime:
        skip(realTimeParameters(take()));
        break;
    default:
        break;
    }
}

void SlipScript::escape(uchar letter)
{
    switch (letter) {
    case '@':
        reset();
        break;
    case '!': {
        const uchar mode = take();
        m_style.bold = mode & 0x08;
        m_style.height = mode & 0x10 ? 2 : 1;
        m_style.width = mode & 0x20 ? 2 : 1;
        m_style.underline = mode & 0x80;
        break;
    }
    case 'E':
    case 'G':
        m_style.bold = take() & 1;
        break;
    case '-':
        m_style.underline = digit(take()) != 0;
        break;
    case 'a':
        m_alignment = alignmentOf(digit(take()));
        break;
    case 'd':
        feed(take());
        break;
    case 'J':
        skip(1);
        if (!m_line.spans.isEmpty())
            endLine();
        break;
    case 'i':
    case 'm':
        cut();
        break;
    case 'p':
        drawer();
        break;
    case 'D':
        // The tab positions, up to a zero byte.
        while (peek() > 0)
            skip(1);
        skip(1);
        break;
    case '*': {
        const bool isHigh = take() >= 32;
        const int dots = take();
        skip((dots + 256 * take()) * (isHigh ? 3 : 1));
        break;
    }
    default:
        skip(escapeParameters(letter));
        break;
    }
}

void SlipScript::groupSeparator(uchar letter)
{
    switch (letter) {
    case '!': {
        const uchar size = take();
        m_style.width = ((size >> 4) & 7) + 1;
        m_style.height = (size & 7) + 1;
        break;
    }
    case 'V':
        paperCut();
        break;
    case '(': {
        skip(1);
        const int count = take();
        skip(count + 256 * take());
        break;
    }
    case '*': {
        const int columns = take();
        skip(columns * take() * 8);
        break;
    }
    case 'k': {
        constexpr int countedKinds = 65;
        if (take() >= countedKinds) {
            skip(take());
        } else {
            while (peek() > 0)
                skip(1);
            skip(1);
        }
        break;
    }
    case 'v': {
        skip(2);
        const int low = take();
        const int bytesAcross = low + 256 * take();
        const int rows = take();
        skip(bytesAcross * (rows + 256 * take()));
        break;
    }
    default:
        skip(groupParameters(letter));
        break;
    }
}

void SlipScript::paperCut()
{
    const uchar mode = take();
    const bool feedsFirst = mode == 'A' || mode == 'B';
    if (feedsFirst && !m_cutsShort)
        skip(1);
    cut();
}

void SlipScript::drawer()
{
    // A pulse command names one of two drawers. Without that it is a type's cut sequence that ends here.
    if (!m_pulsesShort && (peek() == 0 || peek() == 1 || peek() == '0' || peek() == '1'))
        skip(3);
    else
        cut();
}

void SlipScript::text()
{
    const int begin = m_at;
    while (isLetter(peek()))
        ++m_at;
    append(QString::fromUtf8(m_bytes.mid(begin, m_at - begin)));
}

void SlipScript::append(const QString& letters)
{
    const QVector<uint> points = letters.normalized(QString::NormalizationForm_C).toUcs4();
    for (const uint point : points) {
        // Skip control characters above the first 32.
        if (QChar::category(point) != QChar::Other_Control)
            appendLetter(QString::fromUcs4(&point, 1));
    }
}

void SlipScript::appendLetter(const QString& letter)
{
    if (m_columns > 0 && m_column > 0 && m_column + m_style.width > m_columns)
        endLine();
    if (m_line.spans.isEmpty() || !m_line.spans.last().looksLike(m_style))
        m_line.spans.append(m_style);
    m_line.spans.last().text += letter;
    m_column += m_style.width;
}

void SlipScript::tabulate()
{
    const int next = (m_column / tabWidth + 1) * tabWidth;
    append(QString((next - m_column) / m_style.width, ' '));
}

void SlipScript::feed(int lines)
{
    if (m_line.spans.isEmpty() && lines == 0)
        return;
    for (int line = 0; line < std::max(lines, 1); ++line)
        endLine();
}

void SlipScript::cut()
{
    if (!m_line.spans.isEmpty())
        endLine();
    SlipLine mark;
    mark.isCut = true;
    m_lines.append(mark);
}

void SlipScript::endLine()
{
    m_line.alignment = m_alignment;
    m_lines.append(m_line);
    m_line = SlipLine();
    m_column = 0;
}

void SlipScript::reset()
{
    m_style = SlipSpan();
    m_alignment = SlipLine::Left;
}
