#pragma once

#include "shell/database/tools/ConnectionEdits.h"

#include <QWizardPage>

class QFormLayout;

/** A page on which every line has to be filled; the connection's lines begin with the usual values. */
class DetailsPage : public QWizardPage
{
    Q_OBJECT

public:
    [[nodiscard]] bool isComplete() const override;
    void initializePage() override;
    /** Going back keeps what was entered. */
    void cleanupPage() override {}

protected:
    explicit DetailsPage(QWidget* parent);

    [[nodiscard]] QFormLayout* form() const { return m_form; }
    /** A mandatory line under this field name, not in the form yet. */
    QLineEdit* makeLine(const QString& fieldName);
    /** The same as a row of the form. */
    QLineEdit* addLine(const QString& label, const QString& fieldName);
    QLineEdit* addPassword(const QString& label, const QString& fieldName);
    QLineEdit* addPort(const QString& label, const QString& fieldName);

    ConnectionEdits m_connection{};

private:
    QFormLayout* m_form;
    QList<QLineEdit*> m_lines;
    bool m_filled = false;
};
