#include "kor/widgets/KorWaitingPanel.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace
{
const QColor veil(31, 41, 51, 90);
constexpr int room = 24;
constexpr int cardWidth = 400;
} // namespace

KorWaitingPanel::KorWaitingPanel(QWidget* window)
    : QWidget(window, window ? Qt::Widget : Qt::SplashScreen), m_holders(new QLabel), m_stop(new QPushButton),
      m_key(new QLabel)
{
    setObjectName("waitingForServer");
    auto* card = new QFrame;
    card->setFrameShape(QFrame::StyledPanel);
    card->setAutoFillBackground(true);
    card->setBackgroundRole(QPalette::Base);
    card->setFixedWidth(cardWidth);
    auto* title = new QLabel(tr("Waiting for the server..."));
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    title->setFont(large);
    m_holders->setWordWrap(true);
    m_holders->setObjectName("lblHolders");
    m_stop->setText(tr("Stop waiting"));
    m_stop->setFocusPolicy(Qt::NoFocus);
    m_stop->setObjectName("btnStopWaiting");
    m_key->setText(tr("or press Esc"));
    auto* content = new QGridLayout(card);
    content->setContentsMargins(room, room, room, room);
    content->setVerticalSpacing(room / 2);
    content->addWidget(title, 0, 0, 1, 2);
    content->addWidget(m_holders, 1, 0, 1, 2);
    content->addWidget(m_stop, 2, 0);
    content->addWidget(m_key, 2, 1);
    content->setColumnStretch(1, 1);
    auto* place = new QGridLayout(this);
    place->setContentsMargins(0, 0, 0, 0);
    place->addWidget(card, 0, 0, Qt::AlignCenter);
    tell({});
    offerStop(false);
    if (window)
        setGeometry(window->rect());
}

void KorWaitingPanel::tell(const QString& holders)
{
    const QString text = holders.isEmpty() ? QString() : tr("Working on the same records: %1").arg(holders);
    if (text == m_holders->text() && text.isEmpty() == m_holders->isHidden())
        return;
    m_holders->setText(text);
    m_holders->setVisible(!text.isEmpty());
}

void KorWaitingPanel::offerStop(bool offered)
{
    if (offered == offersStop())
        return;
    m_stop->setVisible(offered);
    m_key->setVisible(offered);
}

bool KorWaitingPanel::offersStop() const { return !m_stop->isHidden(); }

bool KorWaitingPanel::isStopAt(const QPoint& place) const
{
    return offersStop() && m_stop->rect().contains(m_stop->mapFromGlobal(place));
}

void KorWaitingPanel::paintEvent(QPaintEvent*)
{
    if (!isWindow())
        QPainter(this).fillRect(rect(), veil);
}
