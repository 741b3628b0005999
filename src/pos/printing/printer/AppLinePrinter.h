#pragma once

#include "pos/printing/slips/SlipQueue.h"

#include <QObject>
#include <QTextStream>

#include <memory>

class SlipSpooler;

/**
 * Base of all slips: plain text, sent as raw bytes to a slip printer. An object is used for one print call. Slips of
 * the program use printCopies(), which goes through the queue. To send a job directly and wait for the printer, call
 * setPrinterName(), openPrinter(), writeText() any number of times and closePrinter(). The destructor drops an open
 * job.
 */
class AppLinePrinter : public QObject
{
    Q_OBJECT

public:
    explicit AppLinePrinter(QObject* parent = nullptr);
    ~AppLinePrinter() override;

    /** Composes and prints the whole slip; true if the printer was opened and all writes succeeded. */
    virtual bool print() = 0;

    void setPrinterName(const QString& name) { m_printerName = name; }
    [[nodiscard]] const QString& printerName() const { return m_printerName; }
    /** What the slip is about, for the list of kept slips and for error boxes. */
    void setPurpose(const SlipPurpose& purpose) { m_purpose = purpose; }
    [[nodiscard]] const SlipPurpose& purpose() const { return m_purpose; }
    /** The document name is the job's title in the print queue. If it fails, an earlier job stays open. */
    bool openPrinter(const QString& documentName);
    /** Sends the bytes before the first zero byte. Shows an error box if the spooler gives a reason. */
    bool writeText(const char* bytes);
    bool closePrinter();

    [[nodiscard]] static QString repeatChar(QChar ch, int count);
    [[nodiscard]] static QString justify(const QString& text, QTextStream::FieldAlignment alignment, int width);
    /** The bytes of a control sequence in the notation of the printer types: "27#112#0" or "29#V#66#0". */
    [[nodiscard]] static QByteArray decodeControlSequence(const QString& text);

protected:
    /**
     * Prints copies of a slip, each followed by the cut sequence, both up to their first zero byte. The slip is kept
     * and queued. A failure within two seconds is shown in a box, a later one is reported later. True if nothing failed
     * within that time.
     */
    bool printCopies(const QString& printerName, const QString& title, const QByteArray& body, int copies,
                     const QByteArray& cutSequence);
    /** The job that printCopies() would send. */
    [[nodiscard]] SlipQueue::Job jobOf(const QString& printerName, const QString& title, const QByteArray& body,
                                       int copies, const QByteArray& cutSequence) const;
    /** Queues all jobs at once; shows a box for each failure. True if none failed within the time. */
    bool printTogether(const QList<SlipQueue::Job>& jobs);

private:
    void showError(const QString& text);

    std::unique_ptr<SlipSpooler> m_printerHandle;
    QString m_printerName;
    SlipPurpose m_purpose;
};
