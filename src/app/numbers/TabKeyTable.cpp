#include "app/numbers/TabKeyTable.h"

#include <QTableView>

TabKeyTable::TabKeyTable(QWidget* parent) : AppFamilyTab({tr("Running Numbers"), "tblKeyTable", "KeyTable"}, parent)
{
    takeAddAndDeleteAway();
    refresh();
}

void TabKeyTable::modelApplied()
{
    grid()->setColumnWidth(2, 130);
    grid()->setColumnWidth(3, 130);
}
