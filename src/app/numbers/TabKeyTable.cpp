#include "app/numbers/TabKeyTable.h"

#include <QHeaderView>
#include <QTableView>

#include <algorithm>

TabKeyTable::TabKeyTable(QWidget* parent) : AppFamilyTab({tr("Running Numbers"), "tblKeyTable", "KeyTable"}, parent)
{
    takeAddAndDeleteAway();
    refresh();
}

void TabKeyTable::modelApplied()
{
    // Wider only if the workstation's font would cut off the header.
    for (int column : {2, 3})
        grid()->setColumnWidth(column, std::max(130, grid()->horizontalHeader()->sectionSizeHint(column)));
}
