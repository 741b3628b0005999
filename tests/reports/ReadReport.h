#pragma once

#include "reports/engine/ReportTable.h"

#include <QDate>

class TestDatabase;

/** The result of a report, or its error. */
struct ReadReport
{
    ReportTable table;
    QStringList fields;
    QString error;

    /** The report's own lines as text with aligned columns, sums included. */
    [[nodiscard]] QByteArray lines() const;
    /** The value in the column of that field; rows as they came. */
    [[nodiscard]] QVariant value(int row, const QString& field) const;
};

/** The report with this id, from any subject. */
[[nodiscard]] Report reportById(const QString& id);
/**
 * All parameters with values: optional ones are empty, mandatory choices are the first ones, the period is the given
 * one, and a day is its last day.
 */
[[nodiscard]] QVariantMap openAnswers(const Report& report, const QDate& from, const QDate& to);
/** Reads the report from the test's database, as the page does. */
[[nodiscard]] ReadReport readReport(const TestDatabase& database, const Report& report, const QVariantMap& values);
/** With all optional parameters empty except the given answers. */
[[nodiscard]] ReadReport readReport(const TestDatabase& database, const QString& id, const QDate& from, const QDate& to,
                                    const QVariantMap& answers = {});
