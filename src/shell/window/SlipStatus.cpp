#include "shell/window/SlipStatus.h"

#include "app/widgets/StatusMark.h"
#include "pos/printing/slips/SlipArchive.h"
#include "pos/printing/slips/SlipQueue.h"

namespace
{
QString printersOf(QStringList names)
{
    names.removeDuplicates();
    constexpr int most = 3;
    if (names.size() > most)
        names = names.mid(0, most) << QStringLiteral("...");
    return names.join(", ");
}
} // namespace

SlipStatus::SlipStatus(QWidget* parent) : QToolButton(parent)
{
    setObjectName("btnSlipStatus");
    setAutoRaise(true);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setFocusPolicy(Qt::NoFocus);
    // Fixed height: the status bar keeps this space even while it is hidden, so pages do not change their size.
    constexpr int margins = 4;
    setFixedHeight(fontMetrics().height() + margins);
    const auto* queue = SlipQueue::instance();
    connect(queue, &SlipQueue::waitingChanged, this, &SlipStatus::refresh);
    connect(queue, &SlipQueue::failedLater, this, &SlipStatus::noteFailure);
    connect(queue, &SlipQueue::unsent, this, &SlipStatus::noteFailure);
    connect(SlipArchive::instance(), &SlipArchive::trouble, this, [this](const QString& reason) {
        m_trouble = reason;
        refresh();
    });
    connect(this, &QToolButton::clicked, this, &SlipStatus::acknowledge);
    refresh();
}

void SlipStatus::noteFailure(const KeptSlip& slip)
{
    // Without a printer every slip would give the same message.
    if (slip.state == KeptSlip::Unsent && !m_failures.isEmpty() && m_failures.last().state == KeptSlip::Unsent)
        return;
    m_failures.append(slip);
    refresh();
}

void SlipStatus::acknowledge()
{
    m_failures.clear();
    m_trouble.clear();
    refresh();
    emit listWanted();
}

QString SlipStatus::waitingText()
{
    const QStringList printers = SlipQueue::instance()->waitingPrinters();
    if (printers.isEmpty())
        return {};
    if (printers.size() == 1)
        return tr("1 slip waiting: %1").arg(printers.first());
    return tr("%1 slips waiting: %2").arg(printers.size()).arg(printersOf(printers));
}

QString SlipStatus::failureText() const
{
    QStringList printers;
    for (const KeptSlip& slip : m_failures) {
        if (slip.isNotPrinted())
            printers.append(slip.printer);
    }
    if (printers.size() == 1)
        return tr("1 slip was not printed: %1").arg(printers.first());
    if (!printers.isEmpty())
        return tr("%1 slips were not printed: %2").arg(printers.size()).arg(printersOf(printers));
    if (!m_failures.isEmpty())
        return tr("No printer is chosen yet: slips are kept and shown");
    return m_trouble.isEmpty() ? QString() : tr("Slips are printed, but they cannot be kept");
}

void SlipStatus::refresh()
{
    const QString failure = failureText();
    const QStringList texts{failure, waitingText()};
    QStringList told;
    for (const QString& text : texts) {
        if (!text.isEmpty())
            told.append(text);
    }
    setText(told.join("  |  "));
    QStringList reasons;
    for (const KeptSlip& slip : qAsConst(m_failures))
        reasons.append(slip.printer + ": " + slip.reason);
    setToolTip(reasons.isEmpty() ? m_trouble : reasons.join('\n'));
    setIcon(statusMark(failure.isEmpty() ? "waiting" : "unpaid"));
    QFont weight = font();
    weight.setBold(!failure.isEmpty());
    setFont(weight);
    setVisible(!told.isEmpty());
}
