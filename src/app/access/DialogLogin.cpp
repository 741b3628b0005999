#include "app/access/DialogLogin.h"

#include "app/access/BusinessUser.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"

#include "ui_DialogLogin.h"

#include <QIcon>

#include <cstdlib>

DialogLogin::DialogLogin(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogLogin>())
{
    m_ui->setupUi(this);
    m_ui->lblLogo->setPixmap(QIcon(":/images/logo.png").pixmap(QSize(240, 135)));
    focusLater(m_ui->txtUsername);
}

DialogLogin::~DialogLogin() = default;

bool DialogLogin::validate()
{
    const QString username = m_ui->txtUsername->text();
    const QString password = m_ui->txtPassword->text();
    if (username.isEmpty() || password.isEmpty()) {
        addError(m_ui->txtUsername, tr("Please enter username and password"));
        return false;
    }
    auto* users = service<BusinessUser>("User");
    KorErrorScope errors(users);
    const bool known = users->login(username, password);
    if (errors.failed())
        addError(m_ui->txtPassword, errors.take());
    else if (!known)
        addError(m_ui->txtPassword, tr("Invalid login"));
    m_ui->txtPassword->selectAll();
    return !hasError();
}

void DialogLogin::on_buttonBox_rejected() { leaveProgram(); }

void DialogLogin::reject() { leaveProgram(); }

void DialogLogin::leaveProgram() { std::exit(0); }
