#pragma once

#include "pos/printing/slips/KeptSlip.h"

#include <QList>
#include <QToolButton>

/**
 * What the status bar tells of slips: which printers they wait for, and what was not printed although the till went on.
 * A failure stays until somebody presses it. Hidden where there is nothing to tell.
 */
class SlipStatus final : public QToolButton
{
    Q_OBJECT

public:
    explicit SlipStatus(QWidget* parent);

    void retranslate() { refresh(); }

signals:
    /** The failures have been seen; the list of slips is wanted. */
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
