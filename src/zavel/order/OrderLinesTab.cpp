#include "zavel/order/OrderLinesTab.h"

#include "app/context/AppContext.h"
#include "zavel/order/OrderItemPicker.h"

#include "ui_OrderLinesTab.h"

#include <QMessageBox>

#include <QHeaderView>
#include <QLocale>

namespace
{
constexpr int rowHeight = 40;
}

OrderLinesTab::OrderLinesTab(QWidget* parent)
    : AppLinesTab(HasOwnForm, parent), m_ui(std::make_unique<Ui::OrderLinesTab>())
{
    m_ui->setupUi(this);
    setParts({m_ui->tblMenu, m_ui->lblCount});
    m_ui->tblMenu->verticalHeader()->setDefaultSectionSize(rowHeight);
}

OrderLinesTab::~OrderLinesTab() = default;

void OrderLinesTab::focusFirstControl() { m_ui->btnAdd->setFocus(); }

QString OrderLinesTab::totalText() const
{
    const OrderLines all = orderLines();
    const Money nothing(nullptr, 0, QString());
    const Money* unit = all.isEmpty() ? &nothing : all.first()->getTotal();
    return QLocale(AppContext::instance()->locale())
        .toCurrencyString(static_cast<double>(EntityOrder::totalOf(all)) / unit->factor(), unit->getCurrency());
}

bool OrderLinesTab::mayAddCurrencies()
{
    QStringList signs;
    const OrderLines all = orderLines();
    for (const EntityOrderDetail* line : all)
        signs.append(line->getTotal()->getCurrency());
    signs.removeDuplicates();
    return signs.size() < 2 ||
           QMessageBox::question(this, tr("Question"),
                                 tr("The items are priced in %1, and the total adds them as if they were one currency. "
                                    "The owner can restate the items under Configuration > General.")
                                         .arg(signs.join(", ")) +
                                     "\r\n" + tr("Do you want to save it all the same?"),
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

// --- lines ---------------------------------------------------------------------------------------------------------

void OrderLinesTab::on_btnAdd_clicked()
{
    m_itemClass = EntityItem::SRV;
    addLines();
}

void OrderLinesTab::on_btnAddInv_clicked()
{
    m_itemClass = EntityItem::INV;
    addLines();
}

std::unique_ptr<KorDialog> OrderLinesTab::createDialog(EntityPool& read, const KorEntity& line)
{
    const EntityItem* item = static_cast<const EntityOrderDetail&>(line).getItem();
    const int itemClass = item ? item->getItemType() : m_itemClass;
    auto picker = itemClass == EntityItem::INV ? createInventoryPicker(read) : createMenuPicker(read);
    picker->setItemType(m_itemType);
    return picker;
}

void OrderLinesTab::dialogClosed(const KorDialog& picker)
{
    m_itemType = static_cast<const OrderItemPicker&>(picker).itemType();
}

int OrderLinesTab::subjectOf(const KorEntity& line) const
{
    return static_cast<const EntityOrderDetail&>(line).itemId();
}

QString OrderLinesTab::nameOf(const KorEntity& line) const
{
    return static_cast<const EntityOrderDetail&>(line).getItem()->getNama();
}

QString OrderLinesTab::updateQuestion() const
{
    return tr("This item: %1 is already exist in the list. Do you want to update it with this data?");
}

void OrderLinesTab::takeOver(KorEntity* present, const KorEntity& entered)
{
    auto* line = static_cast<EntityOrderDetail*>(present);
    const auto& other = static_cast<const EntityOrderDetail&>(entered);
    line->setQty(other.getQty());
    line->setTotal(other.getTotal());
    line->setDescription(other.getDescription());
}
