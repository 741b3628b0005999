#include "app/numbers/DialogKeyTable.h"

#include "app/numbers/EntityKey.h"

#include "ui_DialogKeyTable.h"

DialogKeyTable::DialogKeyTable(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogKeyTable>())
{
    m_ui->setupUi(this);
    focusLater(m_ui->txtNextId);
}

DialogKeyTable::~DialogKeyTable() = default;

bool DialogKeyTable::validate()
{
    const auto requireInteger = [this](QLineEdit* field, const QString& missing, const QString& invalid) {
        bool valid = false;
        field->text().toInt(&valid);
        if (require(field, missing) && !valid)
            addError(field, invalid);
    };
    requireInteger(m_ui->txtNextId, tr("Enter Next Id"), tr("Enter valid number for Next Id"));
    requireInteger(m_ui->txtIncrementBy, tr("Enter Increment Value"), tr("Enter valid number for Increment value"));
    requireInteger(m_ui->txtNoZero, tr("Enter Number of zero"), tr("Enter valid number for Number of zero"));
    require(m_ui->txtFormat, tr("Enter Format"));
    require(m_ui->txtDescription, tr("Enter Description"));
    return !hasError();
}

KorEntity* DialogKeyTable::getEntity()
{
    auto* key = heldOrNew<EntityKey>();
    key->setNextId(m_ui->txtNextId->text().toInt());
    key->setIncrementBy(m_ui->txtIncrementBy->text().toInt());
    key->setNoZero(m_ui->txtNoZero->text().toInt());
    key->setFormat(m_ui->txtFormat->text());
    key->setDescription(m_ui->txtDescription->text());
    return key;
}

void DialogKeyTable::setEntity(KorEntity* entity)
{
    hold(entity);
    const auto* key = held<EntityKey>();
    m_ui->lblName->setText(key->getKeyName());
    m_ui->txtNextId->setText(QString::number(key->getNextId()));
    m_ui->txtIncrementBy->setText(QString::number(key->getIncrementBy()));
    m_ui->txtNoZero->setText(QString::number(key->getNoZero()));
    m_ui->txtFormat->setText(key->getFormat());
    m_ui->txtDescription->setText(key->getDescription());
}
