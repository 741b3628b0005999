#pragma once

#include <QStringList>

class QWidget;

/** What one can read in the window or page, without what stands in its lists: sorted, a text as often as it is there.
 */
[[nodiscard]] QStringList formTexts(QWidget* form);
/** What stands in its lists and in the lists of its boxes. */
[[nodiscard]] QStringList listTexts(QWidget* form);
/** The keys with Alt that something in the form answers to, each as "Alt+D: what it is". */
[[nodiscard]] QStringList formKeys(QWidget* form);
