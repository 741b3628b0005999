#include "pos/masterdata/contact/EmailAddress.h"

#include <QRegExp>

bool isEmailAddress(const QString& text)
{
    const QRegExp pattern("\\b[A-Z0-9._%+-]+@[A-Z0-9.-]+\\.[A-Z]{2,4}\\b", Qt::CaseInsensitive);
    return pattern.exactMatch(text);
}
