#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogLogin;
}

/** Asks who is there before anything else happens. Whoever does not log in leaves the program. */
class DialogLogin : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogLogin(QWidget* parent = nullptr);
    ~DialogLogin() override;

    bool validate() override;
    /** Escape and the window's own close button leave as well. */
    void reject() override;

public slots:
    void on_buttonBox_rejected();

protected:
    /** Ends the process. */
    virtual void leaveProgram();

private:
    std::unique_ptr<Ui::DialogLogin> m_ui;
};
