#include "pos/printing/list/TableModelPrintedSlips.h"

#include "app/context/AppContext.h"
#include "pos/printing/list/PrintedSlip.h"
#include "pos/printing/list/SlipWords.h"

#include <QColor>

namespace
{
constexpr QRgb troubleRgb = 0xffb3261e;
} // namespace

TableModelPrintedSlips::TableModelPrintedSlips(const QList<KorEntity*>& slips, bool ofOneDay, QObject* parent)
    : KorEntityModel(slips, parent)
{
    const auto add = [this](const QString& header, auto read) {
        addField<PrintedSlip>(QMetaType::QString, header, [read](const PrintedSlip& row) { return read(row.slip()); });
    };
    const QString format = ofOneDay ? "HH:mm" : "dd-MM HH:mm";
    add(tr("Time"), [format](const KeptSlip& slip) { return slip.at.toString(format); });
    add(tr("Kind"), [](const KeptSlip& slip) { return SlipWords::kind(slip); });
    add(tr("Number"), [](const KeptSlip& slip) { return slip.number; });
    add(tr("Table/Guest"), [](const KeptSlip& slip) { return slip.place; });
    add(tr("Printer"), [](const KeptSlip& slip) { return slip.printer; });
    add(tr("User"), [](const KeptSlip& slip) { return slip.user; });
    add(tr("State"), [](const KeptSlip& slip) { return SlipWords::state(slip.state); });
    for (int state = KeptSlip::Waiting; state <= KeptSlip::Unsent; ++state)
        m_marks.insert(state, SlipWords::mark(static_cast<KeptSlip::State>(state)));
}

const KeptSlip* TableModelPrintedSlips::slipAt(int row) const
{
    const auto* printed = static_cast<const PrintedSlip*>(entityAt(row));
    return printed ? &printed->slip() : nullptr;
}

QVariant TableModelPrintedSlips::tip(const KeptSlip& slip, const QModelIndex& index) const
{
    if (index.column() == Time)
        return slip.at.toString(AppContext::instance()->dateFormat() + " HH:mm:ss");
    // The full text: on a small screen cells are cut off.
    return index.column() == State ? SlipWords::outcome(slip) : KorEntityModel::data(index, Qt::DisplayRole);
}

QVariant TableModelPrintedSlips::data(const QModelIndex& index, int role) const
{
    const KeptSlip* slip = index.isValid() ? slipAt(index.row()) : nullptr;
    if (!slip)
        return {};
    if (role == Qt::ToolTipRole)
        return tip(*slip, index);
    if (role == Qt::DecorationRole && index.column() == State)
        return m_marks.value(slip->state);
    if (role == Qt::ForegroundRole && index.column() == State && slip->isNotPrinted())
        return QColor(troubleRgb);
    return KorEntityModel::data(index, role);
}
