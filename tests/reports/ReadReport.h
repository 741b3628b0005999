#pragma once

#include "reports/engine/ReportTable.h"

#include <QDate>

class TestDatabase;

/** What a report gave, or why it could not be read. */
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

/** The report of that id, whatever its subject. */
[[nodiscard]] Report reportById(const QString& id);
/**
 * Every name of the report with a value: what can be left open is open, choices that must be made are the first ones,
 * the period is that one, and a day is its last.
 */
[[nodiscard]] QVariantMap openAnswers(const Report& report, const QDate& from, const QDate& to);
/** Reads the report from the test's database, as the page does. */
[[nodiscard]] ReadReport readReport(const TestDatabase& database, const Report& report, const QVariantMap& values);
/** With what can be left open left open, but for the given answers. */
[[nodiscard]] ReadReport readReport(const TestDatabase& database, const QString& id, const QDate& from, const QDate& to,
                                    const QVariantMap& answers = {});
