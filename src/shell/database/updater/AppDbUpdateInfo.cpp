#include "shell/database/updater/AppDbUpdateInfo.h"

#include <QLabel>
#include <QVBoxLayout>

AppDbUpdateInfo::AppDbUpdateInfo(QWidget* parent) : QWizardPage(parent)
{
    setTitle(tr("Update DB"));
    auto* text = new QLabel(tr("This wizard will help you update ZavelPOS database on your computer. IMPORTANT: before "
                               "updating, please back up your database. Please click Next to update the database or "
                               "click Cancel then backup your database."),
                            this);
    text->setWordWrap(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addStretch();
}
