#include "pos/printing/slips/SlipBox.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>

namespace
{
/** Adds a line above the box's text, in the same column. */
void putAbove(QMessageBox* box, const QString& line)
{
    auto* grid = qobject_cast<QGridLayout*>(box->layout());
    auto* text = box->findChild<QLabel*>("qt_msgbox_label");
    const int index = grid && text ? grid->indexOf(text) : -1;
    if (index < 0)
        return;
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    grid->getItemPosition(index, &row, &column, &rows, &columns);
    auto* both = new QVBoxLayout;
    auto* first = new QLabel(line, box);
    first->setObjectName("lblStanding");
    first->setTextFormat(Qt::PlainText);
    QFont bold = first->font();
    bold.setBold(true);
    first->setFont(bold);
    grid->removeWidget(text);
    both->addWidget(first);
    both->addWidget(text);
    grid->addLayout(both, row, column, rows, columns);
    box->setAccessibleDescription(line);
}
} // namespace

void SlipBox::tell(const QString& standing, const QString& told)
{
    QMessageBox box(QMessageBox::Critical, QCoreApplication::translate("AppLinePrinter", "Error"), told,
                    QMessageBox::Ok, QApplication::activeWindow());
    if (!standing.isEmpty())
        putAbove(&box, standing);
    box.exec();
}
