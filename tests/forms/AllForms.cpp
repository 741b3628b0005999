#include "forms/AllForms.h"

#include "app/access/DialogLogin.h"
#include "app/access/DialogUserAccess.h"
#include "app/context/AppContext.h"
#include "kor/widgets/DialogKeyboard.h"
#include "pos/cash/ledger/DialogCashFlow.h"
#include "pos/cash/transfer/DialogTransaction.h"
#include "pos/masterdata/company/DialogDataPerusahaan.h"
#include "pos/masterdata/item/DialogSubItem.h"
#include "pos/masterdata/supplier/BusinessSupplier.h"
#include "pos/printing/configuration/DialogCashierAndKitchenPrinter.h"
#include "pos/printing/configuration/DialogFilterJenisItem.h"
#include "pos/printing/configuration/DialogKitchenFoodPrinter.h"
#include "pos/printing/printer/DialogPrinter.h"
#include "pos/purchasing/creditnote/DialogCreditNote.h"
#include "pos/purchasing/creditnote/DialogCreditNoteInvoice.h"
#include "pos/purchasing/creditnote/DialogCreditNotePurchases.h"
#include "pos/purchasing/creditnote/DialogSelectPurchases.h"
#include "pos/purchasing/creditnote/EntityCreditNoteDetail.h"
#include "pos/purchasing/payment/DialogPayment.h"
#include "pos/purchasing/payment/DialogPaymentExpenses.h"
#include "pos/purchasing/payment/DialogPaymentInvoice.h"
#include "pos/purchasing/purchase/DialogPurchaseDetail.h"
#include "pos/purchasing/purchase/DialogPurchaseDetailPO.h"
#include "pos/purchasing/purchase/DialogPurchases.h"
#include "pos/purchasing/purchase/EntityAcquisitionDetail.h"
#include "pos/purchasing/purchaseorder/DialogPurchaseOrder.h"
#include "pos/purchasing/purchaseorder/DialogPurchaseOrderDetail.h"
#include "pos/purchasing/purchaseorder/DialogSelectPO.h"
#include "reports/catalogue/ReportCatalogue.h"
#include "reports/page/TabReport.h"
#include "shell/database/backup/DialogBackupDB.h"
#include "shell/database/clearing/DialogClearTransactions.h"
#include "shell/database/converter/DialogConverter.h"
#include "shell/database/updater/AppDBUpdaterWizard.h"
#include "shell/database/wizard/AppInstallerWizard.h"
#include "shell/database/wizard/FreshInstallPage.h"
#include "shell/database/wizard/RestoreInstallPage.h"
#include "shell/window/ConfigDialog.h"
#include "shell/window/DialogAbout.h"
#include "shell/window/HelpWindow.h"
#include "shell/window/MainWindow.h"
#include "shell/window/Pages.h"
#include "support/LedgerRows.h"
#include "support/ShopRows.h"
#include "support/TestDatabase.h"
#include "support/WholeDatabase.h"
#include "zavel/commission/DialogKomisiAgen.h"
#include "zavel/commission/DialogSetPercentage.h"
#include "zavel/dinein/DialogBayarMakanDitempat.h"
#include "zavel/dinein/DialogBayarMakanDitempatDetailSplit.h"
#include "zavel/dinein/DialogMakanDitempat.h"
#include "zavel/dinein/DialogSelectSplitInvoice.h"
#include "zavel/dinein/EntityMakanDitempat.h"
#include "zavel/fastfood/DialogFastFood.h"
#include "zavel/fastfood/DialogSelectFastFoodInventory.h"
#include "zavel/fastfood/DialogSelectFastFoodMenu.h"
#include "zavel/receivable/DialogBayarPiutang.h"
#include "zavel/receivable/DialogPiutang.h"
#include "zavel/service/BusinessPenjualan.h"
#include "zavel/takeaway/DialogBawaPulang.h"
#include "zavel/takeaway/DialogBayarBawaPulang.h"
#include "zavel/takeaway/DialogSelectBawaPulangInventory.h"
#include "zavel/takeaway/DialogSelectBawaPulangMenu.h"
#include "zavel/takeaway/EntityBawaPulang.h"

namespace
{
using Made = std::unique_ptr<QWidget>;

// Records read by pickers must exist as long as a line shows them.
EntityPool& records()
{
    static EntityPool pool;
    return pool;
}

template <class... Dialogs>
QList<Form> forms()
{
    return {{Dialogs::staticMetaObject.className(), [] { return std::make_unique<Dialogs>(); }}...};
}

template <class... Dialogs>
QList<Form> pickers()
{
    return {{Dialogs::staticMetaObject.className(), [] { return std::make_unique<Dialogs>(records(), nullptr); }}...};
}

/** The form of a line copied from another document, which shows more than that of a new line. */
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
    for (const Page& page : allPages()) {
        pages.append({page.className.toLatin1(), [make = page.make] { return Made(make()); }});
        if (page.makeForm)
            pages.append({page.formName.toLatin1(), [make = page.makeForm] { return Made(make()); }});
    }
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

/** The setup wizard at its page of details. */
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
    return forms<ConfigDialog, DialogAbout, DialogBackupDB, DialogBawaPulang, DialogBayarMakanDitempatDetailSplit,
                 DialogBayarPiutang, DialogCashFlow, DialogCashierAndKitchenPrinter, DialogClearTransactions,
                 DialogConverter, DialogCreditNote, DialogDataPerusahaan, DialogFastFood, DialogKeyboard,
                 DialogKitchenFoodPrinter, DialogKomisiAgen, DialogLogin, DialogMakanDitempat, DialogPayment,
                 DialogPaymentInvoice, DialogPiutang, DialogPrinter, DialogPurchaseOrder, DialogPurchases,
                 DialogSetPercentage, DialogTransaction, DialogUserAccess, AppDBUpdaterWizard>() +
           pickers<DialogSelectBawaPulangInventory, DialogSelectBawaPulangMenu, DialogSelectFastFoodInventory,
                   DialogSelectFastFoodMenu, DialogSelectInventory, DialogSelectMenu, DialogCreditNotePurchases,
                   DialogPaymentExpenses, DialogPurchaseDetail, DialogPurchaseOrderDetail>() +
           QList<Form>{
               wizardAt<FreshInstallPage>([](QWizard&) {}),
               wizardAt<RestoreInstallPage>(
                   [](QWizard& wizard) { wizard.setField("installtype.restoreinstall", true); }),
               {"HelpWindow", [] { return std::make_unique<HelpWindow>(QString(), nullptr); }},
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
           } +
           forms<MainWindow>();
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
    insertRows(database, "bawa_pulang", "status=1, tgl=current_date");
    insertRows(database, "bawa_pulang_detail", "status=1, qty=2, total_amount=300");
    loginAsAdmin();
    AppContext::instance()->setLocale("id_ID");
    AppContext::instance()->setShowDashboard(true);
    AppContext::instance()->setShowSidebar(true);
}
