#pragma once

class QWidget;

/**
 * Makes the Tab key go from a widget on to the fields of a group, a page or a row of boxes, that was made later; the
 * group's fields keep their order among themselves.
 */
void putIntoTabOrder(QWidget* before, const QWidget* group);
