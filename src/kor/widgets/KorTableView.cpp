#include "kor/widgets/KorTableView.h"

#include <QKeyEvent>

void KorTableView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Tab) {
        QTableView::keyPressEvent(event);
        return;
    }
    if (m_nextWidget)
        m_nextWidget->setFocus(Qt::OtherFocusReason);
}
