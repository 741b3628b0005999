#include "support/OrderKeys.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>

void typeInto(QWidget* form, const char* field, const QString& text)
{
    auto* edit = form->findChild<QLineEdit*>(field);
    edit->setFocus(Qt::TabFocusReason);
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

void pick(OrderItemPicker* picker, const QString& code, const QString& qty)
{
    typeInto(picker, "txtCode", code);
    QTest::keyClick(picker->findChild<QLineEdit*>("txtCode"), Qt::Key_Return);
    auto* quantity = picker->findChild<QLineEdit*>("txtQty");
    QTest::keyClicks(quantity, qty);
    QTest::keyClick(quantity, Qt::Key_Return);
}

QString takeSlips(const QString& path)
{
    QString text;
    const QDir folder(path);
    const QStringList jobs = folder.entryList({"*.slip"}, QDir::Files, QDir::Name);
    for (const QString& job : jobs) {
        QFile file(folder.filePath(job));
        if (file.open(QIODevice::ReadOnly))
            text += QString::fromUtf8(file.readAll());
        file.remove();
    }
    return text;
}
