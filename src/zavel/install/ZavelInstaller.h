#pragma once

#include "pos/install/PosInstaller.h"

class BusinessAgent;
class BusinessMeja;

/**
 * The installer of the whole program. A caller sets type and logger, connects onProgress() and error(), and calls
 * process(), or moves it to a thread whose start does.
 */
class ZavelInstaller final : public PosInstaller
{
    Q_OBJECT

public:
    explicit ZavelInstaller(QObject* parent = nullptr);

    void addMappers() override;
    void insertInitialData() override;
    void registerPermissions() override;
    /** Raises the version last of all, so that an update which was broken off is offered again. */
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
