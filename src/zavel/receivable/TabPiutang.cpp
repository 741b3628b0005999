#include "zavel/receivable/TabPiutang.h"

#include "app/persistence/AppDocumentLines.h"
#include "app/widgets/RecordField.h"
#include "app/widgets/UnfinishedSave.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/cash/settlement/PaymentType.h"
#include "pos/masterdata/member/MemberTextBox.h"
#include "zavel/receivable/DialogPiutang.h"
#include "zavel/receivable/EntityPiutang.h"
#include "zavel/receivable/ReceivableFilter.h"
#include "zavel/receivable/TableModelPiutang.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QComboBox>
#include <QDateEdit>

namespace
{
EntityPiutang* payment(KorEntity* entity) { return static_cast<EntityPiutang*>(entity); }
} // namespace

TabPiutang::TabPiutang(QWidget* parent) : AppListTab({tr("Member Payments"), "tblPiutang", "Sales"}, 3, parent)
{
    const QDate today = QDate::currentDate();
    m_from = filters()->addDate("dateFrom", tr("From Date :"), today.addDays(1 - today.day()));
    m_to = filters()->addDate("dateTo", tr("To Date :"), today);
    m_type = filters()->addChoice("ddlPayment", tr("Payment Type :"),
                                  AppFilterBar::Rows{{tr("All"), 0}} + paymentTypeRows());
    QLineEdit* member = filters()->addText("txtMember", tr("Member :"));
    m_member = new RecordField<EntityMember>(new MemberTextBox(member, service<BusinessMember>("Member")));
    connect(m_member, &RecordFieldBase::chosen, this, &TabPiutang::on_btnSearch_clicked);
    refresh();
}

QList<KorEntity*> TabPiutang::readRows(const QString&)
{
    ReceivableFilter filter;
    filter.from = m_from->date();
    filter.to = m_to->date();
    filter.paymentType = m_type->currentData().toInt();
    filter.memberId = m_member->filterId(business());
    return asEntities(businessAs<BusinessPenjualan>()->searchPiutang(filter));
}

KorEntityModel* TabPiutang::createModel(const QList<KorEntity*>& rows) { return new TableModelPiutang(rows, this); }

std::unique_ptr<KorDialog> TabPiutang::createDialog() { return std::make_unique<DialogPiutang>(this); }

QString TabPiutang::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete Payment with No: %1 ?")
        .arg(static_cast<const EntityPiutang*>(entity)->getNo());
}

int TabPiutang::addKey() const { return BusinessPenjualan::BAYAR_PIUTANG; }

int TabPiutang::editKey() const { return BusinessPenjualan::UPDATE_PIUTANG; }

int TabPiutang::deleteKey() const { return BusinessPenjualan::DELETE_PIUTANG; }

QString TabPiutang::notFoundText(int id) const { return tr("Can not find Payment with id: %1").arg(id); }

KorEntity* TabPiutang::readEntity(int id) { return businessAs<BusinessPenjualan>()->findPiutang(id); }

bool TabPiutang::insertEntity(KorEntity* entity)
{
    return stands(businessAs<BusinessPenjualan>()->insert(payment(entity)), "insert", *payment(entity));
}

bool TabPiutang::updateEntity(KorEntity* entity)
{
    return stands(businessAs<BusinessPenjualan>()->updatePiutang(payment(entity)), "updatePiutang", *payment(entity));
}

bool TabPiutang::removeEntity(KorEntity* entity) { return businessAs<BusinessPenjualan>()->remove(payment(entity)); }

/** If the payment is saved but updating its invoices failed, offers to repeat the update and counts as a success. */
bool TabPiutang::stands(bool done, const QString& operation, const EntityPiutang& payment)
{
    if (done || business()->errors().contains(operation))
        return done;
    UnfinishedSave{UnfinishedSave::saved(payment.getNo()), tr("what is still due of the invoices that it pays"),
                   UnfinishedSave::laterByOk(),
                   [&] { return businessAs<BusinessPenjualan>()->updateInvoicesOfPiutang(&payment); }}
        .offer(this, business());
    return true;
}
