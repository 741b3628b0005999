#include "pos/purchasing/document/PurchasingLineDialog.h"

#include "pos/masterdata/item/ItemField.h"
#include "pos/purchasing/document/EntityPurchasingLine.h"
#include "pos/totals/InvoiceTotals.h"

#include "ui_PurchasingLineDialog.h"

#include <QLabel>

#include <limits>

namespace
{
constexpr int largestQuantity = 999999;
}

PurchasingLineDialog::PurchasingLineDialog(EntityPool& items, const Words& words, QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::PurchasingLineDialog>()), m_words(words), m_largest(largestQuantity),
      m_tooMany(tr("This quantity is too large for one line"))
{
    m_ui->setupUi(this);
    m_item = new ItemField(m_ui->txtCode, m_ui->txtName, this);
    m_item->keepIn(items);
    m_item->box()->setNextWidget(m_ui->txtQty);
    connect(m_item, &ItemField::chosen, this, &PurchasingLineDialog::proposePrice);
    m_ui->lblQty->setText(words.quantity);
    // Zero, so that the user can skip the discount.
    m_ui->txtDiscPerc->setValue(0);
    m_ui->txtDiscount->setValue(0);
    focusLater(m_ui->txtCode);
}

PurchasingLineDialog::~PurchasingLineDialog() = default;

void PurchasingLineDialog::addShownRow(const QString& label, const QString& text)
{
    int row = 0;
    QFormLayout::ItemRole role = QFormLayout::LabelRole;
    m_ui->formLayout->getWidgetPosition(m_ui->txtQty, &row, &role);
    auto* figure = new QLabel(text, this);
    figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figure->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_ui->formLayout->insertRow(row, label, figure);
}

void PurchasingLineDialog::limitQuantity(int largest, const QString& message)
{
    m_largest = largest;
    m_tooMany = message;
}

// --- entries -------------------------------------------------------------------------------------------------------

void PurchasingLineDialog::proposePrice()
{
    if (!m_item->record())
        return;
    m_ui->txtUnitPrice->setMoney(m_item->record()->getHargaBeli());
    m_ui->txtQty->setFocus(Qt::TabFocusReason);
    showAmount();
}

double PurchasingLineDialog::quantity() const { return m_ui->txtQty->quantity().value_or(0); }

double PurchasingLineDialog::gross() const { return m_ui->txtUnitPrice->value() * quantity(); }

void PurchasingLineDialog::showAmount() { m_ui->txtAmount->setValue(gross() - m_ui->txtDiscount->value()); }

void PurchasingLineDialog::on_txtQty_textChanged(const QString&)
{
    if (m_keepsShare)
        on_txtDiscPerc_editingFinished();
    else
        showAmount();
}

void PurchasingLineDialog::on_txtUnitPrice_textChanged(const QString&) { showAmount(); }

void PurchasingLineDialog::on_txtDiscount_textChanged(const QString&) { showAmount(); }

void PurchasingLineDialog::on_txtDiscPerc_editingFinished()
{
    m_ui->txtDiscount->setValue(
        InvoiceTotals::kept(gross() * (m_ui->txtDiscPerc->value() / 100), m_ui->txtDiscount->currency()));
    showAmount();
}

void PurchasingLineDialog::on_txtDiscount_editingFinished()
{
    // Without an amount there is no percentage; keep the present one.
    if (!qFuzzyIsNull(gross()))
        m_ui->txtDiscPerc->setValue(InvoiceTotals::percentOf(
            InvoiceTotals::kept(m_ui->txtDiscount->value(), m_ui->txtDiscount->currency()), gross()));
    showAmount();
}

// --- saving --------------------------------------------------------------------------------------------------------

bool PurchasingLineDialog::validate()
{
    m_item->check(m_words.noItem, tr("Please enter a valid item code"));
    checkFigures();
    return !hasError();
}

void PurchasingLineDialog::checkFigures()
{
    if (!m_ui->txtUnitPrice->isValid() || m_ui->txtUnitPrice->value() <= 0)
        addError(m_ui->txtUnitPrice, m_words.noPrice);
    const double typed = m_ui->txtQty->value();
    if (!m_ui->txtQty->isValid() || typed < 1)
        addError(m_ui->txtQty, m_words.noQuantity);
    else if (typed > m_largest)
        addError(m_ui->txtQty, m_tooMany);
    if (!checkNumbers() || hasError())
        return;
    if (m_ui->txtDiscount->value() > gross())
        addError(m_ui->txtDiscount, tr("The discount should be between zero and the amount of the line"));
    if (gross() * m_ui->txtUnitPrice->money()->factor() > std::numeric_limits<int>::max())
        addError(m_ui->txtQty, tr("This amount is too large for one line. Please enter a smaller qty"));
}

KorEntity* PurchasingLineDialog::getEntity()
{
    m_line->setItem(m_item->record());
    m_line->setQuantity(static_cast<int>(quantity()));
    m_line->setLinePrice(m_ui->txtUnitPrice->money());
    m_line->setDiscount(m_ui->txtDiscount->money());
    m_line->setDiscountPercentage(m_ui->txtDiscPerc->value());
    m_line->recomputeTotal();
    return m_line;
}

void PurchasingLineDialog::setEntity(KorEntity* line)
{
    m_line = static_cast<EntityPurchasingLine*>(line);
    if (!m_line->getItem())
        return;
    m_item->show(m_line->getItem());
    m_item->freeze();
    m_ui->txtUnitPrice->setMoney(m_line->linePrice());
    m_ui->txtQty->setValue(m_line->quantity());
    m_ui->txtDiscPerc->setValue(m_line->getDiscountPercentage());
    m_ui->txtDiscount->setMoney(m_line->getDiscount());
    showAmount();
    focusLater(m_ui->txtQty);
}
