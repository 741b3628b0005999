#pragma once

#include <QStringList>

class QWidget;

// What a person without a mouse, or with poor eyes, would complain about in a form that is shown. Each returns a line
// a fault.

/** Walks with the Tab key until the walk comes round: what is never reached, what holds the key, what jumps about. */
[[nodiscard]] QStringList tabFaults(QWidget* form);
/** Fields that nobody names, and labels that name nothing. */
[[nodiscard]] QStringList labelFaults(const QWidget* form);
/** Texts without room, widgets outside of their parent or on top of each other. */
[[nodiscard]] QStringList roomFaults(const QWidget* form);
