#include "app/widgets/StatusMark.h"

#include <QPixmap>

QIcon statusMark(const QString& name)
{
    const QPixmap picture(":/icons/status_" + name + ".png");
    QIcon icon(picture);
    // Use the same picture in a selected row; the style would tint it.
    icon.addPixmap(picture, QIcon::Selected);
    return icon;
}
