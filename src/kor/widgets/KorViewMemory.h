#pragma once

#include <QObject>

class QTableView;

/**
 * What a person at this workstation has pulled into shape, kept in a file of its own: the sizes of forms and the
 * widths of grid columns. While no file is named, nothing is remembered.
 */
class KorViewMemory final : public QObject
{
    Q_OBJECT

public:
    static void setFile(const QString& path);

    /** Gives the form the size that it was left in; nothing where it never was. */
    static void restoreSize(QWidget* form);
    static void rememberSize(const QWidget* form);

    /** Gives the columns the widths that a person gave them, and notes from now on what is pulled by hand. */
    static void restoreColumns(QTableView* view, const QString& page);

private:
    KorViewMemory(QTableView* view, const QString& page);
    void restore() const;
    void noteWidth(int column, int formerWidth, int width) const;
    [[nodiscard]] QString key(int column) const;

    QTableView* m_view;
    QString m_page;
};
