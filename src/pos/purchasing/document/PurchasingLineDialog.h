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
 * The form of one line of a purchasing document: item, price, quantity, discount. The line is borrowed: one without an
 * item is filled anew, one with an item keeps it, and only getEntity() writes to it.
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
        /** What the quantity is called in the form. */
        QString quantity;
    };

    /** The chosen item is read into the pool, which has to outlive the line. */
    PurchasingLineDialog(EntityPool& items, const Words& words, QWidget* parent);

    [[nodiscard]] EntityPurchasingLine* line() const { return m_line; }
    /** A further row that only shows, above the quantity. */
    void addShownRow(const QString& label, const QString& text);
    /** The largest quantity that the line can have; the message tells that it is exceeded. */
    void limitQuantity(int largest, const QString& message);
    /** The discount is a share of the amount: it follows the quantity. */
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
