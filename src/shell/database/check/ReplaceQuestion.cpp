#include "shell/database/check/ReplaceQuestion.h"

#include "kor/persistence/KorDatabase.h"
#include "shell/database/check/DatabaseCondition.h"

#include <QMessageBox>
#include <QPushButton>

ReplaceQuestion::Answer ReplaceQuestion::ask(QWidget* parent, Offer offer)
{
    const DatabaseCondition condition = DatabaseCondition::readWithVersion();
    if (!condition.hasTables())
        return Replace;
    QMessageBox box(QMessageBox::Question, tr("Question"),
                    tr("The database %1 is in use already. A clean installation makes all tables anew, and "
                       "everything that they hold is lost. Do you want that?")
                        .arg(KorDatabase::current().databaseName()),
                    QMessageBox::Yes | QMessageBox::No, parent);
    if (offer == UseToo && condition.isUsable()) {
        box.setInformativeText(tr("A further workstation of the restaurant uses it as it is."));
        QPushButton* use = box.addButton(QMessageBox::Open);
        use->setText(tr("&Use It As It Is"));
        use->setIcon(QIcon(":/icons/database.png"));
    }
    box.setDefaultButton(QMessageBox::No);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Replace;
    case QMessageBox::Open:
        return UseAsItIs;
    default:
        return Leave;
    }
}
