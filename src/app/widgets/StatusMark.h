#pragma once

#include <QIcon>

/** The icon of a status: "paid", "partial", "unpaid" and so on. */
[[nodiscard]] QIcon statusMark(const QString& name);
