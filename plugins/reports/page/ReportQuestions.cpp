#include "reports/page/ReportQuestions.h"

#include "reports/engine/ReportFormat.h"

#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace
{
enum Period { ThisMonth, Today, Yesterday, ThisWeek, LastWeek, LastMonth, ThisYear, LastYear, FiveYears, OtherPeriod };

const char* const periodNames[] = {
    QT_TRANSLATE_NOOP("Reports", "This month"), QT_TRANSLATE_NOOP("Reports", "Today"),
    QT_TRANSLATE_NOOP("Reports", "Yesterday"),  QT_TRANSLATE_NOOP("Reports", "This week"),
    QT_TRANSLATE_NOOP("Reports", "Last week"),  QT_TRANSLATE_NOOP("Reports", "Last month"),
    QT_TRANSLATE_NOOP("Reports", "This year"),  QT_TRANSLATE_NOOP("Reports", "Last year"),
    QT_TRANSLATE_NOOP("Reports", "Five years"), QT_TRANSLATE_NOOP("Reports", "Other period"),
};

QPair<QDate, QDate> daysOf(int period, const QDate& today)
{
    const QDate monthStart(today.year(), today.month(), 1);
    const QDate weekStart = today.addDays(1 - today.dayOfWeek());
    switch (period) {
    case Today:
        return {today, today};
    case Yesterday:
        return {today.addDays(-1), today.addDays(-1)};
    case ThisWeek:
        return {weekStart, today};
    case LastWeek:
        return {weekStart.addDays(-7), weekStart.addDays(-1)};
    case LastMonth:
        return {monthStart.addMonths(-1), monthStart.addDays(-1)};
    case ThisYear:
        return {QDate(today.year(), 1, 1), today};
    case LastYear:
        return {QDate(today.year() - 1, 1, 1), QDate(today.year() - 1, 12, 31)};
    case FiveYears:
        return {QDate(today.year() - 4, 1, 1), today};
    default:
        return {monthStart, today};
    }
}

QDateEdit* makeDateEdit(const QDate& day)
{
    auto* edit = new QDateEdit(day);
    edit->setCalendarPopup(true);
    edit->setDisplayFormat("d MMM yyyy");
    return edit;
}
} // namespace

ReportQuestions::ReportQuestions(QWidget* parent) : QWidget(parent)
{
    const auto days = daysOf(ThisMonth, QDate::currentDate());
    m_firstDay = days.first;
    m_lastDay = days.second;
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(8);
}

void ReportQuestions::ask(const Report& report)
{
    qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    while (QLayoutItem* line = layout()->takeAt(0))
        delete line;
    m_questions.clear();
    m_periods = nullptr;
    m_from = nullptr;
    m_to = nullptr;

    // Short parameters share a line, to leave room for the grid.
    QHBoxLayout* line = nullptr;
    int used = 0;
    for (const ReportParameter& parameter : report.parameters) {
        const int room = parameter.kind == ReportParameter::Period ? 2 : 1;
        if (!line || used + room > 3) {
            if (line)
                line->addStretch();
            line = new QHBoxLayout;
            line->setSpacing(8);
            static_cast<QVBoxLayout*>(layout())->addLayout(line);
            used = 0;
        }
        used += room;
        auto* label = new QLabel(titleOf(parameter), this);
        QWidget* box = makeBox(parameter);
        box->setObjectName(parameter.name);
        label->setBuddy(box->focusProxy() ? box->focusProxy() : box);
        line->addWidget(label);
        line->addWidget(box);
        m_questions.append({parameter, label, box});
    }
    if (line)
        line->addStretch();
}

QString ReportQuestions::titleOf(const ReportParameter& parameter) const
{
    if (parameter.kind == ReportParameter::Period)
        return reportText(QT_TRANSLATE_NOOP("Reports", "Period:"));
    return reportText(parameter.title);
}

QWidget* ReportQuestions::makeBox(const ReportParameter& parameter)
{
    switch (parameter.kind) {
    case ReportParameter::Period:
        return makePeriod();
    case ReportParameter::Day:
        return makeDateEdit(QDate::currentDate());
    case ReportParameter::Number: {
        auto* box = new QSpinBox;
        box->setRange(0, 999'999'999);
        box->setValue(parameter.initial.toInt());
        return box;
    }
    case ReportParameter::Text: {
        auto* box = new QLineEdit;
        box->setClearButtonEnabled(true);
        box->setMinimumWidth(160);
        connect(box, &QLineEdit::returnPressed, this, &ReportQuestions::answered);
        return box;
    }
    case ReportParameter::Choice:
        break;
    }
    auto* box = new QComboBox;
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box->setMinimumWidth(130);
    box->setMaximumWidth(260);
    if (!parameter.required)
        box->addItem(reportText(QT_TRANSLATE_NOOP("Reports", "All")), QVariant());
    for (const auto& choice : parameter.choices)
        box->addItem(reportText(choice.second), choice.first);
    return box;
}

