#include "shell/window/DialogAbout.h"

#include "app/context/DatabaseVersion.h"

#include "ui_DialogAbout.h"

#include <QIcon>

DialogAbout::DialogAbout(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::DialogAbout>())
{
    m_ui->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowIcon(QIcon(":/icons/Beverage-Coffee-02.png"));
    m_ui->lblVersion->setText(tr("Version %1").arg(DatabaseVersion::ofProgramText()));
    m_ui->lblQt->setText(tr("Qt %1, PostgreSQL, CUPS").arg(QLatin1String(qVersion())));
}

DialogAbout::~DialogAbout() = default;
