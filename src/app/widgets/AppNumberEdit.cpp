#include "app/widgets/AppNumberEdit.h"

#include "app/context/AppContext.h"
#include "kor/entity/KorEntity.h"

AppNumberEdit::AppNumberEdit(QWidget* parent) : KorNumberEdit(parent), m_locale(AppContext::instance()->locale()) {}

QString AppNumberEdit::editableText() const { return m_locale.toString(storedValue(), 'g', significantDigits); }

QString AppNumberEdit::fault()
{
    const QString fault = KorNumberEdit::fault();
    // In a record this number means "no value" and would be stored as NULL.
    const bool isNoValue = holdsNumber() && storedValue() < 0 && qRound(storedValue()) == KorNoValue;
    return fault.isEmpty() && isNoValue ? tr("%1 cannot be stored, please enter another number").arg(displayText())
                                        : fault;
}
