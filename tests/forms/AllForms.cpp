#include "forms/AllForms.h"

#include "app/access/DialogLogin.h"
#include "app/access/DialogUser.h"
#include "app/access/DialogUserAccess.h"
#include "app/access/DialogUserGroup.h"
#include "app/context/AppContext.h"
#include "app/numbers/DialogKeyTable.h"
#include "cash/accounting/DialogTransaction.h"
#include "cash/cashflow/DialogCashFlow.h"
#include "install/clearing/DialogClearTransactions.h"
#include "install/converter/DialogConverter.h"
#include "install/database/DialogBackupDB.h"
#include "install/updater/AppDBUpdaterWizard.h"
#include "install/wizard/AppInstallerWizard.h"
#include "install/wizard/FreshInstallPage.h"
#include "install/wizard/RestoreInstallPage.h"
#include "inventory/adjustment/DialogInventoryAdj.h"
#include "inventory/balance/DialogStokAwal.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/DialogKeyboard.h"
#include "masterdata/agent/DialogAgent.h"
#include "masterdata/bank/DialogBank.h"
#include "masterdata/company/DialogDataPerusahaan.h"
#include "masterdata/employee/DialogEmployee.h"
#include "masterdata/item/DialogItem.h"
#include "masterdata/item/DialogSubItem.h"
#include "masterdata/jenisitem/DialogJenisItem.h"
#include "masterdata/meja/DialogMeja.h"
#include "masterdata/member/DialogMember.h"
#include "masterdata/satuan/DialogSatuan.h"
#include "masterdata/supplier/BusinessSupplier.h"
#include "masterdata/supplier/DialogSupplier.h"
#include "printing/configuration/DialogCashierAndKitchenPrinter.h"
#include "printing/configuration/DialogFilterJenisItem.h"
#include "printing/configuration/DialogKitchenFoodPrinter.h"
#include "printing/printer/DialogPrinter.h"
#include "purchasing/acquisition/DialogPurchaseDetail.h"
#include "purchasing/acquisition/DialogPurchaseDetailPO.h"
#include "purchasing/acquisition/DialogPurchases.h"
#include "purchasing/acquisition/EntityAcquisitionDetail.h"
#include "purchasing/creditnote/DialogCreditNote.h"
#include "purchasing/creditnote/DialogCreditNoteInvoice.h"
#include "purchasing/creditnote/DialogCreditNotePurchases.h"
#include "purchasing/creditnote/DialogSelectPurchases.h"
#include "purchasing/creditnote/EntityCreditNoteDetail.h"
#include "purchasing/payment/DialogPayment.h"
#include "purchasing/payment/DialogPaymentExpenses.h"
#include "purchasing/payment/DialogPaymentInvoice.h"
#include "purchasing/purchaseorder/DialogPurchaseOrder.h"
#include "purchasing/purchaseorder/DialogPurchaseOrderDetail.h"
#include "purchasing/purchaseorder/DialogSelectPO.h"
#include "reports/catalogue/ReportCatalogue.h"
#include "reports/page/TabReport.h"
#include "sales/commission/DialogKomisiAgen.h"
#include "sales/commission/DialogSetPercentage.h"
#include "sales/fastfood/DialogFastFood.h"
#include "sales/fastfood/DialogSelectFastFoodInventory.h"
#include "sales/fastfood/DialogSelectFastFoodMenu.h"
#include "sales/order/DialogMakanDitempat.h"
#include "sales/order/DialogSelectInventory.h"
#include "sales/order/DialogSelectMenu.h"
#include "sales/order/EntityMakanDitempat.h"
#include "sales/payment/DialogBayarMakanDitempat.h"
#include "sales/payment/DialogBayarMakanDitempatDetailSplit.h"
#include "sales/payment/DialogSelectSplitInvoice.h"
#include "sales/receivable/DialogBayarPiutang.h"
#include "sales/receivable/DialogPiutang.h"
#include "sales/service/BusinessPenjualan.h"
#include "sales/takeaway/DialogBawaPulang.h"
#include "sales/takeaway/DialogBayarBawaPulang.h"
#include "sales/takeaway/DialogSelectBawaPulangInventory.h"
#include "sales/takeaway/DialogSelectBawaPulangMenu.h"
#include "sales/takeaway/EntityBawaPulang.h"
#include "shell/ConfigDialog.h"
#include "shell/DialogAbout.h"
#include "shell/HelpWindow.h"
#include "shell/MainWindow.h"
#include "shell/TabFactories.h"
#include "support/LedgerRows.h"
#include "support/ShopRows.h"
#include "support/TestDatabase.h"
#include "support/WholeDatabase.h"

