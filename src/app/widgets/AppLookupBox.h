#pragma once

#include "app/context/EntityPool.h"
#include "kor/entity/KorEntity.h"
#include "kor/widgets/KorTextBoxExtender.h"

/**
 * A lookup box for records. A chosen record lives as long as the box, because forms still use it during the next
 * search; all other found records are deleted by that search.
 *
 * The best match is the first row, whatever order the service returns: equal code, code that starts with the text, name
 * that starts with it, a word in the name that starts with it, others; equal matches are sorted by code. So Enter gives
 * fast typists the same record that others pick from the list.
 *
 * Subclasses derive from the templates in AppEntityTextBox.h, which have the record's type.
 */
class AppLookupBox : public KorTextBoxExtender
{
    Q_OBJECT

public:
    AppLookupBox(QLineEdit* editor, KorBusinessLogic* business, const QStringList& headers);

    void search(const QString& text) override;
    [[nodiscard]] QVariant rowText(int row, int column) const override;
    [[nodiscard]] QString selectedText(int row) const override;

    [[nodiscard]] const QList<KorEntity*>& items() const { return m_items; }
    /** The code of the chosen record; empty if none is chosen. */
    [[nodiscard]] QString selectedCode() const;
    [[nodiscard]] virtual QString codeOf(const KorEntity& record) const;
    [[nodiscard]] virtual QString nameOf(const KorEntity& record) const;

protected:
    /** Searches with the service; an empty list if nothing is found or it fails. */
    virtual QList<KorEntity*> find(const QString& text) = 0;
    /** The text of the third column. */
    [[nodiscard]] virtual QString thirdOf(const KorEntity& record) const;

    [[nodiscard]] KorEntity* selectedRecord() const { return m_items.isEmpty() ? nullptr : m_selected.data(); }
    void rowChosen(int row) override;
    [[nodiscard]] int findExact(const QString& text) override;

private:
    void findSorted(const QString& text);
    void keep(QObject* record);

    EntityPool m_found;
    EntityPool m_kept;
    QList<KorEntity*> m_items;
    QPointer<KorEntity> m_selected;
};
