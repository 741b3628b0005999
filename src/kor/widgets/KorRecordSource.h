#pragma once

class KorEntity;

/** Rows for a grid that do not need a record each. Rows are only added, at the end. */
class KorRecordSource
{
public:
    virtual ~KorRecordSource() = default;

    [[nodiscard]] virtual int count() const = 0;
    /** The id of the row's record; costs no record. */
    [[nodiscard]] virtual int id(int row) const = 0;
    /** For painting a cell: valid until some hundred other rows have been asked for. */
    [[nodiscard]] virtual const KorEntity* glimpse(int row) const = 0;
    /** Valid as long as the source; for rows that somebody works with. */
    [[nodiscard]] virtual KorEntity* record(int row) const = 0;
};
