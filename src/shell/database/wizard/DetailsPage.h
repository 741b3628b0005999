#pragma once

#include "shell/database/tools/ConnectionEdits.h"

#include <QWizardPage>

class QFormLayout;

/** A wizard page with mandatory lines; the connection's lines start with the defaults. */
class DetailsPage : public QWizardPage
{
    Q_OBJECT

public:
    [[nodiscard]] bool isComplete() const override;
    void initializePage() override;
    /** Keeps the inputs when the user goes back. */
    void cleanupPage() override {}

protected:
    explicit DetailsPage(QWidget* parent);

    [[nodiscard]] QFormLayout* form() const { return m_form; }
    /** A mandatory line with this field name, not yet added to the form. */
    QLineEdit* makeLine(const QString& fieldName);
    /** The same, added as a row of the form. */
    QLineEdit* addLine(const QString& label, const QString& fieldName);
    QLineEdit* addPassword(const QString& label, const QString& fieldName);
    QLineEdit* addPort(const QString& label, const QString& fieldName);

    ConnectionEdits m_connection{};

private:
    QFormLayout* m_form;
    QList<QLineEdit*> m_lines;
    bool m_filled = false;
};
