#include "shell/database/wizard/DetailsPage.h"

#include <QFormLayout>
#include <QIntValidator>
#include <QLineEdit>

#include <algorithm>

DetailsPage::DetailsPage(QWidget* parent) : QWizardPage(parent), m_form(new QFormLayout(this)) {}

QLineEdit* DetailsPage::makeLine(const QString& fieldName)
{
    auto* line = new QLineEdit(this);
    m_lines.append(line);
    registerField(fieldName + '*', line);
    return line;
}

QLineEdit* DetailsPage::addLine(const QString& label, const QString& fieldName)
{
    QLineEdit* line = makeLine(fieldName);
    m_form->addRow(label, line);
    return line;
}

QLineEdit* DetailsPage::addPassword(const QString& label, const QString& fieldName)
{
    QLineEdit* line = addLine(label, fieldName);
    line->setEchoMode(QLineEdit::Password);
    return line;
}

QLineEdit* DetailsPage::addPort(const QString& label, const QString& fieldName)
{
    QLineEdit* line = addLine(label, fieldName);
    line->setValidator(new QIntValidator(1, 65535, line));
    return line;
}

bool DetailsPage::isComplete() const
{
    return std::all_of(m_lines.begin(), m_lines.end(),
                       [](const QLineEdit* line) { return !line->text().isEmpty() && line->hasAcceptableInput(); });
}

void DetailsPage::initializePage()
{
    if (m_filled)
        return;
    m_filled = true;
    ConnectionSettings usual = m_connection.read().withDefaults();
    // Do not propose the default password: everybody knows it.
    usual.password = m_connection.password->text();
    m_connection.show(usual);
}
