#pragma once

#include <QList>
#include <QObject>
#include <QPair>

/**
 * The conditions and sort keys of a list or search, in order. A condition text includes its joining word ("and", "or");
 * a pair with an empty value is literal SQL. There are no pages: a list returns every match, unless it has a limit.
 */
class KorPaging : public QObject
{
    Q_OBJECT

public:
    using Pairs = QList<QPair<QString, QString>>;

    explicit KorPaging(QObject* parent = nullptr) : QObject(parent) {}

    void addFilter(const QString& condition, const QString& value) { m_filters.append({condition, value}); }
    void addSort(const QString& expression, const QString& direction) { m_sorts.append({expression, direction}); }

    [[nodiscard]] const Pairs& filters() const { return m_filters; }
    void setFilters(const Pairs& filters) { m_filters = filters; }
    [[nodiscard]] const Pairs& sorts() const { return m_sorts; }
    void setSorts(const Pairs& sorts) { m_sorts = sorts; }
    /**
     * The best plan depends on the values: a day and all years need different ones. The statement is then planned for
     * its values each time; otherwise it is prepared once.
     */
    void setPlannedForValues(bool planned) { m_plannedForValues = planned; }
    [[nodiscard]] bool isPlannedForValues() const { return m_plannedForValues; }
    /** The SQL after the SELECT: conditions and order. Bind the value of pair i to :prm<i>. */
    [[nodiscard]] QString clauses() const;
    /** The value of the first pair with this condition, or empty; finders use pairs as named arguments. */
    [[nodiscard]] QString filterValue(const QString& condition) const;

    /** At most so many rows; 0 means all. */
    void setLimit(int rows) { m_limit = rows; }

    [[nodiscard]] int pageNumber() const { return m_pageNumber; }
    void setPageNumber(int pageNumber) { m_pageNumber = pageNumber; }
    [[nodiscard]] int pageSize() const { return m_pageSize; }
    void setPageSize(int pageSize) { m_pageSize = pageSize; }

private:
    int m_pageNumber = 1;
    int m_pageSize = 100;
    int m_limit = 0;
    bool m_plannedForValues = false;
    Pairs m_filters;
    Pairs m_sorts;
};
