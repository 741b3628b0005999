#include "masterdata/item/ItemEntry.h"

#include "kor/business/KorServiceDirectory.h"
#include "masterdata/item/ItemTextBox.h"

#include <QLineEdit>
#include <QMessageBox>

ItemEntry::ItemEntry(QLineEdit* code, QLineEdit* name)
    : QObject(code), m_code(code), m_name(name), m_box(new ItemTextBox(code, service<BusinessItem>("Item")))
{
    connect(m_box, &KorTextBoxExtender::onItemSelected, this, [this] { choose(m_box->selectedItem()); });
    connect(code, &QLineEdit::textEdited, this, [this] {
        const bool wasChosen = m_item;
        m_item.clear();
        if (m_name)
            m_name->clear();
        if (wasChosen)
            emit chosen(nullptr);
    });
    connect(code, &QLineEdit::editingFinished, this, [this] { (void)item(); });
}

void ItemEntry::setNextWidget(QWidget* widget) { m_box->setNextWidget(widget); }

EntityItem* ItemEntry::item()
{
    const QString code = m_code->text().trimmed();
    if (m_item || code.isEmpty())
        return m_item;
    auto* items = service<BusinessItem>("Item");
    EntityItem* found = nullptr;
    {
        const EntityPoolScope scope(m_read);
        found = items->findByCode(code);
    }
    if (items->hasError())
        QMessageBox::critical(m_code->window(), tr("Error"), items->takeErrors());
    if (found)
        choose(found);
    return m_item;
}

void ItemEntry::setItem(EntityItem* item)
{
    m_item = item;
    // A list that came up now would take the next field's keys.
    m_box->preventSuggest();
    m_code->setText(item ? item->getKode() : QString());
    if (m_name)
        m_name->setText(item ? item->getNama() : QString());
}

void ItemEntry::choose(EntityItem* item)
{
    setItem(item);
    emit chosen(item);
}
