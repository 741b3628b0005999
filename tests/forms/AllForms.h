#pragma once

#include <QList>
#include <QWidget>

#include <functional>
#include <memory>

class TestDatabase;

/** One screen of the program and how it is made, ready to be shown. Its name is its class, or its report's subject. */
struct Form
{
    QByteArray name;
    std::function<std::unique_ptr<QWidget>()> make;
};

/** Every page, every report, every dialog and the window itself. A new screen gets its line here. */
[[nodiscard]] const QList<Form>& allForms();

/** What the forms show: an administrator in a shop with rows in every table and open orders. */
void openShopForForms(TestDatabase& database);
