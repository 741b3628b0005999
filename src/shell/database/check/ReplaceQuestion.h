#pragma once

#include <QCoreApplication>

class QWidget;

/** Asks before the tables of the open database are made anew. */
class ReplaceQuestion
{
    Q_DECLARE_TR_FUNCTIONS(ReplaceQuestion)

public:
    enum Answer { Replace, Leave, UseAsItIs };
    enum Offer { ReplaceOnly, UseToo };

    /** Replace without a question where there are no tables; use is offered only of a database that can be used. */
    [[nodiscard]] static Answer ask(QWidget* parent, Offer offer = ReplaceOnly);
};
