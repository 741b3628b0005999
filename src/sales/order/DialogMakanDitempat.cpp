#include "sales/order/DialogMakanDitempat.h"

#include "kor/business/KorServiceDirectory.h"
#include "masterdata/meja/TableTextBox.h"
#include "masterdata/member/MemberTextBox.h"
#include "sales/order/EntityMakanDitempat.h"
#include "sales/order/TabMakanDitempatDetail.h"

#include "ui_DialogMakanDitempat.h"

#include <QShortcut>
#include <QTimer>

namespace
{
/** The record that a form's code stands for: the one at hand, or else what the service knows under it. */
template <class Entity, class Service>
Entity* recordOfCode(const QString& code, Entity* atHand, Service* service)
{
    if (code.isEmpty())
        return nullptr;
    return atHand && atHand->getKode() == code ? atHand : service->findByCode(code);
}
} // namespace

DialogMakanDitempat::DialogMakanDitempat(QWidget* parent, EntityMeja* table)
    : KorDialog(parent), m_ui(std::make_unique<Ui::DialogMakanDitempat>())
{
    m_ui->setupUi(this);
    makeTouchable(m_ui->buttonBox);
    m_lines = new TabMakanDitempatDetail(this);
    m_ui->tabDetail->addTab(m_lines, tr("[F3] Menu"));
    connect(m_lines, &OrderLinesTab::ItemAdded, this, &DialogMakanDitempat::onItemAdded);

    m_tableBox = new TableTextBox(m_ui->txtKode, service<BusinessMeja>("Table"));
    m_tableBox->setNextWidget(m_ui->txtMember);
    connect(m_tableBox, &TableTextBox::onItemSelected, this, &DialogMakanDitempat::onTableSelected);
    m_memberBox = new MemberTextBox(m_ui->txtMember, service<BusinessMember>("Member"));
    m_memberBox->setNextWidget(m_ui->txtNamaPelanggan);
    connect(m_memberBox, &MemberTextBox::onItemSelected, this, &DialogMakanDitempat::onMemberSelected);

    const auto* menuKey = new QShortcut(QKeySequence(Qt::Key_F3), this);
    connect(menuKey, &QShortcut::activated, this, &DialogMakanDitempat::onTabItemSelected);

    if (table)
        showTable(table);
    onItemAdded();
    focusLater(table ? m_ui->txtNamaPelanggan : m_ui->txtKode);
}

DialogMakanDitempat::~DialogMakanDitempat() = default;

void DialogMakanDitempat::onTableSelected()
{
    if (EntityMeja* table = m_tableBox->selectedItem())
        showTable(table);
}

void DialogMakanDitempat::onMemberSelected()
{
    EntityMember* member = m_memberBox->selectedItem();
    if (!member)
        return;
    showMember(member);
    if (m_ui->txtNamaPelanggan->text().isEmpty())
        m_ui->txtNamaPelanggan->setText(member->getNama());
}

void DialogMakanDitempat::onItemAdded() { m_ui->lblTotal->setText(m_lines->totalText()); }

void DialogMakanDitempat::onTabItemSelected()
{
    m_ui->tabDetail->setCurrentWidget(m_lines);
    m_lines->focusFirstControl();
}

void DialogMakanDitempat::showTable(EntityMeja* table)
{
    m_table = table;
    m_ui->txtKode->setText(table->getKode());
    m_ui->txtMeja->setText(table->getNama());
}

void DialogMakanDitempat::showMember(EntityMember* member)
{
    m_member = member;
    m_ui->txtMember->setText(member->getKode());
    m_ui->txtMemberName->setText(member->getNama());
}

void DialogMakanDitempat::resolveTable()
{
    auto* tables = service<BusinessMeja>("Table");
    m_table = recordOfCode(m_ui->txtKode->text().trimmed(), m_table, tables);
    if (m_table)
        showTable(m_table);
    else
        addError(m_ui->txtKode, tables->hasError() ? tables->takeErrors() : tr("Please select a table"));
}

void DialogMakanDitempat::resolveMember()
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

bool DialogMakanDitempat::validate()
{
    const EntityPoolScope scope(m_found);
    m_tableBox->preventSuggest();
    m_memberBox->preventSuggest();
    resolveTable();
    resolveMember();
    if (m_lines->lines().isEmpty())
        addError(m_ui->tabDetail, tr("Add one or more menu"));
    if (!EntityOrder::totalFits(m_otherLines + m_lines->lines()))
        addError(m_ui->tabDetail, tr("The total of this order is too large. Please take it as two orders"));
    return !hasError();
}

KorEntity* DialogMakanDitempat::getEntity()
{
    auto* order = heldOrNew<EntityMakanDitempat>();
    order->setMeja(m_formerTable);
    order->setPindahMeja(m_formerTrail);
    order->moveTo(m_table);
    order->setMember(m_member);
    order->setPemesan(m_ui->txtNamaPelanggan->text());
    order->setTgl(QDate::currentDate());
    order->setStatus(EntityOrder::WAITING_FOR_MENU);
    order->setDetails(m_lines->lines());
    order->setRemovedDetails(m_lines->removedLines());
    return order;
}

void DialogMakanDitempat::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* order = held<EntityMakanDitempat>();
    m_formerTable = order->getMeja();
    m_formerTrail = order->getPindahMeja();
    showTable(m_formerTable);
    if (EntityMember* member = order->getMember())
        showMember(member);
    m_ui->txtNamaPelanggan->setText(order->getPemesan());
    m_lines->setLines(order->getDetails());
    QTimer::singleShot(0, m_lines, [lines = m_lines] { lines->focusLines(); });
}

void DialogMakanDitempat::showOpenOrder(const EntityMakanDitempat& order)
{
    m_otherLines = order.getDetails();
    m_ui->txtNamaPelanggan->setText(order.getPemesan());
    if (EntityMember* member = order.getMember())
        showMember(member);
    for (QLineEdit* field : {m_ui->txtKode, m_ui->txtMember, m_ui->txtNamaPelanggan})
        field->setEnabled(false);
    onTabItemSelected();
}
