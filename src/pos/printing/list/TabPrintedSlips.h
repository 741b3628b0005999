#pragma once

#include "app/widgets/AppTab.h"
#include "pos/printing/slips/KeptSlip.h"

class AppFilterBar;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QSplitter;
class QTableView;
class QTimer;
class SlipPaper;
class TableModelPrintedSlips;

/**
 * The slips that this workstation printed: a list with filters, a preview of the selected slip, and printing it again.
 * It needs no database and updates itself.
 */
class TabPrintedSlips final : public AppTab
{
    Q_OBJECT

public:
    explicit TabPrintedSlips(QWidget* parent = nullptr);
    ~TabPrintedSlips() override;

public slots:
    void on_btnSearch_clicked();
    void on_btnRefresh_clicked();
    void on_btnPrintAgain_clicked();
    void on_btnClose_clicked();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    KorSortFilterProxyModel* createProxyModel() override;

private:
    void makeFilters();
    [[nodiscard]] QWidget* makePaper();
    [[nodiscard]] QWidget* makeButtons();
    QPushButton* makeButton(const QString& name, const QString& text, const QString& tip, const QString& icon,
                            const QString& key);

    void orderKeys();
    void scaleColumns();
    void reload();
    [[nodiscard]] QList<KorEntity*> readRows();
    [[nodiscard]] bool isWanted(const KeptSlip& slip) const;
    /** Offers the printers of these slips in the filter. */
    void offerPrinters(const QList<KeptSlip>& slips);
    void select(const QString& id);

    [[nodiscard]] const KeptSlip* chosen() const;
    void showChosen();
    /** Offers the slip's own printer first, then the known printers. */
    void offerTargets();
    /** Asks on another thread, because a print server can be slow. */
    void askForPrinters();

    AppFilterBar* m_filters;
    QDateEdit* m_from = nullptr;
    QDateEdit* m_to = nullptr;
    QLineEdit* m_number = nullptr;
    QComboBox* m_kind = nullptr;
    QComboBox* m_state = nullptr;
    QComboBox* m_printer = nullptr;
    QSplitter* m_splitter;
    QTableView* m_grid;
    TableModelPrintedSlips* m_model = nullptr;
    SlipPaper* m_paper = nullptr;
    QLabel* m_outcome = nullptr;
    QLabel* m_count = nullptr;
    QComboBox* m_target = nullptr;
    QPushButton* m_again = nullptr;
    QTimer* m_changed;
    QStringList m_available;
    QStringList m_targets;
    // The id of the slip in the preview; if it is unchanged after a refresh, the preview keeps its scroll position.
    QString m_shown;
};
