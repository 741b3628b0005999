#include "zavel/order/OrderDialog.h"

#include "app/widgets/RecordField.h"
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

    auto* members = new MemberTextBox(m_ui->txtMember, service<BusinessMember>("Member"));
    members->setNextWidget(m_ui->txtNamaPelanggan);
    m_member = new RecordField<EntityMember>(members, m_ui->txtMemberName, this);
    connect(m_member, &RecordFieldBase::chosen, this, &OrderDialog::onMemberSelected);

    const auto* menuKey = new QShortcut(QKeySequence(Qt::Key_F3), this);
    connect(menuKey, &QShortcut::activated, this, &OrderDialog::onTabItemSelected);
    onItemAdded();
}

OrderDialog::~OrderDialog() = default;

void OrderDialog::onMemberSelected()
{
    const EntityMember* member = m_member->record();
    if (member && m_ui->txtNamaPelanggan->text().isEmpty())
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

void OrderDialog::showGuest(const EntityOrder& order)
{
    if (EntityMember* member = order.getMember())
        m_member->show(member);
    m_ui->txtNamaPelanggan->setText(order.getPemesan());
}

void OrderDialog::showOrder(const EntityOrder& order)
{
    showGuest(order);
    m_lines->setOrderLines(order.getDetails());
    QTimer::singleShot(0, m_lines, [lines = m_lines] { lines->focusLines(); });
}

bool OrderDialog::validate()
{
    m_member->check(QString(), tr("Please select a member"));
    if (m_lines->orderLines().isEmpty())
        addError(m_ui->tabDetail, tr("Add one or more menu"));
    if (!EntityOrder::totalFits(m_otherLines + m_lines->orderLines()))
        addError(m_ui->tabDetail, tr("The total of this order is too large. Please take it as two orders"));
    return !hasError();
}

bool OrderDialog::beforeAccept() { return m_lines->mayAddCurrencies() && KorDialog::beforeAccept(); }

void OrderDialog::writeTo(EntityOrder* order) const
{
    order->setMember(m_member->record());
    order->setPemesan(m_ui->txtNamaPelanggan->text());
    order->setTgl(QDate::currentDate());
    order->setStatus(EntityOrder::WAITING_FOR_MENU);
    order->setDetails(m_lines->orderLines());
    order->setRemovedDetails(m_lines->removedOrderLines());
}
