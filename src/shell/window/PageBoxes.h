#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

class QWidget;

/** What a person has put into the boxes of a page, by the boxes' names, so that its successor can show the same. */
class PageBoxes
{
public:
    explicit PageBoxes(const QWidget& page);

    /** Puts the values into the page's boxes of the same names; true when one of them was another there. */
    bool putInto(QWidget& page) const;

private:
    QMap<QString, QVariant> m_values;
};
