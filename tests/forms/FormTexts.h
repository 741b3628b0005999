#pragma once

#include <QStringList>

class QWidget;

/** The visible texts of the window or page, without the content of its lists; sorted, with duplicates. */
[[nodiscard]] QStringList formTexts(QWidget* form);
/** The content of its lists and combo boxes. */
[[nodiscard]] QStringList listTexts(QWidget* form);
/** The Alt keys that the form handles, each as "Alt+D: what it is". */
[[nodiscard]] QStringList formKeys(QWidget* form);
