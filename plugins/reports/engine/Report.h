#pragma once

#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

/** Translates a source text of the reports. */
inline QString reportText(const char* source) { return QCoreApplication::translate("Reports", source); }

/** One column of a report's grid. Titles are source texts of the context "Reports". */
struct ReportColumn
{
    /** Decides the alignment, the text format and the CSV format. Money is in whole units of the currency. */
    enum Kind { Text, Date, Month, DateTime, Count, Quantity, Money, Percent };

    QString field;
    const char* title = "";
    Kind kind = Text;
    bool summed = false;
    // For a quotient of two other columns, also in subtotals and totals; a percentage is multiplied by 100.
    QString numerator;
    QString denominator;
    // The texts for the values of a code; other values are shown unchanged.
    QList<QPair<QVariant, const char*>> valueWords = {};

    [[nodiscard]] bool isNumber() const { return kind >= Count; }
    [[nodiscard]] bool isQuotient() const { return !numerator.isEmpty(); }

    /** The same column with subtotals and a total. */
    [[nodiscard]] ReportColumn sum() const
    {
        ReportColumn column = *this;
        column.summed = true;
        return column;
    }

    /** The same column with texts for a code: words({{"TRD", "Dine in"}, ...}). */
    [[nodiscard]] ReportColumn words(const QList<QPair<QVariant, const char*>>& words) const
    {
        ReportColumn column = *this;
        column.valueWords = words;
        return column;
    }
    /** The index of the text for the value; valueWords.size() if there is none. */
    [[nodiscard]] int wordOf(const QVariant& value) const
    {
        int index = 0;
        while (index < valueWords.size() &&
               (value.isNull() || valueWords.at(index).first.toString() != value.toString()))
            ++index;
        return index;
    }
    [[nodiscard]] QVariant inWords(const QVariant& value) const
    {
        const int word = wordOf(value);
        return word < valueWords.size() ? QVariant(reportText(valueWords.at(word).second)) : value;
    }

    static ReportColumn text(const QString& field, const char* title) { return {field, title, Text, false, {}, {}}; }
    static ReportColumn date(const QString& field, const char* title) { return {field, title, Date, false, {}, {}}; }
    /** The value may be any day of the month. */
    static ReportColumn month(const QString& field, const char* title) { return {field, title, Month, false, {}, {}}; }
    static ReportColumn time(const QString& field, const char* title)
    {
        return {field, title, DateTime, false, {}, {}};
    }
    static ReportColumn count(const QString& field, const char* title) { return {field, title, Count, false, {}, {}}; }
    static ReportColumn quantity(const QString& field, const char* title)
    {
        return {field, title, Quantity, false, {}, {}};
    }
    static ReportColumn money(const QString& field, const char* title) { return {field, title, Money, false, {}, {}}; }
    /** A percentage calculated by the query. */
    static ReportColumn percent(const QString& field, const char* title)
    {
        return {field, title, Percent, false, {}, {}};
    }
    /** The numerator as a percentage of the denominator; both may be hidden fields. */
    static ReportColumn share(const QString& field, const char* title, const QString& numerator,
                              const QString& denominator)
    {
        return {field, title, Percent, false, numerator, denominator};
    }
    /** The amount divided by the denominator. */
    static ReportColumn average(const QString& field, const char* title, const QString& numerator,
                                const QString& denominator)
    {
        return {field, title, Money, false, numerator, denominator};
    }
};

/** A parameter that the user enters before a report runs. An empty one binds NULL. */
struct ReportParameter
{
    /** A period binds ":from" and ":to", both days included; the others bind their name. */
    enum Kind { Period, Day, Text, Number, Choice };

    Kind kind = Text;
    QString name;
    const char* title = "";
    QVariant initial;
    /** The choices: these values, or the rows (value, label) of the query, and "All". */
    QList<QPair<QVariant, const char*>> choices;
    QString choicesQuery;
    /** A mandatory choice: the first one is the default, and there is no "All". */
    bool required = false;

    static ReportParameter period() { return {Period, "period", "", {}, {}, {}, true}; }
    /** One day; the default is today. */
    static ReportParameter day(const QString& name, const char* title) { return {Day, name, title, {}, {}, {}, true}; }
    /** Part of a text; bound in lower case with "%" around it, NULL when empty. */
    static ReportParameter contains(const QString& name, const char* title)
    {
        return {Text, name, title, {}, {}, {}, false};
    }
    static ReportParameter number(const QString& name, const char* title, int initial)
    {
        return {Number, name, title, initial, {}, {}, true};
    }
    static ReportParameter choice(const QString& name, const char* title,
                                  const QList<QPair<QVariant, const char*>>& choices)
    {
        return {Choice, name, title, {}, choices, {}, false};
    }
    static ReportParameter oneOf(const QString& name, const char* title,
                                 const QList<QPair<QVariant, const char*>>& choices)
    {
        return {Choice, name, title, {}, choices, {}, true};
    }
    static ReportParameter row(const QString& name, const char* title, const QString& query)
    {
        return {Choice, name, title, {}, {}, query, false};
    }
};

/** The chart above a grid. */
struct ReportChart
{
    enum Kind { None, Bars, Lines };

    Kind kind = None;
    QString category;
    QList<QString> series;
    /** Sorts the categories by size and combines the small ones; otherwise the order of the rows is kept. */
    bool ranked = false;

    static ReportChart bars(const QString& category, const QList<QString>& series)
    {
        return {Bars, category, series, false};
    }
    static ReportChart lines(const QString& category, const QList<QString>& series)
    {
        return {Lines, category, series, false};
    }
    static ReportChart ranking(const QString& category, const QString& series)
    {
        return {Bars, category, {series}, true};
    }
};

/**
 * The description of a report: its parameters, its statement, and how the result is shown. The statement is a single
 * select with named placeholders (":from", ":member"); an optional one is written "(:member::integer is null or
 * member_id = :member)". Fields are the names of the selected columns.
 */
struct Report
{
    /** Unique; used in file names. */
    QString id;
    const char* title = "";
    /** One sentence: what the figures include and what not. */
    const char* about = "";
    QList<ReportParameter> parameters;
    QString query;
    QList<ReportColumn> columns;
    /** Rows with equal values in this field form a group with subtotals; the statement need not sort by it. */
    QString group;
    ReportChart chart;

    [[nodiscard]] QString titleText() const { return reportText(title); }
    [[nodiscard]] QString aboutText() const { return reportText(about); }
    /** The index of the column; -1 if there is none. */
    [[nodiscard]] int columnOf(const QString& field) const
    {
        for (int i = 0; i < columns.size(); ++i) {
            if (columns.at(i).field == field)
                return i;
        }
        return -1;
    }
};

/** The reports of one subject. */
struct ReportSubject
{
    /** The name that the program asks for, such as "Penjualan". */
    QString name;
    const char* title;
    QList<Report> reports;
};
