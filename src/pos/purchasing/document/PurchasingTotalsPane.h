#pragma once

#include "pos/totals/TotalsCascade.h"

#include <QWidget>

#include <memory>

class QLabel;
class QLineEdit;

namespace Ui
{
class PurchasingTotalsPane;
}

/** The column of a purchasing form with the amounts, from the subtotal to the account. */
class PurchasingTotalsPane final : public QWidget
{
    Q_OBJECT

public:
    explicit PurchasingTotalsPane(QWidget* parent = nullptr);
    ~PurchasingTotalsPane() override;

    /** Without the fields of hidden rows. */
    [[nodiscard]] TotalsCascade::Boxes boxes() const;
    [[nodiscard]] QLineEdit* accountBox() const;
    [[nodiscard]] QLabel* accountName() const;

    /** Shown below the account; an empty text takes no space. */
    void setNote(const QString& text);

    // The captions of rows, and rows that a form does not use.
    void setPaidCaption(const QString& text);
    void hideTax();
    void hideCredit();

private:
    std::unique_ptr<Ui::PurchasingTotalsPane> m_ui;
    bool m_hasTax = true;
    bool m_hasCredit = true;
};
