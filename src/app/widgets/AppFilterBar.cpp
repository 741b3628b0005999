#include "app/widgets/AppFilterBar.h"

#include "app/context/AppContext.h"

#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

AppFilterBar::AppFilterBar(int boxesPerRow, QWidget* parent)
    : QWidget(parent), m_layout(new QGridLayout(this)), m_boxesPerRow(boxesPerRow)
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(8);
    m_layout->setVerticalSpacing(6);
    for (int box = 0; box < boxesPerRow; ++box)
        m_layout->setColumnStretch(2 * box + 1, 1);
}

QDateEdit* AppFilterBar::addDate(const QString& name, const QString& label, const QDate& date)
{
    auto* box = new QDateEdit(date, this);
    box->setObjectName(name);
    box->setCalendarPopup(true);
    box->setDisplayFormat(AppContext::instance()->dateFormat());
    add(label, box);
    return box;
}

QComboBox* AppFilterBar::addChoice(const QString& name, const QString& label, const Rows& rows)
{
    auto* box = new QComboBox(this);
    box->setObjectName(name);
    for (const auto& row : rows)
        box->addItem(row.first, row.second);
    add(label, box);
    return box;
}

QLineEdit* AppFilterBar::addText(const QString& name, const QString& label)
{
    auto* box = new QLineEdit(this);
    box->setObjectName(name);
    box->setClearButtonEnabled(true);
    add(label, box);
    return box;
}

void AppFilterBar::add(const QString& label, QWidget* box)
{
    auto* caption = new QLabel(label, this);
    caption->setBuddy(box);
    const int row = m_count / m_boxesPerRow;
    const int column = 2 * (m_count % m_boxesPerRow);
    m_layout->addWidget(caption, row, column);
    m_layout->addWidget(box, row, column + 1);
    ++m_count;
}
