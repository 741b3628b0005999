#include "pos/printing/printer/PaperCut.h"

#include "pos/printing/printer/AppLinePrinter.h"

PaperCut::PaperCut(const QString& notation)
    : m_bytes(AppLinePrinter::decodeControlSequence(notation)), m_sent(m_bytes.constData())
{
    // An empty notation decodes to a zero byte, but means no sequence.
    if (notation.isEmpty())
        m_bytes.clear();
}

bool PaperCut::completes(const PaperCut& other) const
{
    return isWhole() && !other.isWhole() && m_sent.startsWith(other.m_sent);
}

QString PaperCut::description() const
{
    if (m_bytes.isEmpty())
        return tr("This type cuts nothing.");
    if (!isWhole())
        return tr("This type's cut lacks its end: some printers wait for it and swallow the first letters of the next "
                  "slip.");
    for (const char* partial : {"\x1Bm", "\x1DV\x01", "\x1DV1"}) {
        if (m_sent == partial)
            return tr("Cuts the paper and leaves a point that holds it.");
    }
    for (const char* full : {"\x1Bi", "\x1DV0"}) {
        if (m_sent == full)
            return tr("Cuts the paper through.");
    }
    if (m_sent.startsWith("\x1DV\x41"))
        return tr("Feeds the paper to the knife and cuts it through.");
    if (m_sent.startsWith("\x1DV\x42"))
        return tr("Feeds the paper to the knife, cuts it and leaves a point that holds it.");
    return tr("Sends the bytes %1 to cut the paper.").arg(QString::fromLatin1(m_sent.toHex(' ').toUpper()));
}
