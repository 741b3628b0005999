#include "zavel/fastfood/DialogFastFood.h"

#include "app/widgets/AppNumberEdit.h"
#include "app/widgets/MoneyEdit.h"
#include "app/widgets/RecordField.h"
#include "pos/masterdata/employee/EmployeeTextBox.h"
#include "zavel/fastfood/EntityFastFood.h"
#include "zavel/fastfood/EntityInvoiceFastFood.h"
#include "zavel/fastfood/TabFastFoodDetail.h"
#include "zavel/payment/PaymentMoneyPane.h"

#include "ui_DialogFastFood.h"

#include <QTimer>

namespace
{
constexpr int invoiceGuestLength = 50;
}

DialogFastFood::DialogFastFood(QWidget* parent)
    : PaymentDialog(StoresWhatIsShown, parent), m_ui(std::make_unique<Ui::DialogFastFood>()),
      m_sale(new EntityFastFood(this))
{
    m_ui->setupUi(this);
    m_ui->moneyPane->setTotalCaption(tr("Total Invoice :"));
    m_menu = new TabFastFoodDetail(this);
    connect(m_menu, &OrderLinesTab::ItemAdded, this, &DialogFastFood::linesChanged);
    connect(m_menu, &OrderLinesTab::AddingEnded, this, &DialogFastFood::focusMoney);
    Form form = formOf(*m_ui);
    form.parties.agent = m_ui->txtAgent;
    form.parties.employee = m_ui->txtEmployee;
    setUp(form, m_menu);
    parties()->employeeField()->box()->setNextWidget(form.amounts.percents[InvoiceTotals::Discount]);
    showNewInvoice(QDate::currentDate());
    onItemAdded();
    // A new sale starts with the lines, since there is nothing to pay yet.
    QTimer::singleShot(0, m_menu, [this] {
        if (!isStored())
            focusLines();
    });
}

DialogFastFood::~DialogFastFood() = default;

// --- lines ---------------------------------------------------------------------------------------------------------

QList<EntityInvoiceDetail*> DialogFastFood::invoiceLines() const { return m_sale->invoiceLines(); }

void DialogFastFood::linesChanged()
{
    m_sale->setLines(m_menu->orderLines());
    onItemAdded();
}

void DialogFastFood::focusLines() { m_menu->focusFirstControl(); }

void DialogFastFood::focusMoney()
{
    // After the last item, focus the payment; without any item, stay at the lines.
    if (m_menu->orderLines().isEmpty())
        return;
    MoneyEdit* paid = m_ui->moneyPane->boxes().paid;
    paid->setFocus(Qt::ShortcutFocusReason);
    paid->selectAll();
}

void DialogFastFood::on_txtCredit_editingFinished() { cascade()->calculateTotal(); }

// --- the sale ------------------------------------------------------------------------------------------------------

bool DialogFastFood::isStored() const
{
    const auto* stored = held<EntityInvoiceFastFood>();
    return stored && stored->isSaved();
}

bool DialogFastFood::beforeAccept() { return m_menu->mayAddCurrencies() && PaymentDialog::beforeAccept(); }

KorEntity* DialogFastFood::getEntity()
{
    auto* stored = heldOrNew<EntityInvoiceFastFood>();
    m_sale->setMember(parties()->member());
    m_sale->setPemesan(m_ui->txtNamaPelanggan->text());
    m_sale->setTgl(m_ui->datePay->date());
    stored->setMember(m_sale->getMember());
    stored->setPemesan(m_sale->getPemesan());
    stored->setAgent(parties()->agent());
    stored->setEmployee(parties()->employee());
    stored->setDetails(m_sale->invoiceLines());
    // The invoice's column for the guest's name is shorter than the sale's.
    stored->getInvoice()->setPemesan(m_sale->getPemesan().left(invoiceGuestLength));
    fillInvoice(stored->getInvoice());
    return stored;
}

void DialogFastFood::setEntity(KorEntity* sale)
{
    hold(sale);
    const auto* stored = held<EntityInvoiceFastFood>();
    showInvoice(*stored->getInvoice());
    parties()->showMember(stored->getMember());
    parties()->showAgent(stored->getAgent());
    parties()->showEmployee(stored->getEmployee());
    m_ui->txtNamaPelanggan->setText(stored->getPemesan());
    m_menu->setOrderLines(m_sale->takeLines(stored->getDetails()));
}
