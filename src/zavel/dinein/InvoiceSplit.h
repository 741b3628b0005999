#pragma once

#include <QList>
#include <QMap>
#include <QString>

class EntityInvoiceDetail;
class QObject;

// How the lines of one invoice are shared among several while a party pays apart. Nothing is ever lost: what is split
// off a line and what stays on it are together what was ordered.

using InvoiceLines = QList<EntityInvoiceDetail*>;

/** The quantities split off, as new lines of the owner, under the name of their group. */
[[nodiscard]] QMap<QString, InvoiceLines> splitGroups(const InvoiceLines& lines, QObject* owner);

/** Puts a group back where it came from; what its line is not there any more is added as a line of the owner. */
void giveBack(const InvoiceLines& group, InvoiceLines* lines, QObject* owner);
