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
 * The page of lines in the form of a document: adding line after line, changing and taking lines off. A thing stands
 * in one line only. Lines that are handed in stay the caller's; lines that are added here live as long as the page.
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
    /** The lines are others than before. */
    void ItemAdded();
    /** The round of adding lines, one after the other, is over. */
    void AddingEnded();

public slots:
    virtual void on_btnAdd_clicked();
    void on_btnEdit_clicked();
    void on_btnDelete_clicked();

protected:
    /** What every page of lines has, whoever made its form. */
    struct Parts
    {
        QTableView* grid = nullptr;
        QLabel* count = nullptr;
    };
    enum OwnForm { HasOwnForm };
    /** For a page with a form of its own, which hands its parts in before anything else. */
    AppLinesTab(OwnForm, QWidget* parent);
    void setParts(const Parts& parts);

    // What a family tells.
    /** An unsaved line; the page takes it. */
    virtual KorEntity* createLine() = 0;
    virtual KorEntityModel* createModel(const Lines& lines) = 0;
    /** The form of this line, which only writes to it when it is confirmed. What it reads goes to the pool. */
    virtual std::unique_ptr<KorDialog> createDialog(EntityPool& read, const KorEntity& line) = 0;
    /** Called when a form is closed, confirmed or not. */
    virtual void dialogClosed(const KorDialog&) {}
    /** What may stand in one line only: the id of the item. */
    [[nodiscard]] virtual int subjectOf(const KorEntity& line) const = 0;
    [[nodiscard]] virtual QString nameOf(const KorEntity& line) const = 0;
    /** With the name of the thing as %1. */
    [[nodiscard]] virtual QString updateQuestion() const = 0;
    /** Puts what was entered into the line that stands already. */
    virtual void takeOver(KorEntity* present, const KorEntity& entered) = 0;
    [[nodiscard]] virtual QList<int> columnWidths() const { return {}; }

    /** Opens form after form for new lines, until one is cancelled. */
    void addLines();
    /** Other lines in place of those shown; what leaves counts as taken off. */
    void replaceLines(const Lines& lines);
    /** Shows the lines. A concrete page calls it once at the end of its constructor. */
    void refresh();
    /** The lines or what they hold have changed. */
    void linesChanged();
    /** A further button behind those that every page has; the caller connects it. */
    QPushButton* addButton(const QString& name, const QString& text, const QString& icon);
    /** For lines that come from another document: they are changed and taken off, and that is all. */
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
    // What lines that were added here show.
    EntityPool m_read;
    Lines m_lines;
    Lines m_removed;
};
