#pragma once

#include "pos/printing/slips/SlipQueue.h"

#include <QObject>
#include <QTextStream>

#include <memory>

class SlipSpooler;

/**
 * Base of all slips: plain text, sent as raw bytes to a slip printer. A slip lives for one print call. Slips of the
 * house go with printCopies, by way of the queue. By hand, and waiting for the printer, the order of a job is
 * setPrinterName, openPrinter, writeText any number of times, closePrinter; a job that is still open when the slip goes
 * is dropped.
 */
class AppLinePrinter : public QObject
{
    Q_OBJECT

public:
    explicit AppLinePrinter(QObject* parent = nullptr);
    ~AppLinePrinter() override;

    /** Composes the whole slip and prints it; true when opening the printer and all writes succeeded. */
    virtual bool print() = 0;

    void setPrinterName(const QString& name) { m_printerName = name; }
    [[nodiscard]] const QString& printerName() const { return m_printerName; }
    /** What the slip is about, for the list of kept slips and for boxes. */
    void setPurpose(const SlipPurpose& purpose) { m_purpose = purpose; }
    [[nodiscard]] const SlipPurpose& purpose() const { return m_purpose; }
    /** The document's name is the job's title in the print queue. False leaves an earlier job as it was. */
    bool openPrinter(const QString& documentName);
    /** Sends the bytes before the first zero byte; a failure that the spooler can explain is shown in a box. */
    bool writeText(const char* bytes);
    bool closePrinter();

    [[nodiscard]] static QString repeatChar(QChar ch, int count);
    [[nodiscard]] static QString justify(const QString& text, QTextStream::FieldAlignment alignment, int width);
    /** The bytes of a control sequence in the notation of the printer types, "27#112#0" or "29#V#66#0". */
    [[nodiscard]] static QByteArray decodeControlSequence(const QString& text);

protected:
    /**
     * The whole job of a slip: body, and behind it the cut sequence, once a copy, each up to its first zero byte. It is
     * kept and handed over; a failure that is known within two seconds is told in a box. True when the printer opened
     * and every write succeeded, or where that takes longer: what fails then is told later.
     */
    bool printCopies(const QString& printerName, const QString& title, const QByteArray& body, int copies,
                     const QByteArray& cutSequence);
    /** The job that printCopies would hand over. */
    [[nodiscard]] SlipQueue::Job jobOf(const QString& printerName, const QString& title, const QByteArray& body,
                                       int copies, const QByteArray& cutSequence) const;
    /** Hands all of them over at once; each failure has its box. True when none failed. */
    bool printTogether(const QList<SlipQueue::Job>& jobs);

private:
    void showError(const QString& text);

    std::unique_ptr<SlipSpooler> m_printerHandle;
    QString m_printerName;
    SlipPurpose m_purpose;
};
