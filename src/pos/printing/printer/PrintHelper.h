#pragma once

#include <QObject>
#include <QTextStream>

/** The text primitives of slips, for whoever composes lines without printing them. */
class PrintHelper : public QObject
{
    Q_OBJECT

public:
    explicit PrintHelper(QObject* parent = nullptr) : QObject(parent) {}

    [[nodiscard]] static QString repeatChar(QChar ch, int count);
    /** Pads to the width and never cuts: a longer text comes back whole. */
    [[nodiscard]] static QString justify(const QString& text, QTextStream::FieldAlignment alignment, int width);
};
