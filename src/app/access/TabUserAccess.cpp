#include "app/access/TabUserAccess.h"

#include "app/access/BusinessPermission.h"
#include "app/access/BusinessUserAccess.h"
#include "app/access/BusinessUserGroup.h"
#include "app/access/DialogUserAccess.h"
#include "app/access/EntityAccess.h"
#include "app/access/TableModelUserAccess.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/persistence/KorDataMapper.h"
#include "kor/widgets/KorErrorBox.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>

TabUserAccess::TabUserAccess(QWidget* parent)
    : AppListTab({tr("User Access"), "tblPermission", "User Access"}, parent), m_groups(new QComboBox(this)),
      m_businesses(new QListWidget(this))
{
    arrange();
    takeAddAndDeleteAway();
    fillChoices();
    connect(m_groups, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &TabUserAccess::choiceChanged);
    connect(m_businesses, &QListWidget::currentRowChanged, this, &TabUserAccess::choiceChanged);
    refresh();
}

void TabUserAccess::arrange()
{
    // This page shows the choice of group and service instead of the filter.
    while (QLayoutItem* item = filterLayout()->takeAt(0)) {
        if (item->widget())
            item->widget()->hide();
        delete item;
    }
    auto* caption = new QLabel(tr("Group :"), this);
    m_groups->setObjectName("cbGroup");
    m_groups->setMinimumWidth(240);
    caption->setBuddy(m_groups);
    filterLayout()->addWidget(caption);
    filterLayout()->addWidget(m_groups);
    filterLayout()->addStretch();

    auto* splitter = new QSplitter(Qt::Horizontal, this);
    delete layout()->replaceWidget(grid(), splitter);
    m_businesses->setObjectName("lvBusiness");
    m_businesses->setAlternatingRowColors(true);
    splitter->addWidget(m_businesses);
    splitter->addWidget(grid());
    splitter->setChildrenCollapsible(false);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({240, 660});
    setTabOrder(m_groups, m_businesses);
    setTabOrder(m_businesses, grid());
    setTabOrder(grid(), button("btnEdit"));
}

void TabUserAccess::fillChoices()
{
    EntityPool pool;
    const EntityPoolScope scope(pool);
    auto* groups = service<BusinessUserGroup>("User Group");
    auto* permissions = service<BusinessPermission>("Permission");
    KorErrorScope errors({groups, permissions});
    for (const auto* group : castAll<EntityUserGroup>(groups->findAll(QString())))
        m_groups->addItem(group->getGroupName(), group->getId());
    for (const auto* business : castAll<EntityBusiness>(permissions->getBusinesses())) {
        auto* item = new QListWidgetItem(business->getName(), m_businesses);
        item->setData(Qt::UserRole, business->getId());
        item->setSizeHint({0, grid()->verticalHeader()->defaultSectionSize()});
    }
    m_businesses->setCurrentRow(0);
    KorErrorBox::tell(this, errors.take());
}

void TabUserAccess::choiceChanged()
{
    // Keep the focus, so that the user can move through the list of services with the arrow keys.
    QWidget* chooser = focusWidget();
    refresh();
    if (chooser)
        chooser->setFocus();
}

int TabUserAccess::groupId() const { return m_groups->currentData().toInt(); }

QList<KorEntity*> TabUserAccess::readRows(const QString& filter)
{
    Q_UNUSED(filter)
    m_grants.clear();
    const QListWidgetItem* business = m_businesses->currentItem();
    if (!business)
        return {};
    const QList<KorEntity*> rights = businessAs<BusinessUserAccess>()->findByGroup(groupId());
    for (const auto* access : castAll<EntityAccess>(rights))
        m_grants.insert(access->getPermission()->getId(), access->getGrant());
    auto* permissions = service<BusinessPermission>("Permission");
    KorErrorScope errors(permissions);
    const QList<KorEntity*> rows = permissions->getPermissionByBusiness(business->data(Qt::UserRole).toInt());
    KorErrorBox::tell(this, errors.take());
    return rows;
}

KorEntityModel* TabUserAccess::createModel(const QList<KorEntity*>& rows)
{
    return new TableModelUserAccess(rows, m_grants, this);
}

std::unique_ptr<KorDialog> TabUserAccess::createDialog() { return std::make_unique<DialogUserAccess>(this); }

KorEntity* TabUserAccess::readEntity(int id)
{
    if (EntityAccess* stored = businessAs<BusinessUserAccess>()->findAccess(groupId(), id))
        return stored;
    auto* group = static_cast<EntityUserGroup*>(service<BusinessUserGroup>("User Group")->find(groupId()));
    auto* permission = static_cast<EntityPermission*>(service<BusinessPermission>("Permission")->find(id));
    if (!group || !permission)
        return nullptr;
    auto* access = new EntityAccess;
    access->setGroup(group);
    access->setPermission(permission);
    access->setGrant(EntityAccess::Undecided);
    return access;
}

bool TabUserAccess::updateEntity(KorEntity* entity)
{
    const auto* access = static_cast<EntityAccess*>(entity);
    return businessAs<BusinessUserAccess>()->setGrant(access->getGroup(), access->getPermission(), access->getGrant());
}

void TabUserAccess::edited()
{
    QMessageBox::information(this, tr("Info"), tr("Application needs to be restarted to take the effect"));
}
