#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

/** The name of an invoice's status in lists; empty for an unknown number. */
[[nodiscard]] QString invoiceStatusText(int status);
/** The coloured icon for each status. */
[[nodiscard]] QHash<int, QIcon> invoiceStatusMarks();
