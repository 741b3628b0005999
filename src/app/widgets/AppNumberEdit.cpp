#include "app/widgets/AppNumberEdit.h"

#include "app/context/AppContext.h"

AppNumberEdit::AppNumberEdit(QWidget* parent) : KorNumberEdit(parent), m_locale(AppContext::instance()->locale()) {}

QString AppNumberEdit::editableText() const { return m_locale.toString(storedValue(), 'g', significantDigits); }
