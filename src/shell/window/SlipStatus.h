#pragma once

#include "pos/printing/slips/KeptSlip.h"

#include <QList>
#include <QToolButton>

/**
 * Shows in the status bar which printers slips are waiting for, and which slips failed to print. A failure stays until
 * the user clicks it. Hidden if there is nothing to show.
 */
class SlipStatus final : public QToolButton
{
    Q_OBJECT

public:
    explicit SlipStatus(QWidget* parent);

    void retranslate() { refresh(); }

signals:
    /** The user has seen the failures and wants the list of slips. */
    void listWanted();

private:
    void refresh();
    void noteFailure(const KeptSlip& slip);
    void acknowledge();
    [[nodiscard]] static QString waitingText();
    [[nodiscard]] QString failureText() const;

    QList<KeptSlip> m_failures;
    QString m_trouble;
};
