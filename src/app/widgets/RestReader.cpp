#include "app/widgets/RestReader.h"

#include "app/context/AppContext.h"
#include "app/persistence/FoundRows.h"
#include "kor/persistence/KorServerCall.h"
#include "kor/widgets/KorEntityModel.h"

#include <QLocale>
#include <QMessageBox>
#include <QShortcut>
#include <QTimer>

namespace
{
constexpr int manyRows = 100000;
}

RestReader::RestReader(QWidget* page)
    : QObject(page), m_page(page), m_timer(new QTimer(this)), m_escape(new QShortcut(Qt::Key_Escape, page))
{
    m_escape->setContext(Qt::WidgetWithChildrenShortcut);
    m_escape->setEnabled(false);
    connect(m_escape, &QShortcut::activated, this, &RestReader::stop);
    connect(m_timer, &QTimer::timeout, this, &RestReader::readOn);
}

void RestReader::begin(std::shared_ptr<FoundRows> rows, KorEntityModel* model)
{
    end();
    m_rows = std::move(rows);
    m_model = model;
    if (!m_rows || m_rows->isComplete())
        return;
    m_escape->setEnabled(true);
    m_timer->start(0);
}

void RestReader::end()
{
    m_timer->stop();
    m_escape->setEnabled(false);
    m_rows.reset();
    m_model = nullptr;
    m_leftOutBefore = QDate();
    m_asked = false;
}

bool RestReader::isReading() const { return m_rows && !m_rows->isComplete(); }

void RestReader::stop()
{
    m_leftOutBefore = m_rows->reached();
    m_rows->stop();
    m_timer->stop();
    m_escape->setEnabled(false);
    emit advanced();
}

void RestReader::readOn()
{
    // The window lives while a statement takes long, and so does this timer.
    if (KorServerCall::isUnderWay())
        return;
    if (!mayGoOn()) {
        if (isReading())
            stop();
        return;
    }
    const bool read = m_rows->readOn();
    m_model->showNewRows();
    if (m_rows->isComplete()) {
        m_timer->stop();
        m_escape->setEnabled(false);
    }
    if (!read) {
        m_leftOutBefore = m_rows->reached();
        emit failed();
    }
    emit advanced();
}

bool RestReader::mayGoOn()
{
    if (m_asked || m_rows->count() < manyRows)
        return true;
    m_asked = true;
    m_timer->stop();
    const std::shared_ptr<FoundRows> asked = m_rows;
    const QString rows = QLocale(AppContext::instance()->locale()).toString(m_rows->count());
    const QString reached = m_rows->reached().toString(AppContext::instance()->dateFormat());
    const bool goesOn = QMessageBox::question(
                            m_page, tr("Long List"),
                            tr("%1 rows have been read, back to %2. Read the earlier ones too?").arg(rows, reached)) ==
                        QMessageBox::Yes;
    // The list may have been read again, or its page closed, behind the question.
    if (asked != m_rows)
        return false;
    if (goesOn)
        m_timer->start();
    return goesOn;
}
