#pragma once

#include <QObject>

/** Base of values kept inside a record (money), told apart from records by their type. */
class KorEntityValue : public QObject
{
    Q_OBJECT

public:
    explicit KorEntityValue(QObject* parent = nullptr) : QObject(parent) {}
};
