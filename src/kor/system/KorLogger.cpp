#include "kor/system/KorLogger.h"

#include <QDateTime>
#include <QPlainTextEdit>
#include <QTextStream>
#include <QThread>

KorLogger::KorLogger(QObject* parent, const QString& filePath, QPlainTextEdit* textView)
    : QObject(parent), m_textView(textView), m_filePath(filePath)
{
    if (filePath.isEmpty())
        return;
    m_logFile = std::make_unique<QFile>(filePath);
    // The log contains customer data and statements, so only the owner may read it, also a file that exists already.
    if (m_logFile->open(QIODevice::Append | QIODevice::Text))
        m_logFile->setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

void KorLogger::log(const QString& message)
{
    const QString line =
        m_showTimestamp ? QDateTime::currentDateTime().toString("dd.MM.yyyy hh:mm:ss ") + message : message;
    if (QThread::currentThread() == thread())
        write(line);
    else
        QMetaObject::invokeMethod(
            this, [this, line] { write(line); }, Qt::QueuedConnection);
}

void KorLogger::write(const QString& line)
{
    if (m_logFile && m_logFile->isOpen()) {
        QTextStream stream(m_logFile.get());
        stream.setCodec("UTF-8");
        stream << line << '\n';
    }
    if (m_textView)
        m_textView->appendPlainText(line);
}
