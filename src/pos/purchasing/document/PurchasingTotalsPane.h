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

/** The column of a purchasing form that holds the money, from the subtotal to the account. */
class PurchasingTotalsPane final : public QWidget
{
    Q_OBJECT

public:
    explicit PurchasingTotalsPane(QWidget* parent = nullptr);
    ~PurchasingTotalsPane() override;

    /** Without the boxes of rows that were hidden. */
    [[nodiscard]] TotalsCascade::Boxes boxes() const;
    [[nodiscard]] QLineEdit* accountBox() const;
    [[nodiscard]] QLabel* accountName() const;

    /** Below the account; no text takes no room. */
    void setNote(const QString& text);

    // What a form calls a row, and which rows it does without.
    void setPaidCaption(const QString& text);
    void hideTax();
    void hideCredit();

private:
    std::unique_ptr<Ui::PurchasingTotalsPane> m_ui;
    bool m_hasTax = true;
    bool m_hasCredit = true;
};
