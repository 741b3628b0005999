#include "pos/printing/configuration/DialogKitchenFoodPrinter.h"

#include "kor/business/KorServiceDirectory.h"
#include "pos/printing/configuration/BusinessPrinterConfig.h"
#include "pos/printing/configuration/DialogFilterJenisItem.h"

#include "ui_DialogKitchenFoodPrinter.h"

DialogKitchenFoodPrinter::DialogKitchenFoodPrinter(QWidget* parent)
    : PrinterConfigDialog(parent), m_ui(std::make_unique<Ui::DialogKitchenFoodPrinter>())
{
    m_ui->setupUi(this);
    usePrinterFields(*m_ui);
    offerNoPrinter(tr("(no printer: the kitchen's screen)"));
    setCutRemark(tr("A kitchen's slips are cut as the type of the cashier printer says."));
    EntityConfigKitchenPrinter usual;
    usual.setPrinterName(m_ui->ddlPrinter->currentData().toString());
    usual.setAutoCutter(EntityConfigPrinter::no());
    usual.setColumnPaper("40");
    usual.setNoOfBlankLines("4");
    showPrinter(usual);
    m_ui->cbAutoPrint->setChecked(true);
    focusLater(m_ui->txtKitchenName);
}

DialogKitchenFoodPrinter::~DialogKitchenFoodPrinter() = default;

bool DialogKitchenFoodPrinter::validate()
{
    return requireText(m_ui->txtKitchenName, m_ui->txtKitchenName->text().trimmed(), tr("Enter the kitchen name"));
}

KorEntity* DialogKitchenFoodPrinter::getEntity()
{
    auto* kitchen = heldOrNew<EntityConfigKitchenPrinter>();
    kitchen->setKitchenName(m_ui->txtKitchenName->text());
    readPrinter(*kitchen);
    kitchen->setAutoPrint(m_ui->cbAutoPrint->isChecked() ? kitchen->yes() : kitchen->no());
    // Do not add the setting to a row that does not have it, unless the user switches it on.
    if (m_ui->cbSayFormer->isChecked() != kitchen->saysFormer())
        kitchen->setSayFormer(m_ui->cbSayFormer->isChecked() ? kitchen->yes() : kitchen->no());
    kitchen->setKodeJenisItem(m_ui->txtKodeJenisItems->text());
    kitchen->setIsStoredAsJSON(true);
    return kitchen;
}

void DialogKitchenFoodPrinter::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* kitchen = held<EntityConfigKitchenPrinter>();
    setWindowTitle(tr("Kitchen Printer Form") + ": " + kitchen->getKitchenName());
    m_ui->txtKitchenName->setText(kitchen->getKitchenName());
    showPrinter(*kitchen);
    m_ui->cbAutoPrint->setChecked(kitchen->printsByItself());
    m_ui->cbSayFormer->setChecked(kitchen->saysFormer());
    m_ui->txtKodeJenisItems->setText(kitchen->getKodeJenisItem());
}

bool DialogKitchenFoodPrinter::beforeAccept()
{
    auto* kitchens = service<BusinessPrinterConfig>("Printer Config");
    auto* kitchen = static_cast<EntityConfigKitchenPrinter*>(getEntity());
    const bool isNew = !kitchen->isSaved();
    if (isNew)
        kitchen->setKey(EntityConfigKitchenPrinter::keyFor(QDateTime::currentDateTime()));
    if (isNew ? kitchens->insert(kitchen) : kitchens->update(kitchen))
        return true;
    showSaveError(kitchens->takeErrors());
    return false;
}

void DialogKitchenFoodPrinter::on_btnBrowseJenisItem_clicked()
{
    DialogFilterJenisItem dialog(m_ui->txtKodeJenisItems->text(), this);
    if (dialog.exec() == QDialog::Accepted)
        m_ui->txtKodeJenisItems->setText(dialog.selectedCodes());
}

void DialogKitchenFoodPrinter::on_btnClearJenisItem_clicked() { m_ui->txtKodeJenisItems->clear(); }
