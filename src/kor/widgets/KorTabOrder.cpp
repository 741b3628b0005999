#include "kor/widgets/KorTabOrder.h"

#include <QWidget>

void putIntoTabOrder(QWidget* before, const QWidget* group)
{
    QList<QWidget*> fields;
    for (QWidget* widget = group->nextInFocusChain(); widget != group; widget = widget->nextInFocusChain()) {
        if (group->isAncestorOf(widget) && !widget->focusProxy() && widget->focusPolicy() & Qt::TabFocus)
            fields.append(widget);
    }
    for (QWidget* field : qAsConst(fields)) {
        QWidget::setTabOrder(before, field);
        before = field;
    }
}
