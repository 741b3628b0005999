#pragma once

#include <QStringList>

class QWidget;

// Checks of a shown form for keyboard use and readable layout. Each returns one line per fault.

/**
 * Follows the Tab key through one full cycle and finds widgets that are never reached, that keep the focus, or that are
 * out of order.
 */
[[nodiscard]] QStringList tabFaults(QWidget* form);
/** Fields without a label and labels without a field. */
[[nodiscard]] QStringList labelFaults(const QWidget* form);
/** Texts that are cut off, and widgets outside their parent or overlapping each other. */
[[nodiscard]] QStringList roomFaults(const QWidget* form);
