#include "app/widgets/StatusMark.h"

#include <QPixmap>

QIcon statusMark(const QString& name)
{
    const QPixmap picture(":/icons/status_" + name + ".png");
    QIcon icon(picture);
    // Its colour stands out from a selected row's as it is; the style would dye it.
    icon.addPixmap(picture, QIcon::Selected);
    return icon;
}
