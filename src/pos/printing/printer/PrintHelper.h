#pragma once

#include <QObject>
#include <QTextStream>

/** Text helpers of slips, usable without a printer. */
class PrintHelper : public QObject
{
    Q_OBJECT

public:
    explicit PrintHelper(QObject* parent = nullptr) : QObject(parent) {}

    [[nodiscard]] static QString repeatChar(QChar ch, int count);
    /** Pads to the width; a longer text is returned unchanged. */
    [[nodiscard]] static QString justify(const QString& text, QTextStream::FieldAlignment alignment, int width);
};
