#pragma once

#include "app/money/Money.h"
#include "kor/widgets/KorEntityModel.h"

#include <QDateTime>
#include <QLocale>

/** A grid model with money and dates in the formats that were configured when the model was created. */
class AppEntityModel : public KorEntityModel
{
    Q_OBJECT

public:
    explicit AppEntityModel(QObject* parent = nullptr);
    explicit AppEntityModel(const QList<KorEntity*>& entities, QObject* parent = nullptr);

    /** The type id of money columns. */
    [[nodiscard]] static int moneyType() { return qMetaTypeId<Money*>(); }

    [[nodiscard]] QString moneyText(const Money* money) const;
    [[nodiscard]] QString dateTimeText(const QDateTime& dateTime) const { return dateTime.toString(m_dateFormat); }
    [[nodiscard]] QString dateText(const QDate& date) const { return date.toString(m_dateFormat); }
    /** How long ago the time was, in words. */
    [[nodiscard]] static QString elapsedText(const QDateTime& dateTime);

protected:
    /** A right-aligned money column. "read" returns the record's value or null. */
    template <class Entity, class Read>
    void addMoney(const QString& header, Read read)
    {
        addField<Entity>(
            moneyType(), header, [this, read](const Entity& entity) { return moneyText(read(entity)); }, RightAligned);
    }

    /** A date column. "read" returns the record's date. */
    template <class Entity, class Read>
    void addDate(const QString& header, Read read)
    {
        addField<Entity>(QMetaType::QDateTime, header,
                         [this, read](const Entity& entity) { return dateText(read(entity)); });
    }
    /** A right-aligned percent column, sorted by number like money. */
    template <class Entity, class Read>
    void addPercent(const QString& header, Read read)
    {
        addField<Entity>(
            moneyType(), header,
            [this, read](const Entity& entity) { return m_locale.toString(read(entity), 'g', 10); }, RightAligned);
    }

private:
    QLocale m_locale;
    QString m_dateFormat;
};
