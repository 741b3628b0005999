#pragma once

#include "app/context/EntityPool.h"
#include "app/widgets/AppTab.h"

#include <memory>

class KorDialog;
class KorEntity;
class KorEntityModel;
class QLabel;
class QPushButton;
class QTableView;

namespace Ui
{
class LinesPage;
}

/**
 * The page of lines in a document's form: adds, edits and removes lines. Each item can be in one line only. Lines from
 * setLines() are borrowed; lines added here are children of the page.
 */
class AppLinesTab : public AppTab
{
    Q_OBJECT

public:
    using Lines = QList<KorEntity*>;

    explicit AppLinesTab(QWidget* parent = nullptr);
    ~AppLinesTab() override;

    [[nodiscard]] const Lines& lines() const { return m_lines; }
    [[nodiscard]] const Lines& removedLines() const { return m_removed; }
    void setLines(const Lines& lines);
    void focusLines();

signals:
    /** The list of lines or a line has changed. */
    void ItemAdded();
    /** The user has cancelled the form for a further line. */
    void AddingEnded();

public slots:
    virtual void on_btnAdd_clicked();
    void on_btnEdit_clicked();
    void on_btnDelete_clicked();

protected:
    /** The widgets that every page has. */
    struct Parts
    {
        QTableView* grid = nullptr;
        QLabel* count = nullptr;
    };
    enum OwnForm { HasOwnForm };
    /** For a page with its own form; call setParts() before anything else. */
    AppLinesTab(OwnForm, QWidget* parent);
    void setParts(const Parts& parts);

    // Defined by subclasses.
    /** A new unsaved line; the page takes ownership. */
    virtual KorEntity* createLine() = 0;
    virtual KorEntityModel* createModel(const Lines& lines) = 0;
    /** The form for this line, which writes to it only when confirmed. Records that the form reads go to the pool. */
    virtual std::unique_ptr<KorDialog> createDialog(EntityPool& read, const KorEntity& line) = 0;
    /** Called when a form is closed, confirmed or not. */
    virtual void dialogClosed(const KorDialog&) {}
    /** What may be in one line only: the id of the item. */
    [[nodiscard]] virtual int subjectOf(const KorEntity& line) const = 0;
    [[nodiscard]] virtual QString nameOf(const KorEntity& line) const = 0;
    /** The question before a line is replaced; %1 is the name of the item. */
    [[nodiscard]] virtual QString updateQuestion() const = 0;
    /** Copies the entered values to the existing line. */
    virtual void takeOver(KorEntity* present, const KorEntity& entered) = 0;
    [[nodiscard]] virtual QList<int> columnWidths() const { return {}; }

    /** Opens a form for each new line until one is cancelled. */
    void addLines();
    /** Replaces the lines shown; those missing from the new list count as removed. */
    void replaceLines(const Lines& lines);
    /** Shows the lines. A concrete page calls it once at the end of its constructor. */
    void refresh();
    /** Call it after the lines or their values have changed. */
    void linesChanged();
    /** Adds a button after the standard ones; the caller connects it. */
    QPushButton* addButton(const QString& name, const QString& text, const QString& icon);
    /** Hides "Add": lines that come from another document can only be edited and removed. */
    void takeAddAway();
    [[nodiscard]] QTableView* grid() const { return m_parts.grid; }
    [[nodiscard]] EntityPool& pool() { return m_read; }

private:
    bool runDialog(KorEntity* line);
    void take(KorEntity* line);
    [[nodiscard]] Lines selectedLines() const;

    std::unique_ptr<Ui::LinesPage> m_ui;
    Parts m_parts{};
    KorEntityModel* m_model = nullptr;
    // The records that the lines added here point to.
    EntityPool m_read;
    Lines m_lines;
    Lines m_removed;
};
