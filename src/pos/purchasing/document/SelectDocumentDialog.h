#pragma once

#include "kor/entity/KorEntity.h"

#include <QDialog>

class SelectDocumentTab;

/** Lets the user choose one of a supplier's documents. A subclass sets the title and the page. */
class SelectDocumentDialog : public QDialog
{
    Q_OBJECT

public:
    /** The id of the chosen document; KorNoValue if none is chosen. */
    [[nodiscard]] int selectedId() const { return m_selectedId; }

    void accept() override;

protected:
    SelectDocumentDialog(const QString& title, SelectDocumentTab* page, const QString& pageTitle, QWidget* parent);

private:
    SelectDocumentTab* m_page;
    int m_selectedId = KorNoValue;
};
