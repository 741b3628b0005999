#include "kor/widgets/KorErrorBox.h"

#include "kor/system/KorFailure.h"

#include <QCoreApplication>
#include <QPushButton>

namespace
{
void show(QMessageBox::Icon icon, QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox box(icon, title, QString(), QMessageBox::Ok, parent);
    box.setDefaultButton(QMessageBox::Ok);
    KorErrorBox::fill(&box, text);
    box.exec();
}
} // namespace

void KorErrorBox::fill(QMessageBox* box, const QString& text)
{
    const KorToldFailure failure = KorToldFailure::in(text);
    // Plain text, because the server's message may look like HTML.
    if (failure.isKnown())
        box->setTextFormat(Qt::PlainText);
    box->setText(failure.text());
    box->setDetailedText(failure.details);
}

bool KorErrorBox::tell(QWidget* parent, const QString& failure)
{
    if (!failure.isEmpty())
        critical(parent, QCoreApplication::translate("KorDialog", "Error"), failure);
    return !failure.isEmpty();
}

void KorErrorBox::critical(QWidget* parent, const QString& title, const QString& text)
{
    show(QMessageBox::Critical, parent, title, text);
}

void KorErrorBox::information(QWidget* parent, const QString& title, const QString& text)
{
    show(QMessageBox::Information, parent, title, text);
}

bool KorErrorBox::ask(QWidget* parent, const QString& title, const QString& text, const QString& details,
                      const QString& yes, const QString& no, QMessageBox::StandardButton byDefault)
{
    QMessageBox box(QMessageBox::Critical, title, text, QMessageBox::Yes | QMessageBox::No, parent);
    box.setTextFormat(Qt::PlainText);
    box.button(QMessageBox::Yes)->setText(yes);
    box.button(QMessageBox::No)->setText(no);
    box.setDefaultButton(byDefault);
    box.setEscapeButton(QMessageBox::No);
    box.setDetailedText(details);
    return box.exec() == QMessageBox::Yes;
}