#include <QSqlDatabase>

namespace
{
using Made = std::unique_ptr<QWidget>;

// What pickers read may be shown by a line for as long as somebody looks.
EntityPool& records()
{
    static EntityPool pool;
    return pool;
}

template <class Dialog>
Form form()
{
    return {Dialog::staticMetaObject.className(), [] { return std::make_unique<Dialog>(); }};
}

template <class Dialog>
Form picker()
{
    return {Dialog::staticMetaObject.className(), [] { return std::make_unique<Dialog>(records(), nullptr); }};
}

/** The form of a line that came from another document, which shows more of it than that of a new line. */
template <class Dialog, class Line>
Form lineForm()
{
    return {Dialog::staticMetaObject.className(), [] {
                auto dialog = std::make_unique<Dialog>(records(), nullptr);
                dialog->setEntity(new Line(dialog.get()));
                return dialog;
            }};
}

template <class Dialog>
Form documentChoice()
{
    return {Dialog::staticMetaObject.className(), [] {
                const EntityPoolScope scope(records());
                return std::make_unique<Dialog>(service<BusinessSupplier>("Supplier")->findByCode("S1"));
            }};
}

template <class Dialog>
Form payment(EntityOrder* (*order)())
{
    return {Dialog::staticMetaObject.className(), [order] {
                const EntityPoolScope scope(records());
                auto dialog = std::make_unique<Dialog>();
                if (!dialog->openOrder(order()))
                    qFatal("The order can not be opened");
                return dialog;
            }};
}

EntityOrder* dineOrder() { return service<BusinessPenjualan>("Sales")->findOrder(1); }
EntityOrder* takeAwayOrder() { return service<BusinessPenjualan>("Sales")->findOrderBawaPulang(1); }

QList<Form> pages()
{
    QList<Form> pages;
    const TabFactories factories = allTabFactories();
    for (auto factory = factories.cbegin(); factory != factories.cend(); ++factory)
        pages.append({factory.key().toLatin1(), [make = *factory] { return Made(make()); }});
    const QList<ReportSubject> subjects = ReportCatalogue::subjects();
    for (const ReportSubject& subject : subjects) {
        pages.append({"Report " + subject.name.toLatin1(), [subject] {
                          const auto connection = [] {
                              return ReportConnection{TestDatabase::host(), TestDatabase::port(),
                                                      QSqlDatabase::database().databaseName(), TestDatabase::user(),
                                                      QString()};
                          };
                          return std::make_unique<TabReport>(subject, connection, "d MMM yyyy");
                      }});
    }
    return pages;
}

/** The wizard of a new machine as it asks for the particulars. */
template <class Page>
Form wizardAt(void (*answer)(QWizard&))
{
    return {Page::staticMetaObject.className(), [answer] {
                auto wizard = std::make_unique<AppInstallerWizard>();
                wizard->restart();
                answer(*wizard);
                wizard->next();
                return wizard;
            }};
}

QList<Form> dialogs()
{
    return {
        form<ConfigDialog>(),
        form<DialogAbout>(),
        form<DialogAgent>(),
        form<DialogBackupDB>(),
        form<DialogBank>(),
        form<DialogBawaPulang>(),
        form<DialogBayarMakanDitempatDetailSplit>(),
        form<DialogBayarPiutang>(),
        form<DialogCashFlow>(),
        form<DialogCashierAndKitchenPrinter>(),
        form<DialogClearTransactions>(),
        form<DialogConverter>(),
        form<DialogCreditNote>(),
        form<DialogDataPerusahaan>(),
        form<DialogEmployee>(),
        form<DialogFastFood>(),
        form<DialogInventoryAdj>(),
        form<DialogItem>(),
        form<DialogJenisItem>(),
        form<DialogKeyTable>(),
        form<DialogKeyboard>(),
        form<DialogKitchenFoodPrinter>(),
        form<DialogKomisiAgen>(),
        form<DialogLogin>(),
        form<DialogMakanDitempat>(),
        form<DialogMeja>(),
        form<DialogMember>(),
        form<DialogPayment>(),
        form<DialogPaymentInvoice>(),
        form<DialogPiutang>(),
        form<DialogPrinter>(),
        form<DialogPurchaseOrder>(),
        form<DialogPurchases>(),
        form<DialogSatuan>(),
        form<DialogSetPercentage>(),
        form<DialogStokAwal>(),
        form<DialogSupplier>(),
        form<DialogTransaction>(),
        form<DialogUser>(),
        form<DialogUserAccess>(),
        form<DialogUserGroup>(),
        form<AppDBUpdaterWizard>(),
        wizardAt<FreshInstallPage>([](QWizard&) {}),
        wizardAt<RestoreInstallPage>([](QWizard& wizard) { wizard.setField("installtype.restoreinstall", true); }),
        {"HelpWindow", [] { return std::make_unique<HelpWindow>(QString(), nullptr); }},
        picker<DialogSelectBawaPulangInventory>(),
        picker<DialogSelectBawaPulangMenu>(),
        picker<DialogSelectFastFoodInventory>(),
        picker<DialogSelectFastFoodMenu>(),
        picker<DialogSelectInventory>(),
        picker<DialogSelectMenu>(),
        picker<DialogCreditNotePurchases>(),
        picker<DialogPaymentExpenses>(),
        picker<DialogPurchaseDetail>(),
        picker<DialogPurchaseOrderDetail>(),
        lineForm<DialogCreditNoteInvoice, EntityCreditNoteDetail>(),
        lineForm<DialogPurchaseDetailPO, EntityAcquisitionDetail>(),
        documentChoice<DialogSelectPO>(),
        documentChoice<DialogSelectPurchases>(),
        payment<DialogBayarBawaPulang>(takeAwayOrder),
        payment<DialogBayarMakanDitempat>(dineOrder),
        {"DialogFilterJenisItem", [] { return std::make_unique<DialogFilterJenisItem>("FOOD"); }},
        {"DialogSelectSplitInvoice",
         [] { return std::make_unique<DialogSelectSplitInvoice>(QList<EntityInvoiceMakanDitempat*>()); }},
        {"DialogSubItem", [] { return std::make_unique<DialogSubItem>(KorNoValue); }},
        form<MainWindow>(),
    };
}
} // namespace

const QList<Form>& allForms()
{
    static const QList<Form> forms = pages() + dialogs();
    return forms;
}

void openShopForForms(TestDatabase& database)
{
    insertShop(database);
    insertDineOrder(database, {{2, 300}, {1, 400}});
    insertRows(database, "bawa_pulang", {{"status", "1"}, {"tgl", "current_date"}});
    insertRows(database, "bawa_pulang_detail", {{"status", "1"}, {"qty", "2"}, {"total_amount", "300"}});
    loginAsAdmin();
    AppContext::instance()->setLocale("id_ID");
    AppContext::instance()->setShowDashboard(true);
    AppContext::instance()->setShowSidebar(true);
}
