#pragma once

#include <QFile>
#include <QObject>
#include <QPointer>

#include <memory>

class QPlainTextEdit;

/**
 * Writes one line per message to a file and, if given, to a text view. Each line is flushed at once. Only the file's
 * owner may read it. Lines from other threads get their time stamp there and are written on the logger's thread.
 */
class KorLogger : public QObject
{
    Q_OBJECT

public:
    /** An empty path means no file. */
    KorLogger(QObject* parent, const QString& filePath, QPlainTextEdit* textView = nullptr);

    void log(const QString& message);
    void setShowTimestamp(bool showTimestamp) { m_showTimestamp = showTimestamp; }
    [[nodiscard]] const QString& filePath() const { return m_filePath; }

private:
    void write(const QString& line);

    std::unique_ptr<QFile> m_logFile;
    QPointer<QPlainTextEdit> m_textView;
    bool m_showTimestamp = true;
    QString m_filePath;
};
