#pragma once

#include <QObject>

/** Base of value objects inside a record (money). The type distinguishes them from records. */
class KorEntityValue : public QObject
{
    Q_OBJECT

public:
    explicit KorEntityValue(QObject* parent = nullptr) : QObject(parent) {}
};
