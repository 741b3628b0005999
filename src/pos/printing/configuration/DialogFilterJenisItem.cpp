#include "pos/printing/configuration/DialogFilterJenisItem.h"

#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorErrorBox.h"
#include "kor/widgets/KorSortFilterProxyModel.h"
#include "pos/masterdata/itemtype/BusinessJenisItem.h"
#include "pos/masterdata/itemtype/TableModelJenisItem.h"

#include "ui_DialogFilterJenisItem.h"

namespace
{
constexpr int codeColumn = 1;
}

DialogFilterJenisItem::DialogFilterJenisItem(const QString& codes, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::DialogFilterJenisItem>())
{
    m_ui->setupUi(this);
    auto* types = service<BusinessJenisItem>("Item Type");
    const EntityPoolScope scope(m_types);
    KorErrorScope errors(types);
    m_model = new TableModelJenisItem(types->findAll(QString()), this);
    KorErrorBox::tell(this, errors.take());
    m_proxy = new KorSortFilterProxyModel(this);
    m_proxy->setSourceModel(m_model);
    m_ui->tblJenisItem->setModel(m_proxy);
    m_ui->tblJenisItem->sortByColumn(codeColumn, Qt::AscendingOrder);
    select(codes.split(','));
}

DialogFilterJenisItem::~DialogFilterJenisItem() { m_model->clear(); }

void DialogFilterJenisItem::select(const QStringList& codes)
{
    QItemSelection rows;
    for (int row = 0; row < m_proxy->rowCount(); ++row) {
        const QModelIndex code = m_proxy->index(row, codeColumn);
        if (codes.contains(code.data().toString()))
            rows.select(code, code);
    }
    m_ui->tblJenisItem->selectionModel()->select(rows, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

QString DialogFilterJenisItem::selectedCodes() const
{
    QStringList codes;
    for (int row = 0; row < m_proxy->rowCount(); ++row) {
        if (m_ui->tblJenisItem->selectionModel()->isRowSelected(row, QModelIndex()))
            codes.append(m_proxy->index(row, codeColumn).data().toString());
    }
    return codes.join(',');
}
