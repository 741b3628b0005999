#pragma once

#include "kor/widgets/KorTab.h"

#include <memory>

class BusinessPenjualan;

namespace Ui
{
class TabDashboard;
}

/**
 * The first page of the day: the last sales and the shortcuts to set the restaurant up. What it looks like is up to
 * the web page html/index.html beside the program; the page calls this object's public slots as "dashboard".
 */
class TabDashboard final : public KorTab
{
    Q_OBJECT

public:
    explicit TabDashboard(QWidget* parent = nullptr);
    ~TabDashboard() override;

public slots:
    [[nodiscard]] QString getUsername() const;
    // JSON. Every call asks the database anew.
    [[nodiscard]] QString getSalesChartData();
    [[nodiscard]] QString getSoldItemsData();
    /** JSON: how the restaurant writes numbers and money. */
    [[nodiscard]] QString getLocalization() const;
    /** JSON: the screens of the steps that are still open, "cashierprinter" and "kitchenprinter". */
    [[nodiscard]] QString getOpenSteps();
    /** A text of the page in the program's language. */
    [[nodiscard]] QString translated(const QString& text) const;

    // Each asks the main window for a screen.
    void companyprofile() { emit callMainWindowCmd("companyprofile"); }
    void cashierprinter() { emit callMainWindowCmd("cashier"); }
    void kitchenprinter() { emit callMainWindowCmd("kitchenprinter"); }
    void itemtype() { emit callMainWindowCmd("itemtype"); }
    void unit() { emit callMainWindowCmd("unit"); }
    void table() { emit callMainWindowCmd("table"); }
    void item() { emit callMainWindowCmd("item"); }
    void beginingbalance() { emit callMainWindowCmd("beginingbalance"); }
    void cash() { emit callMainWindowCmd("cash"); }
    void salesorder() { emit callMainWindowCmd("salesorder"); }
    void fastfood() { emit callMainWindowCmd("fastfood"); }

signals:
    void callMainWindowCmd(const QString& cmd);
    /** The user has come back to the page, whose figures may be old by now. */
    void shownAgain();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void populateJavaScriptWindowObject();
    void bindMainWnd();
    void tellErrors();

    std::unique_ptr<Ui::TabDashboard> m_ui;
    BusinessPenjualan* m_sales;
    bool m_shownBefore = false;
};
