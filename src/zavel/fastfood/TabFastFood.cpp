#include "zavel/fastfood/TabFastFood.h"

#include "app/context/AccessCheck.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/employee/EmployeeTextBox.h"
#include "zavel/fastfood/DialogFastFood.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"
#include "zavel/fastfood/FastFoodFilter.h"
#include "zavel/fastfood/TableModelFastFood.h"
#include "zavel/order/SlipRequests.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>

namespace
{
constexpr char businessName[] = "Sales";
constexpr int filtersPerRow = 4;
constexpr int rowHeight = 40;
constexpr double changeScale = 1.8;
} // namespace

TabFastFood::TabFastFood(QWidget* parent)
    : AppListTab({tr("Fast Food"), "tblMeja", businessName}, filtersPerRow, parent), m_changeRow(new QWidget(this)),
      m_sale(new QLabel(m_changeRow)), m_change(new QLabel(m_changeRow))
{
    makeFilters();
    nameButtons();
    makeChangeRow();
    grid()->verticalHeader()->setDefaultSectionSize(rowHeight);
    grid()->setWordWrap(false);
    refresh();
}

void TabFastFood::makeFilters()
{
    m_from = filters()->addDate("dateFrom", tr("From Date :"));
    m_to = filters()->addDate("dateTo", tr("To Date :"));
    m_status = filters()->addChoice("ddlStatus", tr("Status :"),
                                    {{tr("All"), 0},
                                     {tr("Fully Paid"), Invoice::FULL_PAID},
                                     {tr("Partially Paid"), Invoice::PARTIALLY_PAID},
                                     {tr("Unpaid"), Invoice::UNPAID}});
    m_employee =
        new EmployeeTextBox(filters()->addText("txtEmployee", tr("Waitress :")), service<BusinessEmployee>("Employee"));
}

void TabFastFood::nameButtons()
{
    const auto rename = [this](const char* name, const QString& text) {
        QPushButton* named = button(name);
        // setText() clears the shortcut.
        const QKeySequence key = named->shortcut();
        named->setText(text);
        named->setShortcut(key);
    };
    rename("btnAdd", tr("Add New Order"));
    rename("btnEdit", tr("Edit Order"));
}

void TabFastFood::makeChangeRow()
{
    m_change->setObjectName("lblChange");
    QFont large = m_change->font();
    large.setPointSizeF(large.pointSizeF() * changeScale);
    large.setBold(true);
    m_change->setFont(large);
    auto* row = new QHBoxLayout(m_changeRow);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_sale);
    row->addStretch();
    row->addWidget(m_change);
    m_changeRow->hide();
    addFoot(m_changeRow);
}

// --- the list ------------------------------------------------------------------------------------------------------

QList<KorEntity*> TabFastFood::readRows(const QString&)
{
    m_employee->preventSuggest();
    FastFoodFilter filter;
    filter.from = m_from->date();
    filter.to = m_to->date();
    filter.status = m_status->currentData().toInt();
    filter.employeeCode = m_employee->editor()->text().trimmed();
    QList<KorEntity*> rows;
    for (EntityInvoiceFastFood* sale : businessAs<BusinessPenjualan>()->getFastFoodList(filter))
        rows.append(sale);
    return rows;
}

KorEntityModel* TabFastFood::createModel(const QList<KorEntity*>& rows) { return new TableModelFastFood(rows, this); }

void TabFastFood::modelApplied()
{
    // The names get less width than the amounts and the date, which must not be cut off.
    setColumnWidths(grid(), {135, 140, 125, 150, 150, 115, 150});
}

// --- a sale --------------------------------------------------------------------------------------------------------

int TabFastFood::addKey() const { return BusinessPenjualan::SAVE_INVOICE; }

int TabFastFood::editKey() const { return BusinessPenjualan::SAVE_INVOICE; }

int TabFastFood::deleteKey() const { return BusinessPenjualan::DELETE_SALES; }

bool TabFastFood::asksOnce(int key) const { return key == BusinessPenjualan::SAVE_INVOICE; }

void TabFastFood::on_btnAdd_clicked()
{
    m_changeRow->hide();
    AppListTab::on_btnAdd_clicked();
}

void TabFastFood::showChange(const EntityInvoiceFastFood& sale)
{
    const Invoice& invoice = *sale.getInvoice();
    const Money& change = *invoice.getNetDue();
    m_sale->setText(tr("%1 of %2").arg(invoice.getInvoiceNo(), invoice.getGrandTotal()->toCurrencyString()));
    m_change->setText((change.rawAmount() < 0 ? tr("Less :") : tr("Change :")) + ' ' + change.getCurrency() +
                      change.toStringAbs());
    m_changeRow->show();
}

std::unique_ptr<KorDialog> TabFastFood::createDialog() { return std::make_unique<DialogFastFood>(this); }

KorEntity* TabFastFood::readEntity(int id) { return businessAs<BusinessPenjualan>()->findInvoiceFastFood(id); }

QString TabFastFood::notFoundText(int id) const { return tr("Can not find entity #") + QString::number(id); }

bool TabFastFood::editEntity(KorEntity* sale)
{
    // Changing a sale needs another right than taking a payment. A sale that the user may not change is skipped, and
    // the remaining selected ones are opened.
    return !hasAccess(businessName, BusinessPenjualan::UBAH_PESANAN, sale) || AppListTab::editEntity(sale);
}

bool TabFastFood::insertEntity(KorEntity* sale)
{
    m_soldNow = true;
    return businessAs<BusinessPenjualan>()->insertInvoice(static_cast<EntityInvoiceFastFood*>(sale));
}

bool TabFastFood::updateEntity(KorEntity* sale)
{
    m_soldNow = false;
    return businessAs<BusinessPenjualan>()->updateInvoice(static_cast<EntityInvoiceFastFood*>(sale));
}

void TabFastFood::entitySaved(KorEntity* sale)
{
    if (!m_soldNow)
        return;
    showChange(*static_cast<EntityInvoiceFastFood*>(sale));
    if (QMessageBox::question(this, tr("Question"), tr("Do you want to print this invoice ?"),
                              QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes)
        SlipRequests::instance()->printBillFastFood(sale->getId());
}

bool TabFastFood::removeEntity(KorEntity* sale)
{
    return businessAs<BusinessPenjualan>()->deleteSales(static_cast<EntityInvoiceFastFood*>(sale)->getInvoice()) &&
           !business()->hasError();
}

QString TabFastFood::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure, you want to delete this invoice: %1 ?")
        .arg(static_cast<const EntityInvoiceFastFood*>(entity)->getInvoice()->getInvoiceNo());
}
