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
 * Makes a form's line edit find records while the user types: half a second after the last key it searches, and shows
 * the rows in a list below the field. A subclass tells how to search and what stands in the rows.
 */
class KorTextBoxExtender : public QWidget
{
    Q_OBJECT

public:
    KorTextBoxExtender(QLineEdit* editor, KorBusinessLogic* business);
    ~KorTextBoxExtender() override;

    virtual void search(const QString& text);
    [[nodiscard]] virtual QVariant rowText(int row, int column) const;
    /** What goes into the line edit when this row is chosen; without a subclass's word, the first column's text. */
    [[nodiscard]] virtual QString selectedText(int row) const;

    void setColumnCount(int count);
    [[nodiscard]] int columnCount() const { return m_columnCount; }
    void setRowCount(int count) { m_rowCount = count; }
    [[nodiscard]] int rowCount() const { return m_rowCount; }
    void setHeaderLabels(const QStringList& labels);
    void setResult(QAbstractItemModel* result);
    /** -1 as long as nothing is chosen. */
    [[nodiscard]] int selectedRow() const { return m_currentRow; }
    /** The widget that gets the focus after a choice. */
    void setNextWidget(QWidget* widget) { m_nextWidget = widget; }
    [[nodiscard]] QWidget* nextWidget() const { return m_nextWidget; }

    /**
     * How the form itself takes the code that stands in the box, if it knows better than the search: false lets the
     * list come up. Enter belongs to the box as long as the code is not taken, also when it was not typed just now.
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
    /** Takes the current row of the list as the user's choice. */
    void doneCompletion();
    /** Drops a search that is due. A form that sets the text on its own calls it, so that no list follows. */
    void preventSuggest();
    void autoSuggest();
    /** Shows what the search has found. */
    void searchComplete();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    /** A row has been chosen, -1 for none; called before the text goes into the line edit. */
    virtual void rowChosen(int row);
    /** Searches without showing the list; the row whose code is just this text, or -1. */
    [[nodiscard]] virtual int findExact(const QString& text);

private:
    void fillPopup();
    void placePopup();
    bool popupKey(QKeyEvent* event);
    /** Whether Enter is the box's own: it has a text that nothing was made of yet. */
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
