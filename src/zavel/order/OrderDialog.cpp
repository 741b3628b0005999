#include "zavel/order/OrderDialog.h"

#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/member/MemberTextBox.h"
#include "zavel/order/OrderLinesTab.h"

#include "ui_OrderDialog.h"

#include <QShortcut>
#include <QTimer>

OrderDialog::OrderDialog(OrderLinesTab* lines, QWidget* parent)
    : KorDialog(parent), m_ui(std::make_unique<Ui::OrderDialog>()), m_lines(lines)
{
    m_ui->setupUi(this);
    makeTouchable(m_ui->buttonBox);
    m_ui->tabDetail->addTab(m_lines, tr("[F3] Menu"));
    connect(m_lines, &OrderLinesTab::ItemAdded, this, &OrderDialog::onItemAdded);

    m_memberBox = new MemberTextBox(m_ui->txtMember, service<BusinessMember>("Member"));
    m_memberBox->setNextWidget(m_ui->txtNamaPelanggan);
    connect(m_memberBox, &MemberTextBox::onItemSelected, this, &OrderDialog::onMemberSelected);

    const auto* menuKey = new QShortcut(QKeySequence(Qt::Key_F3), this);
    connect(menuKey, &QShortcut::activated, this, &OrderDialog::onTabItemSelected);
    onItemAdded();
}

OrderDialog::~OrderDialog() = default;

void OrderDialog::onMemberSelected()
{
    EntityMember* member = m_memberBox->selectedItem();
    if (!member)
        return;
    showMember(member);
    if (m_ui->txtNamaPelanggan->text().isEmpty())
        m_ui->txtNamaPelanggan->setText(member->getNama());
}

void OrderDialog::onItemAdded() { m_ui->lblTotal->setText(m_lines->totalText()); }

void OrderDialog::onTabItemSelected()
{
    m_ui->tabDetail->setCurrentWidget(m_lines);
    m_lines->focusFirstControl();
}

void OrderDialog::showNotice(const QString& text)
{
    m_ui->lblNotice->setText(text);
    m_ui->lblNotice->setVisible(!text.isEmpty());
}

void OrderDialog::showMember(EntityMember* member)
{
    m_member = member;
    m_ui->txtMember->setText(member->getKode());
    m_ui->txtMemberName->setText(member->getNama());
}

void OrderDialog::showGuest(const EntityOrder& order)
{
    if (EntityMember* member = order.getMember())
        showMember(member);
    m_ui->txtNamaPelanggan->setText(order.getPemesan());
}

void OrderDialog::showOrder(const EntityOrder& order)
{
    showGuest(order);
    m_lines->setOrderLines(order.getDetails());
    QTimer::singleShot(0, m_lines, [lines = m_lines] { lines->focusLines(); });
}

void OrderDialog::resolveMember()
{
    auto* members = service<BusinessMember>("Member");
    const QString code = m_ui->txtMember->text().trimmed();
    m_member = recordOfCode(code, m_member, members);
    m_ui->txtMemberName->clear();
    if (m_member)
        showMember(m_member);
    else if (!code.isEmpty())
        addError(m_ui->txtMember, members->hasError() ? members->takeErrors() : tr("Please select a member"));
}

bool OrderDialog::validate()
{
    const EntityPoolScope scope(m_found);
    m_memberBox->preventSuggest();
    resolveMember();
    if (m_lines->orderLines().isEmpty())
        addError(m_ui->tabDetail, tr("Add one or more menu"));
    if (!EntityOrder::totalFits(m_otherLines + m_lines->orderLines()))
        addError(m_ui->tabDetail, tr("The total of this order is too large. Please take it as two orders"));
    return !hasError();
}

bool OrderDialog::beforeAccept() { return m_lines->mayAddCurrencies() && KorDialog::beforeAccept(); }

void OrderDialog::writeTo(EntityOrder* order) const
{
    order->setMember(m_member);
    order->setPemesan(m_ui->txtNamaPelanggan->text());
    order->setTgl(QDate::currentDate());
    order->setStatus(EntityOrder::WAITING_FOR_MENU);
    order->setDetails(m_lines->orderLines());
    order->setRemovedDetails(m_lines->removedOrderLines());
}
