#pragma once

#include <QObject>
#include <QTextStream>

#include <memory>

class SlipSpooler;

/**
 * Base of all slips: plain text, sent as raw bytes to a slip printer. A slip lives for one print call; the order of a
 * job is setPrinterName, openPrinter, writeText any number of times, closePrinter. A job that is still open when the
 * slip goes is dropped.
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
     * The whole job of a slip: opens the printer, and says so in a box where that fails; writes the body, and behind it
     * the cut sequence, once a copy; closes. True when the printer opened and every write succeeded.
     */
    bool printCopies(const QString& printerName, const QString& title, const QByteArray& body, int copies,
                     const QByteArray& cutSequence);

private:
    void showError(const QString& text);

    std::unique_ptr<SlipSpooler> m_printerHandle;
    QString m_printerName;
};
