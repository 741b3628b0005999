#include "pos/purchasing/creditnote/TableModelCreditNote.h"

#include "pos/purchasing/creditnote/EntityCreditNote.h"
#include "pos/purchasing/purchase/PaidStatus.h"

#include <QBrush>

namespace
{
constexpr QRgb cancelledRgb = 0xff6b7480;
constexpr QRgb cancelledRowRgb = 0xfff1f3f6;
} // namespace

TableModelCreditNote::TableModelCreditNote(const QList<KorEntity*>& notes, QObject* parent)
    : AppEntityModel(notes, parent)
{
    using Note = EntityCreditNote;
    addDate<Note>(tr("Date"), [](const Note& note) { return note.getDate(); });
    addText(tr("Credit Note No."), &Note::getNo);
    addField<Note>(QMetaType::QString, tr("Supplier"), [](const Note& note) { return note.getSupplier()->getNama(); });
    addField<Note>(QMetaType::QString, tr("Status"), [](const Note& note) {
        return note.getStatus() == Note::CANCELLED ? tr("Cancelled") : paidStatusText(note.getStatus());
    });
    addMoney<Note>(tr("Total"), [](const Note& note) { return note.getGrandTotal(); });
    addMoney<Note>(tr("Amount Paid"), [](const Note& note) { return note.getAmountPaid(); });
}

QVariant TableModelCreditNote::data(const QModelIndex& index, int role) const
{
    const auto* note = static_cast<const EntityCreditNote*>(glimpse(index.row()));
    if (!note)
        return AppEntityModel::data(index, role);
    const bool isCancelled = note->getStatus() == EntityCreditNote::CANCELLED;
    if (role == Qt::BackgroundRole) {
        const QColor colour = isCancelled ? QColor(cancelledRowRgb) : paidStatusColour(note->getStatus());
        return colour.isValid() ? QVariant(QBrush(colour)) : QVariant();
    }
    if (role == Qt::ForegroundRole && isCancelled)
        return QBrush(QColor(cancelledRgb));
    if (role == Qt::DecorationRole && index.column() == Status)
        return paidStatusMark(note->getStatus());
    return AppEntityModel::data(index, role);
}
