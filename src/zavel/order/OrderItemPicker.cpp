#include "zavel/order/OrderItemPicker.h"

#include "app/context/EntityPool.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/item/BusinessItem.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"
#include "zavel/order/EntityOrderDetail.h"

#include "ui_OrderItemPicker.h"

#include <cmath>
#include <limits>

namespace
{
constexpr int allTypes = -1;
constexpr double largestQuantity = 999999;
} // namespace

OrderItemPicker::OrderItemPicker(EntityPool& items, QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::OrderItemPicker>()), m_items(items),
      m_service(service<BusinessItem>("Item"))
{
    m_ui->setupUi(this);
    makeTouchable(m_ui->buttonBox);
    fillTypes();
    focusLater(m_ui->txtCode);
}

OrderItemPicker::~OrderItemPicker() = default;

QLineEdit* OrderItemPicker::codeField() const { return m_ui->txtCode; }

QLineEdit* OrderItemPicker::nameField() const { return m_ui->txtName; }

void OrderItemPicker::useField(RecordField<EntityItem>* item)
{
    m_item = item;
    m_item->keepIn(m_items);
    m_item->box()->setNextWidget(m_ui->txtQty);
    m_item->lookUpWhenLeft();
    connect(m_item, &RecordFieldBase::changed, this, &OrderItemPicker::showPrice);
}

void OrderItemPicker::fillTypes()
{
    m_ui->ddlType->addItem(tr("All"), allTypes);
    auto* types = service<BusinessJenisItem>("Item Type");
    EntityPool read;
    const EntityPoolScope scope(read);
    KorErrorScope errors(types);
    const QList<KorEntity*> all = types->findAll(QString());
    showError(errors.take());
    for (const KorEntity* type : all)
        m_ui->ddlType->addItem(static_cast<const EntityJenisItem*>(type)->getNama(), type->getId());
}

int OrderItemPicker::itemType() const { return m_ui->ddlType->currentData().toInt(); }

void OrderItemPicker::setItemType(int id) { m_ui->ddlType->setCurrentIndex(std::max(0, m_ui->ddlType->findData(id))); }

void OrderItemPicker::on_ddlType_currentIndexChanged(int row)
{
    if (m_narrow)
        m_narrow(m_ui->ddlType->itemData(row).toInt());
}

void OrderItemPicker::showPrice()
{
    const EntityItem* item = m_item->record();
    m_ui->txtUnitPrice->setMoney(item ? item->getHargaJualLokal() : nullptr);
    showAmount();
}

void OrderItemPicker::on_txtQty_textChanged(const QString& text)
{
    Q_UNUSED(text)
    showAmount();
}

void OrderItemPicker::showAmount() { m_ui->txtAmount->setValue(price() * quantity()); }

double OrderItemPicker::price() const { return m_ui->txtUnitPrice->value(); }

double OrderItemPicker::quantity() const
{
    // Only whole portions are sold.
    return m_ui->txtQty->isValid() ? std::round(m_ui->txtQty->value()) : 0;
}

bool OrderItemPicker::totalFits() const
{
    const double minorUnits = std::abs(price() * quantity()) * m_item->record()->getHargaJualLokal()->factor();
    return quantity() <= largestQuantity && minorUnits <= std::numeric_limits<int>::max();
}

bool OrderItemPicker::validate()
{
    m_item->check(tr("Enter the item code"), tr("Please enter a valid item code"));
    if (quantity() < 1)
        addError(m_ui->txtQty, tr("Enter the qty of the item"));
    else if (m_item->record() && !totalFits())
        addError(m_ui->txtQty, tr("This amount is too large for one line. Please enter a smaller qty"));
    return !hasError();
}

KorEntity* OrderItemPicker::getEntity()
{
    const Money* listed = m_item->record()->getHargaJualLokal();
    m_line->setItem(m_item->record());
    m_line->setQty(static_cast<int>(quantity()));
    m_line->setTotal(new Money(m_line, price() * quantity(), listed->getCurrency()));
    m_line->setPriceEach(m_item->record()->getHargaJualLokal());
    m_line->setDescription(m_ui->txtNotes->text());
    return m_line;
}

void OrderItemPicker::setEntity(KorEntity* line)
{
    m_line = static_cast<EntityOrderDetail*>(line);
    if (!m_line->getItem())
        return;
    m_item->show(m_line->getItem());
    m_item->freeze();
    m_ui->txtQty->setValue(m_line->getQty());
    m_ui->txtNotes->setText(m_line->getDescription());
    focusLater(m_ui->txtQty);
}
