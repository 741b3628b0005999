#pragma once

#include <QCoreApplication>

class QWidget;

/** Asks before an installation replaces the tables of the open database. */
class ReplaceQuestion
{
    Q_DECLARE_TR_FUNCTIONS(ReplaceQuestion)

public:
    enum Answer { Replace, Leave, UseAsItIs };
    enum Offer { ReplaceOnly, UseToo };

    /** Returns Replace without asking if there are no tables. UseAsItIs is offered only if the database is usable. */
    [[nodiscard]] static Answer ask(QWidget* parent, Offer offer = ReplaceOnly);
};
