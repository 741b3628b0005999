#include "BenchMain.h"

#include "app/context/EntityPool.h"
#include "kor/business/KorServiceDirectory.h"
#include "support/SalesRows.h"
#include "support/ShopRows.h"
#include "zavel/list/DataMapperPenjualanInfo.h"
#include "zavel/list/SalesFilter.h"
#include "zavel/list/TabDaftarPenjualan.h"
#include "zavel/registry/ZavelMapperRegistry.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QApplication>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

// The list of all sales of a day with 5,000 sales: reading it, opening its page, and paging through it.

namespace
{
constexpr int saleCount = 5000;
constexpr int columns = 12;
constexpr QSize pageSize(1000, 700);

/** A model with twelve texts per row of libpq. */
class PlainModel final : public QAbstractTableModel
{
public:
    explicit PlainModel(std::vector<PlainRow> rows) : m_rows(std::move(rows)) {}

    [[nodiscard]] int rowCount(const QModelIndex&) const override { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int columnCount(const QModelIndex&) const override { return columns; }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::DisplayRole)
            return {};
        const std::vector<std::string>& texts = m_rows[static_cast<std::size_t>(index.row())].texts;
        return QString::fromStdString(texts.at(static_cast<std::size_t>(index.column())));
    }

private:
    std::vector<PlainRow> m_rows;
};

SalesFilter today()
{
    SalesFilter filter;
    filter.from = QDate::currentDate();
    filter.to = filter.from;
    return filter;
}

std::vector<PlainRow> readByHand(ByHand& byHand)
{
    const std::string day = QDate::currentDate().toString(Qt::ISODate).toStdString();
    return ByHand::rows(byHand.execute("sales", {day, day}).get());
}

void expect(int rows)
{
    if (rows != saleCount)
        qFatal("the list has %d sales", rows);
}

void show(QWidget& page)
{
    page.resize(pageSize);
    page.show();
    QApplication::processEvents();
}

/** Presses Page Down and paints; at the end it goes back to the top. */
void turnPage(QTableView& grid)
{
    if (grid.currentIndex().row() >= saleCount - 1 || !grid.currentIndex().isValid())
        grid.selectRow(0);
    QTest::keyClick(&grid, Qt::Key_PageDown);
    grid.viewport()->repaint();
}

/** The page by hand: only the grid. */
struct PlainPage
{
    explicit PlainPage(ByHand& byHand) : model(readByHand(byHand))
    {
        layout.addWidget(&grid);
        grid.setSelectionBehavior(QAbstractItemView::SelectRows);
        grid.setModel(&model);
        show(page);
        expect(model.rowCount({}));
    }

    PlainModel model;
    QWidget page;
    QVBoxLayout layout{&page};
    QTableView grid;
};
} // namespace

void setUp(TestDatabase& database, ByHand& byHand)
{
    insertShop(database);
    insertManySales(database, saleCount);
    database.run("UPDATE invoice SET invoice_date = current_date");
    database.run("ANALYZE");
    byHand.prepare("sales", ZavelMapperRegistry::instance()->penjualanInfoMapper()->selectStatement() +
                                " where invoice_date >=  :prm0 and invoice_date <=  :prm1 order by invoice_date desc, "
                                "invoice.id desc");

    enter({"Read 5,000 sales as records",
           [] {
               EntityPool read;
               const EntityPoolScope scope(read);
               expect(service<BusinessPenjualan>("Sales")->searchPenjualan(today()).size());
           },
           [&byHand] { expect(static_cast<int>(readByHand(byHand).size())); }, [] {}, 5});
    enter({"Open the page of 5,000 sales, until all are there",
           [] {
               TabDaftarPenjualan page;
               show(page);
               const QAbstractItemModel* sales = page.findChild<QTableView*>("tblPenjualan")->model();
               while (sales->rowCount() < saleCount)
                   QApplication::processEvents();
           },
           [&byHand] { const PlainPage page(byHand); }, [] {}, 5});

    // Both stay open until the program ends, and are never deleted.
    auto* page = new TabDaftarPenjualan;
    auto* plain = new PlainPage(byHand);
    show(*page);
    enter({"Turn a page of 5,000 sales", [page] { turnPage(*page->findChild<QTableView*>("tblPenjualan")); },
           [plain] { turnPage(plain->grid); }, [] {}, 100});
}
