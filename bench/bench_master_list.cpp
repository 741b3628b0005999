#include "BenchMain.h"

#include "app/context/EntityPool.h"
#include "kor/business/KorServiceDirectory.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/tables/DataMapperMeja.h"
#include "zavel/tables/TabMeja.h"

#include <QApplication>
#include <QTableView>
#include <QVBoxLayout>

// A master list of 5,000 rows: reading it, and opening the page that shows it.

namespace
{
constexpr int rowCount = 5000;
constexpr QSize pageSize(1000, 700);

/** The smallest model that can show rows of libpq. */
class PlainModel final : public QAbstractTableModel
{
public:
    explicit PlainModel(std::vector<PlainRow> rows) : m_rows(std::move(rows)) {}

    [[nodiscard]] int rowCount(const QModelIndex&) const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int columnCount(const QModelIndex&) const override { return 3; }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        const PlainRow& row = m_rows[static_cast<std::size_t>(index.row())];
        // The texts are createdTime, updatedTime, code and name.
        return index.column() == 0 ? QVariant(row.integers[0])
                                   : QVariant(QString::fromStdString(row.texts[index.column() == 1 ? 2 : 3]));
    }

private:
    std::vector<PlainRow> m_rows;
};

std::vector<PlainRow> readByHand(ByHand& byHand) { return ByHand::rows(byHand.execute("list", {"%%", "%%"}).get()); }

void expect(int rows)
{
    if (rows != rowCount)
        qFatal("the list has %d rows", rows);
}

void show(QWidget& page)
{
    page.resize(pageSize);
    page.show();
    QApplication::processEvents();
}
} // namespace

void setUp(TestDatabase& database, ByHand& byHand)
{
    database.run("DELETE FROM meja");
    database.run("INSERT INTO meja (kode, nama, createdby, createdtime, updatedby, updatedtime, version) "
                 "SELECT 'T' || i, 'Table number ' || i, 1, now(), 1, now(), 2 FROM generate_series(1, 5000) i");
    database.run("ANALYZE");
    byHand.prepare("list", ZavelMapperRegistry::instance()->mejaMapper()->selectStatement() +
                               " where lower(kode) like  :prm0 OR lower(nama) like  :prm1 order by nama asc");

    enter({"Read a master list of 5,000 rows",
           [] {
               EntityPool read;
               const EntityPoolScope scope(read);
               expect(service<BusinessMeja>("Table")->findAll(QString()).size());
           },
           [&byHand] { expect(static_cast<int>(readByHand(byHand).size())); }});
    enter({"Open the page of a master list of 5,000 rows",
           [] {
               TabMeja page;
               show(page);
               expect(page.findChild<QTableView*>("tblMeja")->model()->rowCount());
           },
           [&byHand] {
               QWidget page;
               PlainModel model(readByHand(byHand));
               QVBoxLayout layout(&page);
               QTableView grid;
               layout.addWidget(&grid);
               grid.setModel(&model);
               show(page);
               expect(model.rowCount({}));
           },
           [] {}, 10});
}
