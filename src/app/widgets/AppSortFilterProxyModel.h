#pragma once

#include "kor/widgets/KorSortFilterProxyModel.h"

#include <QLocale>

/** Sorts money by amount and dates by date; both are parsed from the texts that the grid shows. */
class AppSortFilterProxyModel final : public KorSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit AppSortFilterProxyModel(QObject* parent = nullptr);

    /** "currency number" in plain digits from a money cell in the locale's format; empty if the cell is no money. */
    [[nodiscard]] static QString plainMoney(const QString& cell, const QLocale& locale);

protected:
    [[nodiscard]] QVariant sortKey(int columnType, const QString& cell) const override;

private:
    QLocale m_locale;
    QString m_dateFormat;
};
