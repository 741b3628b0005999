#include "pos/masterdata/supplier/DialogSupplier.h"

#include "pos/masterdata/supplier/BusinessSupplier.h"

#include "ui_DialogSupplier.h"

DialogSupplier::DialogSupplier(QWidget* parent) : PayeeDialog(parent), m_ui(std::make_unique<Ui::DialogSupplier>())
{
    m_ui->setupUi(this);
    usePayeeFields<EntitySupplier>(*m_ui, m_ui->lblSupplierID);
}

DialogSupplier::~DialogSupplier() = default;

bool DialogSupplier::validate()
{
    validateContact<BusinessSupplier>("Supplier", {tr("Enter the supplier code"),
                                                   tr("This supplier code is already in use please use another code"),
                                                   tr("Enter the supplier name"), tr("Enter the supplier address"),
                                                   tr("Enter the telp no"), tr("Enter the valid email address")});
    return !hasError();
}
