#pragma once

#include <QCoreApplication>
#include <QStringList>

/** Describes the effect of a printer type's cut sequence, to help the user choose a type. */
class PaperCut final
{
    Q_DECLARE_TR_FUNCTIONS(PaperCut)

public:
    /** The sequence in the notation of the printer types. */
    explicit PaperCut(const QString& notation);

    /** False if the sequence contains a zero byte: only the bytes before it are sent. */
    [[nodiscard]] bool isWhole() const { return m_sent.size() == m_bytes.size(); }
    /** True if the printer understands commands such as bold. */
    [[nodiscard]] bool hasCommand() const { return m_sent.startsWith('\x1B') || m_sent.startsWith('\x1D'); }
    /** True if this sequence is complete, the other one is not, and it starts with what the other one sends. */
    [[nodiscard]] bool completes(const PaperCut& other) const;
    [[nodiscard]] QString description() const;

private:
    QByteArray m_bytes;
    QByteArray m_sent;
};
