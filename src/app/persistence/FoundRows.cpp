#include "app/persistence/FoundRows.h"

#include "kor/persistence/KorDataMapper.h"

#include <algorithm>

namespace
{
// Read in some 20 ms. The first piece fills a screen.
constexpr int firstPiece = 500;
constexpr int furtherPieces = 2000;
constexpr int glimpsesPerPool = 512;
} // namespace

KorConditions& FoundRows::behind(KorConditions& conditions, const QString& table, const QString& dateColumn,
                                 const Place& place, int atMost)
{
    const QString date = table + '.' + dateColumn;
    const QString id = table + ".id";
    if (place.date.isValid())
        conditions.holds(QString("(%1, %2) < ('%3', %4)")
                             .arg(date, id, place.date.toString(Qt::ISODate), QString::number(place.id)));
    return conditions.descending(date).descending(id).atMost(atMost);
}

FoundRows::FoundRows(KorDataMapper* mapper, const QString& dateColumn, Read read)
    : m_mapper(mapper), m_dateColumn(dateColumn), m_read(std::move(read))
{}

FoundRows::~FoundRows() = default;

bool FoundRows::readOn()
{
    const int wanted = m_pieces.empty() ? firstPiece : furtherPieces;
    std::unique_ptr<KorQuery> rows = m_read(m_last, wanted);
    const int found = rows ? std::max(0, rows->size()) : 0;
    m_complete = found < wanted;
    if (found > 0) {
        rows->last();
        m_last.date = rows->row().toDate(rows->column(m_dateColumn));
        m_last.id = rows->row().toInt(rows->plan(*m_mapper, m_mapper->tableName()).id);
        m_pieces.push_back({std::move(rows), m_count});
        m_count += found;
        return true;
    }
    return rows != nullptr;
}

KorQuery& FoundRows::at(int row) const
{
    const auto next = std::upper_bound(m_pieces.begin(), m_pieces.end(), row,
                                       [](int wanted, const Piece& piece) { return wanted < piece.first; });
    const Piece& piece = *std::prev(next);
    piece.rows->seek(row - piece.first);
    return *piece.rows;
}

int FoundRows::id(int row) const
{
    KorQuery& rows = at(row);
    return rows.row().toInt(rows.plan(*m_mapper, m_mapper->tableName()).id);
}

const KorEntity* FoundRows::glimpse(int row) const
{
    if (const KorEntity* kept = m_keptRows.value(row))
        return kept;
    if (const KorEntity* known = m_newerRows.value(row, m_olderRows.value(row)))
        return known;
    if (m_newerRows.size() >= glimpsesPerPool)
        forgetOldGlimpses();
    const EntityPoolScope scope(m_newer);
    const KorEntity* made = m_mapper->fromRow(at(row));
    m_newerRows.insert(row, made);
    return made;
}

void FoundRows::forgetOldGlimpses() const
{
    // Rows of one piece share their partners, which are in the pool of the row that was asked for first.
    for (const Piece& piece : m_pieces)
        piece.rows->forgetPartners();
    m_older.clear();
    m_older.swap(m_newer);
    m_olderRows.swap(m_newerRows);
    m_newerRows.clear();
}

KorEntity* FoundRows::record(int row) const
{
    KorEntity*& kept = m_keptRows[row];
    if (!kept) {
        const EntityPoolScope scope(m_kept);
        KorQuery& rows = at(row);
        rows.forgetPartners();
        kept = m_mapper->fromRow(rows);
        rows.forgetPartners();
    }
    return kept;
}
