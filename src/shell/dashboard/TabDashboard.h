#pragma once

#include "kor/widgets/KorTab.h"

#include <memory>

class BusinessPenjualan;

namespace Ui
{
class TabDashboard;
}

/**
 * The start page: recent sales, and shortcuts for setting up the restaurant. The content is the web page
 * html/index.html beside the program; its script calls this object's public slots through the name "dashboard".
 */
class TabDashboard final : public KorTab
{
    Q_OBJECT

public:
    explicit TabDashboard(QWidget* parent = nullptr);
    ~TabDashboard() override;

public slots:
    [[nodiscard]] QString getUsername() const;
    // Both return JSON and read the database on every call.
    [[nodiscard]] QString getSalesChartData();
    [[nodiscard]] QString getSoldItemsData();
    /** JSON: the restaurant's number and money formats. */
    [[nodiscard]] QString getLocalization() const;
    /** JSON: the setup steps that are not done yet, "cashierprinter" and "kitchenprinter". */
    [[nodiscard]] QString getOpenSteps();
    /** Translates a text of the web page into the current language. */
    [[nodiscard]] QString translated(const QString& text) const;

    // Each asks the main window to open a page or dialog.
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
    /** The page is shown again; its figures may be out of date. */
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
