#include "pos/printing/printer/SlipText.h"

#include "pos/printing/printer/AppLinePrinter.h"

SlipText& SlipText::line(const QString& text) { return append(text + '\n'); }

SlipText& SlipText::separator() { return line(AppLinePrinter::repeatChar('-', m_columns)); }

SlipText& SlipText::lineFeeds(int count) { return append(AppLinePrinter::repeatChar('\n', count)); }

SlipText& SlipText::append(const QString& text)
{
    m_text += text;
    return *this;
}

QString SlipText::centre(const QString& text) const
{
    return AppLinePrinter::justify(text, QTextStream::AlignCenter, m_columns);
}

QString SlipText::left(const QString& text, int width)
{
    return AppLinePrinter::justify(text, QTextStream::AlignLeft, width);
}

QString SlipText::right(const QString& text, int width)
{
    return AppLinePrinter::justify(text, QTextStream::AlignRight, width);
}
