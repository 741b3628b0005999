#pragma once

class QTableView;

/** Wraps long header texts into two lines, so that they do not need wider columns. */
void setTwoLineHeader(QTableView* grid);
