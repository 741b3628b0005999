#include "pos/printing/printer/PrintHelper.h"

QString PrintHelper::repeatChar(QChar ch, int count) { return QString(qMax(count, 0), ch); }

QString PrintHelper::justify(const QString& text, QTextStream::FieldAlignment alignment, int width)
{
    QString line;
    QTextStream stream(&line);
    stream.setFieldAlignment(alignment);
    stream.setFieldWidth(width);
    stream << text;
    return line;
}
