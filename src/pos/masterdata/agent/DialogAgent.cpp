#include "pos/masterdata/agent/DialogAgent.h"

#include "pos/masterdata/agent/BusinessAgent.h"

#include "ui_DialogAgent.h"

DialogAgent::DialogAgent(QWidget* parent) : PayeeDialog(parent), m_ui(std::make_unique<Ui::DialogAgent>())
{
    m_ui->setupUi(this);
    usePayeeFields<EntityAgent>(*m_ui, m_ui->lblAgentID);
    edits<EntityAgent>({{m_ui->txtPerc, "CommisionPerc"}});
    m_ui->txtPerc->setValue(0.0);
}

DialogAgent::~DialogAgent() = default;

bool DialogAgent::validate()
{
    validateContact<BusinessAgent>("Agent", {tr("Enter the agent code"),
                                             tr("This agent code already used, please choose another code"),
                                             tr("Enter the agent name"), tr("Enter the address"),
                                             tr("Enter the telp no"), tr("Enter the correct email address")});
    // An empty field means no commission; show the 0 that is stored.
    if (m_ui->txtPerc->text().isEmpty())
        m_ui->txtPerc->setValue(0.0);
    // An invalid number is an error; otherwise the old commission would stay without the user noticing.
    const double commission = m_ui->txtPerc->value();
    if (!m_ui->txtPerc->isValid() || commission < 0 || commission > 100)
        addError(m_ui->txtPerc, tr("Enter the number between 0-100"));
    return !hasError();
}
