#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

class QWidget;

/** The inputs in the boxes of a page by object name, to copy them to a new page of the same class. */
class PageBoxes
{
public:
    explicit PageBoxes(const QWidget& page);

    /** Sets the values in the boxes of the same name; true if one of them changed. */
    bool putInto(QWidget& page) const;

private:
    QMap<QString, QVariant> m_values;
};
