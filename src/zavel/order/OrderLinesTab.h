#pragma once

#include "app/persistence/AppDocumentLines.h"
#include "app/widgets/AppLinesTab.h"
#include "zavel/order/EntityOrder.h"

#include <memory>

class OrderItemPicker;

namespace Ui
{
class OrderLinesTab;
}

/** The page of lines in an order's form: menus and stock items, with buttons large enough for touch. */
class OrderLinesTab : public AppLinesTab
{
    Q_OBJECT

public:
    using OrderLines = EntityOrder::Lines;

    explicit OrderLinesTab(QWidget* parent = nullptr);
    ~OrderLinesTab() override;

    [[nodiscard]] OrderLines orderLines() const { return castAll<EntityOrderDetail>(lines()); }
    [[nodiscard]] OrderLines removedOrderLines() const { return castAll<EntityOrderDetail>(removedLines()); }
    void setOrderLines(const OrderLines& lines) { setLines(asEntities(lines)); }
    void focusFirstControl();

    /** Asks the user if the lines have several currencies, because the total adds them as if they were one. */
    bool mayAddCurrencies();
    /** The total as shown to the user. */
    [[nodiscard]] QString totalText() const;

    void on_btnAdd_clicked() final;

public slots:
    void on_btnAddInv_clicked();

protected:
    virtual std::unique_ptr<OrderItemPicker> createMenuPicker(EntityPool& items) = 0;
    virtual std::unique_ptr<OrderItemPicker> createInventoryPicker(EntityPool& items) = 0;

    std::unique_ptr<KorDialog> createDialog(EntityPool& read, const KorEntity& line) final;
    void dialogClosed(const KorDialog& picker) final;
    [[nodiscard]] int subjectOf(const KorEntity& line) const final;
    [[nodiscard]] QString nameOf(const KorEntity& line) const final;
    [[nodiscard]] QString updateQuestion() const final;
    void takeOver(KorEntity* present, const KorEntity& entered) final;
    [[nodiscard]] QList<int> columnWidths() const final { return {90, 200, 60, 100, 140, 150, 120}; }

private:
    std::unique_ptr<Ui::OrderLinesTab> m_ui;
    int m_itemClass = EntityItem::SRV;
    int m_itemType = -1;
};

/** An OrderLinesTab for one kind of order, with its classes of line, model and pickers. */
template <class Line, class Model, class MenuPicker, class InventoryPicker>
class OrderLinesOf : public OrderLinesTab
{
public:
    using OrderLinesTab::OrderLinesTab;

protected:
    KorEntity* createLine() override { return new Line; }
    KorEntityModel* createModel(const QList<KorEntity*>& lines) override { return new Model(lines, this); }
    std::unique_ptr<OrderItemPicker> createMenuPicker(EntityPool& items) override
    {
        return std::make_unique<MenuPicker>(items, this);
    }
    std::unique_ptr<OrderItemPicker> createInventoryPicker(EntityPool& items) override
    {
        return std::make_unique<InventoryPicker>(items, this);
    }
};
