#pragma once

#include <QObject>

class QTableView;

/**
 * The sizes of forms and the column widths that the user has set on this workstation, stored in their own file. Without
 * a file name nothing is remembered.
 */
class KorViewMemory final : public QObject
{
    Q_OBJECT

public:
    static void setFile(const QString& path);

    /** Restores the form's last size; does nothing if none is stored. */
    static void restoreSize(QWidget* form);
    static void rememberSize(const QWidget* form);

    /** Restores the columns' stored widths, and stores later changes by hand. */
    static void restoreColumns(QTableView* view, const QString& page);

private:
    KorViewMemory(QTableView* view, const QString& page);
    void restore() const;
    void noteWidth(int column, int formerWidth, int width) const;
    [[nodiscard]] QString key(int column) const;

    QTableView* m_view;
    QString m_page;
};
