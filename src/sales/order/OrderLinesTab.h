#pragma once

#include "app/context/EntityPool.h"
#include "app/widgets/AppTab.h"
#include "sales/order/EntityOrder.h"

#include <memory>

class OrderItemPicker;
class OrderLinesModel;

namespace Ui
{
class OrderLinesTab;
}

/**
 * The lines of an order while it is being taken. Lines that are handed in stay the caller's; lines that are added here
 * live as long as the page.
 */
class OrderLinesTab : public AppTab
{
    Q_OBJECT

public:
    using Lines = EntityOrder::Lines;

    explicit OrderLinesTab(QWidget* parent = nullptr);
    ~OrderLinesTab() override;

    [[nodiscard]] const Lines& lines() const { return m_lines; }
    [[nodiscard]] const Lines& removedLines() const { return m_removed; }
    void setLines(const Lines& lines);
    void focusLines();
    void focusFirstControl();

    /** The total as a person reads it. */
    [[nodiscard]] QString totalText() const;

signals:
    /** The lines are others than before. */
    void ItemAdded();
    /** The round of adding lines, one after the other, is over. */
    void AddingEnded();

public slots:
    void on_btnAdd_clicked();
    void on_btnAddInv_clicked();
    void on_btnEdit_clicked();
    void on_btnDelete_clicked();

protected:
    /** An unsaved line of the family; the page takes it. */
    virtual EntityOrderDetail* createLine() = 0;
    virtual OrderLinesModel* createModel(const QList<KorEntity*>& lines) = 0;
    virtual std::unique_ptr<OrderItemPicker> createMenuPicker(EntityPool& items) = 0;
    virtual std::unique_ptr<OrderItemPicker> createInventoryPicker(EntityPool& items) = 0;

    /** Shows the lines. A concrete page calls it once at the end of its constructor. */
    void refresh();

private:
    [[nodiscard]] std::unique_ptr<OrderItemPicker> createPicker(int itemClass);
    void addLines(int itemClass);
    void take(EntityOrderDetail* line);
    [[nodiscard]] Lines selectedLines() const;
    void linesChanged();

    std::unique_ptr<Ui::OrderLinesTab> m_ui;
    OrderLinesModel* m_model = nullptr;
    // The items of lines that were added here.
    EntityPool m_items;
    Lines m_lines;
    Lines m_removed;
    int m_itemType = -1;
};

/** A page of lines made of a family's classes. */
template <class Line, class Model, class MenuPicker, class InventoryPicker>
class OrderLinesOf : public OrderLinesTab
{
public:
    using OrderLinesTab::OrderLinesTab;

protected:
    EntityOrderDetail* createLine() override { return new Line; }
    OrderLinesModel* createModel(const QList<KorEntity*>& lines) override { return new Model(lines, this); }
    std::unique_ptr<OrderItemPicker> createMenuPicker(EntityPool& items) override
    {
        return std::make_unique<MenuPicker>(items, this);
    }
    std::unique_ptr<OrderItemPicker> createInventoryPicker(EntityPool& items) override
    {
        return std::make_unique<InventoryPicker>(items, this);
    }
};
