#pragma once

#include <QList>
#include <QWidget>

#include <functional>
#include <memory>

class TestDatabase;

/**
 * A page, dialog or window of the program and how to create it, ready to be shown. Its name is its class, or its
 * report's subject.
 */
struct Form
{
    QByteArray name;
    std::function<std::unique_ptr<QWidget>()> make;
};

/** All pages, reports, dialogs and the main window. Add new ones here. */
[[nodiscard]] const QList<Form>& allForms();

/** Prepares the data for the forms: an administrator, rows in every table, and open orders. */
void openShopForForms(TestDatabase& database);
