#pragma once

#include "app/context/EntityPool.h"
#include "kor/widgets/KorDialog.h"
#include "zavel/order/EntityOrder.h"

#include <memory>

class MemberTextBox;
class OrderLinesTab;

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
    /** Where records are read to that live as long as the form. */
    [[nodiscard]] EntityPool& found() { return m_found; }

    void showGuest(const EntityOrder& order);
    /** Shows a saved order with its lines, the cursor on them. */
    void showOrder(const EntityOrder& order);
    /** Writes what this part of the form holds; the order waits for its menu from now on. */
    void writeTo(EntityOrder* order) const;
    /** Lines that stand elsewhere and count towards what one order may cost. */
    void setOtherLines(const EntityOrder::Lines& lines) { m_otherLines = lines; }

    /** The record that a form's code stands for: the one at hand, or else what the service knows under it. */
    template <class Entity, class Service>
    static Entity* recordOfCode(const QString& code, Entity* atHand, Service* service)
    {
        if (code.isEmpty())
            return nullptr;
        return atHand && atHand->getKode() == code ? atHand : service->findByCode(code);
    }

private:
    void showMember(EntityMember* member);
    // A code may be typed without being picked from the list; this looks it up, and tells when it is none.
    void resolveMember();

    std::unique_ptr<Ui::OrderDialog> m_ui;
    EntityPool m_found;
    OrderLinesTab* m_lines;
    MemberTextBox* m_memberBox;
    EntityMember* m_member = nullptr;
    EntityOrder::Lines m_otherLines;
};
