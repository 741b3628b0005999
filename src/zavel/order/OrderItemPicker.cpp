#include "zavel/order/OrderItemPicker.h"

#include "app/context/EntityPool.h"
#include "app/widgets/AppLookupBox.h"
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

void OrderItemPicker::watch(AppLookupBox* box)
{
    box->setNextWidget(m_ui->txtQty);
    box->setTaker([this] { return chooseByCode(); });
    connect(box, &AppLookupBox::onItemSelected, this, &OrderItemPicker::chooseByCode);
}

void OrderItemPicker::fillTypes()
{
    m_ui->ddlType->addItem(tr("All"), allTypes);
    auto* types = service<BusinessJenisItem>("Item Type");
    EntityPool read;
    const EntityPoolScope scope(read);
    const QList<KorEntity*> all = types->findAll(QString());
    if (types->hasError())
        showError(types->takeErrors());
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

void OrderItemPicker::on_txtCode_textEdited(const QString& text)
{
    Q_UNUSED(text)
    showItem(nullptr);
}

bool OrderItemPicker::chooseByCode()
{
    const QString code = m_ui->txtCode->text().trimmed();
    if (m_item && m_item->getKode().compare(code, Qt::CaseInsensitive) == 0)
        return true;
    if (code.isEmpty()) {
        showItem(nullptr);
        return false;
    }
    const EntityPoolScope scope(m_items);
    EntityItem* item = m_service->findByCode(code);
    if (m_service->hasError())
        showError(m_service->takeErrors());
    showItem(item);
    return item;
}

void OrderItemPicker::showItem(EntityItem* item)
{
    m_item = item;
    m_ui->txtName->setText(item ? item->getNama() : QString());
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
    const double minorUnits = std::abs(price() * quantity()) * m_item->getHargaJualLokal()->factor();
    return quantity() <= largestQuantity && minorUnits <= std::numeric_limits<int>::max();
}

bool OrderItemPicker::validate()
{
    if (require(m_ui->txtCode, tr("Enter the item code")) && !chooseByCode())
        addError(m_ui->txtCode, tr("Please enter a valid item code"));
    if (quantity() < 1)
        addError(m_ui->txtQty, tr("Enter the qty of the item"));
    else if (m_item && !totalFits())
        addError(m_ui->txtQty, tr("This amount is too large for one line. Please enter a smaller qty"));
    return !hasError();
}

KorEntity* OrderItemPicker::getEntity()
{
    const Money* listed = m_item->getHargaJualLokal();
    m_line->setItem(m_item);
    m_line->setQty(static_cast<int>(quantity()));
    m_line->setTotal(new Money(m_line, price() * quantity(), listed->getCurrency()));
    m_line->setPriceEach(m_item->getHargaJualLokal());
    m_line->setDescription(m_ui->txtNotes->text());
    return m_line;
}

void OrderItemPicker::setEntity(KorEntity* line)
{
    m_line = static_cast<EntityOrderDetail*>(line);
    const bool isChange = m_line->getItem();
    m_ui->txtCode->setEnabled(!isChange);
    m_ui->txtName->setEnabled(!isChange);
    if (!isChange)
        return;
    m_ui->txtCode->setText(m_line->getItem()->getKode());
    showItem(m_line->getItem());
    m_ui->txtQty->setValue(m_line->getQty());
    m_ui->txtNotes->setText(m_line->getDescription());
    focusLater(m_ui->txtQty);
}
