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

/** Base of the forms of orders: the guest, the menu lines and their total. */
class OrderDialog : public KorDialog
{
    Q_OBJECT

public:
    ~OrderDialog() override;

    bool validate() override;
    bool beforeAccept() override;
    /** Shows a notice that stays visible until the form closes. */
    void showNotice(const QString& text);

public slots:
    void onMemberSelected();
    void onItemAdded();
    void onTabItemSelected();

protected:
    /** The form takes ownership of the page of lines. */
    OrderDialog(OrderLinesTab* lines, QWidget* parent);

    [[nodiscard]] Ui::OrderDialog& ui() const { return *m_ui; }
    void showGuest(const EntityOrder& order);
    /** Shows a saved order with its lines and gives the lines the focus. */
    void showOrder(const EntityOrder& order);
    /** Writes this part of the form into the order and sets its status to "waiting for menu". */
    void writeTo(EntityOrder* order) const;
    /** Lines of the order outside this form; they count towards the maximum total of an order. */
    void setOtherLines(const EntityOrder::Lines& lines) { m_otherLines = lines; }

private:
    std::unique_ptr<Ui::OrderDialog> m_ui;
    OrderLinesTab* m_lines;
    RecordField<EntityMember>* m_member;
    EntityOrder::Lines m_otherLines;
};
