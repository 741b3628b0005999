#include "zavel/receivable/DialogPiutang.h"

#include "app/persistence/AppDocumentLines.h"
#include "app/widgets/RecordField.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/cash/settlement/PaymentType.h"
#include "pos/masterdata/member/MemberTextBox.h"
#include "zavel/receivable/AmountLeft.h"
#include "zavel/receivable/EntityPiutang.h"
#include "zavel/receivable/TabPiutangInvoice.h"
#include "zavel/service/BusinessPenjualan.h"

#include "ui_DialogPiutang.h"

#include <QMessageBox>

DialogPiutang::DialogPiutang(QWidget* parent)
    : PartPaymentsDialog(parent), m_ui(std::make_unique<Ui::DialogPiutang>()),
      m_sales(service<BusinessPenjualan>("Sales"))
{
    m_ui->setupUi(this);
    offerTypes(*m_ui, paymentTypeRows());
    auto* members = new MemberTextBox(m_ui->txtMember, service<BusinessMember>("Member"));
    members->setNextWidget(m_ui->txtARAccount);
    setUpSettlement({new RecordField<EntityMember>(members, m_ui->txtNamaPelanggan, this), m_ui->datePay,
                     m_ui->txtARAccount, m_ui->lblARAccount, m_ui->tabDetail, m_ui->txtGrandTotal, m_ui->buttonBox},
                    {tr("Select a member"), tr("Enter one or more sales invoice"),
                     tr("Enter the amount paid for the invoice no: %1"), tr("Please select an Accounts Receivable"),
                     tr("Please select a valid Accounts Receivable")},
                    m_ui->tabInvoices, m_sales);
    editsPayment<EntityPiutang>(*m_ui);
    focusLater(m_ui->txtMember);
}

DialogPiutang::~DialogPiutang() = default;

QList<KorEntity*> DialogPiutang::readOpenLines(const EntityContact& person)
{
    return asEntities(m_sales->getUnpaidInvoicesForMember(person.getId()));
}

const KorEntity* DialogPiutang::lineWithoutAmount() const
{
    return m_ui->tabInvoices->paidLines().isEmpty() ? m_ui->tabInvoices->lines().first() : nullptr;
}

void DialogPiutang::setEntity(KorEntity* entity)
{
    PartPaymentsDialog::setEntity(entity);
    const auto* payment = held<EntityPiutang>();
    // The current open amounts: other payments may have paid the same invoices since.
    for (EntityPiutangDetail* line : payment->getDetails())
        line->setAmountDue(amountLeft(*line->getInvoice()).get());
    showStored(payment->getMember(), asEntities(payment->getDetails()), true);
}

bool DialogPiutang::beforeAccept() { return mayReplaceCredits() && PartPaymentsDialog::beforeAccept(); }

bool DialogPiutang::mayReplaceCredits()
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    KorErrorScope errors(m_sales);
    const QList<EntityPiutangDetail*> credits = m_sales->creditsReplacedBy(static_cast<EntityPiutang*>(getEntity()));
    if (showError(errors.take()))
        return false;
    QStringList lost;
    for (const EntityPiutangDetail* credit : credits)
        lost.append(tr("%1 on %2").arg(credit->getAmountPaid()->toCurrencyString(), credit->documentNo()));
    return lost.isEmpty() ||
           QMessageBox::question(
               this, tr("Question"),
               tr("Credit stands on these invoices that no member's payment accounts for, as of a card at the sale: "
                  "%1. This payment takes its place, and the sum is due again.")
                       .arg(lost.join("; ")) +
                   "\r\n" + tr("Do you want to save this payment all the same?"),
               QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

KorEntity* DialogPiutang::getEntity()
{
    PartPaymentsDialog::getEntity();
    auto* payment = held<EntityPiutang>();
    payment->setMember(static_cast<EntityMember*>(person()));
    const QList<KorEntity*> paid = m_ui->tabInvoices->paidLines();
    payment->setDetails(castAll<EntityPiutangDetail>(paid));
    payment->setRemovedDetails(castAll<EntityPiutangDetail>(removedLines(paid)));
    return payment;
}
