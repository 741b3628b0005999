#pragma once

#include "app/context/EntityPool.h"
#include "kor/persistence/KorConditions.h"
#include "kor/persistence/KorQuery.h"
#include "kor/widgets/KorRecordSource.h"

#include <QDate>

#include <functional>
#include <memory>
#include <vector>

class KorDataMapper;

/**
 * The rows of a long list, latest first, kept as the server sent them: some hundred bytes a row instead of several
 * thousand for records. They are read piece by piece, so that the first ones can be shown at once.
 */
class FoundRows final : public KorRecordSource
{
public:
    /** The last row read; without a date before the first piece. */
    struct Place
    {
        QDate date;
        int id = 0;
    };
    /** Reads at most so many rows behind the place, by date and id descending; null after a failure. */
    using Read = std::function<std::unique_ptr<KorQuery>(const Place& behind, int atMost)>;

    /** Sorts the rows of the table as such a list reads them, and leaves those behind the place, at most so many. */
    static KorConditions& behind(KorConditions& conditions, const QString& table, const QString& dateColumn,
                                 const Place& place, int atMost);

    /** The mapper makes the records from its table's columns; dateColumn is the result's name of the date. */
    FoundRows(KorDataMapper* mapper, const QString& dateColumn, Read read);
    ~FoundRows() override;

    /** Reads one more piece; false if that failed, and nothing more is read then. */
    bool readOn();
    /** Reads nothing more. */
    void stop() { m_complete = true; }
    /** True when the last row has been read, or reading was stopped or failed. */
    [[nodiscard]] bool isComplete() const { return m_complete; }
    /** The date down to which rows have been read. */
    [[nodiscard]] QDate reached() const { return m_last.date; }

    [[nodiscard]] int count() const override { return m_count; }
    [[nodiscard]] int id(int row) const override;
    [[nodiscard]] const KorEntity* glimpse(int row) const override;
    [[nodiscard]] KorEntity* record(int row) const override;

private:
    struct Piece
    {
        std::unique_ptr<KorQuery> rows;
        int first;
    };

    /** The query, on the row. */
    [[nodiscard]] KorQuery& at(int row) const;
    void forgetOldGlimpses() const;

    KorDataMapper* m_mapper;
    QString m_dateColumn;
    Read m_read;
    std::vector<Piece> m_pieces;
    Place m_last;
    int m_count = 0;
    bool m_complete = false;

    // Records made for painting, by row. When the newer pool is full, the older one is freed.
    mutable EntityPool m_newer;
    mutable EntityPool m_older;
    mutable QHash<int, const KorEntity*> m_newerRows;
    mutable QHash<int, const KorEntity*> m_olderRows;
    mutable EntityPool m_kept;
    mutable QHash<int, KorEntity*> m_keptRows;
};
