#include "app/numbers/DialogKeyTable.h"

#include "app/numbers/EntityKey.h"
#include "app/widgets/QuantityEdit.h"

#include "ui_DialogKeyTable.h"

namespace
{
// A document number has at most fifty characters, including its date.
constexpr int mostDigits = 20;
} // namespace

DialogKeyTable::DialogKeyTable(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogKeyTable>())
{
    m_ui->setupUi(this);
    edits<EntityKey>({{m_ui->lblName, "KeyName"},
                      {m_ui->txtNextId, "NextId"},
                      {m_ui->txtIncrementBy, "IncrementBy"},
                      {m_ui->txtNoZero, "NoZero"},
                      {m_ui->txtFormat, "Format"},
                      {m_ui->txtDescription, "Description"}});
    focusLater(m_ui->txtNextId);
}

DialogKeyTable::~DialogKeyTable() = default;

bool DialogKeyTable::validate()
{
    struct Field
    {
        QLineEdit* box;
        QString missing;
        QString invalid;
        int lowest;
        int highest;
    };
    // A step of zero, a negative step or an overflow would give numbers that already exist.
    const Field fields[] = {
        {m_ui->txtNextId, tr("Enter Next Id"), tr("Enter valid number for Next Id"), 0, QuantityEdit::largest},
        {m_ui->txtIncrementBy, tr("Enter Increment Value"), tr("Enter valid number for Increment value"), 1,
         QuantityEdit::largest},
        {m_ui->txtNoZero, tr("Enter Number of zero"), tr("Enter valid number for Number of zero"), 0, mostDigits}};
    for (const Field& field : fields) {
        bool valid = false;
        const int number = field.box->text().toInt(&valid);
        if (!require(field.box, field.missing))
            continue;
        if (!valid)
            addError(field.box, field.invalid);
        else if (number < field.lowest || number > field.highest)
            addError(field.box, QuantityEdit::outside(field.lowest, field.highest));
    }
    require(m_ui->txtFormat, tr("Enter Format"));
    require(m_ui->txtDescription, tr("Enter Description"));
    return !hasError();
}
