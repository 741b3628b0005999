#include "shell/window/PageBoxes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QSpinBox>

namespace
{
/** The property with the input. For a combo box it is the index, since texts change with the language. */
const char* valueProperty(const QWidget* box)
{
    if (qobject_cast<const QComboBox*>(box))
        return "currentIndex";
    if (qobject_cast<const QDateTimeEdit*>(box))
        return "dateTime";
    if (qobject_cast<const QSpinBox*>(box))
        return "value";
    if (qobject_cast<const QCheckBox*>(box))
        return "checked";
    if (qobject_cast<const QLineEdit*>(box))
        return "text";
    return nullptr;
}

/** The page's own boxes, without the internal child widgets of other boxes. */
template <class Visit>
void visitBoxes(const QWidget& page, Visit visit)
{
    const QList<QWidget*> widgets = page.findChildren<QWidget*>();
    for (QWidget* box : widgets) {
        const char* property = valueProperty(box);
        if (property && !box->objectName().isEmpty() && !box->objectName().startsWith("qt_"))
            visit(box, property);
    }
}
} // namespace

PageBoxes::PageBoxes(const QWidget& page)
{
    visitBoxes(page, [this](const QWidget* box, const char* property) {
        m_values.insert(box->objectName(), box->property(property));
    });
}

bool PageBoxes::putInto(QWidget& page) const
{
    bool changed = false;
    visitBoxes(page, [this, &changed](QWidget* box, const char* property) {
        const auto value = m_values.constFind(box->objectName());
        if (value == m_values.constEnd() || box->property(property) == *value)
            return;
        box->setProperty(property, *value);
        changed = true;
    });
    return changed;
}
