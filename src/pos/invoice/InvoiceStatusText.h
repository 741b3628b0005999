#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

/** The word for an invoice's status in lists; empty for a number that is none. */
[[nodiscard]] QString invoiceStatusText(int status);
/** The coloured sign that stands beside the word, for each status. */
[[nodiscard]] QHash<int, QIcon> invoiceStatusMarks();
