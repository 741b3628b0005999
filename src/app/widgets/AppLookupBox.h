#pragma once

#include "app/context/EntityPool.h"
#include "kor/entity/KorEntity.h"
#include "kor/widgets/KorTextBoxExtender.h"

/**
 * A lookup box for records. It keeps what the last search found; a chosen record lives as long as the box, because
 * forms hold on to it while the user searches on, and everything else that was found goes with the next search.
 * Whatever order the service reads in, the rows stand by how well they match: the code itself, a code that begins with
 * the text, a name, a word of a name, the rest; then by code. So the first row is what fast and slow hands mean alike.
 * Families derive from the templates in AppEntityTextBox.h, which know the record's type.
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
    /** The code of the chosen record, empty without a choice. */
    [[nodiscard]] QString selectedCode() const;
    [[nodiscard]] virtual QString codeOf(const KorEntity& record) const;
    [[nodiscard]] virtual QString nameOf(const KorEntity& record) const;

protected:
    /** Asks the service; what it cannot find, or fails to, is an empty list. */
    virtual QList<KorEntity*> find(const QString& text) = 0;
    /** What a third column shows. */
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