QWidget* ReportQuestions::makePeriod()
{
    auto* box = new QWidget;
    auto* line = new QHBoxLayout(box);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
    m_periods = new QComboBox(box);
    m_periods->setObjectName("periods");
    m_from = makeDateEdit(m_firstDay);
    m_to = makeDateEdit(m_lastDay);
    m_from->setObjectName("from");
    m_to->setObjectName("to");
    line->addWidget(m_periods);
    line->addWidget(m_from);
    line->addWidget(new QLabel(QString(QChar(0x2013)), box));
    line->addWidget(m_to);
    box->setFocusProxy(m_periods);
    fillPeriods();
    const auto edited = [this] {
        m_firstDay = m_from->date();
        m_lastDay = m_to->date();
        fillPeriods();
    };
    connect(m_from, &QDateEdit::dateChanged, this, edited);
    connect(m_to, &QDateEdit::dateChanged, this, edited);
    connect(m_periods, QOverload<int>::of(&QComboBox::activated), this, &ReportQuestions::setPeriod);
    return box;
}

void ReportQuestions::fillPeriods()
{
    // The date boxes have no labels.
    m_from->setAccessibleName(reportText("Period:"));
    m_to->setAccessibleName(reportText("Period:"));
    const QSignalBlocker quiet(m_periods);
    m_periods->clear();
    int current = OtherPeriod;
    for (int i = 0; i <= OtherPeriod; ++i) {
        m_periods->addItem(reportText(periodNames[i]));
        if (current == OtherPeriod && daysOf(i, QDate::currentDate()) == qMakePair(m_firstDay, m_lastDay))
            current = i;
    }
    m_periods->setCurrentIndex(current);
}

void ReportQuestions::setPeriod(int index)
{
    if (index == OtherPeriod) {
        m_from->setFocus();
        return;
    }
    const auto days = daysOf(index, QDate::currentDate());
    const QSignalBlocker first(m_from);
    const QSignalBlocker last(m_to);
    m_from->setDate(days.first);
    m_to->setDate(days.second);
    m_firstDay = days.first;
    m_lastDay = days.second;
}

void ReportQuestions::fillChoices(int parameter, const QVector<ReportRow>& rows)
{
    auto* box = qobject_cast<QComboBox*>(m_questions.at(parameter).box);
    if (!box)
        return;
    for (const ReportRow& row : rows)
        box->addItem(row.value(1).toString(), row.value(0));
}

QVariantMap ReportQuestions::values() const
{
    QVariantMap values;
    for (const Question& question : m_questions) {
        const QString& name = question.parameter.name;
        switch (question.parameter.kind) {
        case ReportParameter::Period:
            // Accept the two days in any order.
            values.insert("from", std::min(m_firstDay, m_lastDay));
            values.insert("to", std::max(m_firstDay, m_lastDay));
            break;
        case ReportParameter::Day:
            values.insert(name, static_cast<QDateEdit*>(question.box)->date());
            break;
        case ReportParameter::Number:
            values.insert(name, static_cast<QSpinBox*>(question.box)->value());
            break;
        case ReportParameter::Text: {
            QString text = static_cast<QLineEdit*>(question.box)->text().trimmed().toLower();
            text.replace('\\', "\\\\").replace('%', "\\%").replace('_', "\\_");
            values.insert(name, text.isEmpty() ? QVariant(QVariant::String) : QVariant('%' + text + '%'));
            break;
        }
        case ReportParameter::Choice: {
            const QVariant value = static_cast<QComboBox*>(question.box)->currentData();
            values.insert(name, value.isValid() ? value : QVariant(QVariant::String));
            break;
        }
        }
    }
    return values;
}

QStringList ReportQuestions::words(const QString& dateFormat) const
{
    QStringList words;
    const auto day = [&dateFormat](const QDate& date) { return restaurantLocale().toString(date, dateFormat); };
    for (const Question& question : m_questions) {
        QString answer;
        switch (question.parameter.kind) {
        case ReportParameter::Period:
            answer = day(std::min(m_firstDay, m_lastDay)) + QString(" %1 ").arg(QChar(0x2013)) +
                     day(std::max(m_firstDay, m_lastDay));
            break;
        case ReportParameter::Day:
            answer = day(static_cast<QDateEdit*>(question.box)->date());
            break;
        case ReportParameter::Number:
            answer = restaurantLocale().toString(static_cast<QSpinBox*>(question.box)->value());
            break;
        case ReportParameter::Text:
            answer = static_cast<QLineEdit*>(question.box)->text().trimmed();
            break;
        case ReportParameter::Choice: {
            const auto* box = static_cast<QComboBox*>(question.box);
            if (box->currentData().isValid())
                answer = box->currentText();
            break;
        }
        }
        if (!answer.isEmpty())
            words.append(titleOf(question.parameter) + ' ' + answer);
    }
    return words;
}

void ReportQuestions::retranslate()
{
    for (const Question& question : qAsConst(m_questions)) {
        question.label->setText(titleOf(question.parameter));
        auto* box = qobject_cast<QComboBox*>(question.box);
        if (!box)
            continue;
        int first = 0;
        if (!question.parameter.required)
            box->setItemText(first++, reportText(QT_TRANSLATE_NOOP("Reports", "All")));
        for (int i = 0; i < question.parameter.choices.size(); ++i)
            box->setItemText(first + i, reportText(question.parameter.choices.at(i).second));
    }
    if (m_periods)
        fillPeriods();
}
