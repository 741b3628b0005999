#pragma once

#include <QIcon>

/** The small picture of a status beside its word: "paid", "partial", "unpaid" and so on. */
[[nodiscard]] QIcon statusMark(const QString& name);
