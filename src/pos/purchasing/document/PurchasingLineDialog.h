#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

class EntityPool;
class EntityPurchasingLine;
class ItemField;

namespace Ui
{
class PurchasingLineDialog;
}

/**
 * The form of one line of a purchasing document: item, price, quantity, discount. The line is borrowed, and only
 * getEntity() writes to it. The item of a line that has one cannot be changed.
 */
class PurchasingLineDialog : public KorDialog
{
    Q_OBJECT

public:
    ~PurchasingLineDialog() override;

    bool validate() override;
    KorEntity* getEntity() override;
    void setEntity(KorEntity* line) override;

public slots:
    void on_txtQty_textChanged(const QString&);
    void on_txtUnitPrice_textChanged(const QString&);
    void on_txtDiscount_textChanged(const QString&);
    void on_txtDiscPerc_editingFinished();
    void on_txtDiscount_editingFinished();

protected:
    struct Words
    {
        QString noItem;
        QString noPrice;
        QString noQuantity;
        /** The label of the quantity. */
        QString quantity;
    };

    /** The chosen item is read into the pool, which must outlive the line. */
    PurchasingLineDialog(EntityPool& items, const Words& words, QWidget* parent);

    [[nodiscard]] EntityPurchasingLine* line() const { return m_line; }
    /** Adds a read-only row above the quantity. */
    void addShownRow(const QString& label, const QString& text);
    /** The largest allowed quantity, and the error text for a larger one. */
    void limitQuantity(int largest, const QString& message);
    /** The discount amount changes in proportion to the quantity. */
    void keepDiscountShare() { m_keepsShare = true; }

private:
    void proposePrice();
    void showAmount();
    void checkFigures();
    [[nodiscard]] double quantity() const;
    [[nodiscard]] double gross() const;

    std::unique_ptr<Ui::PurchasingLineDialog> m_ui;
    ItemField* m_item;
    Words m_words;
    EntityPurchasingLine* m_line = nullptr;
    int m_largest;
    QString m_tooMany;
    bool m_keepsShare = false;
};
