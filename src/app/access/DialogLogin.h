#pragma once

#include "kor/widgets/KorDialog.h"

#include <memory>

namespace Ui
{
class DialogLogin;
}

/** Asks for user name and password when the program starts. Cancelling ends the program. */
class DialogLogin : public KorDialog
{
    Q_OBJECT

public:
    explicit DialogLogin(QWidget* parent = nullptr);
    ~DialogLogin() override;

    bool validate() override;
    /** Escape and the window's close button also end the program. */
    void reject() override;

public slots:
    void on_buttonBox_rejected();

protected:
    /** Ends the process. */
    virtual void leaveProgram();

private:
    std::unique_ptr<Ui::DialogLogin> m_ui;
};
