#include "zavel/commission/TabKomisiAgen.h"

#include "app/persistence/AppDocumentLines.h"
#include "app/widgets/RecordField.h"
#include "kor/business/KorServiceDirectory.h"
#include "pos/masterdata/agent/AgentTextBox.h"
#include "zavel/commission/CommissionFilters.h"
#include "zavel/commission/DialogKomisiAgen.h"
#include "zavel/commission/EntityKomisiAgen.h"
#include "zavel/commission/TableModelKomisiAgen.h"
#include "zavel/service/BusinessPenjualan.h"

#include <QDateEdit>

namespace
{
EntityKomisiAgen* commission(KorEntity* entity) { return static_cast<EntityKomisiAgen*>(entity); }
} // namespace

TabKomisiAgen::TabKomisiAgen(QWidget* parent)
    : AppListTab({tr("Agent Commission Payments"), "tblKomisiAgen", "Sales"}, 4, parent)
{
    const QDate today = QDate::currentDate();
    m_from = filters()->addDate("dateFrom", tr("From Date :"), today.addDays(1 - today.day()));
    m_to = filters()->addDate("dateTo", tr("To Date :"), today);
    QLineEdit* agent = filters()->addText("txtAgent", tr("Agent :"));
    m_number = filters()->addText("txtNo", tr("Code :"));
    m_agent = new RecordField<EntityAgent>(new AgentTextBox(agent, service<BusinessAgent>("Agent")));
    connect(m_agent, &RecordFieldBase::chosen, this, &TabKomisiAgen::onAgentSelected);
    refresh();
}

void TabKomisiAgen::onAgentSelected() { refresh(); }

QList<KorEntity*> TabKomisiAgen::readRows(const QString&)
{
    CommissionFilter filter;
    filter.from = m_from->date();
    filter.to = m_to->date();
    filter.agentId = m_agent->filterId(business());
    filter.number = m_number->text();
    return asEntities(businessAs<BusinessPenjualan>()->searchKomisiAgen(filter));
}

KorEntityModel* TabKomisiAgen::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelKomisiAgen(rows, this);
}

void TabKomisiAgen::modelApplied() { setColumnWidths(grid(), {120, 115, 185, 180, 195, 125}); }

std::unique_ptr<KorDialog> TabKomisiAgen::createDialog() { return std::make_unique<DialogKomisiAgen>(this); }

QString TabKomisiAgen::deleteQuestion(const KorEntity* entity) const
{
    return tr("Are you sure you want to delete Payment with No: %1")
        .arg(static_cast<const EntityKomisiAgen*>(entity)->getNo());
}

int TabKomisiAgen::addKey() const { return BusinessPenjualan::BAYAR_KOMISI_AGEN; }

int TabKomisiAgen::editKey() const { return BusinessPenjualan::UPDATE_BAYAR_KOMISI_AGEN; }

int TabKomisiAgen::deleteKey() const { return BusinessPenjualan::HAPUS_BAYAR_KOMISI; }

QString TabKomisiAgen::notFoundText(int id) const { return tr("Can not find Payment with id: %1").arg(id); }

KorEntity* TabKomisiAgen::readEntity(int id) { return businessAs<BusinessPenjualan>()->findKomisiAgen(id); }

bool TabKomisiAgen::insertEntity(KorEntity* entity)
{
    return businessAs<BusinessPenjualan>()->insertCommision(commission(entity));
}

bool TabKomisiAgen::updateEntity(KorEntity* entity)
{
    return businessAs<BusinessPenjualan>()->updateCommision(commission(entity));
}

bool TabKomisiAgen::removeEntity(KorEntity* entity)
{
    return businessAs<BusinessPenjualan>()->remove(commission(entity));
}
