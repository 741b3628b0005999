#include "kor/widgets/KorViewMemory.h"

#include <QApplication>
#include <QHeaderView>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QTableView>

namespace
{
/** A child of the application; it is written to disk when it is deleted. */
QPointer<QSettings>& memoryFile()
{
    static QPointer<QSettings> file;
    return file;
}

QString sizeKey(const QWidget* form) { return QString("sizes/%1").arg(QLatin1String(form->metaObject()->className())); }
} // namespace

void KorViewMemory::setFile(const QString& path)
{
    delete memoryFile();
    if (!path.isEmpty())
        memoryFile() = new QSettings(path, QSettings::IniFormat, QCoreApplication::instance());
}

void KorViewMemory::restoreSize(QWidget* form)
{
    const QSize size = memoryFile() ? memoryFile()->value(sizeKey(form)).toSize() : QSize();
    if (!size.isValid())
        return;
    // The screen may be smaller now.
    form->resize(size.boundedTo(form->screen()->availableSize()));
}

void KorViewMemory::rememberSize(const QWidget* form)
{
    if (memoryFile())
        memoryFile()->setValue(sizeKey(form), form->size());
}

void KorViewMemory::restoreColumns(QTableView* view, const QString& page)
{
    if (!memoryFile())
        return;
    auto* memory = view->findChild<KorViewMemory*>(QString(), Qt::FindDirectChildrenOnly);
    if (!memory)
        memory = new KorViewMemory(view, page);
    memory->restore();
}

KorViewMemory::KorViewMemory(QTableView* view, const QString& page) : QObject(view), m_view(view), m_page(page)
{
    connect(view->horizontalHeader(), &QHeaderView::sectionResized, this, &KorViewMemory::noteWidth);
}

QString KorViewMemory::key(int column) const
{
    return QString("columns/%1.%2.%3").arg(m_page, m_view->objectName()).arg(column);
}

void KorViewMemory::restore() const
{
    // Not the last column: it takes the rest.
    for (int column = 0; column < m_view->model()->columnCount() - 1; ++column) {
        const int width = memoryFile()->value(key(column)).toInt();
        if (width > 0)
            m_view->setColumnWidth(column, width);
    }
}

void KorViewMemory::noteWidth(int column, int formerWidth, int width) const
{
    Q_UNUSED(formerWidth)
    const bool byHand = QApplication::mouseButtons() & Qt::LeftButton;
    if (memoryFile() && byHand && column < m_view->model()->columnCount() - 1)
        memoryFile()->setValue(key(column), width);
}
