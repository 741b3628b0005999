#pragma once

#include <QCoreApplication>
#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

/** The words of the reports in the language in use. */
inline QString reportText(const char* source) { return QCoreApplication::translate("Reports", source); }

/** One column of a report's grid. Titles are source texts of the context "Reports". */
struct ReportColumn
{
    /** Decides alignment, wording, and what a spreadsheet gets. Money is in whole units of the currency. */
    enum Kind { Text, Date, Month, DateTime, Count, Quantity, Money, Percent };

    QString field;
    const char* title = "";
    Kind kind = Text;
    bool summed = false;
    // A quotient of two other columns, which holds for subtotals and totals as well; a percentage is times a hundred.
    QString numerator;
    QString denominator;
    // What the values of a code read as; a value without words stands as it is.
    QList<QPair<QVariant, const char*>> valueWords = {};

    [[nodiscard]] bool isNumber() const { return kind >= Count; }
    [[nodiscard]] bool isQuotient() const { return !numerator.isEmpty(); }

    /** With a sum below the groups and at the end. */
    [[nodiscard]] ReportColumn sum() const
    {
        ReportColumn column = *this;
        column.summed = true;
        return column;
    }

    /** Shows the words of a code: words({{"TRD", "Dine in"}, ...}). */
    [[nodiscard]] ReportColumn words(const QList<QPair<QVariant, const char*>>& words) const
    {
        ReportColumn column = *this;
        column.valueWords = words;
        return column;
    }
    /** Which of the words stands for the value; their number for none. */
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
    /** Any day of the month. */
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
    /** A percentage that the query gives. */
    static ReportColumn percent(const QString& field, const char* title)
    {
        return {field, title, Percent, false, {}, {}};
    }
    /** The numerator's share of the denominator; both may be columns that are not shown. */
    static ReportColumn share(const QString& field, const char* title, const QString& numerator,
                              const QString& denominator)
    {
        return {field, title, Percent, false, numerator, denominator};
    }
    /** The amount that falls on each of the denominator. */
    static ReportColumn average(const QString& field, const char* title, const QString& numerator,
                                const QString& denominator)
    {
        return {field, title, Money, false, numerator, denominator};
    }
};

/** What a report asks before it runs. A question left open binds NULL. */
struct ReportParameter
{
    /** A period binds ":from" and ":to", both days included; the others bind their name. */
    enum Kind { Period, Day, Text, Number, Choice };

    Kind kind = Text;
    QString name;
    const char* title = "";
    QVariant initial;
    /** A choice is one of these values, or one of the rows (value, label) that the statement gives, or all. */
    QList<QPair<QVariant, const char*>> choices;
    QString choicesQuery;
    /** A choice that must be made: the first one stands at the start, and there is no "All". */
    bool required = false;

    static ReportParameter period() { return {Period, "period", "", {}, {}, {}, true}; }
    /** One day, today at the start. */
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

/** The picture above a grid. */
struct ReportChart
{
    enum Kind { None, Bars, Lines };

    Kind kind = None;
    QString category;
    QList<QString> series;
    /** Categories are put in the order of their size, and the small ones as one; otherwise they stand as they come. */
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
 * A report, told once: what it asks, the statement that answers, and how the answer is shown. The statement is a
 * single select with named values (":from", ":member"); an optional one is written
 * "(:member::integer is null or member_id = :member)". Fields are the names of the columns that the statement gives.
 */
struct Report
{
    /** Stands in file names and tells the reports apart. */
    QString id;
    const char* title = "";
    /** One sentence: what the figures are and are not. */
    const char* about = "";
    QList<ReportParameter> parameters;
    QString query;
    QList<ReportColumn> columns;
    /** The field whose equal values make a group with subtotals; the statement need not sort by it. */
    QString group;
    ReportChart chart;

    [[nodiscard]] QString titleText() const { return reportText(title); }
    [[nodiscard]] QString aboutText() const { return reportText(about); }
    /** -1 for a field that is not among the columns. */
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
    /** The name that the program asks by: "Penjualan" for one. */
    QString name;
    const char* title;
    QList<Report> reports;
};
