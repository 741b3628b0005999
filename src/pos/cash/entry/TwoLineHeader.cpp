#include "pos/cash/entry/TwoLineHeader.h"

#include <QHeaderView>
#include <QTableView>

void setTwoLineHeader(QTableView* grid)
{
    constexpr int margin = 12;
    QHeaderView* header = grid->horizontalHeader();
    header->setDefaultAlignment(Qt::AlignCenter | static_cast<Qt::Alignment>(Qt::TextWordWrap));
    header->setMinimumHeight(2 * header->fontMetrics().lineSpacing() + margin);
}
