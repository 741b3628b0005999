#include "app/access/DialogUser.h"

#include "app/access/BusinessUser.h"
#include "app/access/BusinessUserGroup.h"
#include "app/context/EntityPool.h"
#include "app/context/EntityUser.h"
#include "kor/business/KorErrorScope.h"
#include "kor/business/KorServiceDirectory.h"
#include "kor/persistence/KorDataMapper.h"

#include "ui_DialogUser.h"

#include <QRegularExpression>

DialogUser::DialogUser(QWidget* parent) : KorDialog(parent), m_ui(std::make_unique<Ui::DialogUser>())
{
    m_ui->setupUi(this);
    edits<EntityUser>({{m_ui->lblUserID, "Id"},
                       {m_ui->txtUsername, "UserName"},
                       {m_ui->txtFirstName, "FirstName"},
                       {m_ui->txtLastName, "LastName"}});
    EntityPool pool;
    const EntityPoolScope scope(pool);
    auto* groups = service<BusinessUserGroup>("User Group");
    KorErrorScope errors(groups);
    const QList<KorEntity*> all = groups->findAll(QString());
    showError(errors.take());
    for (const auto* group : castAll<EntityUserGroup>(all))
        m_ui->cbGroup->addItem(group->getGroupName(), group->getId());
    focusLater(m_ui->txtUsername);
}

DialogUser::~DialogUser() = default;

bool DialogUser::validate()
{
    static const QRegularExpression alphaNumeric(QRegularExpression::anchoredPattern("[A-Za-z0-9]*"));
    const QString username = m_ui->txtUsername->text();
    if (require(m_ui->txtUsername, tr("Enter Username"))) {
        if (!alphaNumeric.match(username).hasMatch())
            addError(m_ui->txtUsername, tr("Enter alpha numeric for Username"));
        const auto* user = held<EntityUser>();
        if (!user || user->getUserName() != username) {
            auto* users = service<BusinessUser>("User");
            KorErrorScope errors(users);
            const EntityUser* found = users->findByUsername(username);
            showError(errors.take());
            requireUnused(m_ui->txtUsername, found, tr("Username already exists"));
        }
    }
    require(m_ui->txtFirstName, tr("Enter First Name"));
    require(m_ui->txtLastName, tr("Enter Last Name"));
    // No group is selected if the groups could not be read.
    if (m_ui->cbGroup->currentIndex() < 0)
        addError(m_ui->cbGroup, tr("Select the user group"));
    return !hasError();
}

KorEntity* DialogUser::getEntity()
{
    static const QRegularExpression unwanted("[^a-zA-Z\\d\\s]");
    KorDialog::getEntity();
    auto* user = held<EntityUser>();
    user->setUserName(m_ui->txtUsername->text().remove(unwanted));
    user->setPassword(m_ui->txtPassword->text());
    user->setGroup(static_cast<EntityUserGroup*>(
        service<BusinessUserGroup>("User Group")->find(m_ui->cbGroup->currentData().toInt())));
    return user;
}

void DialogUser::setEntity(KorEntity* entity)
{
    KorDialog::setEntity(entity);
    const auto* user = held<EntityUser>();
    // If the field stays empty, the password is not changed.
    m_ui->txtPassword->clear();
    if (user->getGroup())
        m_ui->cbGroup->setCurrentIndex(m_ui->cbGroup->findData(user->getGroup()->getId()));
}
