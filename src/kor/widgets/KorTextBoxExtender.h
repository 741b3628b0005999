#pragma once

#include <QPointer>
#include <QStringList>
#include <QVariant>
#include <QWidget>

#include <functional>
#include <memory>

class KorBusinessLogic;
class QAbstractItemModel;
class QKeyEvent;
class QLineEdit;
class QTimer;
class QTreeWidget;

/**
 * Lets a line edit find records while the user types: half a second after the last key it searches and lists the rows
 * below the field. A subclass does the search and fills the rows.
 */
class KorTextBoxExtender : public QWidget
{
    Q_OBJECT

public:
    KorTextBoxExtender(QLineEdit* editor, KorBusinessLogic* business);
    ~KorTextBoxExtender() override;

    virtual void search(const QString& text);
    [[nodiscard]] virtual QVariant rowText(int row, int column) const;
    /** The text for the line edit when this row is chosen; by default the first column's text. */
    [[nodiscard]] virtual QString selectedText(int row) const;

    void setColumnCount(int count);
    [[nodiscard]] int columnCount() const { return m_columnCount; }
    void setRowCount(int count) { m_rowCount = count; }
    [[nodiscard]] int rowCount() const { return m_rowCount; }
    void setHeaderLabels(const QStringList& labels);
    void setResult(QAbstractItemModel* result);
    /** -1 if nothing is chosen. */
    [[nodiscard]] int selectedRow() const { return m_currentRow; }
    /** The widget that gets the focus after a choice. */
    void setNextWidget(QWidget* widget) { m_nextWidget = widget; }
    [[nodiscard]] QWidget* nextWidget() const { return m_nextWidget; }

    /**
     * Lets the form take the code in the box itself. If taker returns false, the list opens. Until isTaken returns
     * true, Enter belongs to the box, even if the code was not typed just now.
     */
    void setTaker(std::function<bool()> taker, std::function<bool()> isTaken)
    {
        m_taker = std::move(taker);
        m_isTaken = std::move(isTaken);
    }

    [[nodiscard]] QLineEdit* editor() const { return m_editor; }
    [[nodiscard]] KorBusinessLogic* business() const { return m_business; }

signals:
    void onSearchComplete();
    void onItemSelected();

public slots:
    /** Chooses the current row of the list. */
    void doneCompletion();
    /** Cancels a pending search. Forms call it when they set the text, so that no list opens. */
    void preventSuggest();
    void autoSuggest();
    /** Shows the search result. */
    void searchComplete();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    /** Called when a row is chosen (-1 for none), before the line edit's text is set. */
    virtual void rowChosen(int row);
    /** Searches without showing the list; the row whose code equals the text, or -1. */
    [[nodiscard]] virtual int findExact(const QString& text);

private:
    void fillPopup();
    void placePopup();
    bool popupKey(QKeyEvent* event);
    /** Whether Enter belongs to the box: it has a text that was not taken yet. */
    [[nodiscard]] bool wantsEnter(const QKeyEvent& key) const;
    void takeTyped();
    void choose(int row);

    KorBusinessLogic* m_business;
    QLineEdit* m_editor;
    std::unique_ptr<QTreeWidget> m_popup;
    QTimer* m_timer;
    QPointer<QAbstractItemModel> m_result;
    int m_columnCount = 0;
    int m_rowCount = 0;
    int m_currentRow = -1;
    QPointer<QWidget> m_nextWidget;
    std::function<bool()> m_taker;
    std::function<bool()> m_isTaken;
};
