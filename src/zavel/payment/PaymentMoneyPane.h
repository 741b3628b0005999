#pragma once

#include "pos/totals/TotalsCascade.h"

#include <QWidget>

#include <memory>

namespace Ui
{
class PaymentMoneyPane;
}

/** The column of a payment form with the amounts, from the subtotal to the change. */
class PaymentMoneyPane final : public QWidget
{
    Q_OBJECT

public:
    explicit PaymentMoneyPane(QWidget* parent = nullptr);
    ~PaymentMoneyPane() override;

    [[nodiscard]] TotalsCascade::Boxes boxes() const;
    /** Sets the caption of the grand total. */
    void setTotalCaption(const QString& text);

private:
    std::unique_ptr<Ui::PaymentMoneyPane> m_ui;
};
