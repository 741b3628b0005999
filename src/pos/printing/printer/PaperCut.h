#pragma once

#include <QCoreApplication>
#include <QStringList>

/** What the cut sequence of a printer type does to the paper, in words for whoever chooses the type. */
class PaperCut final
{
    Q_DECLARE_TR_FUNCTIONS(PaperCut)

public:
    /** The sequence in the notation of the printer types. */
    explicit PaperCut(const QString& notation);

    /** A sequence is sent up to its first zero byte: false where that leaves something of it behind. */
    [[nodiscard]] bool isWhole() const { return m_sent.size() == m_bytes.size(); }
    /** Whether the printer is one that takes commands at all: bold letters and the like. */
    [[nodiscard]] bool hasCommand() const { return m_sent.startsWith('\x1B') || m_sent.startsWith('\x1D'); }
    /** Whether it does the same as the other one's beginning, which is all that the other one sends. */
    [[nodiscard]] bool completes(const PaperCut& other) const;
    [[nodiscard]] QString description() const;

private:
    QByteArray m_bytes;
    QByteArray m_sent;
};
