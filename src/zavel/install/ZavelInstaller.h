#pragma once

#include "pos/install/PosInstaller.h"

class BusinessAgent;
class BusinessMeja;

/**
 * The installer of the whole program. The caller sets type and logger, connects onProgress() and error(), and calls
 * process(), or moves the installer to a thread whose started() signal is connected to process().
 */
class ZavelInstaller final : public PosInstaller
{
    Q_OBJECT

public:
    explicit ZavelInstaller(QObject* parent = nullptr);

    void addMappers() override;
    void insertInitialData() override;
    void registerPermissions() override;
    /** Raises the stored version as the last step, so that an interrupted update is offered again. */
    void recordCompletion() override;

private:
    void insertVersion();
    void insertKeys();
    void insertTables();
    void insertAgent();
    void insertKitchenPrinter();

    BusinessMeja* const m_tables;
    BusinessAgent* const m_agents;
};
