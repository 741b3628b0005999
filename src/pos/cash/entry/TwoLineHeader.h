#pragma once

class QTableView;

/** Lets headers that are longer than what stands below them take two lines instead of a wider column. */
void setTwoLineHeader(QTableView* grid);
