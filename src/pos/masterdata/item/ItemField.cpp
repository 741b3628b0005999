#include "pos/masterdata/item/ItemField.h"

#include "kor/business/KorServiceDirectory.h"
#include "kor/widgets/KorDialog.h"

#include <QApplication>

ItemField::ItemField(QLineEdit* code, QLineEdit* name, EntityPool& items, KorDialog* form)
    : QObject(code), m_code(code), m_name(name), m_items(items), m_form(form),
      m_box(new ItemTextBox(code, service<BusinessItem>("Item")))
{
    connect(m_box, &KorTextBoxExtender::onItemSelected, this, [this] {
        // Read anew: what the box found goes with its next search.
        const QString failure = lookUp();
        // The row that says that there is nothing can be chosen, too.
        if (failure.isEmpty() && m_item)
            emit chosen();
    });
    m_box->setTaker([this] {
        const QString failure = lookUp();
        if (!failure.isEmpty() || !m_item)
            return false;
        emit chosen();
        return true;
    });
    connect(m_code, &QLineEdit::textEdited, this, [this] {
        m_item = nullptr;
        m_name->clear();
    });
}

void ItemField::show(EntityItem* item)
{
    m_item = item;
    if (item)
        m_code->setText(item->getKode());
    m_name->setText(item ? item->getNama() : QString());
}

void ItemField::freeze()
{
    m_code->setEnabled(false);
    m_name->setEnabled(false);
}

void ItemField::lookUpWhenLeft()
{
    connect(m_code, &QLineEdit::editingFinished, this, [this] {
        // The list of suggestions that comes up counts as leaving, too; the code may not be typed to the end yet.
        if (QApplication::activePopupWidget())
            return;
        const EntityItem* former = m_item;
        // What fails here is told when the form is confirmed.
        const QString failure = lookUp();
        if (failure.isEmpty() && m_item && m_item != former)
            emit chosen();
    });
}

QString ItemField::lookUp()
{
    const QString code = m_code->text().trimmed();
    if (m_item && m_item->getKode().compare(code, Qt::CaseInsensitive) == 0)
        return {};
    const EntityPoolScope scope(m_items);
    auto* items = service<BusinessItem>("Item");
    items->clearErrors();
    m_item = code.isEmpty() ? nullptr : items->findByCode(code);
    m_name->setText(m_item ? m_item->getNama() : QString());
    return items->takeErrors();
}

bool ItemField::check(const QString& missing, const QString& unknown)
{
    if (m_code->text().trimmed().isEmpty()) {
        m_form->addError(m_code, missing);
        return false;
    }
    const QString failure = lookUp();
    if (!failure.isEmpty())
        m_form->addError(m_code, failure.trimmed());
    else if (!m_item)
        m_form->addError(m_code, unknown);
    return m_item;
}
