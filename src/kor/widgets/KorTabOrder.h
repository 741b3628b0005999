#pragma once

class QWidget;

/**
 * Inserts the fields of a group that was created later (a page, a row of boxes) into the tab order after a widget. The
 * group's fields keep their order.
 */
void putIntoTabOrder(QWidget* before, const QWidget* group);
