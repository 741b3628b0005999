#pragma once

#include "kor/widgets/KorNumberEdit.h"

/** The number field of the program's forms; reads and formats numbers with the configured locale. */
class AppNumberEdit : public KorNumberEdit
{
    Q_OBJECT

public:
    explicit AppNumberEdit(QWidget* parent = nullptr);

    [[nodiscard]] QLocale locale() const override { return m_locale; }
    [[nodiscard]] QString fault() override;

protected:
    [[nodiscard]] QString editableText() const override;

private:
    QLocale m_locale;
};
