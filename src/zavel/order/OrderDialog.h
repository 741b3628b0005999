#pragma once

#include "kor/widgets/KorDialog.h"
#include "zavel/order/EntityOrder.h"

#include <memory>

class OrderLinesTab;
template <typename Entity>
class RecordField;

namespace Ui
{
class OrderDialog;
}

/** What the forms of all orders share: who wants it, the lines of the menu, and what they cost together. */
class OrderDialog : public KorDialog
{
    Q_OBJECT

public:
    ~OrderDialog() override;

    bool validate() override;
    bool beforeAccept() override;
    /** What the waiter should know of this order all the time; nothing takes the notice away. */
    void showNotice(const QString& text);

public slots:
    void onMemberSelected();
    void onItemAdded();
    void onTabItemSelected();

protected:
    /** The page of lines becomes the form's. */
    OrderDialog(OrderLinesTab* lines, QWidget* parent);

    [[nodiscard]] Ui::OrderDialog& ui() const { return *m_ui; }
    void showGuest(const EntityOrder& order);
    /** Shows a saved order with its lines, the cursor on them. */
    void showOrder(const EntityOrder& order);
    /** Writes what this part of the form holds; the order waits for its menu from now on. */
    void writeTo(EntityOrder* order) const;
    /** Lines that stand elsewhere and count towards what one order may cost. */
    void setOtherLines(const EntityOrder::Lines& lines) { m_otherLines = lines; }

private:
    std::unique_ptr<Ui::OrderDialog> m_ui;
    OrderLinesTab* m_lines;
    RecordField<EntityMember>* m_member;
    EntityOrder::Lines m_otherLines;
};
